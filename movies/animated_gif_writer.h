#pragma once
// An animated GIF written page by page through the picture library's multi-page interface. The
// pages go to a temporary file beside the target, renamed over it only when the movie is complete,
// so a stopped or failed movie never leaves a file under the chosen name.
#include <cstdint>
#include <memory>
#include <string>

#include "render/raster_surface.h"

namespace quillane {

inline constexpr const char* SavingAnimatedGifFailed = "Saving animated GIF failed";
inline constexpr const char* DesignMovieFailed = "Could not create design movie";

class AnimatedGifWriter {
  public:
    AnimatedGifWriter();
    ~AnimatedGifWriter();  // an unfinished movie is abandoned
    AnimatedGifWriter(const AnimatedGifWriter&) = delete;
    AnimatedGifWriter& operator=(const AnimatedGifWriter&) = delete;

    // Loop 0 plays endlessly; the frame time is in milliseconds.
    bool open(const std::string& path, int32_t loop, int32_t frameTimeMs);
    bool isOpen() const;
    // Quantises the picture to 8 bits and appends it; the loop count goes on the first page only.
    bool appendPage(const RasterSurface& picture);
    int pageCount() const { return pages_; }
    // Writes the file and renames it into place. False when any page or the file failed.
    bool close();
    // Drops the movie: the temporary file goes and the target stays as it was.
    void abandon();
    const std::string& error() const { return error_; }
    // Milliseconds spent quantising and in the library's page and file work, for the benchmark.
    double quantiseMs() const { return quantiseMs_; }
    double writeMs() const { return writeMs_; }

  private:
    struct Library;
    std::unique_ptr<Library> lib_;
    std::string path_, temporary_, error_;
    int32_t loop_ = 0, frameTime_ = 100;
    int pages_ = 0;
    bool failed_ = false;
    double quantiseMs_ = 0, writeMs_ = 0;
};

}  // namespace quillane
