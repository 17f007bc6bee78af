#include "shell/print_commands.h"

#include <QCoreApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <memory>

#include "app/print_commands.h"
#include "shell/main_window.h"
#include "shell/print_dialog.h"
#include "shell/qt_page_printer.h"

namespace quillane {

void RegisterPrintCommands(MainWindow& frame) {
    // The dialog opens with the last choices of this run.
    auto last = std::make_shared<PrintRequest>();
    last->fractal = true;
    last->text = true;
    frame.setCommand("mnuFilePrint", [&frame, last] {
        AppState& s = frame.state();
        const bool chaosGame = s.wb.DesignMode == 1;
        const std::optional<PrintRequest> r = AskPrintRequest(*last, chaosGame, &frame);
        if (!r) return;
        *last = *r;
        if (!CheckPrintChoice(*r, frame.host())) return;
        QPrinter printer(QPrinter::HighResolution);
        if (!r->toFile) {
            QPrintDialog dialog(&printer, &frame);
            if (dialog.exec() != QDialog::Accepted) return;
        }
        QtPagePrinter pages(printer);
        PrintIFS(s.wb, s.pics.picfractal, s.design.shownPicture(chaosGame), *r, frame.host(), pages,
                 [&frame](const std::string& text) { frame.setStatusText(0, QString::fromStdString(text)); });
    });
}

}  // namespace quillane
