#pragma once
// Parsing of the command line: what each command was asked to do, or a usage error.
#include <optional>
#include <string>
#include <vector>

#include "cli/generate_command.h"
#include "cli/movie_command.h"
#include "cli/print_command.h"
#include "core/workbench.h"

namespace quillane::cli {

struct RenderOptions {
    std::string file;
    int entry = 1;
    int points = 100000;
    int size = 800;
    std::optional<uint64_t> seed;
    std::optional<WorldWindow> window;
    std::string output;
    // --deterministic: that many levels from a drawn figure instead of the random algorithm.
    bool deterministic = false;
    int levels = 5;
    std::string figure = "polygon";  // polygon, line, triangle, square or circle
    bool figureGiven = false;
    // --initial: a picture file, the initial set of a deterministic drawing or the background of a
    // random one, fitted into the picture and centred.
    std::string initial;
    // --colors: the colour mode by name, 0 to 7; and what the modes draw with.
    int colorMode = 0;
    bool colorsGiven = false;
    std::string gradient;  // --gradient: a gradient text file
    std::string palette;   // --palette: the IFS colours from a .map or .ifp file
    std::string steal;     // --steal: the picture colour stealing takes its colours from
    std::string stealIfs;  // --steal-ifs FILE:ENTRY: the colouring IFS, instead of the unit square
    int stealEntry = 0;
};

// The names of --colors, colour mode 0 to 7 in order.
extern const char* const ColorModeNames[8];
// The mode of a name, or -1.
int ColorModeByName(const std::string& name);

struct BenchOptions {
    int points = 50000000;
    int size = 1000;
    int colorMode = 0;
};

struct Command {
    enum Kind { Help, List, Save, Render, Bench, Print, Movie, GifInfo, Generate } kind = Help;
    std::vector<std::string> files;  // list: FILE; save: IN OUT
    RenderOptions render;
    BenchOptions bench;
    PrintOptions print;
    MovieOptions movie;
    GenerateOptions generate;
};

// The parsed command, or the text of a usage error.
struct ParseResult {
    std::optional<Command> command;
    std::string error;
};

ParseResult ParseCommandLine(const std::vector<std::string>& args);

// A whole number in lo..hi, the whole text and nothing else.
bool ParseWholeNumber(const std::string& text, long long lo, long long hi, long long& out);

extern const char* const UsageText;
// UsageText followed by the usage of every generator.
std::string FullUsageText();

}  // namespace quillane::cli
