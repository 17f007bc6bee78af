// generate complex: the base into the window's form, then its Create IFS. render --complex-base: the
// same build, drawn by the window's base method.
#include <chrono>
#include <cstdio>
#include <iostream>

#include "app/complex_base_commands.h"
#include "app/generator_run.h"
#include "cli/commands.h"
#include "cli/generate_command.h"
#include "core/menu_tree.h"
#include "render/color_modes.h"
#include "render/image_file.h"
#include "render/play_game.h"

namespace quillane::cli {
namespace {

// "A,B" as the two box texts; each may be an expression such as 2*pi/5.
std::optional<std::pair<std::string, std::string>> splitBase(const std::string& text) {
    const size_t comma = text.find(',');
    if (comma == std::string::npos || text.find(',', comma + 1) != std::string::npos) return std::nullopt;
    return std::make_pair(text.substr(0, comma), text.substr(comma + 1));
}

// Opens the window's run and builds; false after the window's message.
bool createFromBase(AppState& s, CliHost& host, const std::pair<std::string, std::string>& base, bool polar,
                    bool baseMethod, bool pixelColor) {
    ComplexForm form;
    form.txta = base.first;
    form.txtb = base.second;
    form.polar = polar;
    form.optDrawBase = baseMethod;
    form.optPixelColor = pixelColor;
    InitializeMenuState(s.wb.Menu);
    if (!mnuDesignExample_Click(s.wb, s.Generator, host, ComplexBasesExample)) return false;
    return ComplexCreate(s, host, form) == ComplexFocus::None;
}

GenerateOutcome buildComplex(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--base"}, {"--polar"})) return {false, *bad};
    const auto base = a.value("--base") ? splitBase(*a.value("--base")) : std::nullopt;
    if (!base) return {false, "generate complex needs --base A,B"};
    return {createFromBase(s, host, *base, a.flag("--polar"), false, false), ""};
}

}  // namespace

GeneratorCli ComplexGeneratorCli() {
    GeneratorCli g;
    g.kind = "complex";
    g.usage =
        "  generate complex --base A,B [--polar]\n"
        "      the two maps z -> w z and z -> w z + w of the base w = A + Bi (with --polar: R and\n"
        "      the angle A in radians); the modulus must be below 1; A and B may be expressions.\n"
        "      render --complex-base draws the same set by the sums of the powers of w.\n";
    g.build = buildComplex;
    return g;
}

int RenderComplexBase(const RenderOptions& r) {
    const auto base = splitBase(r.complexBase);
    if (!base) {
        std::cerr << "quillane-cli: --complex-base needs A,B\n";
        return 2;
    }
    AppState s;
    CliHost host;
    if (!createFromBase(s, host, *base, r.complexPolar, true, r.colorMode == VisitCountColorMode)) return 1;
    if (r.window) s.wb.Window = *r.window;
    s.pics.resize(r.size, White);
    ApplyWindow(s.pics, s.wb.Window);
    s.wb.DrawingStarted = false;
    const auto start = std::chrono::steady_clock::now();
    PlayGame(s.wb, s.pics, host, 0, 0);
    const double seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    if (host.warnings > 0) return 1;
    const long long plotted = s.Complex.ComplexPointCount;
    std::fprintf(stderr, "%lld points in %.3f s (%.0f points/s)\n", plotted, seconds,
                 seconds > 0 ? plotted / seconds : 0.0);
    std::string error;
    if (!SaveImageFile(s.pics.picfractal, r.output, error)) {
        std::cerr << "Could not write " << r.output << ": " << error << "\n";
        return 1;
    }
    return 0;
}

}  // namespace quillane::cli
