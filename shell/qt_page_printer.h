#pragma once
// The pages of a printout on a Qt printer: a real one, or a PDF file when none is installed.
#include <QPainter>

#include "app/print_commands.h"

class QPrinter;

namespace quillane {

class QtPagePrinter final : public PagePrinter {
  public:
    explicit QtPagePrinter(QPrinter& printer) : printer_(printer) {}
    bool begin(bool landscape, PrintSheet& sheet, std::string& error) override;
    bool page(const PrintPage& page, std::string& error) override;
    bool end(std::string& error) override;
    void abort() override;

  private:
    QPrinter& printer_;
    QPainter painter_;
    bool first_ = true;
};

}  // namespace quillane
