#pragma once
// quillane-cli print: the File > Print output of one list entry, as a text file or a PDF.
#include <optional>
#include <string>
#include <vector>

#include "core/print_text.h"

namespace quillane::cli {

struct PrintOptions {
    std::string file;
    int entry = 1;
    bool text = true, fractal = true, design = true;
    PrintTextParts parts;
    bool partsGiven = false;
    bool sideBySide = false, landscape = false;
    double sideInches = 3;
    int points = 100000;
    int size = 600;
    std::optional<uint64_t> seed;
    std::string output;
};

// The options after "print", or the reason they are bad usage.
std::optional<std::string> ParsePrintOptions(const std::vector<std::string>& args, PrintOptions& p);

int RunPrint(const PrintOptions& p);

}  // namespace quillane::cli
