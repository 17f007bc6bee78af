#pragma once
// Frames of a GIF read by ReadGifFile turned into pictures: our own LZW decoder, and the canvas on
// which frames are composed by the GIF89a disposal methods.
#include <cstdint>
#include <vector>

#include "movies/gif_reader.h"
#include "render/raster_surface.h"

namespace quillane {

// A canvas larger than this is not decoded; such a file still reads and plays as a blank picture.
inline constexpr int64_t MaxGifCanvasPixels = 64LL * 1024 * 1024;

// The colour indices of a frame, row after row from the top, interlacing undone. Data that ends early
// leaves the rest of the frame undecoded: `decoded` counts the pixels that came. False when the frame's
// data is unusable.
bool DecodeFrameIndices(const GifFile& gif, const GifFrame& frame, std::vector<uint8_t>& indices,
                        size_t& decoded);

// Composes frames in order, keeping what each disposal method asks for.
class GifCanvas {
  public:
    // A canvas of the file's size, cleared to `back`.
    void reset(const GifFile* gif, Color back);
    // The picture of frame n (1-based): steps on from the present frame, or starts again from frame 1.
    const RasterSurface& frame(int n);
    const RasterSurface& picture() const { return canvas_; }
    int composedFrame() const { return shown_; }

  private:
    void disposeShown();
    void paintFrame(int n);
    const GifFile* gif_ = nullptr;
    RasterSurface canvas_, previous_;
    Color back_ = White;
    int shown_ = 0;
};

}  // namespace quillane
