#pragma once
// quillane-cli generate KIND ...: builds an IFS with a generator as its window's Create IFS does,
// writes it as a one-entry list and, when asked, draws it.
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "app/app_state.h"
#include "cli/cli_host.h"
#include "render/raster_surface.h"

namespace quillane::cli {

struct GenerateOutcome {
    bool built = false;      // CurrentIFS holds what the window's Create IFS made
    std::string usageError;  // bad usage of the generator's own options (exit 2)
};  // not built and no usage error: the window refused, its message went to the host (exit 1)

struct GeneratorCli {
    std::string kind;   // the word after "generate"
    std::string usage;  // its lines of --help
    // Reads the generator's own options into the window's form and runs the window's command on `s`.
    std::function<GenerateOutcome(AppState& s, CliHost& host, const std::vector<std::string>& args)> build;
    // The generator's own recursive drawing into a white square `picture` at `levels` (nullopt: its
    // default). Null when it has none: the IFS is then drawn by the deterministic algorithm when
    // --levels is given, else by the random one.
    std::function<bool(AppState& s, CliHost& host, const std::vector<std::string>& args,
                       RasterSurface& picture, std::optional<int> levels)>
        draw;
};

// The options every generator shares.
struct GenerateOptions {
    std::string kind;
    std::vector<std::string> args;  // the generator's own, in order
    std::string output;             // -o OUT.ifs
    std::string picture;            // --picture OUT.png
    std::optional<int> levels;      // --levels
    int size = 800;                 // --size, of the picture
};

// A generator's own options: "--name value" pairs and bare flags, each name at most once.
class GeneratorArgs {
  public:
    // The error text for an unknown, repeated or valueless option, or nothing.
    std::optional<std::string> parse(const std::vector<std::string>& args,
                                     const std::set<std::string>& valued, const std::set<std::string>& flags);
    std::optional<std::string> value(const std::string& name) const;
    bool flag(const std::string& name) const { return flags_.count(name) > 0; }

  private:
    std::map<std::string, std::string> values_;
    std::set<std::string> flags_;
};

// "x,y" as two numbers, or nothing.
std::optional<std::pair<double, double>> ParseNumberPair(const std::string& text);
// Whitespace-separated words.
std::vector<std::string> SplitWords(const std::string& text);

GeneratorCli BoxGeneratorCli();
GeneratorCli TriangleGeneratorCli();
GeneratorCli SymmetricGeneratorCli();
GeneratorCli SierpinskiGeneratorCli();
GeneratorCli TilingGeneratorCli();
GeneratorCli ComplexGeneratorCli();
GeneratorCli BinaryTreeGeneratorCli();
GeneratorCli PythagoreanGeneratorCli();
GeneratorCli KochGeneratorCli();
GeneratorCli LineGeneratorCli();

// Every generator of the command line, in the order --help gives them.
const std::vector<GeneratorCli>& CliGenerators();
// The usage lines of every generator, for --help.
std::string GeneratorUsageText();

// The options after "generate", or the reason they are bad usage.
std::optional<std::string> ParseGenerateOptions(const std::vector<std::string>& args, GenerateOptions& g);
// Exit status: 0 written, 1 refused or not written, 2 bad usage of the generator's own options.
int RunGenerate(const GenerateOptions& g);

}  // namespace quillane::cli
