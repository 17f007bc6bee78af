#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>

// Test discovery runs this program at build time without the test environment, so the platform is
// chosen here.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    // A frame built the program's own way must never read or write a real settings file.
    QTemporaryDir settingsDir;
    if (qEnvironmentVariableIsEmpty("QUILLANE_SETTINGS"))
        qputenv("QUILLANE_SETTINGS", settingsDir.filePath("Quillane.ini").toLocal8Bit());
    // Tests close frames and go on.
    app.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
