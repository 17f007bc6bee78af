#include "movies/movie_options.h"

#include "core/numbers.h"

namespace quillane {

std::string CheckAnimatedGifSize(const std::string& txtTime, const std::string& txtMovieSize) {
    if (Val(txtTime) < 10) return FrameRateMessage;
    if (Val(txtMovieSize) <= 50) return PixelSizeMessage;
    return {};
}

std::string CheckDetMovieTime(const std::string& txtTime) {
    return Val(txtTime) < 10 ? FrameRateMessage : std::string();
}

std::string CheckMovieFrameSize(const std::string& size) {
    const double v = Val(size);
    return v < 50 || v > 400 ? FrameSizeMessage : std::string();
}

}  // namespace quillane
