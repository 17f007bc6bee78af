#pragma once
// The checks of the movie dialogs: text in, the exact message out (empty when the values are fine).
#include <string>

namespace quillane {

inline constexpr const char* FrameRateMessage = "Frame rate should be at least 10";
inline constexpr const char* PixelSizeMessage = "Pixel size must be greater than 50";
inline constexpr const char* FrameSizeMessage = "Size must be between 50 and 400";
inline constexpr const char* MovieErrorTitle = "Error";
inline constexpr const char* AnimatedGifFilter = "Animated GIF files (*.gif)";

// frmAnimatedGifSize's cmdOk: the display time and the movie size.
std::string CheckAnimatedGifSize(const std::string& txtTime, const std::string& txtMovieSize);
// frmAnimDetGif's cmdGo: the display time, read by Val.
std::string CheckDetMovieTime(const std::string& txtTime);
// frmMovieSize: a display size in pixels.
std::string CheckMovieFrameSize(const std::string& size);

}  // namespace quillane
