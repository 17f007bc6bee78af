#include "movies/animated_gif_writer.h"

#include <FreeImage.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <system_error>

#include "render/image_file.h"

namespace quillane {
namespace {

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

double msSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// A long animation tag; the library reads "Loop" and "FrameTime" only with this type.
bool setLongTag(FIBITMAP* dib, const char* key, int32_t value) {
    FITAG* tag = FreeImage_CreateTag();
    if (!tag) return false;
    LONG v = value;
    const bool ok = FreeImage_SetTagKey(tag, key) && FreeImage_SetTagType(tag, FIDT_LONG) &&
                    FreeImage_SetTagCount(tag, 1) && FreeImage_SetTagLength(tag, sizeof(LONG)) &&
                    FreeImage_SetTagValue(tag, &v) && FreeImage_SetMetadata(FIMD_ANIMATION, dib, key, tag);
    FreeImage_DeleteTag(tag);
    return ok;
}

// A 24-bit copy of the picture; the library's scanline 0 is the bottom row.
FIBITMAP* toBitmap(const RasterSurface& picture) {
    const int w = picture.width(), h = picture.height();
    FIBITMAP* dib = FreeImage_Allocate(w, h, 24, FI_RGBA_RED_MASK, FI_RGBA_GREEN_MASK, FI_RGBA_BLUE_MASK);
    if (!dib) return nullptr;
    for (int row = 0; row < h; ++row) {
        BYTE* line = FreeImage_GetScanLine(dib, h - 1 - row);
        const uint32_t* src = picture.data() + static_cast<size_t>(row) * w;
        for (int col = 0; col < w; ++col) {
            const uint32_t c = src[col];
            line[3 * col + FI_RGBA_RED] = static_cast<BYTE>(c & 0xFF);
            line[3 * col + FI_RGBA_GREEN] = static_cast<BYTE>((c >> 8) & 0xFF);
            line[3 * col + FI_RGBA_BLUE] = static_cast<BYTE>((c >> 16) & 0xFF);
        }
    }
    return dib;
}

}  // namespace

struct AnimatedGifWriter::Library {
    FIMULTIBITMAP* movie = nullptr;
};

AnimatedGifWriter::AnimatedGifWriter() : lib_(std::make_unique<Library>()) {}

AnimatedGifWriter::~AnimatedGifWriter() {
    abandon();
}

bool AnimatedGifWriter::isOpen() const {
    return lib_->movie != nullptr;
}

bool AnimatedGifWriter::open(const std::string& path, int32_t loop, int32_t frameTimeMs) {
    abandon();
    StartFreeImage();
    path_ = path;
    temporary_ = path + ".part";
    loop_ = loop < 0 ? 0 : loop;
    frameTime_ = frameTimeMs;
    pages_ = 0;
    failed_ = false;
    error_.clear();
    // The library finds out only when it closes the file; a folder that takes no file is seen now.
    if (!std::ofstream(temporary_, std::ios::binary)) {
        error_ = "The movie could not be created at \"" + path + "\".";
        return false;
    }
    std::error_code ignored;
    fs::remove(temporary_, ignored);
    // Keep the cache in memory: otherwise the library leaves a cache file beside the movie.
    lib_->movie = FreeImage_OpenMultiBitmap(FIF_GIF, temporary_.c_str(), TRUE, FALSE, TRUE, 0);
    if (!lib_->movie) {
        error_ = WithFreeImageMessage("The movie could not be created at \"" + path + "\".");
        return false;
    }
    return true;
}

bool AnimatedGifWriter::appendPage(const RasterSurface& picture) {
    if (!lib_->movie || failed_) return false;
    if (picture.width() <= 0 || picture.height() <= 0) {
        failed_ = true;
        error_ = "The frame is empty.";
        return false;
    }
    auto start = Clock::now();
    FIBITMAP* rgb = toBitmap(picture);
    // GIF pages must be 8 bits; a colour reduction keeps the colours, a plain conversion would not.
    FIBITMAP* page = rgb ? FreeImage_ColorQuantize(rgb, FIQ_WUQUANT) : nullptr;
    if (rgb) FreeImage_Unload(rgb);
    quantiseMs_ += msSince(start);
    if (!page) {
        failed_ = true;
        error_ = "A frame could not be reduced to 256 colours.";
        return false;
    }
    start = Clock::now();
    bool ok = (pages_ > 0 || setLongTag(page, "Loop", loop_)) && setLongTag(page, "FrameTime", frameTime_);
    if (ok) {
        FreeImage_AppendPage(lib_->movie, page);
        // The library drops a page it cannot take without a word: count them.
        ok = FreeImage_GetPageCount(lib_->movie) == pages_ + 1;
    }
    FreeImage_Unload(page);
    writeMs_ += msSince(start);
    if (!ok) {
        failed_ = true;
        error_ = "A frame could not be added to the movie.";
        return false;
    }
    ++pages_;
    return true;
}

bool AnimatedGifWriter::close() {
    if (!lib_->movie) return false;
    const auto start = Clock::now();
    const bool written = FreeImage_CloseMultiBitmap(lib_->movie, 0) != FALSE;
    lib_->movie = nullptr;
    writeMs_ += msSince(start);
    std::error_code ec;
    if (!written || failed_ || pages_ == 0) {
        if (error_.empty())
            error_ = pages_ == 0 ? "The movie has no frames." : "The movie could not be written.";
        fs::remove(temporary_, ec);
        return false;
    }
    fs::rename(temporary_, path_, ec);
    if (ec) {
        error_ = "The movie could not be written to \"" + path_ + "\": " + ec.message();
        std::error_code ignored;
        fs::remove(temporary_, ignored);
        return false;
    }
    return true;
}

void AnimatedGifWriter::abandon() {
    if (lib_->movie) {
        FreeImage_CloseMultiBitmap(lib_->movie, 0);
        lib_->movie = nullptr;
    }
    if (!temporary_.empty()) {
        std::error_code ignored;
        fs::remove(temporary_, ignored);
    }
}

}  // namespace quillane
