#include "movies/gif_decoder.h"

#include <algorithm>

namespace quillane {
namespace {

// The data sub-blocks of one image joined, stopping at the end of the file.
std::vector<uint8_t> imageData(const std::vector<uint8_t>& bytes, size_t pos) {
    std::vector<uint8_t> data;
    while (pos < bytes.size()) {
        const size_t n = bytes[pos++];
        if (n == 0) break;
        const size_t take = std::min(n, bytes.size() - pos);
        data.insert(data.end(), bytes.begin() + static_cast<std::ptrdiff_t>(pos),
                    bytes.begin() + static_cast<std::ptrdiff_t>(pos + take));
        pos += take;
    }
    return data;
}

// The row of the image in which the k-th decoded row lands.
int rowOf(int k, int height, bool interlaced) {
    if (!interlaced) return k;
    static const int start[4] = {0, 4, 2, 1}, step[4] = {8, 8, 4, 2};
    for (int pass = 0; pass < 4; ++pass) {
        const int rows = height > start[pass] ? (height - start[pass] + step[pass] - 1) / step[pass] : 0;
        if (k < rows) return start[pass] + k * step[pass];
        k -= rows;
    }
    return height - 1;
}

class LzwDecoder {
  public:
    LzwDecoder(const std::vector<uint8_t>& data, int minCodeSize) : data_(data), min_(minCodeSize) {
        resetTable();
    }
    // Writes indices into `out` until it is full or the data ends; returns the count written.
    size_t run(std::vector<uint8_t>& out) {
        size_t n = 0;
        int prev = -1;
        std::vector<uint8_t> stack;
        while (n < out.size()) {
            const int code = next();
            if (code < 0 || code == clear_ + 1) break;
            if (code == clear_) {
                resetTable();
                prev = -1;
                continue;
            }
            int c = code;
            uint8_t first;
            if (c < free_) {
            } else if (c == free_ && prev >= 0) {
                c = prev;  // the code being defined: the previous string and its own first byte
            } else {
                break;
            }
            stack.clear();
            if (code == free_) stack.push_back(firstOf(prev));
            while (c >= clear_) {
                stack.push_back(suffix_[static_cast<size_t>(c)]);
                c = prefix_[static_cast<size_t>(c)];
            }
            stack.push_back(static_cast<uint8_t>(c));
            first = static_cast<uint8_t>(c);
            for (auto it = stack.rbegin(); it != stack.rend() && n < out.size(); ++it) out[n++] = *it;
            if (prev >= 0 && free_ < 4096) {
                prefix_[static_cast<size_t>(free_)] = static_cast<uint16_t>(prev);
                suffix_[static_cast<size_t>(free_)] = first;
                ++free_;
                if (free_ == (1 << size_) && size_ < 12) ++size_;
            }
            prev = code;
        }
        return n;
    }

  private:
    void resetTable() {
        clear_ = 1 << min_;
        free_ = clear_ + 2;
        size_ = min_ + 1;
    }
    uint8_t firstOf(int code) const {
        while (code >= clear_) code = prefix_[static_cast<size_t>(code)];
        return static_cast<uint8_t>(code);
    }
    int next() {
        while (bits_ < size_) {
            if (pos_ >= data_.size()) return -1;
            acc_ |= static_cast<uint32_t>(data_[pos_++]) << bits_;
            bits_ += 8;
        }
        const int code = static_cast<int>(acc_ & ((1u << size_) - 1));
        acc_ >>= size_;
        bits_ -= size_;
        return code;
    }
    const std::vector<uint8_t>& data_;
    int min_;
    int clear_ = 0, free_ = 0, size_ = 0;
    uint16_t prefix_[4096] = {};
    uint8_t suffix_[4096] = {};
    size_t pos_ = 0;
    uint32_t acc_ = 0;
    int bits_ = 0;
};

}  // namespace

bool DecodeFrameIndices(const GifFile& gif, const GifFrame& frame, std::vector<uint8_t>& indices,
                        size_t& decoded) {
    decoded = 0;
    const int64_t pixels = static_cast<int64_t>(frame.Width) * frame.Height;
    if (pixels <= 0 || pixels > MaxGifCanvasPixels || frame.DataOffset >= gif.Bytes.size()) return false;
    const int minCodeSize = gif.Bytes[frame.DataOffset];
    if (minCodeSize < 2 || minCodeSize > 11) return false;
    const std::vector<uint8_t> data = imageData(gif.Bytes, frame.DataOffset + 1);
    std::vector<uint8_t> stream(static_cast<size_t>(pixels), 0);
    LzwDecoder lzw(data, minCodeSize);
    decoded = lzw.run(stream);
    if (!frame.Interlaced) {
        indices = std::move(stream);
        return true;
    }
    indices.assign(stream.size(), 0);
    const size_t w = static_cast<size_t>(frame.Width);
    for (int k = 0; k < frame.Height; ++k) {
        const size_t row = static_cast<size_t>(rowOf(k, frame.Height, true));
        std::copy_n(stream.begin() + static_cast<std::ptrdiff_t>(k * w), w,
                    indices.begin() + static_cast<std::ptrdiff_t>(row * w));
    }
    return true;
}

void GifCanvas::reset(const GifFile* gif, Color back) {
    gif_ = gif;
    back_ = back;
    shown_ = 0;
    int w = gif ? gif->CanvasWidth : 0, h = gif ? gif->CanvasHeight : 0;
    if (static_cast<int64_t>(w) * h > MaxGifCanvasPixels) w = h = 1;
    canvas_.setBackColor(back);
    canvas_.resize(std::max(w, 0), std::max(h, 0));
    canvas_.clear();
}

const RasterSurface& GifCanvas::frame(int n) {
    if (!gif_ || n < 1 || n > static_cast<int>(gif_->Frames.size())) return canvas_;
    if (n == shown_) return canvas_;
    if (n < shown_) reset(gif_, back_);
    while (shown_ < n) {
        disposeShown();
        paintFrame(shown_ + 1);
        ++shown_;
    }
    return canvas_;
}

void GifCanvas::disposeShown() {
    if (shown_ < 1) return;
    const GifFrame& f = gif_->Frames[static_cast<size_t>(shown_ - 1)];
    if (f.Disposal == 2) {
        for (int y = std::max(f.Top, 0); y < f.Top + f.Height && y < canvas_.height(); ++y)
            for (int x = std::max(f.Left, 0); x < f.Left + f.Width && x < canvas_.width(); ++x)
                canvas_.setPixel(x, y, back_);
    } else if (f.Disposal == 3 && previous_.width() == canvas_.width()) {
        canvas_.takeImage(previous_);
    }
}

void GifCanvas::paintFrame(int n) {
    const GifFrame& f = gif_->Frames[static_cast<size_t>(n - 1)];
    if (f.Disposal == 3) {
        previous_.resize(canvas_.width(), canvas_.height());
        previous_.takeImage(canvas_);
    }
    std::vector<uint8_t> indices;
    size_t decoded = 0;
    if (!DecodeFrameIndices(*gif_, f, indices, decoded)) return;
    const size_t t = static_cast<size_t>(f.TableIndex);
    if (t >= gif_->Tables.size()) return;
    const GifColorTable& table = gif_->Tables[t];
    const size_t w = static_cast<size_t>(f.Width);
    for (size_t k = 0; k < indices.size(); ++k) {
        const size_t row = k / w, col = k % w;
        // Rows that never came stay as they were; an interlaced frame fills its passes in turn.
        if (!f.Interlaced && k >= decoded) break;
        const uint8_t index = indices[k];
        if (f.Transparent && index == f.TransparentIndex) continue;
        const int x = f.Left + static_cast<int>(col), y = f.Top + static_cast<int>(row);
        if (x < canvas_.width() && y < canvas_.height() && index < table.Count)
            canvas_.setPixel(x, y, table.Color[index]);
    }
}

}  // namespace quillane
