#include <QApplication>

#include "shell/main_window.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    quillane::MainWindow frame;
    frame.show();
    // Bare X servers have no window manager to give the frame the focus.
    frame.activateWindow();
    frame.start();
    return app.exec();
}
