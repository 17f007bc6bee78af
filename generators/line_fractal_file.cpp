#include "generators/line_fractal_file.h"

#include <algorithm>
#include <cctype>
#include <optional>

#include "core/numbers.h"

namespace quillane {
namespace {

std::string trim(std::string_view s) {
    size_t b = 0, e = s.size();
    while (b < e && s[b] == ' ') ++b;
    while (e > b && s[e - 1] == ' ') --e;
    return std::string(s.substr(b, e - b));
}

// Line input as the runtime does it: LF or CR LF end a line, and a last LF makes no empty line.
class LineReader {
  public:
    explicit LineReader(std::string_view text) : text_(text) {}
    bool eof() const { return pos_ >= text_.size(); }
    std::optional<std::string> next() {
        if (eof()) return std::nullopt;
        size_t end = text_.find('\n', pos_);
        if (end == std::string_view::npos) end = text_.size();
        std::string_view line = text_.substr(pos_, end - pos_);
        if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
        pos_ = end + 1;
        return std::string(line);
    }

  private:
    std::string_view text_;
    size_t pos_ = 0;
};

float single(double v) {
    return static_cast<float>(v);
}

void readPoint(std::string line, PointsFile& out) {
    std::replace(line.begin(), line.end(), '(', ' ');
    std::replace(line.begin(), line.end(), ')', ' ');
    const size_t first = line.find(',');
    GeneratorPoint p;
    p.x = single(Val(std::string_view(line).substr(0, first)));
    const size_t second = line.find(',', first + 1);
    if (second == std::string::npos) {
        p.y = single(Val(std::string_view(line).substr(first + 1)));
        out.letters += 'F';
    } else {
        p.y = single(Val(std::string_view(line).substr(first + 1, second - first - 1)));
        std::string letter = trim(std::string_view(line).substr(second + 1));
        for (char& c : letter) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
        if (letter == "B" || letter == "F" || letter == "A" || letter == "G") out.letters += letter;
    }
    out.points.push_back(p);
    out.maxX = std::max(out.maxX, p.x);
    out.minX = std::min(out.minX, p.x);
    out.maxY = std::max(out.maxY, p.y);
    out.minY = std::min(out.minY, p.y);
}

std::string print(float v) {
    return Str(v) + " ";
}

}  // namespace

std::string WritePointsFile(const LineFractal& g) {
    std::string text = "Line Fractal Design {\n";
    const int n = g.segments();
    for (int i = 0; i < n; ++i) {
        const GeneratorPoint& p = g.GeneratorPoints[static_cast<size_t>(i)];
        text += print(p.x) + "," + print(p.y);
        if (g.chkOrient) {
            text += ", ";
            if (const char c = OrientLetter(g, i)) text += c;
        }
        text += "\n";
    }
    const GeneratorPoint& end = g.GeneratorPoints[static_cast<size_t>(n)];
    text += print(end.x) + ", " + print(end.y) + "\n}\n";
    return text;
}

PointsFile ReadPointsFile(std::string_view text) {
    PointsFile out;
    LineReader in(text);
    std::optional<std::string> line;
    do {
        line = in.next();
        if (!line) {
            out.error = ReadProblemMessage;
            return out;
        }
    } while (line->find('{') == std::string::npos);
    do {
        line = in.next();
        if (!line) {
            out.error = ReadProblemMessage;
            return out;
        }
    } while (!trim(*line).empty() && trim(*line)[0] == ';');
    while (!in.eof() && out.points.size() < GeneratorPointSlots) {
        if (!trim(*line).empty() && line->find(',') != std::string::npos) readPoint(*line, out);
        line = in.next();
    }
    if (out.points.empty())
        out.error = NoPointsMessage;
    else if (out.points.size() == 1)
        out.error = TooFewPointsMessage;
    else if (out.points[0].x != 0 || out.points[0].y != 0)
        out.error = FirstPointMessage;
    return out;
}

void ApplyPointsFile(LineFractal& g, const PointsFile& file) {
    for (size_t i = 0; i < file.points.size() && i < GeneratorPointSlots; ++i)
        g.GeneratorPoints[i] = file.points[i];
    if (!file.error.empty()) return;
    g.nSegments = static_cast<int>(file.points.size()) - 1;
    g.txtOrient = file.letters.substr(0, static_cast<size_t>(g.nSegments));
    g.SegmentDirection = 0;
    g.chkOrient = g.txtOrient.find_first_of("GAB") != std::string::npos;
}

}  // namespace quillane
