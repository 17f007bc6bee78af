#include "core/palette_files.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <vector>

#include "core/ifs_file_writer.h"
#include "core/numbers.h"

namespace quillane {

namespace {

int channel(std::string_view text) {
    return std::clamp(CInt(Val(text)), 0, 255);
}

}  // namespace

// Both palette dialogs offer .map files and share their folder.
FileDialogRequest PaletteFileRequest(const char* title) {
    FileDialogRequest request;
    request.title = title;
    request.filters = {{MapPaletteFilterText, "*.map"}};
    request.folderKey = "Palette";
    return request;
}

std::optional<std::string> ReadPaletteText(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

Color MapPaletteLine(const std::string& line) {
    std::string s = line;
    std::replace(s.begin(), s.end(), ',', ' ');
    std::replace(s.begin(), s.end(), '\t', ' ');
    s = Trim(s);
    int rgb[3] = {0, 0, 0};
    for (int k = 0; k < 2; ++k) {
        const size_t blank = s.find(' ');
        rgb[k] = channel(s.substr(0, blank));
        s = blank == std::string::npos ? std::string() : s.substr(blank + 1);
    }
    rgb[2] = channel(s);
    return RGB(rgb[0], rgb[1], rgb[2]);
}

std::optional<FunctionColors> ReadMapPalette(const std::string& text) {
    const std::vector<std::string> lines = TextLines(text);
    if (lines.size() < FunctionColorCount) return std::nullopt;
    FunctionColors colors{};
    for (int i = 0; i < FunctionColorCount; ++i) colors[static_cast<size_t>(i)] = MapPaletteLine(lines[static_cast<size_t>(i)]);
    return colors;
}

std::string MapPaletteText(const FunctionColors& colors) {
    std::string text;
    for (Color c : colors)
        text += std::to_string(RedOf(c)) + "," + std::to_string(GreenOf(c)) + "," + std::to_string(BlueOf(c)) + "\r\n";
    return text;
}

std::optional<FunctionColors> ReadIfpPalette(const std::string& text) {
    const std::vector<std::string> lines = TextLines(text);
    if (lines.size() < FunctionColorCount) return std::nullopt;
    FunctionColors colors{};
    for (int i = 0; i < FunctionColorCount; ++i)
        colors[static_cast<size_t>(i)] =
            static_cast<Color>(std::clamp(CLng(Val(lines[static_cast<size_t>(i)])), 0, 0xFFFFFF));
    return colors;
}

std::string IfpPaletteText(const FunctionColors& colors) {
    std::string text;
    for (Color c : colors) text += std::to_string(c & 0xFFFFFFu) + "\r\n";
    return text;
}

void SameColor(Workbench& wb, int i) {
    if (i < 0 || i >= FunctionColorCount) return;
    const Color c = wb.FunctionColor[static_cast<size_t>(i)];
    for (int k = i; k < wb.CurrentIFS.nMaps && k < FunctionColorCount; ++k) wb.FunctionColor[static_cast<size_t>(k)] = c;
}

void DefaultColors(Workbench& wb) {
    wb.FunctionColor = wb.FileColors;
}

}  // namespace quillane
