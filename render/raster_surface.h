#pragma once
// A picture in memory: 32-bit pixels holding R + 256 G + 65536 B, with the fourth byte 255,
// which is QImage::Format_RGBX8888 on a little-endian machine, so a widget can show it as it is.
#include <cmath>
#include <cstdint>
#include <vector>

#include "render/draw_surface.h"
#include "render/pixel_allocator.h"

namespace quillane {

class RasterSurface final : public DrawSurface {
  public:
    RasterSurface() = default;
    RasterSurface(int width, int height, Color back = White);

    int width() const override { return width_; }
    int height() const override { return height_; }
    void resize(int width, int height) override;  // keeps the scale, clears to the background

    void setScale(double left, double top, double right, double bottom) override;
    double scaleLeft() const override { return left_; }
    double scaleTop() const override { return top_; }
    double scaleRight() const override { return right_; }
    double scaleBottom() const override { return bottom_; }

    double pixelsToWorldX(double pixels) const override;
    double pixelsToWorldY(double pixels) const override;
    double worldToPixelsX(double length) const override;
    double worldToPixelsY(double length) const override;

    Color backColor() const override { return back_; }
    void setBackColor(Color c) override { back_ = c & 0xFFFFFFu; }
    DrawMode drawMode() const override { return mode_; }
    void setDrawMode(DrawMode m) override { mode_ = m; }
    int drawWidth() const override { return drawWidth_; }
    void setDrawWidth(int pixels) override { drawWidth_ = pixels < 1 ? 1 : pixels; }
    DrawStyle drawStyle() const override { return style_; }
    void setDrawStyle(DrawStyle s) override { style_ = s; }

    void clear() override;
    void pset(double x, double y, Color c) override;
    Color point(double x, double y) const override;
    void line(double x1, double y1, double x2, double y2, Color c) override;
    void box(double x1, double y1, double x2, double y2, Color c, bool filled) override;
    void circle(double x, double y, double radius, Color c, bool filled) override;
    void polygon(const std::vector<WorldPoint>& points, Color c, bool filled) override;
    void floodFill(double x, double y, Color fill) override;
    void floodFillBorder(double x, double y, Color border, Color fill) override;
    void paint(const RasterSurface& source, double x, double y, RasterOp op) override;
    void takeImage(const RasterSurface& source) override;

    // A picture behind the drawing, at its pixel place: clear() shows it instead of the background
    // colour. keepAsPicture takes the present pixels as that picture.
    void keepAsPicture() { picture_.assign(pixels_.begin(), pixels_.end()); }
    void removePicture() { picture_.clear(); }
    bool hasPicture() const { return !picture_.empty(); }

    // World to pixel: column floor((x - left) * sx), row floor((y - top) * sy).
    // False when the position does not fit a 32-bit integer (or is NaN).
    bool toPixel(double x, double y, int64_t& column, int64_t& row) const {
        const double px = std::floor((x - left_) * sx_);
        const double py = std::floor((y - top_) * sy_);
        if (!(px > -2147483649.0 && px < 2147483648.0 && py > -2147483649.0 && py < 2147483648.0))
            return false;
        column = static_cast<int64_t>(px);
        row = static_cast<int64_t>(py);
        return true;
    }
    // The same pixel position without the 32-bit check, for clipping what lies far outside.
    void toPixelFloor(double x, double y, double& column, double& row) const {
        column = std::floor((x - left_) * sx_);
        row = std::floor((y - top_) * sy_);
    }
    // Pixel-space scale factors of the mapping above.
    double pixelScaleX() const { return sx_; }
    double pixelScaleY() const { return sy_; }

    // Direct pixel access by column and row; colours without the fourth byte.
    Color pixel(int column, int row) const {
        return pixels_[static_cast<size_t>(row) * width_ + column] & 0xFFFFFFu;
    }
    void setPixel(int column, int row, Color c) {
        pixels_[static_cast<size_t>(row) * width_ + column] = (c & 0xFFFFFFu) | 0xFF000000u;
    }
    bool inside(int64_t column, int64_t row) const {
        return column >= 0 && row >= 0 && column < width_ && row < height_;
    }
    // The raw buffer, row after row from the top, for showing and for picture files.
    const uint32_t* data() const { return pixels_.data(); }
    uint32_t* data() { return pixels_.data(); }

  private:
    void updateFactors();
    int width_ = 0, height_ = 0;
    std::vector<uint32_t, PixelAllocator<uint32_t>> pixels_;
    std::vector<uint32_t> picture_;  // the picture behind the drawing; empty: none
    double left_ = 0, top_ = 0, right_ = 0, bottom_ = 0;
    double sx_ = 0, sy_ = 0;
    bool scaleSet_ = false;  // until setScale, the scale follows the size in pixel units
    Color back_ = White;
    DrawMode mode_ = DrawMode::CopyPen;
    int drawWidth_ = 1;
    DrawStyle style_ = DrawStyle::Solid;
};

}  // namespace quillane
