#pragma once
// The block structure of an animated GIF, read by our own code: the frame table, the colour tables
// and the loop count, without decoding any image. A truncated file keeps the frames read so far.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace quillane {

struct GifFrame {
    int32_t Left = 0, Top = 0, Width = 0, Height = 0;
    int32_t Delay = 0;       // milliseconds: the file's delay word times 10
    int32_t TableIndex = 0;  // the colour table in use; 0 is the global one
    uint8_t TransparentIndex = 0;
    uint8_t Transparent = 0;  // 1 if the transparent index is valid
    uint8_t Disposal = 0;     // from the graphic control flags
    bool Interlaced = false;
    // The image block in the file: from its "," to the end of its data sub-blocks.
    size_t Offset = 0, Length = 0;
    size_t DataOffset = 0;  // the LZW code size byte
};

// Up to 256 colours as R + 256 G + 65536 B; Count entries used.
struct GifColorTable {
    std::array<uint32_t, 256> Color{};
    int Count = 0;
};

struct GifFile {
    std::vector<uint8_t> Bytes;  // the file image the offsets point into
    std::vector<GifFrame> Frames;
    // Table 0 is the global table (empty when the file has none); local tables follow.
    std::vector<GifColorTable> Tables;
    bool HasGlobalTable = false;
    uint8_t BackgroundIndex = 0;
    int32_t Loops = 0;  // from the NETSCAPE block; 0 means endless
    bool LoopsGiven = false;
    int32_t CanvasWidth = 0, CanvasHeight = 0;  // the largest Left + Width and Top + Height
    bool Truncated = false;                     // the reading ended at the end of the data

    bool empty() const { return Frames.empty(); }
};

// Reads the structure of a GIF image held in memory; a file that is not a GIF gives no frames.
GifFile ReadGifBytes(std::vector<uint8_t> bytes);
// The same for a file on disk; a missing or unreadable file gives no frames.
GifFile ReadGifFile(const std::string& path);

}  // namespace quillane
