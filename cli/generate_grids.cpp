// generate box and generate triangle: the cells named by --remove are clicked away on the window's
// own grid, then its Create IFS runs.
#include <cmath>

#include "app/grid_generator_commands.h"
#include "cli/generate_command.h"
#include "cli/options.h"

namespace quillane::cli {
namespace {

// --n of both grids.
std::optional<int> gridSize(const GeneratorArgs& a, std::string& error) {
    long long n = 2;
    if (const auto v = a.value("--n"); v && !ParseWholeNumber(*v, 2, 10, n)) {
        error = "--n needs a number from 2 to 10";
        return std::nullopt;
    }
    return static_cast<int>(n);
}

// The cells of --remove as whole-number pairs, each checked by `inGrid`.
template <class InGrid>
std::optional<std::vector<std::pair<int, int>>> removedCells(const GeneratorArgs& a, InGrid inGrid,
                                                             std::string& error) {
    std::vector<std::pair<int, int>> cells;
    const auto text = a.value("--remove");
    if (!text) return cells;
    for (const std::string& word : SplitWords(*text)) {
        const size_t comma = word.find(',');
        long long r = 0, c = 0;
        if (comma == std::string::npos || !ParseWholeNumber(word.substr(0, comma), 1, 10, r) ||
            !ParseWholeNumber(word.substr(comma + 1), 1, 19, c) ||
            !inGrid(static_cast<int>(r), static_cast<int>(c))) {
            error = "--remove: no cell " + word + " in this grid";
            return std::nullopt;
        }
        cells.emplace_back(static_cast<int>(r), static_cast<int>(c));
    }
    return cells;
}

GenerateOutcome buildBox(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--n", "--remove"}, {})) return {false, *bad};
    std::string error;
    const auto n = gridSize(a, error);
    if (!n) return {false, error};
    const auto cells = removedCells(
        a, [&](int r, int c) { return r <= *n && c <= *n; }, error);
    if (!cells) return {false, error};
    BoxFractal box;
    RasterSurface picBox(600, 600, White);
    DrawBoxes2(box, picBox, *n);
    // A click at the middle of each box, rows from the top: the same toggle a click makes.
    for (const auto& [row, col] : *cells)
        ClickBox(box, picBox, (col - 0.5) * box.BoxSize, (row - 0.5) * box.BoxSize);
    return {BoxFractalSetup(s, host, box), ""};
}

GenerateOutcome buildTriangle(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--n", "--remove"}, {})) return {false, *bad};
    std::string error;
    const auto n = gridSize(a, error);
    if (!n) return {false, error};
    // Row k from the apex holds 2k - 1 cells.
    const auto cells = removedCells(
        a, [&](int r, int c) { return r <= *n && c <= 2 * r - 1; }, error);
    if (!cells) return {false, error};
    TriangleFractal tri;
    RasterSurface canvas(600, 600, White);
    DrawTriangles(tri, canvas, *n);
    const double H = std::sqrt(3.0) / 2;
    const auto lattice = [&](double i, double j) {
        return std::make_pair(i / *n + j / (2.0 * *n), j * H / *n);
    };
    for (const auto& [cliRow, cliPos] : *cells) {
        const int row = *n - cliRow;  // from the base
        const int pos = cliPos - 1;
        const int k = pos / 2;
        // The centre of the cell: upright cells stand on lattice point k of their row, inverted
        // ones hang between points k and k + 1 of the row above.
        const bool upright = pos % 2 == 0;
        const auto [x0, y0] = lattice(upright ? k : k + 1, row);
        const auto [x1, y1] = lattice(k + 1, upright ? row : row + 1);
        const auto [x2, y2] = lattice(k, row + 1);
        ClickTriangle(tri, canvas, (x0 + x1 + x2) / 3, (y0 + y1 + y2) / 3);
    }
    return {TriangleFractalCreate(s, host, tri), ""};
}

}  // namespace

GeneratorCli BoxGeneratorCli() {
    return {"box",
            "  generate box [--n N] [--remove \"ROW,COL ...\"] -o OUT.ifs [--picture PICTURE [--levels L]]\n"
            "      The box fractal: the unit square cut into N by N boxes (N from 2 to 10, default 2),\n"
            "      one map per box kept. Boxes are counted from 1, rows from the top, columns from\n"
            "      the left.\n",
            buildBox, nullptr};
}

GeneratorCli TriangleGeneratorCli() {
    return {
        "triangle",
        "  generate triangle [--n N] [--remove \"ROW,POS ...\"] -o OUT.ifs [--picture PICTURE [--levels L]]\n"
        "      The triangle fractal: the triangle cut into N rows of triangles (N from 2 to 10,\n"
        "      default 2), one map per triangle kept. Rows count from the apex (row 1 holds one\n"
        "      cell, row K holds 2K - 1), cells from the left, both from 1.\n",
        buildTriangle, nullptr};
}

}  // namespace quillane::cli
