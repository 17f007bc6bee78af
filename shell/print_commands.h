#pragma once
namespace quillane {
class MainWindow;
// File > Print: frmPrint, then the system's print dialog (a printer or a PDF file) or the text file.
void RegisterPrintCommands(MainWindow& frame);
}  // namespace quillane
