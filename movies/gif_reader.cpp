#include "movies/gif_reader.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include "core/numbers.h"

namespace quillane {
namespace {

struct EndOfFile {};

// Reads through the file image; a read past the end throws EndOfFile.
class Cursor {
  public:
    explicit Cursor(const std::vector<uint8_t>& bytes) : b_(bytes) {}
    uint8_t byte() {
        if (pos_ >= b_.size()) throw EndOfFile{};
        return b_[pos_++];
    }
    int word() {
        const int lo = byte();
        return lo | (byte() << 8);
    }
    void skip(size_t n) {
        if (n > b_.size() - pos_) {
            pos_ = b_.size();
            throw EndOfFile{};
        }
        pos_ += n;
    }
    void back() {
        if (pos_ > 0) --pos_;
    }
    void skipSubBlocks() {
        for (uint8_t n = byte(); n != 0; n = byte()) skip(n);
    }
    size_t pos() const { return pos_; }
    void seek(size_t p) { pos_ = std::min(p, b_.size()); }

  private:
    const std::vector<uint8_t>& b_;
    size_t pos_ = 0;
};

GifColorTable readTable(Cursor& in, uint8_t packed) {
    GifColorTable t;
    t.Count = 1 << ((packed & 7) + 1);
    for (int i = 0; i < t.Count; ++i) {
        const uint32_t r = in.byte(), g = in.byte(), b = in.byte();
        t.Color[static_cast<size_t>(i)] = r | (g << 8) | (b << 16);
    }
    return t;
}

// The values a graphic control block gives the next image.
struct Pending {
    int32_t Delay = 0;
    uint8_t TransparentIndex = 0, Transparent = 0, Disposal = 0;
};

void readApplication(Cursor& in, GifFile& gif) {
    const uint8_t n = in.byte();
    std::string text;
    for (int i = 0; i < n; ++i) text += static_cast<char>(in.byte());
    if (ToUpper(text) == "NETSCAPE2.0") {
        if (in.byte() == 3) {
            in.skip(1);
            gif.Loops = in.word();
            gif.LoopsGiven = true;
        } else {
            in.back();
        }
    }
    in.skipSubBlocks();
}

void readGraphicControl(Cursor& in, Pending& p) {
    in.byte();  // block size
    const uint8_t flags = in.byte();
    p.Delay = in.word() * 10;
    p.Transparent = flags & 1;
    p.Disposal = static_cast<uint8_t>((flags >> 2) & 7);
    p.TransparentIndex = in.byte();
    if (!p.Transparent) p.TransparentIndex = 0;
    in.skipSubBlocks();
}

// False when the image has no colour table at all: the reading stops there.
bool readImage(Cursor& in, GifFile& gif, Pending& p) {
    GifFrame f;
    f.Offset = in.pos() - 1;
    f.Left = in.word();
    f.Top = in.word();
    f.Width = in.word();
    f.Height = in.word();
    const uint8_t packed = in.byte();
    f.Interlaced = (packed & 0x40) != 0;
    if (packed & 0x80) {
        gif.Tables.push_back(readTable(in, packed));
        f.TableIndex = static_cast<int32_t>(gif.Tables.size() - 1);
    } else if (!gif.HasGlobalTable) {
        return false;
    }
    f.DataOffset = in.pos();
    in.byte();  // LZW code size
    in.skipSubBlocks();
    f.Length = in.pos() - f.Offset;
    f.Delay = p.Delay;
    f.Transparent = p.Transparent;
    f.TransparentIndex = p.TransparentIndex;
    f.Disposal = p.Disposal;
    p = Pending{};
    if (f.Length <= 2 || f.Width == 0 || f.Height == 0) return true;
    gif.Frames.push_back(f);
    gif.CanvasWidth = std::max(gif.CanvasWidth, f.Left + f.Width);
    gif.CanvasHeight = std::max(gif.CanvasHeight, f.Top + f.Height);
    return true;
}

void readBlocks(Cursor& in, GifFile& gif) {
    Pending pending;
    for (;;) {
        uint8_t block = in.byte();
        while (block == 0) block = in.byte();
        if (block == 33) {
            const uint8_t label = in.byte();
            if (label == 255)
                readApplication(in, gif);
            else if (label == 249)
                readGraphicControl(in, pending);
            else
                in.skipSubBlocks();
        } else if (block == 44) {
            if (!readImage(in, gif, pending)) return;
        } else {
            return;
        }
    }
}

}  // namespace

GifFile ReadGifBytes(std::vector<uint8_t> bytes) {
    GifFile gif;
    gif.Bytes = std::move(bytes);
    if (gif.Bytes.size() < 13) return gif;
    const std::string signature = ToLower(std::string(gif.Bytes.begin(), gif.Bytes.begin() + 6));
    if (signature != "gif89a" && signature != "gif87a") return gif;
    Cursor in(gif.Bytes);
    gif.Tables.emplace_back();  // slot 0: the global table, empty without one
    try {
        in.seek(10);
        const uint8_t packed = in.byte();
        gif.BackgroundIndex = in.byte();
        in.byte();  // aspect ratio
        if (packed & 0x80) {
            gif.Tables[0] = readTable(in, packed);
            gif.HasGlobalTable = true;
        }
        readBlocks(in, gif);
    } catch (const EndOfFile&) {
        gif.Truncated = true;
    }
    if (gif.Frames.empty()) {
        gif.Tables.clear();
        gif.CanvasWidth = gif.CanvasHeight = 0;
        gif.Loops = 0;
    }
    return gif;
}

GifFile ReadGifFile(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return {};
    std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return ReadGifBytes(std::move(bytes));
}

}  // namespace quillane
