#include <gtest/gtest.h>

#include <QApplication>

#include "model/ProcessContext.h"

int main(int argc, char** argv) {
    // Widgets need a QApplication; the tests never need a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    zentor::PrepareRuntimeDir();
    QApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
