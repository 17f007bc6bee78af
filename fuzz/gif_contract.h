#pragma once
// What the GIF block reader and the frame decoder promise for any bytes: the reader returns, every
// frame it lists lies inside the bytes it kept and names a colour table it read, and decoding and
// composing every frame returns. The fuzz target aborts on a broken promise; the movie tests replay
// kept findings and mangled movies through the same check.
#include <cstdint>
#include <string>
#include <vector>

#include "movies/gif_decoder.h"
#include "movies/gif_reader.h"

namespace quillane::contracts {

// Frames and canvases beyond this are read but not decoded here, so one input cannot stall the fuzzer.
inline constexpr int64_t ComposedCanvasLimit = 512LL * 512;

inline const char* checkGifRead(const std::string& bytes) {
    const GifFile gif = ReadGifBytes(std::vector<uint8_t>(bytes.begin(), bytes.end()));
    if (gif.Bytes.size() != bytes.size()) return "the reader keeps the bytes it was given";
    if (gif.Tables.empty() && !gif.Frames.empty()) return "a file with frames has table 0";
    for (const GifFrame& f : gif.Frames) {
        if (f.Offset > gif.Bytes.size() || f.Length > gif.Bytes.size() - f.Offset)
            return "a frame's block lies inside the file";
        if (f.TableIndex < 0 || f.TableIndex >= static_cast<int32_t>(gif.Tables.size()))
            return "a frame names a colour table that was read";
        if (f.Width < 0 || f.Height < 0 || f.Left < 0 || f.Top < 0) return "a frame has no negative extent";
        if (f.Delay < 0) return "a frame's delay is not negative";
    }
    for (const GifColorTable& t : gif.Tables)
        if (t.Count < 0 || t.Count > 256) return "a colour table holds at most 256 colours";
    if (gif.CanvasWidth < 0 || gif.CanvasHeight < 0) return "the canvas has no negative size";
    for (const GifFrame& f : gif.Frames) {
        if (static_cast<int64_t>(f.Width) * f.Height > ComposedCanvasLimit) continue;
        std::vector<uint8_t> indices;
        size_t decoded = 0;
        if (DecodeFrameIndices(gif, f, indices, decoded) &&
            decoded > static_cast<size_t>(f.Width) * static_cast<size_t>(f.Height))
            return "a frame decodes to at most its own pixels";
    }
    if (static_cast<int64_t>(gif.CanvasWidth) * gif.CanvasHeight <= ComposedCanvasLimit &&
        !gif.Frames.empty()) {
        GifCanvas canvas;
        canvas.reset(&gif, White);
        for (int n = 1; n <= static_cast<int>(gif.Frames.size()); ++n) canvas.frame(n);
        canvas.frame(1);  // starting again from the first frame
    }
    return nullptr;
}

}  // namespace quillane::contracts
