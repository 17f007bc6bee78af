#include "cli/options.h"

#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <sstream>

namespace quillane::cli {

const char* const UsageText =
    "Usage: quillane-cli COMMAND ...\n"
    "\n"
    "Commands:\n"
    "  list [FILE]\n"
    "      Reads FILE as the Open command does (a name ending in \"chg\" as a chaos game\n"
    "      file, anything else as an IFS file) and prints one line per entry:\n"
    "      number, TAB, name, TAB, number of maps. Without FILE, the program's default\n"
    "      list: default.ifs beside quillane-cli, else in the installed share/quillane.\n"
    "  save IN OUT\n"
    "      Reads IN as list does and writes the whole list to OUT: as a chaos game list\n"
    "      when OUT ends in .chg (entries that have chaos game fields), else as an IFS list.\n"
    "  render FILE [--entry N] [--points N] [--size PIXELS] [--seed S]\n"
    "         [--window XMIN,XMAX,YMIN,YMAX] -o OUT\n"
    "      Draws entry N (default 1) of FILE with the random algorithm in the IFS colours\n"
    "      on white: N points after the warm-up (default 100000), a square picture of\n"
    "      PIXELS (default 800), in the window found from the attractor unless given.\n"
    "      OUT is a PNG, GIF, JPEG or BMP picture, by its extension. Prints the drawing speed.\n"
    "  render FILE --deterministic [--levels N]\n"
    "         [--figure polygon|line|triangle|square|circle] [--entry N] [--size PIXELS]\n"
    "         [--window XMIN,XMAX,YMIN,YMAX] -o OUT\n"
    "      Draws N levels (default 5, at most 100) of the deterministic algorithm in the\n"
    "      IFS colours, starting from a figure drawn in black: the unit square outline\n"
    "      (polygon, the default), the segment (0,0)-(1,0), the filled triangle (0,0),\n"
    "      (1,0), (0.5,1), the filled unit square or the filled circle of radius 0.5\n"
    "      about (0.5,0.5). The window is the attractor's, widened to hold the figure.\n"
    "  render FILE [--deterministic ...] --initial PICTURE -o OUT\n"
    "      Takes a GIF, PNG, JPEG or BMP picture, fitted into the drawing and centred:\n"
    "      with --deterministic it is the initial set, drawn in its own colours; without,\n"
    "      it is the background under the random drawing.\n"
    "  print FILE [--entry N] [--what text,fractal,design] [--text matrix,rotation,rules]\n"
    "        [--side-by-side] [--landscape] [--inches N] [--points N] [--size PIXELS]\n"
    "        [--seed S] -o OUT\n"
    "      What File > Print gives for entry N (default 1) of FILE. OUT.txt takes the text\n"
    "      sections alone; OUT.pdf a Letter page set with the fractal drawn as render\n"
    "      draws it, the design as the design window shows it, each fitted in a square of\n"
    "      N inches (default 3), and the text below. The text is the matrix and\n"
    "      scale/rotation forms, and the chaos game rules of a chaos game file.\n"
    "  render FILE ... [--colors MODE] [--gradient FILE.txt] [--palette FILE.map|FILE.ifp]\n"
    "         [--steal PICTURE [--steal-ifs FILE:ENTRY]]\n"
    "      MODE is ifs (the default), height, width, radial, fixed-points, random, visits\n"
    "      or steal. The gradient modes take their colours from the gradient file (the\n"
    "      default gradient without one); ifs takes the map colours, from the palette\n"
    "      file when given. steal paints with the colours of PICTURE under a second orbit,\n"
    "      of the unit-square colouring IFS or of entry ENTRY of FILE. With --deterministic\n"
    "      visits and steal are not offered, and random draws in one colour.\n"
    "  movie A.ifs[:N] B.ifs[:M] [--frames K] [--points P] [--size S] [--delay MS]\n"
    "        [--loop L] [--method 1|2|3] [--cycle] [--seed S] -o OUT.gif\n"
    "      The transformation movie from entry N of A to entry M of B (default 1) as an\n"
    "      animated GIF: K frames (default 50), each P points (default 50000) of random\n"
    "      drawing in a square of S pixels (default 400), MS milliseconds a frame (default\n"
    "      100), L plays (default 0, endless). --method 1 averages scalings and rotations\n"
    "      (the default), 2 averages the matrices, 3 is 1 with all angles taken positive.\n"
    "      --cycle runs back to the first frame. The same entry twice is the rotation\n"
    "      movie: map --rotate MAP (default 1) turns through a full circle, counterclockwise\n"
    "      unless --clockwise.\n"
    "  movie --deterministic FILE[:N] [--levels L] [--figure polygon|line|triangle|square|circle]\n"
    "        [--size S] [--delay MS] [--loop L] -o OUT.gif\n"
    "      One page for the figure and one per deterministic level (default 5).\n"
    "  gif-info FILE.gif\n"
    "      Prints the frame table and loop count of a GIF as the movie viewer reads it.\n"
    "  generate KIND [OPTIONS] -o OUT.ifs [--picture PICTURE [--levels L] [--size PIXELS]]\n"
    "      Builds an IFS as the generator window KIND makes it with Create IFS and writes it\n"
    "      as a one-entry list; with --picture also draws it (by the generator's own\n"
    "      recursive drawing where it has one, else deterministically with --levels, else\n"
    "      randomly). A value the window refuses gets its message and exit status 1. The\n"
    "      generators and their options are listed below.\n"
    "  --bench [--points N] [--size PIXELS] [--colors MODE]\n"
    "      Measures the random drawing engine with 3 and 100 maps, in colour mode MODE.\n"
    "  --help\n"
    "      Prints this text.\n"
    "\n"
    "Exit status: 0 success, 1 error, 2 bad usage.\n";

std::string FullUsageText() {
    return std::string(UsageText) + "\nGenerators:\n" + GeneratorUsageText();
}

const char* const ColorModeNames[8] = {"ifs",          "height", "width",  "radial",
                                       "fixed-points", "random", "visits", "steal"};

int ColorModeByName(const std::string& name) {
    for (int k = 0; k < 8; ++k)
        if (name == ColorModeNames[k]) return k;
    return -1;
}

bool ParseWholeNumber(const std::string& text, long long lo, long long hi, long long& out) {
    if (text.empty()) return false;
    errno = 0;
    char* end = nullptr;
    long long v = std::strtoll(text.c_str(), &end, 10);
    if (errno != 0 || *end != '\0' || v < lo || v > hi) return false;
    out = v;
    return true;
}

namespace {

std::string lowerExtension(const std::string& file) {
    const size_t dot = file.rfind('.');
    std::string ext = dot == std::string::npos ? "" : file.substr(dot);
    for (char& ch : ext) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    return ext;
}

// The colour options among themselves and with the drawing they go with.
std::string colorUsageError(const RenderOptions& r) {
    const int m = r.colorMode;
    if (!r.gradient.empty() && (m < 1 || m > 6))
        return "--gradient needs a gradient mode: --colors height, width, radial, fixed-points, random or "
               "visits";
    if (!r.palette.empty() && m != 0) return "--palette sets the IFS colours and needs --colors ifs";
    if (m == 7 && r.steal.empty()) return "--colors steal needs --steal PICTURE";
    if (!r.steal.empty() && m != 7) return "--steal needs --colors steal";
    if (!r.stealIfs.empty() && r.steal.empty()) return "--steal-ifs needs --steal PICTURE";
    if (r.deterministic && (m == 6 || m == 7))
        return "--colors visits and steal are not offered with --deterministic";
    if (r.deterministic && !r.initial.empty() && (m != 0 || !r.palette.empty()))
        return "a picture initial set keeps its own colours: no --colors or --palette with it";
    return "";
}

bool parseWindow(const std::string& text, WorldWindow& w) {
    std::stringstream ss(text);
    std::string part;
    float v[4];
    int k = 0;
    while (std::getline(ss, part, ',')) {
        if (k == 4 || part.empty()) return false;
        char* end = nullptr;
        v[k] = std::strtof(part.c_str(), &end);
        if (*end != '\0') return false;
        ++k;
    }
    if (k != 4 || !(v[0] < v[1]) || !(v[2] < v[3])) return false;
    w = {v[0], v[1], v[2], v[3]};
    return true;
}

ParseResult usage(const std::string& error) {
    return {std::nullopt, error};
}

ParseResult parseRender(const std::vector<std::string>& args) {
    Command cmd;
    cmd.kind = Command::Render;
    RenderOptions& r = cmd.render;
    bool levelsGiven = false;  // --levels or --figure
    for (size_t i = 1; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto value = [&](std::string& out) {
            if (i + 1 >= args.size()) return false;
            out = args[++i];
            return true;
        };
        std::string v;
        long long n = 0;
        if (a == "--entry") {
            if (!value(v) || !ParseWholeNumber(v, 1, 999999999, n))
                return usage("--entry needs a positive number");
            r.entry = static_cast<int>(n);
        } else if (a == "--points") {
            if (!value(v) || !ParseWholeNumber(v, 1, 999999950, n))
                return usage("--points needs a number from 1 to 999999950");
            r.points = static_cast<int>(n);
        } else if (a == "--size") {
            if (!value(v) || !ParseWholeNumber(v, 1, 20000, n))
                return usage("--size needs a number of pixels from 1 to 20000");
            r.size = static_cast<int>(n);
        } else if (a == "--seed") {
            if (!value(v) || !ParseWholeNumber(v, 0, INT64_MAX, n))
                return usage("--seed needs a whole number");
            r.seed = static_cast<uint64_t>(n);
        } else if (a == "--window") {
            WorldWindow w;
            if (!value(v) || !parseWindow(v, w))
                return usage("--window needs XMIN,XMAX,YMIN,YMAX with XMIN < XMAX and YMIN < YMAX");
            r.window = w;
        } else if (a == "--deterministic") {
            r.deterministic = true;
        } else if (a == "--levels") {
            if (!value(v) || !ParseWholeNumber(v, 0, 100, n))
                return usage("--levels needs a number from 0 to 100");
            r.levels = static_cast<int>(n);
            levelsGiven = true;
        } else if (a == "--figure") {
            if (!value(v) ||
                (v != "polygon" && v != "line" && v != "triangle" && v != "square" && v != "circle"))
                return usage("--figure needs polygon, line, triangle, square or circle");
            r.figure = v;
            r.figureGiven = true;
            levelsGiven = true;
        } else if (a == "--initial") {
            if (!value(r.initial) || r.initial.empty()) return usage("--initial needs a picture file");
        } else if (a == "--colors") {
            if (!value(v) || ColorModeByName(v) < 0)
                return usage(
                    "--colors needs ifs, height, width, radial, fixed-points, random, visits or steal");
            r.colorMode = ColorModeByName(v);
            r.colorsGiven = true;
        } else if (a == "--gradient") {
            if (!value(r.gradient) || r.gradient.empty())
                return usage("--gradient needs a gradient text file");
        } else if (a == "--palette") {
            if (!value(r.palette) ||
                (lowerExtension(r.palette) != ".map" && lowerExtension(r.palette) != ".ifp"))
                return usage("--palette needs a .map or .ifp file");
        } else if (a == "--steal") {
            if (!value(r.steal) || r.steal.empty()) return usage("--steal needs a picture file");
        } else if (a == "--steal-ifs") {
            const size_t colon = value(r.stealIfs) ? r.stealIfs.rfind(':') : std::string::npos;
            if (colon == std::string::npos || colon == 0 ||
                !ParseWholeNumber(r.stealIfs.substr(colon + 1), 1, 999999999, n))
                return usage("--steal-ifs needs FILE:ENTRY");
            r.stealEntry = static_cast<int>(n);
            r.stealIfs.resize(colon);
        } else if (a == "-o") {
            if (!value(r.output)) return usage("-o needs a file name");
        } else if (!a.empty() && a[0] == '-') {
            return usage("unknown option " + a);
        } else if (r.file.empty()) {
            r.file = a;
        } else {
            return usage("render takes one FILE");
        }
    }
    if (r.file.empty()) return usage("render needs a FILE");
    if (levelsGiven && !r.deterministic) return usage("--levels and --figure need --deterministic");
    if (r.figureGiven && !r.initial.empty()) return usage("--figure and --initial exclude each other");
    if (const std::string e = colorUsageError(r); !e.empty()) return usage(e);
    if (r.output.empty()) return usage("render needs -o OUT");
    const size_t dot = r.output.rfind('.');
    std::string ext = dot == std::string::npos ? "" : r.output.substr(dot);
    for (char& ch : ext) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    if (ext != ".png" && ext != ".bmp" && ext != ".gif" && ext != ".jpg" && ext != ".jpeg")
        return usage("OUT must end in .png, .gif, .jpg or .bmp");
    return {cmd, ""};
}

ParseResult parseBench(const std::vector<std::string>& args) {
    Command cmd;
    cmd.kind = Command::Bench;
    for (size_t i = 1; i < args.size(); ++i) {
        long long n = 0;
        if (args[i] == "--points" && i + 1 < args.size() && ParseWholeNumber(args[i + 1], 1, 999999950, n)) {
            cmd.bench.points = static_cast<int>(n);
            ++i;
        } else if (args[i] == "--size" && i + 1 < args.size() && ParseWholeNumber(args[i + 1], 1, 20000, n)) {
            cmd.bench.size = static_cast<int>(n);
            ++i;
        } else if (args[i] == "--colors" && i + 1 < args.size() && ColorModeByName(args[i + 1]) >= 0) {
            cmd.bench.colorMode = ColorModeByName(args[i + 1]);
            ++i;
        } else {
            return usage("unknown or incomplete option " + args[i]);
        }
    }
    return {cmd, ""};
}

}  // namespace

ParseResult ParseCommandLine(const std::vector<std::string>& args) {
    if (args.empty()) return usage("no command given");
    const std::string& c = args[0];
    if (c == "--help" || c == "-h" || c == "help") return {Command{}, ""};
    if (c == "list") {
        if (args.size() > 2) return usage("list takes one FILE");
        Command cmd;
        cmd.kind = Command::List;
        if (args.size() == 2) cmd.files = {args[1]};
        return {cmd, ""};
    }
    if (c == "save") {
        if (args.size() != 3) return usage("save takes IN and OUT");
        Command cmd;
        cmd.kind = Command::Save;
        cmd.files = {args[1], args[2]};
        return {cmd, ""};
    }
    if (c == "render") return parseRender(args);
    if (c == "print") {
        Command cmd;
        cmd.kind = Command::Print;
        if (auto bad = ParsePrintOptions(args, cmd.print)) return usage(*bad);
        return {cmd, ""};
    }
    if (c == "movie") {
        Command cmd;
        cmd.kind = Command::Movie;
        if (auto bad = ParseMovieOptions(args, cmd.movie)) return usage(*bad);
        return {cmd, ""};
    }
    if (c == "generate") {
        Command cmd;
        cmd.kind = Command::Generate;
        if (auto bad = ParseGenerateOptions(args, cmd.generate)) return usage(*bad);
        return {cmd, ""};
    }
    if (c == "gif-info") {
        if (args.size() != 2) return usage("gif-info takes one FILE.gif");
        Command cmd;
        cmd.kind = Command::GifInfo;
        cmd.files = {args[1]};
        return {cmd, ""};
    }
    if (c == "--bench" || c == "bench") return parseBench(args);
    return usage("unknown command " + c);
}

}  // namespace quillane::cli
