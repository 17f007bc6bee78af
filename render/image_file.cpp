#include "render/image_file.h"

#include <FreeImage.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <memory>
#include <mutex>
#include <system_error>

namespace quillane {
namespace {

namespace fs = std::filesystem;

// The library reports its failures only through this callback; the text is added to our own error.
thread_local std::string libraryMessage;

void takeMessage(FREE_IMAGE_FORMAT, const char* message) {
    if (!libraryMessage.empty()) libraryMessage += "; ";
    libraryMessage += message ? message : "";
}

struct BitmapDeleter {
    void operator()(FIBITMAP* b) const { FreeImage_Unload(b); }
};
using Bitmap = std::unique_ptr<FIBITMAP, BitmapDeleter>;

struct SaveFormat {
    FREE_IMAGE_FORMAT format = FIF_UNKNOWN;
    int flags = 0;
};

SaveFormat saveFormatOf(const std::string& path) {
    std::string ext = fs::path(path).extension().string();
    std::transform(ext.begin(), ext.end(), ext.begin(), [](unsigned char c) { return std::tolower(c); });
    if (ext == ".png") return {FIF_PNG, PNG_DEFAULT};
    if (ext == ".bmp") return {FIF_BMP, BMP_DEFAULT};
    if (ext == ".gif") return {FIF_GIF, GIF_DEFAULT};
    // Fractals are fine coloured dots: keep full colour resolution rather than the smaller file.
    if (ext == ".jpg" || ext == ".jpeg") return {FIF_JPEG, JPEG_QUALITYSUPERB | JPEG_SUBSAMPLING_444};
    return {};
}

// The library's scanline 0 is the bottom row, with bytes in its own channel order.
Bitmap toBitmap(const RasterSurface& picture) {
    const int w = picture.width(), h = picture.height();
    Bitmap dib(FreeImage_Allocate(w, h, 24, FI_RGBA_RED_MASK, FI_RGBA_GREEN_MASK, FI_RGBA_BLUE_MASK));
    if (!dib) return dib;
    for (int row = 0; row < h; ++row) {
        BYTE* line = FreeImage_GetScanLine(dib.get(), h - 1 - row);
        for (int col = 0; col < w; ++col) {
            const Color c = picture.pixel(col, row);
            line[3 * col + FI_RGBA_RED] = static_cast<BYTE>(RedOf(c));
            line[3 * col + FI_RGBA_GREEN] = static_cast<BYTE>(GreenOf(c));
            line[3 * col + FI_RGBA_BLUE] = static_cast<BYTE>(BlueOf(c));
        }
    }
    return dib;
}

void fromBitmap(FIBITMAP* dib, RasterSurface& picture) {
    const int w = static_cast<int>(FreeImage_GetWidth(dib)), h = static_cast<int>(FreeImage_GetHeight(dib));
    picture.resize(w, h);
    for (int row = 0; row < h; ++row) {
        const BYTE* line = FreeImage_GetScanLine(dib, h - 1 - row);
        for (int col = 0; col < w; ++col)
            picture.setPixel(col, row,
                             RGB(line[3 * col + FI_RGBA_RED], line[3 * col + FI_RGBA_GREEN],
                                 line[3 * col + FI_RGBA_BLUE]));
    }
}

Bitmap to24Bits(FIBITMAP* dib) {
    Bitmap rgb(FreeImage_ConvertTo24Bits(dib));
    if (rgb) return rgb;
    // Pictures of 16-bit grey, float and the like go through the standard 8-bit type first.
    Bitmap standard(FreeImage_ConvertToStandardType(dib, TRUE));
    if (standard) rgb.reset(FreeImage_ConvertTo24Bits(standard.get()));
    return rgb;
}

bool writeBeside(FIBITMAP* dib, const SaveFormat& f, const std::string& path, std::string& error) {
    const std::string temporary = path + ".part";
    if (!FreeImage_Save(f.format, dib, temporary.c_str(), f.flags)) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        error = WithFreeImageMessage("The picture could not be written to \"" + path + "\".");
        return false;
    }
    std::error_code ec;
    fs::rename(temporary, path, ec);
    if (ec) {
        std::error_code ignored;
        fs::remove(temporary, ignored);
        error = "The picture could not be written to \"" + path + "\": " + ec.message();
        return false;
    }
    return true;
}

}  // namespace

void StartFreeImage() {
    static std::once_flag once;
    std::call_once(once, [] {
        FreeImage_Initialise(FALSE);
        FreeImage_SetOutputMessage(&takeMessage);
    });
    libraryMessage.clear();
}

std::string WithFreeImageMessage(std::string text) {
    if (!libraryMessage.empty()) text += " (" + libraryMessage + ")";
    return text;
}

bool SaveImageFile(const RasterSurface& picture, const std::string& path, std::string& error) {
    StartFreeImage();
    const SaveFormat f = saveFormatOf(path);
    if (f.format == FIF_UNKNOWN) {
        error = "Unknown picture file type \"" + fs::path(path).extension().string() + "\".";
        return false;
    }
    if (picture.width() <= 0 || picture.height() <= 0) {
        error = "The picture is empty.";
        return false;
    }
    Bitmap dib = toBitmap(picture);
    if (dib && f.format == FIF_GIF) dib.reset(FreeImage_ColorQuantize(dib.get(), FIQ_WUQUANT));
    if (!dib) {
        error = WithFreeImageMessage("The picture could not be converted.");
        return false;
    }
    return writeBeside(dib.get(), f, path, error);
}

bool LoadImageFile(const std::string& path, RasterSurface& picture, std::string& error) {
    StartFreeImage();
    std::error_code ec;
    if (!fs::is_regular_file(path, ec)) {
        error = "File not found: \"" + path + "\".";
        return false;
    }
    FREE_IMAGE_FORMAT format = FreeImage_GetFileType(path.c_str(), 0);
    if (format == FIF_UNKNOWN) format = FreeImage_GetFIFFromFilename(path.c_str());
    if (format == FIF_UNKNOWN || !FreeImage_FIFSupportsReading(format)) {
        error = "\"" + path + "\" is not a picture file that can be read.";
        return false;
    }
    Bitmap raw(FreeImage_Load(format, path.c_str(), format == FIF_JPEG ? JPEG_ACCURATE : 0));
    Bitmap rgb = raw ? to24Bits(raw.get()) : Bitmap();
    if (!rgb) {
        error = WithFreeImageMessage("The picture \"" + path + "\" could not be read.");
        return false;
    }
    fromBitmap(rgb.get(), picture);
    return true;
}

}  // namespace quillane
