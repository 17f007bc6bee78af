#include "shell/qt_page_printer.h"

#include <QFontDatabase>
#include <QPageLayout>
#include <QPrinter>

#include "shell/surface_image.h"

namespace quillane {

namespace {

// Courier New where the system has it, else its own fixed-pitch font.
QFont printFont() {
    QFont font("Courier New");
    font.setStyleHint(QFont::TypeWriter);
    font.setFixedPitch(true);
    if (!QFontInfo(font).fixedPitch()) font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    font.setPointSizeF(PrintFontPoints);
    return font;
}

}  // namespace

bool QtPagePrinter::begin(bool landscape, PrintSheet& sheet, std::string& error) {
    printer_.setPageOrientation(landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    // Page coordinates from the paper's corner, as the layout counts its margins.
    printer_.setFullPage(true);
    if (!painter_.begin(&printer_)) {
        error = "The printer could not be started.";
        return false;
    }
    const QRectF paper = printer_.paperRect(QPrinter::Inch);
    sheet = {paper.width(), paper.height()};
    first_ = true;
    return true;
}

bool QtPagePrinter::page(const PrintPage& page, std::string& error) {
    if (!first_ && !printer_.newPage()) {
        error = "The printer refused a new page.";
        return false;
    }
    first_ = false;
    const double dpi = printer_.resolution();
    for (const PagePicture& p : page.pictures)
        painter_.drawImage(QRectF(p.x * dpi, p.y * dpi, p.width * dpi, p.height * dpi), ImageOfSurface(*p.picture));
    painter_.setFont(printFont());
    painter_.setPen(Qt::black);
    for (const PageLine& l : page.lines)
        painter_.drawText(QPointF(l.x * dpi, l.baseline * dpi), QString::fromStdString(l.text));
    return true;
}

bool QtPagePrinter::end(std::string& error) {
    if (!painter_.end()) {
        error = "The printer could not finish the job.";
        return false;
    }
    return true;
}

void QtPagePrinter::abort() {
    printer_.abort();
    if (painter_.isActive()) painter_.end();
}

}  // namespace quillane
