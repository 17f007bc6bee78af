#pragma once
// The IFS as a printout's text: the matrix form, the scale and rotation form and the chaos game
// rules, each a heading line, a line per function and an empty line.
#include <string>

namespace quillane {

struct IFSEntry;

std::string TextPrintMatrix(const IFSEntry& ifs);
std::string TextPrintRotation(const IFSEntry& ifs);
std::string TextPrintChaosGame(const IFSEntry& ifs);

struct PrintTextParts {
    bool matrix = true, rotation = false, chaosGame = false;
};
// The chosen sections in their order.
std::string PrintText(const IFSEntry& ifs, const PrintTextParts& parts);

// A chaos game value as the rules print it: no leading blank, a zero before the point.
std::string RuleNumber(float x);

}  // namespace quillane
