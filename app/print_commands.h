#pragma once
// File > Print: the pictures of the fractal and design windows and the IFS as text, to a printer,
// to a PDF or, the text alone, to a text file.
#include <functional>
#include <memory>
#include <string>

#include "core/print_text.h"
#include "render/pdf_file.h"
#include "render/print_layout.h"

namespace quillane {

class Host;
class Workbench;
class RasterSurface;

inline constexpr const char* NothingToPrintMessage = "Choose what to print";
inline constexpr const char* PaperTooNarrowMessage =
    "The paper is not wide enough for\nside by side printing of images.";
inline constexpr const char* PrintingPageText = "Printing page";
inline constexpr const char* PrinterErrorTitle = "Printer Error";
inline constexpr const char* PrintToFileTitle = "Print to File";

// frmPrint's choices.
struct PrintRequest {
    bool fractal = false, design = false, text = false;  // chkwhat
    PrintTextParts parts;                                 // chkText
    bool toFile = false;                                  // chkOptions: the text to a file
    bool sideBySide = false;                              // optImages
    bool landscape = false;                               // optOrient
    double sideInches = 3;                                // cmdUp / cmdDown
};

inline constexpr double MinPrintSideInches = 1;
inline constexpr double MaxPrintSideInches = 10;
inline constexpr double PrintSideStepInches = 0.5;
// cmdUp and cmdDown: half an inch at a time, within 1 to 10 inches.
double PrintSideUp(double inches);
double PrintSideDown(double inches);

// A printer as the print command sees it: a job of pages.
class PagePrinter {
  public:
    virtual ~PagePrinter() = default;
    // Starts the job and tells the paper as it lies; false with a reason when it cannot start.
    virtual bool begin(bool landscape, PrintSheet& sheet, std::string& error) = 0;
    virtual bool page(const PrintPage& page, std::string& error) = 0;
    virtual bool end(std::string& error) = 0;
    // Ends a started job without printing anything.
    virtual void abort() = 0;
};

// The pages into our own PDF file, for printing without a printer.
class PdfPrinter final : public PagePrinter {
  public:
    explicit PdfPrinter(std::string path, PrintSheet portrait = {}) : path_(std::move(path)), portrait_(portrait) {}
    bool begin(bool landscape, PrintSheet& sheet, std::string& error) override;
    bool page(const PrintPage& page, std::string& error) override;
    bool end(std::string& error) override;
    void abort() override { document_.reset(); }

  private:
    std::string path_;
    PrintSheet portrait_;
    PrintSheet sheet_;
    std::unique_ptr<PdfDocument> document_;
    bool first_ = true;
};

// "Choose what to print" when nothing is chosen (the text alone counts when printing to a file).
bool CheckPrintChoice(const PrintRequest& r, Host& host);

// The text parts the request asks for, of the working IFS.
std::string PrintRequestText(const Workbench& wb, const PrintRequest& r);

// frmPrint's OK: "Choose what to print" when nothing is chosen; to a file, the text through the
// "Print to File" dialog (".txt" added when missing); else the pictures and text as pages, with
// the paper-width warning for side by side pictures. `status` shows "Printing page" during the
// job. Printer faults are shown under "Printer Error". True when something was printed.
bool PrintIFS(const Workbench& wb, const RasterSurface& fractal, const RasterSurface& design, const PrintRequest& r,
              Host& host, PagePrinter& printer, const std::function<void(const std::string&)>& status);

}  // namespace quillane
