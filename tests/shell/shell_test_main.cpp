#include <gtest/gtest.h>

#include <QApplication>

// Test discovery runs this program at build time without the test environment, so the platform is
// chosen here.
int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    ::testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    // Tests close frames and go on.
    app.setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
