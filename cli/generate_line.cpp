// generate line: the polyline given as vertices or read from a points file goes through the line
// fractal window's Create IFS; its picture is the window's recursive drawing of the curve.
#include <algorithm>
#include <cmath>
#include <fstream>
#include <sstream>

#include "app/line_fractal_commands.h"
#include "cli/generate_command.h"

namespace quillane::cli {
namespace {

std::optional<std::string> readVertices(const std::string& text, LineFractal& g) {
    const std::vector<std::string> words = SplitWords(text);
    if (words.size() < MinSegments + 1 || words.size() > GeneratorPointSlots)
        return "--vertices needs 3 to 16 points x,y";
    for (size_t i = 0; i < words.size(); ++i) {
        const auto p = ParseNumberPair(words[i]);
        if (!p || !std::isfinite(p->first) || !std::isfinite(p->second))
            return "--vertices: " + words[i] + " is not a point x,y";
        g.GeneratorPoints[i] = {static_cast<float>(p->first), static_cast<float>(p->second)};
    }
    g.nSegments = static_cast<int>(words.size()) - 1;
    g.txtOrient = std::string(static_cast<size_t>(g.nSegments), 'F');
    return std::nullopt;
}

std::optional<std::string> readOrient(const std::string& text, LineFractal& g) {
    std::string letters;
    for (const char c : text) {
        const auto k = OrientKey(c);
        if (!k || *k == 8) return "--orient takes the letters F, B, G and A";
        letters += *k;
    }
    g.chkOrient = true;
    g.txtOrient = letters.substr(0, static_cast<size_t>(g.segments()));
    return std::nullopt;
}

// The polyline as the window would hold it; false after the message the window shows when a points
// file is refused.
GenerateOutcome readPolyline(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--vertices", "--points", "--orient"}, {"--vertical"}))
        return {false, *bad};
    const auto vertices = a.value("--vertices");
    const auto points = a.value("--points");
    if (vertices.has_value() == points.has_value()) return {false, "line needs --vertices or --points"};
    LineFractal& g = s.Line.Generator;
    if (vertices) {
        if (auto bad = readVertices(*vertices, g)) return {false, *bad};
        g.SegmentDirection = a.flag("--vertical") ? 1 : 0;
    } else {
        if (a.flag("--vertical"))
            return {false, "--vertical goes with --vertices; a points file is horizontal"};
        std::ifstream in(*points, std::ios::binary);
        PointsFile file;
        if (!in) {
            file.error = ReadProblemMessage;
        } else {
            std::ostringstream text;
            text << in.rdbuf();
            file = ReadPointsFile(text.str());
        }
        ApplyPointsFile(g, file);
        if (!file.error.empty()) {
            host.warn(PointsFileTitle, file.error);
            return {false, ""};
        }
    }
    if (const auto orient = a.value("--orient"))
        if (auto bad = readOrient(*orient, g)) return {false, *bad};
    return {true, ""};
}

GenerateOutcome buildLine(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    const GenerateOutcome read = readPolyline(s, host, args);
    if (!read.built) return read;
    return {LineFractalSetup(s, host, false), ""};
}

// The curve at `levels` (the deepest the drawing allows when none is given), as a deterministic
// level with the recursion switched on would draw it.
bool drawLine(AppState& s, CliHost& host, const std::vector<std::string>&, RasterSurface& picture,
              std::optional<int> levels) {
    if (!s.Line.LineRecursionAllowed) {
        host.warn("Error", "An oriented line fractal has no recursive drawing; draw it without --picture.");
        return false;
    }
    const WorldWindow& w = s.wb.Window;
    const double cx = (static_cast<double>(w.xmin) + w.xmax) / 2;
    const double cy = (static_cast<double>(w.ymin) + w.ymax) / 2;
    const double half =
        std::max(static_cast<double>(w.xmax) - w.xmin, static_cast<double>(w.ymax) - w.ymin) / 2;
    s.pics.resize(picture.width(), White);
    ApplyWindow(s.pics, WorldWindow{static_cast<float>(cx - half), static_cast<float>(cx + half),
                                    static_cast<float>(cy - half), static_cast<float>(cy + half)});
    s.wb.Menu.setChecked("mnuDrawOverlay", false);
    LineFractal& g = s.Line.Generator;
    InitializeGenerator(g);
    const double pixel = std::fabs(s.pics.picfractal.pixelsToWorldX(1));
    const int L = LimitRecursionLevel(g, levels ? *levels - 1 : 1000000, pixel);
    DrawLineFractal(s.Line, s.wb, s.pics, host, L + 1);
    picture.takeImage(s.pics.picfractal);
    return true;
}

}  // namespace

GeneratorCli LineGeneratorCli() {
    GeneratorCli g;
    g.kind = "line";
    g.usage =
        "  generate line (--vertices \"X0,Y0 X1,Y1 ...\" [--vertical] | --points FILE) [--orient LETTERS]\n"
        "      -o OUT.ifs [--picture PICTURE [--levels L]]\n"
        "      A line fractal: 3 to 16 vertices (2 to 15 segments), one map per segment; or a points file\n"
        "      as the Line Fractal Design window saves it. --orient gives each segment F, B, G or A. The\n"
        "      picture is the recursive drawing of the curve, L levels deep (default and most: where a\n"
        "      segment shrinks to a pixel or a million lines are reached); not for oriented segments.\n";
    g.build = buildLine;
    g.draw = drawLine;
    return g;
}

}  // namespace quillane::cli
