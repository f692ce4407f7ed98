#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

#include "model/ProcessContext.h"

int main(int argc, char** argv) {
    // The real widgets, without a display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    zentor::PrepareRuntimeDir();
    QApplication app(argc, argv);
    QApplication::setApplicationName("Vitara Zentor");
    // The user's own settings (recent files) stay out of reach.
    QStandardPaths::setTestModeEnabled(true);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
