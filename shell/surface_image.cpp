#include "shell/surface_image.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <cstring>

namespace quillane {

QImage ImageOfSurface(const RasterSurface& surface) {
    const QImage view(reinterpret_cast<const uchar*>(surface.data()), surface.width(), surface.height(),
                      surface.width() * 4, QImage::Format_RGBX8888);
    return view.copy();
}

RasterSurface SurfaceOfImage(const QImage& image) {
    const QImage rgbx = image.convertToFormat(QImage::Format_RGBX8888);
    RasterSurface surface(rgbx.width(), rgbx.height());
    for (int r = 0; r < rgbx.height(); ++r)
        std::memcpy(surface.data() + static_cast<size_t>(r) * rgbx.width(), rgbx.constScanLine(r),
                    static_cast<size_t>(rgbx.width()) * 4);
    return surface;
}

std::optional<RasterSurface> ClipboardBitmap() {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    if (!data || !data->hasImage()) return std::nullopt;
    const QImage image = QGuiApplication::clipboard()->image();
    if (image.isNull()) return std::nullopt;
    return SurfaceOfImage(image);
}

void CopySurfaceToClipboard(const RasterSurface& surface) {
    if (surface.width() == 0 || surface.height() == 0) return;
    QGuiApplication::clipboard()->setImage(ImageOfSurface(surface).convertToFormat(QImage::Format_RGB32));
}

}  // namespace quillane
