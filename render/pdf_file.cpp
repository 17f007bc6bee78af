#include "render/pdf_file.h"

#include <cstdio>
#include <fstream>

#include "core/colors.h"
#include "render/raster_surface.h"

namespace quillane {

namespace {

std::string number(double x) {
    char buf[32];
    std::snprintf(buf, sizeof buf, "%.3f", x);
    return buf;
}

// Text strings escape the characters that delimit them.
std::string literal(const std::string& s) {
    std::string out = "(";
    for (char ch : s) {
        if (ch == '(' || ch == ')' || ch == '\\') out += '\\';
        out += ch;
    }
    return out + ")";
}

}  // namespace

PdfDocument::PdfDocument(double pageWidth, double pageHeight) : width_(pageWidth), height_(pageHeight) {
    newPage();
}

void PdfDocument::newPage() {
    contents_.emplace_back();
    pageImages_.emplace_back();
}

void PdfDocument::text(double x, double y, const std::string& line, double fontSize) {
    contents_.back() += "BT /F1 " + number(fontSize) + " Tf " + number(x) + " " + number(height_ - y) + " Td " +
                        literal(line) + " Tj ET\n";
}

void PdfDocument::picture(double x, double y, double w, double h, const RasterSurface& picture) {
    Image image;
    image.width = picture.width();
    image.height = picture.height();
    image.rgb.reserve(static_cast<size_t>(image.width) * image.height * 3);
    for (int row = 0; row < image.height; ++row)
        for (int column = 0; column < image.width; ++column) {
            const Color c = picture.pixel(column, row);
            image.rgb += static_cast<char>(RedOf(c));
            image.rgb += static_cast<char>(GreenOf(c));
            image.rgb += static_cast<char>(BlueOf(c));
        }
    const int index = static_cast<int>(images_.size());
    images_.push_back(std::move(image));
    pageImages_.back().push_back(index);
    contents_.back() += "q " + number(w) + " 0 0 " + number(h) + " " + number(x) + " " + number(height_ - y - h) +
                        " cm /Im" + std::to_string(index) + " Do Q\n";
}

std::string PdfDocument::bytes() const {
    // Objects: 1 catalog, 2 page tree, 3 font, then per image one object, then per page its page
    // and its content stream.
    std::vector<std::string> objects;
    const int pages = static_cast<int>(contents_.size());
    const int firstImage = 4;
    const int firstPage = firstImage + static_cast<int>(images_.size());
    objects.push_back("<< /Type /Catalog /Pages 2 0 R >>");
    std::string kids;
    for (int p = 0; p < pages; ++p) kids += std::to_string(firstPage + 2 * p) + " 0 R ";
    objects.push_back("<< /Type /Pages /Kids [" + kids + "] /Count " + std::to_string(pages) + " >>");
    objects.push_back("<< /Type /Font /Subtype /Type1 /BaseFont /Courier /Encoding /WinAnsiEncoding >>");
    for (const Image& image : images_)
        objects.push_back("<< /Type /XObject /Subtype /Image /Width " + std::to_string(image.width) + " /Height " +
                          std::to_string(image.height) + " /ColorSpace /DeviceRGB /BitsPerComponent 8 /Length " +
                          std::to_string(image.rgb.size()) + " >>\nstream\n" + image.rgb + "\nendstream");
    for (int p = 0; p < pages; ++p) {
        std::string xobjects;
        for (int i : pageImages_[p])
            xobjects += "/Im" + std::to_string(i) + " " + std::to_string(firstImage + i) + " 0 R ";
        objects.push_back("<< /Type /Page /Parent 2 0 R /MediaBox [0 0 " + number(width_) + " " + number(height_) +
                          "] /Resources << /Font << /F1 3 0 R >> /XObject << " + xobjects + ">> >> /Contents " +
                          std::to_string(firstPage + 2 * p + 1) + " 0 R >>");
        const std::string& content = contents_[p];
        objects.push_back("<< /Length " + std::to_string(content.size()) + " >>\nstream\n" + content + "\nendstream");
    }
    std::string out = "%PDF-1.4\n%\xE2\xE3\xCF\xD3\n";
    std::vector<size_t> offsets;
    for (size_t i = 0; i < objects.size(); ++i) {
        offsets.push_back(out.size());
        out += std::to_string(i + 1) + " 0 obj\n" + objects[i] + "\nendobj\n";
    }
    const size_t xref = out.size();
    out += "xref\n0 " + std::to_string(objects.size() + 1) + "\n0000000000 65535 f \n";
    for (size_t offset : offsets) {
        char line[24];
        std::snprintf(line, sizeof line, "%010zu 00000 n \n", offset);
        out += line;
    }
    out += "trailer\n<< /Size " + std::to_string(objects.size() + 1) + " /Root 1 0 R >>\nstartxref\n" +
           std::to_string(xref) + "\n%%EOF\n";
    return out;
}

bool PdfDocument::save(const std::string& path) const {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    out << bytes();
    return static_cast<bool>(out.flush());
}

}  // namespace quillane
