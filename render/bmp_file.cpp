#include "render/bmp_file.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <vector>

namespace quillane {

namespace {
void put16(std::vector<uint8_t>& out, uint32_t v) {
    out.push_back(static_cast<uint8_t>(v));
    out.push_back(static_cast<uint8_t>(v >> 8));
}
void put32(std::vector<uint8_t>& out, uint32_t v) {
    put16(out, v & 0xFFFFu);
    put16(out, v >> 16);
}
}  // namespace

bool SaveBitmapFile(const RasterSurface& picture, const std::string& path, std::string& error) {
    const int w = picture.width(), h = picture.height();
    if (w <= 0 || h <= 0) {
        error = "The picture is empty.";
        return false;
    }
    const uint32_t rowBytes = (static_cast<uint32_t>(w) * 3 + 3) & ~3u;
    const uint32_t imageBytes = rowBytes * static_cast<uint32_t>(h);
    std::vector<uint8_t> out;
    out.reserve(54 + imageBytes);
    out.push_back('B');
    out.push_back('M');
    put32(out, 54 + imageBytes);
    put32(out, 0);
    put32(out, 54);
    put32(out, 40);  // BITMAPINFOHEADER
    put32(out, static_cast<uint32_t>(w));
    put32(out, static_cast<uint32_t>(h));  // positive: rows from the bottom
    put16(out, 1);
    put16(out, 24);
    put32(out, 0);
    put32(out, imageBytes);
    put32(out, 3780);  // 96 dots per inch
    put32(out, 3780);
    put32(out, 0);
    put32(out, 0);
    for (int row = h - 1; row >= 0; --row) {
        for (int col = 0; col < w; ++col) {
            const Color c = picture.pixel(col, row);
            out.push_back(static_cast<uint8_t>(BlueOf(c)));
            out.push_back(static_cast<uint8_t>(GreenOf(c)));
            out.push_back(static_cast<uint8_t>(RedOf(c)));
        }
        for (uint32_t pad = static_cast<uint32_t>(w) * 3; pad < rowBytes; ++pad) out.push_back(0);
    }
    const std::string temporary = path + ".part";
    {
        std::ofstream file(temporary, std::ios::binary | std::ios::trunc);
        if (!file) {
            error = "Cannot write " + path;
            return false;
        }
        file.write(reinterpret_cast<const char*>(out.data()), static_cast<std::streamsize>(out.size()));
        if (!file) {
            error = "Cannot write " + path;
            std::remove(temporary.c_str());
            return false;
        }
    }
    std::error_code ec;
    std::filesystem::rename(temporary, path, ec);
    if (ec) {
        error = "Cannot write " + path + " (" + ec.message() + ")";
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}

}  // namespace quillane
