#pragma once
// A small PDF writer for printouts without a printer: pages of fixed-pitch text and pictures.
// The text font is the standard Courier, which every PDF reader has, so nothing is embedded.
#include <string>
#include <vector>

namespace quillane {

class RasterSurface;

class PdfDocument {
  public:
    // The page size in points (1/72 inch).
    PdfDocument(double pageWidth, double pageHeight);

    void newPage();
    // A line of text with its baseline at (x, y) points from the page's top left.
    void text(double x, double y, const std::string& line, double fontSize);
    // The picture drawn into the box (x, y, w, h) in points from the page's top left.
    void picture(double x, double y, double w, double h, const RasterSurface& picture);

    std::string bytes() const;
    // False when the file could not be written.
    bool save(const std::string& path) const;

  private:
    struct Image {
        int width = 0, height = 0;
        std::string rgb;
    };
    double width_, height_;
    std::vector<std::string> contents_;  // one content stream per page
    std::vector<std::vector<int>> pageImages_;
    std::vector<Image> images_;
};

}  // namespace quillane
