#include <gtest/gtest.h>

#include <QGuiApplication>

#include "model/ProcessContext.h"

int main(int argc, char** argv) {
    // Pictures and fonts need an application object; tests never need a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    zentor::PrepareRuntimeDir();
    QGuiApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
