#include "core/print_text.h"

#include "core/function_table.h"
#include "core/ifs_entry.h"
#include "core/numbers.h"

namespace quillane {

namespace {

std::string rightAligned(const std::string& text, size_t width) {
    return text.size() >= width ? text : std::string(width - text.size(), ' ') + text;
}

// A coefficient in its nine-character column and the two blanks after it.
std::string coefficient(double x) {
    return rightAligned(Format(x, "0.000000"), 9) + "  ";
}

std::string angle(double x) {
    return rightAligned(Format(x, "0.00"), 7) + "  ";
}

// "(1)  " and "(10) ": one more blank below 10 so that the columns line up.
std::string rowHead(int number, const char* belowTen) {
    return "(" + std::to_string(number) + ") " + (number < 10 ? belowTen : "");
}

std::string translationAndProbability(const IFSEntry& ifs, int i) {
    std::string line = "| " + coefficient(ifs.e[i]) + coefficient(ifs.f[i]);
    if (ifs.p[i] > 0) line += "| " + Format(ifs.p[i], "0.000000");
    return line;
}

std::string move(const IFSEntry& ifs, int k, int i) {
    const std::string& step = ifs.Step[k][i];
    const char L = step.empty() ? ' ' : step[0];
    switch (L) {
        case 'S':
            return "scale by " + RuleNumber(ifs.Scale[i]);
        case 'R':
            return "rotate by " + RuleNumber(ifs.Angle[i]);
        case 'H':
            return "horizontal reflection";
        case 'V':
            return "vertical reflection";
        default:
            return {};
    }
}

}  // namespace

std::string RuleNumber(float x) {
    std::string t = Trim(Str(x));
    if (t.rfind(".", 0) == 0) t = "0" + t;
    if (t.rfind("-.", 0) == 0) t = "-0" + t.substr(1);
    return t;
}

std::string TextPrintMatrix(const IFSEntry& ifs) {
    std::string text = "Matrix Form\n";
    for (int i = 0; i < ifs.nMaps && i < MapSlots; ++i) {
        text += rowHead(i + 1, " ") + coefficient(ifs.a[i]) + coefficient(ifs.b[i]) + coefficient(ifs.c[i]) +
                coefficient(ifs.d[i]) + translationAndProbability(ifs, i) + "\n";
    }
    return text + "\n";
}

std::string TextPrintRotation(const IFSEntry& ifs) {
    std::string text = "Scale/Rotation Form\n";
    for (int i = 0; i < ifs.nMaps && i < MapSlots; ++i) {
        const RotationForm f = PrintRotation(ifs.a[i], ifs.b[i], ifs.c[i], ifs.d[i]);
        text += rowHead(i + 1, "  ") + Format(f.r, "0.000000   ") + Format(f.s, "0.000000  ") + "| " +
                angle(f.theta) + angle(f.phi) + translationAndProbability(ifs, i) + "\n";
    }
    return text + "\n";
}

std::string TextPrintChaosGame(const IFSEntry& ifs) {
    std::string text = "Chaos Game Rules\n";
    for (int i = 0; i < ifs.nMaps && i < MapSlots; ++i) {
        std::string moves;
        for (int k = 1; k <= 4; ++k) {
            const std::string m = move(ifs, k, i);
            if (m.empty()) continue;
            moves += (moves.empty() ? "" : ", ") + m;
        }
        text += moves + "      fixed point:  (" + RuleNumber(ifs.FPx[i]) + ", " + RuleNumber(ifs.FPy[i]) + ")\n";
    }
    return text + "\n";
}

std::string PrintText(const IFSEntry& ifs, const PrintTextParts& parts) {
    std::string text;
    if (parts.matrix) text += TextPrintMatrix(ifs);
    if (parts.rotation) text += TextPrintRotation(ifs);
    if (parts.chaosGame) text += TextPrintChaosGame(ifs);
    return text;
}

}  // namespace quillane
