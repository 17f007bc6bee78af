#include "cli/commands.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <sstream>

#include "app/background_commands.h"
#include "app/deterministic_commands.h"
#include "app/figure_commands.h"
#include "app/ifs_file_reader.h"
#include "cli/cli_host.h"
#include "cli/figures.h"
#include "cli/list_input.h"
#include "core/fractal_list.h"
#include "core/ifs_file_writer.h"
#include "core/numbers.h"
#include "core/palette_files.h"
#include "render/color_stealing.h"
#include "render/deterministic.h"
#include "render/engine_workload.h"
#include "render/floating_picture.h"
#include "render/fractal_pictures.h"
#include "render/image_file.h"
#include "render/picture_figures.h"
#include "render/play_game.h"
#include "render/scale.h"

namespace quillane::cli {

namespace {

bool endsWith(const std::string& s, const std::string& tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

// The --initial picture floats over the drawing as if pasted, and is placed at once.
bool placeInitialPicture(Workbench& wb, FractalPictures& pics, CliHost& host, const RenderOptions& r) {
    RasterSurface picture;
    std::string error;
    if (!LoadImageFile(r.initial, picture, error)) {
        std::cerr << "Could not read " << r.initial << ": " << error << "\n";
        return false;
    }
    pics.Det.ClipboardBitmap = [picture] { return std::optional<RasterSurface>(picture); };
    if (wb.RandomMode) {
        mnuEditPasteBackground_Click(wb, pics, &picture);
    } else {
        InitialFigures figs;
        mnuDrawAddFigure_Click(wb, pics, host, figs, ClipboardFigure);
    }
    PlaceFractalSelection(wb, pics);
    return wb.RandomMode || wb.DetFigure == ClipboardFigure;
}

// The colour menus and the gradient option as the person would set them for colour mode `mode`.
void checkColorMode(Workbench& wb, FractalPictures& pics, int mode) {
    const int item = mode == 7 ? 2 : mode > 0 ? 1 : 0;
    for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuColors", k), k == item);
    if (mode >= 1 && mode <= 6) pics.Det.optColoring = mode;
}

std::optional<std::string> readText(const std::string& file) {
    std::ifstream in(file, std::ios::binary);
    if (!in) return std::nullopt;
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

// The gradient and palette files of the colour options; false after a message when one cannot be read.
bool readColorFiles(Workbench& wb, const RenderOptions& r) {
    if (!r.gradient.empty()) {
        const std::optional<std::string> text = readText(r.gradient);
        const std::optional<GradientColors> g = text ? ReadGradientFile(*text) : std::nullopt;
        if (!g) {
            std::cerr << "Could not read the gradient file " << r.gradient << "\n";
            return false;
        }
        wb.Gradient = *g;
    }
    if (!r.palette.empty()) {
        const std::optional<std::string> text = readText(r.palette);
        const bool map = endsWith(ToLower(r.palette), ".map");
        const std::optional<FunctionColors> colors = !text ? std::nullopt
                                                     : map ? ReadMapPalette(*text)
                                                           : ReadIfpPalette(*text);
        if (!colors) {
            std::cerr << "Not a valid IFS palette file: " << r.palette << "\n";
            return false;
        }
        wb.FunctionColor = *colors;
    }
    return true;
}

// Colour stealing: the picture and the colouring IFS, the unit square's unless --steal-ifs names one.
bool setUpStealing(Workbench& wb, FractalPictures& pics, const RenderOptions& r) {
    RasterSurface picture;
    std::string error;
    if (!LoadImageFile(r.steal, picture, error)) {
        std::cerr << "Could not read " << r.steal << ": " << error << "\n";
        return false;
    }
    ColorStealingState& cs = pics.Stealing;
    if (r.stealIfs.empty()) {
        ConfigureComboList(wb, cs);
    } else {
        Workbench list;
        CliHost listHost;
        if (!ReadList(list, listHost, r.stealIfs)) return false;
        if (r.stealEntry > list.ListCount()) {
            std::cerr << "--steal-ifs entry must be from 1 to " << list.ListCount() << ": " << r.stealIfs
                      << "\n";
            return false;
        }
        cs.ColoringIFS = list.FractalList[static_cast<size_t>(r.stealEntry)];
        // A named colouring IFS is checked as the shown window checks it.
        cs.Visible = true;
    }
    SetColorStealingPicture(wb, cs, picture);
    return true;
}

int renderDeterministic(Workbench& wb, FractalPictures& pics, CliHost& host, const RenderOptions& r) {
    wb.Menu.setChecked(MenuTable::key("mnuColors", 0), true);
    pics.Det.FigureDrawer = FigureDrawerFor(r.figure);
    wb.DetFigure = -1;  // the figure is chosen now, with the IFS colour scheme
    mnuDrawType_Click(wb, pics, host, 1);
    checkColorMode(wb, pics, r.colorMode);
    if (!r.initial.empty() && !placeInitialPicture(wb, pics, host, r)) return 1;
    const auto start = std::chrono::steady_clock::now();
    IterateLevels(wb, pics, host, r.levels);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (host.warnings > 0) return 1;
    std::fprintf(stderr, "%d levels of %dx%d in %.3f s\n", wb.IterationNumber, pics.picfractal.width(),
                 pics.picfractal.height(), seconds);
    return 0;
}

}  // namespace

int RunList(const Command& cmd) {
    Workbench wb;
    CliHost host;
    const bool ok = ReadList(wb, host, cmd.files[0]);
    for (int n = 1; n <= wb.ListCount(); ++n)
        std::cout << n << '\t' << Trim(wb.FractalList[n].Name) << '\t' << wb.FractalList[n].nMaps << '\n';
    return ok ? 0 : 1;
}

int RunSave(const Command& cmd) {
    Workbench wb;
    CliHost host;
    if (!ReadList(wb, host, cmd.files[0])) return 1;
    const std::string& out = cmd.files[1];
    bool written;
    if (endsWith(ToLower(out), ".chg")) {
        AdjustIFSMenu(wb, false);  // only entries with chaos game fields stay enabled
        written = SaveChaosList(wb, host, out);
    } else {
        written = SaveIFSList(wb, host, out);
    }
    if (!written) {
        if (host.warnings == 0) std::cerr << "Could not write " << out << "\n";
        return 1;
    }
    return 0;
}

int RunRender(const Command& cmd) {
    const RenderOptions& r = cmd.render;
    Workbench wb;
    CliHost host;
    if (!ReadList(wb, host, r.file)) return 1;
    if (!TakeEntry(wb, host, r.file, r.entry)) return 1;
    return DrawWorkingIFS(wb, host, r);
}

int DrawWorkingIFS(Workbench& wb, CliHost& host, const RenderOptions& r) {
    if (!readColorFiles(wb, r)) return 1;
    if (r.seed) wb.Rng.pin(*r.seed);
    // The gradients by place span the attractor, which setscale samples, whatever the window.
    const bool attractorWanted = r.colorMode >= 1 && r.colorMode <= 4;
    if ((!r.window || attractorWanted) && !setscale(wb, host)) return 1;
    if (r.window) {
        wb.Window = *r.window;
        WriteWindowText(wb);
    }
    FractalPictures pics;
    pics.resize(r.size, White);
    ApplyWindow(pics, wb.Window);
    wb.DrawingStarted = false;
    if (r.deterministic) {
        if (renderDeterministic(wb, pics, host, r) != 0) return 1;
        std::string error;
        if (SaveImageFile(pics.picfractal, r.output, error)) return 0;
        std::cerr << "Could not write " << r.output << ": " << error << "\n";
        return 1;
    }

    if (!r.initial.empty() && !placeInitialPicture(wb, pics, host, r)) return 1;
    checkColorMode(wb, pics, r.colorMode);
    if (r.colorMode == 7 && !setUpStealing(wb, pics, r)) return 1;
    const auto start = std::chrono::steady_clock::now();
    PlayGame(wb, pics, host, 0, r.points);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (host.warnings > 0) return 1;

    const long long plotted = wb.PointCount - WarmUpIterations;
    std::fprintf(stderr, "%lld points in %.3f s (%.0f points/s)\n", plotted, seconds,
                 seconds > 0 ? plotted / seconds : 0.0);
    std::string error;
    if (!SaveImageFile(pics.picfractal, r.output, error)) {
        std::cerr << "Could not write " << r.output << ": " << error << "\n";
        return 1;
    }
    return 0;
}

}  // namespace quillane::cli

namespace quillane::cli {

int RunBench(const Command& cmd) {
    for (int maps : {3, 100}) {
        Workbench wb;
        FractalPictures pics;
        CliHost host;
        SetUpEngineWorkload(wb, pics, maps, cmd.bench.size);
        UseColorModeWorkload(wb, pics, cmd.bench.colorMode);
        const auto start = std::chrono::steady_clock::now();
        PlayGame(wb, pics, host, 0, cmd.bench.points);
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        const long long plotted = wb.PointCount - WarmUpIterations;
        std::printf(
            "random engine, %s colours, %3d maps, %dx%d: %lld points in %.3f s (%.1f million points/s)\n",
            ColorModeNames[cmd.bench.colorMode], maps, cmd.bench.size, cmd.bench.size, plotted, seconds,
            plotted / seconds / 1e6);
    }
    return 0;
}

}  // namespace quillane::cli
