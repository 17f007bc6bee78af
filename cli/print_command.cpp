#include "cli/print_command.h"

#include <cctype>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>

#include "app/design_view.h"
#include "app/print_commands.h"
#include "cli/cli_host.h"
#include "cli/list_input.h"
#include "cli/options.h"
#include "core/menu_tree.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/fractal_pictures.h"
#include "render/play_game.h"
#include "render/scale.h"

namespace quillane::cli {

namespace {

std::string lower(std::string s) {
    for (char& ch : s) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    return s;
}

bool endsWith(const std::string& s, const std::string& tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

std::vector<std::string> items(const std::string& list) {
    std::vector<std::string> out;
    std::stringstream ss(list);
    for (std::string item; std::getline(ss, item, ',');) out.push_back(item);
    return out;
}

bool writeText(const std::string& path, const std::string& text) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
    return static_cast<bool>(out.flush());
}

}  // namespace

std::optional<std::string> ParsePrintOptions(const std::vector<std::string>& args, PrintOptions& p) {
    bool whatGiven = false;
    for (size_t i = 1; i < args.size(); ++i) {
        const std::string& a = args[i];
        auto value = [&](std::string& v) {
            if (i + 1 >= args.size()) return false;
            v = args[++i];
            return true;
        };
        std::string v;
        long long n = 0;
        if (a == "--entry") {
            if (!value(v) || !ParseWholeNumber(v, 1, 999999999, n)) return "--entry needs a positive number";
            p.entry = static_cast<int>(n);
        } else if (a == "--what") {
            if (!value(v)) return "--what needs text, fractal or design";
            p.text = p.fractal = p.design = false;
            for (const std::string& item : items(v)) {
                if (item == "text")
                    p.text = true;
                else if (item == "fractal")
                    p.fractal = true;
                else if (item == "design")
                    p.design = true;
                else
                    return "--what takes text, fractal and design, separated by commas";
            }
            whatGiven = true;
        } else if (a == "--text") {
            if (!value(v)) return "--text needs matrix, rotation or rules";
            p.parts = {false, false, false};
            for (const std::string& item : items(v)) {
                if (item == "matrix")
                    p.parts.matrix = true;
                else if (item == "rotation")
                    p.parts.rotation = true;
                else if (item == "rules")
                    p.parts.chaosGame = true;
                else
                    return "--text takes matrix, rotation and rules, separated by commas";
            }
            p.partsGiven = true;
        } else if (a == "--side-by-side") {
            p.sideBySide = true;
        } else if (a == "--landscape") {
            p.landscape = true;
        } else if (a == "--inches") {
            if (!value(v) || !ParseWholeNumber(v, 1, 10, n)) return "--inches needs a number from 1 to 10";
            p.sideInches = static_cast<double>(n);
        } else if (a == "--points") {
            if (!value(v) || !ParseWholeNumber(v, 1, 999999950, n))
                return "--points needs a number from 1 to 999999950";
            p.points = static_cast<int>(n);
        } else if (a == "--size") {
            if (!value(v) || !ParseWholeNumber(v, 1, 4000, n))
                return "--size needs a number of pixels from 1 to 4000";
            p.size = static_cast<int>(n);
        } else if (a == "--seed") {
            if (!value(v) || !ParseWholeNumber(v, 0, INT64_MAX, n)) return "--seed needs a whole number";
            p.seed = static_cast<uint64_t>(n);
        } else if (a == "-o") {
            if (!value(p.output)) return "-o needs a file name";
        } else if (!a.empty() && a[0] == '-') {
            return "unknown option " + a;
        } else if (p.file.empty()) {
            p.file = a;
        } else {
            return "print takes one FILE";
        }
    }
    if (p.file.empty()) return "print needs a FILE";
    if (p.output.empty()) return "print needs -o OUT";
    const std::string out = lower(p.output);
    if (endsWith(out, ".txt")) {
        if (whatGiven && (p.fractal || p.design)) return "a text file holds no pictures: use OUT.pdf";
        p.fractal = p.design = false;
        p.text = true;
    } else if (!endsWith(out, ".pdf")) {
        return "OUT must end in .txt or .pdf";
    }
    if (!p.text && !p.fractal && !p.design) return "--what chose nothing to print";
    return std::nullopt;
}

int RunPrint(const PrintOptions& p) {
    Workbench wb;
    // The design is drawn as a fresh window shows it: axes on, and the rest of the menus' first state.
    InitializeMenuState(wb.Menu);
    CliHost host;
    if (!ReadList(wb, host, p.file) || !TakeEntry(wb, host, p.file, p.entry)) return 1;
    PrintRequest r;
    r.fractal = p.fractal;
    r.design = p.design;
    r.text = p.text;
    r.parts = p.parts;
    if (!p.partsGiven) r.parts = {true, true, wb.DesignMode == 1};
    r.sideBySide = p.sideBySide;
    r.landscape = p.landscape;
    r.sideInches = p.sideInches;
    if (endsWith(lower(p.output), ".txt")) {
        if (writeText(p.output, PrintRequestText(wb, r))) return 0;
        std::cerr << "Could not write " << p.output << "\n";
        return 1;
    }
    FractalPictures pics;
    if (p.fractal) {
        if (p.seed) wb.Rng.pin(*p.seed);
        if (!setscale(wb, host)) return 1;
        pics.resize(p.size, White);
        ApplyWindow(pics, wb.Window);
        wb.DrawingStarted = false;
        PlayGame(wb, pics, host, 0, p.points);
    }
    DesignPictures design;
    if (p.design) {
        design.resize(p.size, p.size, wb.DesignBackColor);
        DesignScale(wb, design);
    }
    PdfPrinter printer(p.output);
    if (!PrintIFS(wb, pics.picfractal, design.shownPicture(wb.DesignMode == 1), r, host, printer, nullptr))
        return 1;
    return host.warnings == 0 ? 0 : 1;
}

}  // namespace quillane::cli
