#include <QApplication>
#include <clocale>

#include "shell/main_window.h"

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    // Qt takes the user's locale for the C library too; numbers in files and boxes always use ".".
    std::setlocale(LC_NUMERIC, "C");
    quillane::MainWindow frame;
    frame.show();
    // Bare X servers have no window manager to give the frame the focus.
    frame.activateWindow();
    frame.start();
    return app.exec();
}
