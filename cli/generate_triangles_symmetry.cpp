// generate symmetric and generate sierpinski: the window's form filled from the options, then its
// Create IFS.
#include "app/sierpinski_commands.h"
#include "app/symmetric_commands.h"
#include "cli/generate_command.h"
#include "cli/list_input.h"
#include "cli/options.h"

namespace quillane::cli {
namespace {

GenerateOutcome buildSymmetric(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--order", "--group", "--base", "--from"}, {})) return {false, *bad};
    SymmetricForm form;
    long long n = 0;
    if (!a.value("--order") || !ParseWholeNumber(*a.value("--order"), MinSymmetryOrder, MaxSymmetryOrder, n))
        return {false, "--order needs a number from 2 to 100"};
    form.n = static_cast<int>(n);
    const std::string group = a.value("--group").value_or("");
    if (group != "cyclic" && group != "dihedral") return {false, "--group needs cyclic or dihedral"};
    form.group = group == "cyclic" ? SymmetryGroup::Cyclic : SymmetryGroup::Dihedral;
    if (a.value("--base").has_value() == a.value("--from").has_value())
        return {false, "generate symmetric needs either --base or --from"};
    if (const auto base = a.value("--base")) {
        const std::vector<std::string> words = SplitWords(*base);
        if (words.size() != 6) return {false, "--base needs six values \"a b c d e f\""};
        for (size_t k = 0; k < 4; ++k) form.txtMatrix[k] = words[k];
        form.txtE = words[4];
        form.txtF = words[5];
    } else {
        const std::string from = *a.value("--from");
        const size_t colon = from.rfind(':');
        long long entry = 0;
        if (colon == std::string::npos || !ParseWholeNumber(from.substr(colon + 1), 1, 1000, entry))
            return {false, "--from needs FILE:ENTRY"};
        const std::string file = from.substr(0, colon);
        if (!ReadList(s.wb, host, file)) return {false, ""};
        if (entry > s.wb.ListCount()) {
            host.warn("Error", "--from entry must be from 1 to " + std::to_string(s.wb.ListCount()) + ": " +
                                   file + " has " + std::to_string(s.wb.ListCount()) + " entries");
            return {false, ""};
        }
        form.useList = true;
        form.cmbIFSList = static_cast<int>(entry) - 1;
    }
    return {SymmetricCreate(s, host, form) == SymmetricFocus::None, ""};
}

GenerateOutcome buildSierpinski(AppState& s, CliHost& host, const std::vector<std::string>& args) {
    GeneratorArgs a;
    if (auto bad = a.parse(args, {"--apex", "--method", "--factors"}, {})) return {false, *bad};
    SierpinskiForm form;
    if (const auto apex = a.value("--apex")) {
        const auto p = ParseNumberPair(*apex);
        if (!p) return {false, "--apex needs X,Y"};
        form.PointA = {static_cast<float>(p->first), static_cast<float>(p->second)};
    }
    if (const auto method = a.value("--method")) {
        long long m = 1;
        if (!ParseWholeNumber(*method, 1, 3, m)) return {false, "--method needs 1, 2 or 3"};
        form.method = static_cast<int>(m);
    }
    if (const auto factors = a.value("--factors")) {
        std::vector<std::string> parts;
        std::string part;
        for (const char c : *factors + ",") {
            if (c != ',') {
                part += c;
                continue;
            }
            parts.push_back(part);
            part.clear();
        }
        if (parts.size() != 3) return {false, "--factors needs FA,FB,FC"};
        for (size_t k = 0; k < 3; ++k) form.txtPara[k] = parts[k];
    }
    return {SierpinskiCreate(s, host, form), ""};
}

}  // namespace

GeneratorCli SymmetricGeneratorCli() {
    return {"symmetric",
            "  generate symmetric --order N --group cyclic|dihedral (--base \"A B C D E F\" | --from "
            "FILE:ENTRY)\n"
            "                     -o OUT.ifs [--picture PICTURE [--levels L]]\n"
            "      The symmetric fractal of order N (2 to 100) of one map x' = Ax + By + E,\n"
            "      y' = Cx + Dy + F (values may be expressions) or of an entry of a list.\n",
            buildSymmetric, nullptr};
}

GeneratorCli SierpinskiGeneratorCli() {
    return {"sierpinski",
            "  generate sierpinski [--apex X,Y] [--method 1|2|3] [--factors FA,FB,FC]\n"
            "                      -o OUT.ifs [--picture PICTURE [--levels L]]\n"
            "      Three maps on the triangle with base (0,0)-(1,0) and apex X,Y (default the\n"
            "      equilateral one; 0 < X < 1, 0 < Y < 1), dividing its sides by the factors\n"
            "      (between 0 and 1, default 0.5 each) by subdivision method 1, 2 or 3.\n",
            buildSierpinski, nullptr};
}

}  // namespace quillane::cli
