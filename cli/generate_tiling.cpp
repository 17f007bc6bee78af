// generate tiling: the residues named by --residues are clicked on the window's own lattice of M (under
// B when --basis is given), then its Create IFS runs.
#include <cstdlib>

#include "app/tiling_commands.h"
#include "cli/generate_command.h"
#include "cli/options.h"

namespace quillane::cli {
namespace {

std::optional<std::array<std::string, 4>> fourWords(const std::string& text) {
    const std::vector<std::string> words = SplitWords(text);
    if (words.size() != 4) return std::nullopt;
    return std::array<std::string, 4>{words[0], words[1], words[2], words[3]};
}

std::optional<std::pair<int, int>> residue(const std::string& word) {
    const size_t comma = word.find(',');
    long long u = 0, v = 0;
    if (comma == std::string::npos ||
        !ParseWholeNumber(word.substr(0, comma), -LatticeReach, LatticeReach, u) ||
        !ParseWholeNumber(word.substr(comma + 1), -LatticeReach, LatticeReach, v))
        return std::nullopt;
    return std::make_pair(static_cast<int>(u), static_cast<int>(v));
}

GenerateOutcome buildTiling(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--matrix", "--residues", "--basis"}, {})) return {false, *bad};
    TilingForm form;
    const auto matrix = a.value("--matrix");
    const auto m = matrix ? fourWords(*matrix) : std::nullopt;
    if (!m) return {false, "--matrix needs \"M11 M12 M21 M22\""};
    for (const std::string& word : *m) {
        long long n = 0;
        if (!ParseWholeNumber(word, -32768, 32767, n)) return {false, "--matrix needs whole numbers"};
    }
    form.txtM = *m;
    if (const auto basis = a.value("--basis")) {
        const auto b = fourWords(*basis);
        if (!b) return {false, "--basis needs \"B11 B12 B21 B22\""};
        form.txtb = *b;
        form.chkbasis = true;
    }
    const auto residues = a.value("--residues");
    if (!residues) return {false, "--residues needs \"U,V ...\""};
    std::vector<std::pair<int, int>> picks;
    for (const std::string& word : SplitWords(*residues)) {
        const auto r = residue(word);
        if (!r) return {false, "--residues: " + word + " is not a lattice point U,V from -20 to 20"};
        picks.push_back(*r);
    }
    // Draw Lattice first, as the window needs; its messages refuse here too.
    if (!TilingDrawLattice(s.pics.Tiling, host, form)) return {false, ""};
    const TilingBasis B = TilingBasisInForce(form);
    const TilingMatrix M = ReadTilingMatrix(form.txtM);
    const int64_t det = std::llabs(M.det());
    for (const auto& [u, v] : picks) {
        const std::string name = std::to_string(u) + "," + std::to_string(v);
        if (form.lattice.marked(u, v)) return {false, "--residues: " + name + " is given twice"};
        if (form.lattice.nResidues() >= det)
            return {false, "--residues: more than |Det(M)| = " + std::to_string(det) + " residues"};
        if (CongruentToChosen(form.lattice, M, u, v))
            return {false, "--residues: " + name + " is congruent modulo M to a residue already chosen"};
        // A click right on the point, as the person makes it.
        TilingLatticeClick(s.pics.Tiling, host, form,
                           u * static_cast<double>(B.b11) + v * static_cast<double>(B.b12),
                           u * static_cast<double>(B.b21) + v * static_cast<double>(B.b22));
    }
    return {TilingCreate(s, host, form), ""};
}

}  // namespace

GeneratorCli TilingGeneratorCli() {
    return {"tiling",
            "  generate tiling --matrix \"M11 M12 M21 M22\" --residues \"U,V ...\" [--basis \"B11 B12 B21 "
            "B22\"]\n"
            "                  -o OUT.ifs [--picture PICTURE [--levels L]]\n"
            "      The self-affine tile of the integer matrix M (|Det(M)| from 1 to 20): one map\n"
            "      B M^-1 B^-1 (x) + B (U, V) per residue, U and V from -20 to 20, at most |Det(M)|\n"
            "      of them and no two congruent modulo M. B, the change of basis, takes expressions\n"
            "      and is the identity without --basis. (0,0) always becomes the first map.\n",
            buildTiling, nullptr};
}

}  // namespace quillane::cli
