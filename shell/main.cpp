#include <clocale>
#include <cstdio>
#include <cstdlib>

#include "shell/guarded_application.h"
#include "shell/main_window.h"

int main(int argc, char** argv) {
    quillane::GuardedApplication app(argc, argv);
    // Qt takes the user's locale for the C library too; numbers in files and boxes always use ".".
    std::setlocale(LC_NUMERIC, "C");
    quillane::MainWindow frame;
    app.onError = [&frame](const std::string& what) {
        // A drawing cut short by the error must not leave the menus waiting for it.
        frame.state().wb.DrawingActive = false;
        frame.host().warn(quillane::UnexpectedErrorTitle, quillane::UnexpectedErrorText(what));
    };
    frame.show();
    // Bare X servers have no window manager to give the frame the focus.
    frame.activateWindow();
    frame.start();
    // For installation checks: say which list the start took, then leave without a window loop.
    if (std::getenv("QUILLANE_REPORT_START")) {
        std::printf("%s\n", frame.state().wb.CurrentIFS.Name.c_str());
        return 0;
    }
    return app.exec();
}
