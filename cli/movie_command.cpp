#include "cli/movie_command.h"

#include <chrono>
#include <cstdio>
#include <iostream>

#include "app/deterministic_commands.h"
#include "cli/cli_host.h"
#include "cli/figures.h"
#include "cli/list_input.h"
#include "cli/options.h"
#include "core/numbers.h"
#include "movies/det_movie.h"
#include "movies/gif_reader.h"
#include "movies/morph_movie.h"
#include "movies/movie_frame.h"
#include "render/fractal_pictures.h"
#include "render/scale.h"

namespace quillane::cli {
namespace {

// FILE or FILE:N, N from 1.
bool splitEntry(const std::string& text, std::string& file, int& entry) {
    const size_t colon = text.rfind(':');
    long long n = 0;
    if (colon != std::string::npos && colon > 0 && ParseWholeNumber(text.substr(colon + 1), 1, 30, n)) {
        file = text.substr(0, colon);
        entry = static_cast<int>(n);
    } else {
        file = text;
        entry = 1;
    }
    return !file.empty();
}

bool endsWithGif(const std::string& name) {
    return name.size() > 4 && ToLower(name.substr(name.size() - 4)) == ".gif";
}

// Entry `entry` of the list in `file`, with the list's colours.
bool readEntry(const std::string& file, int entry, IFSEntry& out, FunctionColors& colors) {
    Workbench wb;
    CliHost host;
    if (!ReadList(wb, host, file)) return false;
    if (entry > wb.ListCount()) {
        std::cerr << file << " has no entry " << entry << "; it has " << wb.ListCount() << "\n";
        return false;
    }
    out = wb.FractalList[static_cast<size_t>(entry)];
    colors = wb.FunctionColor;
    return true;
}

double secondsSince(std::chrono::steady_clock::time_point start) {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

int runMorph(const MovieOptions& o) {
    IFSEntry initial, final;
    FunctionColors colors{}, ignored{};
    if (!readEntry(o.initialFile, o.initialEntry, initial, colors)) return 1;
    if (!readEntry(o.finalFile, o.finalEntry, final, ignored)) return 1;
    MovieMorph m;
    m.Method = o.method == 2 ? MorphMethod::AverageMatrices : MorphMethod::AverageScalings;
    m.AnglesPositive = o.method == 3;
    const bool same = o.initialFile == o.finalFile && o.initialEntry == o.finalEntry;
    InitialSetup(m, initial, final, same);
    if (same && o.rotate > m.MovieMaps) {
        std::cerr << "--rotate must be from 1 to " << m.MovieMaps << "\n";
        return 1;
    }
    m.RotateMap = o.rotate - 1;
    m.RotDir = o.clockwise ? -1 : 1;
    m.nTransitions = o.frames - 1;
    MorphMovieOptions mo;
    mo.size = o.size;
    mo.iterations = o.points + MovieWarmUpPoints;
    mo.frameTime = o.delay;
    mo.loop = o.loop;
    mo.path = o.output;
    mo.colors = colors;
    MoviePlayState play;
    play.CycleOn = o.cycle ? 1 : 0;
    CliHost host;
    Random rng;
    if (o.seed) rng.pin(*o.seed);
    // The whole attractors are in view, not only the images of a figure.
    mo.view = FitMovieViewToAttractors(m.InitialIFS, m.FinalIFS, m.MovieMaps, rng);
    std::string error;
    MovieTimes t;
    const auto start = std::chrono::steady_clock::now();
    if (WriteMorphMovie(m, play, mo, host, rng, error, &t) != MovieEnd::Finished) {
        std::cerr << "Saving animated GIF failed: " << error << "\n";
        return 1;
    }
    std::fprintf(stderr, "%d frames of %dx%d in %.3f s (drawing %.3f s, quantising %.3f s, writing %.3f s)\n",
                 o.frames + (o.cycle ? o.frames : 0), o.size, o.size, secondsSince(start), t.drawMs / 1000,
                 t.quantiseMs / 1000, t.writeMs / 1000);
    return 0;
}

int runDeterministic(const MovieOptions& o) {
    Workbench wb;
    CliHost host;
    if (!ReadList(wb, host, o.initialFile) || !TakeEntry(wb, host, o.initialFile, o.initialEntry)) return 1;
    if (!setscale(wb, host)) return 1;
    FractalPictures pics;
    pics.resize(o.size, White);
    ApplyWindow(pics, wb.Window);
    wb.DrawingStarted = false;
    wb.Menu.setChecked(MenuTable::key("mnuColors", 0), true);
    pics.Det.FigureDrawer = FigureDrawerFor(o.figure);
    wb.DetFigure = -1;
    mnuDrawType_Click(wb, pics, host, 1);
    const auto start = std::chrono::steady_clock::now();
    const DetMovieResult r = WriteDeterministicMovie(wb, pics, host, o.levels, o.delay, o.loop, o.output);
    if (!r.written) {
        std::cerr << "Saving animated GIF failed: " << r.error << "\n";
        return 1;
    }
    std::fprintf(stderr, "%d pages of %dx%d in %.3f s\n", r.pages, o.size, o.size, secondsSince(start));
    return 0;
}

}  // namespace

std::optional<std::string> ParseMovieOptions(const std::vector<std::string>& args, MovieOptions& m) {
    std::vector<std::string> files;
    bool levelsGiven = false, rotateGiven = false;
    for (size_t i = 1; i < args.size(); ++i) {
        const std::string& a = args[i];
        long long n = 0;
        auto number = [&](long long lo, long long hi) {
            return i + 1 < args.size() && ParseWholeNumber(args[++i], lo, hi, n);
        };
        if (a == "--frames") {
            if (!number(2, 10000)) return "--frames needs a number from 2 to 10000";
            m.frames = static_cast<int>(n);
        } else if (a == "--points") {
            if (!number(1, 100000000)) return "--points needs a number from 1 to 100000000";
            m.points = static_cast<int>(n);
        } else if (a == "--size") {
            if (!number(51, 4000)) return "--size needs a number of pixels from 51 to 4000";
            m.size = static_cast<int>(n);
        } else if (a == "--delay") {
            if (!number(10, 655350)) return "--delay needs a number of milliseconds from 10 to 655350";
            m.delay = static_cast<int>(n);
        } else if (a == "--loop") {
            if (!number(0, 65535)) return "--loop needs a number from 0 to 65535";
            m.loop = static_cast<int>(n);
        } else if (a == "--method") {
            if (!number(1, 3)) return "--method needs 1, 2 or 3";
            m.method = static_cast<int>(n);
        } else if (a == "--rotate") {
            if (!number(1, 100)) return "--rotate needs a map number from 1 to 100";
            m.rotate = static_cast<int>(n);
            rotateGiven = true;
        } else if (a == "--clockwise") {
            m.clockwise = true;
        } else if (a == "--cycle") {
            m.cycle = true;
        } else if (a == "--seed") {
            if (!number(0, INT64_MAX)) return "--seed needs a whole number";
            m.seed = static_cast<uint64_t>(n);
        } else if (a == "--deterministic") {
            m.deterministic = true;
        } else if (a == "--levels") {
            if (!number(0, 100)) return "--levels needs a number from 0 to 100";
            m.levels = static_cast<int>(n);
            levelsGiven = true;
        } else if (a == "--figure") {
            if (i + 1 >= args.size()) return "--figure needs polygon, line, triangle, square or circle";
            m.figure = args[++i];
            if (m.figure != "polygon" && m.figure != "line" && m.figure != "triangle" &&
                m.figure != "square" && m.figure != "circle")
                return "--figure needs polygon, line, triangle, square or circle";
            levelsGiven = true;
        } else if (a == "-o") {
            if (i + 1 >= args.size()) return "-o needs a file name";
            m.output = args[++i];
        } else if (!a.empty() && a[0] == '-') {
            return "unknown option " + a;
        } else {
            files.push_back(a);
        }
    }
    if (m.output.empty() || !endsWithGif(m.output)) return "movie needs -o OUT.gif";
    if (m.deterministic) {
        if (files.size() != 1) return "movie --deterministic takes one FILE[:N]";
        splitEntry(files[0], m.initialFile, m.initialEntry);
        return std::nullopt;
    }
    if (levelsGiven) return "--levels and --figure need --deterministic";
    if (files.size() != 2) return "movie takes two files, A.ifs[:N] B.ifs[:M]";
    splitEntry(files[0], m.initialFile, m.initialEntry);
    splitEntry(files[1], m.finalFile, m.finalEntry);
    if (rotateGiven && (m.initialFile != m.finalFile || m.initialEntry != m.finalEntry))
        return "--rotate needs the same IFS twice";
    return std::nullopt;
}

int RunMovie(const MovieOptions& m) {
    return m.deterministic ? runDeterministic(m) : runMorph(m);
}

int RunGifInfo(const std::string& file) {
    const GifFile gif = ReadGifFile(file);
    if (gif.empty()) {
        std::cerr << file << ": not an animated GIF with frames\n";
        return 1;
    }
    std::printf("%s: %d x %d, %zu frames, loops %d%s%s\n", file.c_str(), gif.CanvasWidth, gif.CanvasHeight,
                gif.Frames.size(), gif.Loops, gif.Loops == 0 ? " (endless)" : "",
                gif.Truncated ? ", truncated" : "");
    std::printf("frame\tleft\ttop\twidth\theight\tdelay_ms\ttable\ttransparent\tdisposal\n");
    for (size_t k = 0; k < gif.Frames.size(); ++k) {
        const GifFrame& f = gif.Frames[k];
        std::printf("%zu\t%d\t%d\t%d\t%d\t%d\t%d\t%s\t%d\n", k + 1, f.Left, f.Top, f.Width, f.Height, f.Delay,
                    f.TableIndex, f.Transparent ? std::to_string(f.TransparentIndex).c_str() : "-",
                    f.Disposal);
    }
    return 0;
}

}  // namespace quillane::cli
