#include "cli/commands.h"

#include <chrono>
#include <cstdio>
#include <iostream>

#include "cli/cli_host.h"
#include "core/fractal_list.h"
#include "core/ifs_file_reader.h"
#include "core/ifs_file_writer.h"
#include "core/numbers.h"
#include "render/engine_workload.h"
#include "render/fractal_pictures.h"
#include "render/image_file.h"
#include "render/play_game.h"
#include "render/scale.h"

namespace quillane::cli {

namespace {

bool endsWith(const std::string& s, const std::string& tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

// Reads a list as the Open command does: a name ending in "chg" as chaos game definitions.
bool readList(Workbench& wb, CliHost& host, const std::string& file) {
    const bool loaded =
        endsWith(ToLower(file), "chg") ? OpenChaosFile(wb, host, 0, file) : OpenIFSFile(wb, host, 0, file);
    return loaded && host.warnings == 0;
}

}  // namespace

int RunList(const Command& cmd) {
    Workbench wb;
    CliHost host;
    const bool ok = readList(wb, host, cmd.files[0]);
    for (int n = 1; n <= wb.ListCount(); ++n)
        std::cout << n << '\t' << Trim(wb.FractalList[n].Name) << '\t' << wb.FractalList[n].nMaps << '\n';
    return ok ? 0 : 1;
}

int RunSave(const Command& cmd) {
    Workbench wb;
    CliHost host;
    if (!readList(wb, host, cmd.files[0])) return 1;
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
    if (!readList(wb, host, r.file)) return 1;
    if (r.entry > wb.ListCount()) {
        std::cerr << r.file << " has " << wb.ListCount() << " entries; there is no entry " << r.entry << "\n";
        return 1;
    }
    if (!TakeListEntry(wb, host, r.entry)) return 1;
    if (r.seed) wb.Rng.pin(*r.seed);
    if (r.window) {
        wb.Window = *r.window;
        WriteWindowText(wb);
    } else if (!setscale(wb, host)) {
        return 1;
    }
    FractalPictures pics;
    pics.resize(r.size, White);
    ApplyWindow(pics, wb.Window);
    wb.DrawingStarted = false;

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
        const auto start = std::chrono::steady_clock::now();
        PlayGame(wb, pics, host, 0, cmd.bench.points);
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        const long long plotted = wb.PointCount - WarmUpIterations;
        std::printf("random engine, %3d maps, %dx%d: %lld points in %.3f s (%.1f million points/s)\n", maps,
                    cmd.bench.size, cmd.bench.size, plotted, seconds, plotted / seconds / 1e6);
    }
    return 0;
}

}  // namespace quillane::cli
