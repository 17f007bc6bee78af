#include "app/print_commands.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <memory>

#include "core/host.h"
#include "core/workbench.h"
#include "render/raster_surface.h"

namespace quillane {

namespace {

constexpr double PointsPerInch = 72;

bool endsWithTxt(const std::string& path) {
    if (path.size() < 4) return false;
    std::string tail = path.substr(path.size() - 4);
    for (char& ch : tail) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    return tail == ".txt";
}

bool anyText(const PrintRequest& r) {
    return r.text && (r.parts.matrix || r.parts.rotation || r.parts.chaosGame);
}

bool printToFile(const std::string& text, Host& host) {
    FileDialogRequest request;
    request.title = PrintToFileTitle;
    request.filters = {{"Text files (*.txt)", "*.txt"}};
    request.folderKey = "print";
    std::optional<std::string> name = host.saveFileName(request);
    if (!name) return false;
    std::string path = *name;
    if (!endsWithTxt(path)) path += ".txt";
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    if (!out.flush()) {
        host.warn(PrinterErrorTitle, "The text could not be written to\n" + path);
        return false;
    }
    return true;
}

}  // namespace

double PrintSideUp(double inches) {
    return std::min(MaxPrintSideInches, inches + PrintSideStepInches);
}

double PrintSideDown(double inches) {
    return std::max(MinPrintSideInches, inches - PrintSideStepInches);
}

bool PdfPrinter::begin(bool landscape, PrintSheet& sheet, std::string&) {
    sheet_ = portrait_;
    if (landscape) std::swap(sheet_.width, sheet_.height);
    sheet = sheet_;
    document_ = std::make_unique<PdfDocument>(sheet_.width * PointsPerInch, sheet_.height * PointsPerInch);
    first_ = true;
    return true;
}

bool PdfPrinter::page(const PrintPage& page, std::string&) {
    if (!first_) document_->newPage();
    first_ = false;
    for (const PagePicture& p : page.pictures)
        document_->picture(p.x * PointsPerInch, p.y * PointsPerInch, p.width * PointsPerInch,
                           p.height * PointsPerInch, *p.picture);
    for (const PageLine& l : page.lines)
        document_->text(l.x * PointsPerInch, l.baseline * PointsPerInch, l.text, PrintFontPoints);
    return true;
}

bool PdfPrinter::end(std::string& error) {
    if (!document_ || !document_->save(path_)) {
        error = "The file could not be written:\n" + path_;
        return false;
    }
    return true;
}

bool CheckPrintChoice(const PrintRequest& r, Host& host) {
    const bool text = anyText(r);
    if (r.toFile ? text : (r.fractal || r.design || text)) return true;
    host.warn("Error", NothingToPrintMessage);
    return false;
}

std::string PrintRequestText(const Workbench& wb, const PrintRequest& r) {
    return anyText(r) ? PrintText(wb.CurrentIFS, r.parts) : std::string();
}

bool PrintIFS(const Workbench& wb, const RasterSurface& fractal, const RasterSurface& design, const PrintRequest& r,
              Host& host, PagePrinter& printer, const std::function<void(const std::string&)>& status) {
    if (!CheckPrintChoice(r, host)) return false;
    const std::string lines = PrintRequestText(wb, r);
    if (r.toFile) return printToFile(lines, host);
    std::string error;
    PrintSheet sheet;
    if (!printer.begin(r.landscape, sheet, error)) {
        host.warn(PrinterErrorTitle, error);
        return false;
    }
    PrintPictures pictures;
    pictures.fractal = r.fractal ? &fractal : nullptr;
    pictures.design = r.design ? &design : nullptr;
    pictures.sideBySide = r.sideBySide;
    pictures.sideInches = r.sideInches;
    if (r.sideBySide && r.fractal && r.design && !SideBySideFits(sheet, r.sideInches)) {
        printer.abort();
        host.warn("Warning", PaperTooNarrowMessage);
        return false;
    }
    for (const PrintPage& page : LayoutPrint(sheet, pictures, lines)) {
        if (status) status(PrintingPageText);
        if (!printer.page(page, error)) {
            host.warn(PrinterErrorTitle, error);
            if (status) status("");
            return false;
        }
        host.yield();
    }
    if (status) status("");
    if (!printer.end(error)) {
        host.warn(PrinterErrorTitle, error);
        return false;
    }
    return true;
}

}  // namespace quillane
