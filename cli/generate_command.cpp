#include "cli/generate_command.h"

#include <cerrno>
#include <cstdlib>
#include <iostream>
#include <sstream>

#include "cli/commands.h"
#include "core/ifs_file_writer.h"
#include "render/image_file.h"

namespace quillane::cli {

std::optional<std::string> GeneratorArgs::parse(const std::vector<std::string>& args,
                                                const std::set<std::string>& valued,
                                                const std::set<std::string>& flags) {
    for (size_t i = 0; i < args.size(); ++i) {
        const std::string& a = args[i];
        if (flags.count(a)) {
            if (!flags_.insert(a).second) return a + " is given twice";
        } else if (valued.count(a)) {
            if (i + 1 >= args.size()) return a + " needs a value";
            if (!values_.emplace(a, args[++i]).second) return a + " is given twice";
        } else {
            return "unknown option " + a;
        }
    }
    return std::nullopt;
}

std::optional<std::string> GeneratorArgs::value(const std::string& name) const {
    const auto it = values_.find(name);
    if (it == values_.end()) return std::nullopt;
    return it->second;
}

namespace {

std::optional<double> parseNumber(const std::string& text) {
    if (text.empty()) return std::nullopt;
    errno = 0;
    char* end = nullptr;
    const double v = std::strtod(text.c_str(), &end);
    if (end != text.c_str() + text.size() || errno == ERANGE) return std::nullopt;
    return v;
}

const GeneratorCli* findGenerator(const std::string& kind) {
    for (const GeneratorCli& g : CliGenerators())
        if (g.kind == kind) return &g;
    return nullptr;
}

bool savePicture(const RasterSurface& picture, const std::string& file) {
    std::string error;
    if (SaveImageFile(picture, file, error)) return true;
    std::cerr << "Could not write " << file << ": " << error << "\n";
    return false;
}

}  // namespace

std::optional<std::pair<double, double>> ParseNumberPair(const std::string& text) {
    const size_t comma = text.find(',');
    if (comma == std::string::npos) return std::nullopt;
    const auto x = parseNumber(text.substr(0, comma));
    const auto y = parseNumber(text.substr(comma + 1));
    if (!x || !y) return std::nullopt;
    return std::make_pair(*x, *y);
}

std::vector<std::string> SplitWords(const std::string& text) {
    std::istringstream in(text);
    std::vector<std::string> words;
    for (std::string w; in >> w;) words.push_back(w);
    return words;
}

std::string GeneratorUsageText() {
    std::string text;
    for (const GeneratorCli& g : CliGenerators()) text += g.usage;
    return text;
}

std::optional<std::string> ParseGenerateOptions(const std::vector<std::string>& args, GenerateOptions& g) {
    if (args.size() < 2)
        return "generate needs a KIND: " + [] {
            std::string kinds;
            for (const GeneratorCli& c : CliGenerators()) kinds += (kinds.empty() ? "" : ", ") + c.kind;
            return kinds;
        }();
    g.kind = args[1];
    if (!findGenerator(g.kind)) return "unknown generator " + g.kind;
    for (size_t i = 2; i < args.size(); ++i) {
        const std::string& a = args[i];
        const bool hasValue = i + 1 < args.size();
        long long n = 0;
        if (a == "-o") {
            if (!hasValue) return "-o needs a file name";
            g.output = args[++i];
        } else if (a == "--picture") {
            if (!hasValue) return "--picture needs a file name";
            g.picture = args[++i];
        } else if (a == "--levels") {
            if (!hasValue || !ParseWholeNumber(args[i + 1], 0, 100, n))
                return "--levels needs a number from 0 to 100";
            g.levels = static_cast<int>(n);
            ++i;
        } else if (a == "--size") {
            if (!hasValue || !ParseWholeNumber(args[i + 1], 1, 20000, n))
                return "--size needs a number of pixels from 1 to 20000";
            g.size = static_cast<int>(n);
            ++i;
        } else {
            g.args.push_back(a);
        }
    }
    if (g.output.empty()) return "generate needs -o OUT.ifs";
    return std::nullopt;
}

int RunGenerate(const GenerateOptions& g) {
    const GeneratorCli* generator = findGenerator(g.kind);
    if (!generator) {
        std::cerr << "quillane-cli: unknown generator " << g.kind << "\n";
        return 2;
    }
    AppState s;
    CliHost host;
    const GenerateOutcome outcome = generator->build(s, host, g.args);
    if (!outcome.usageError.empty()) {
        std::cerr << "quillane-cli: " << outcome.usageError << "\n";
        return 2;
    }
    if (!outcome.built) return 1;
    const IFSEntry& ifs = s.wb.CurrentIFS;
    if (!WriteTextFileReplacing(g.output, IFSBlockText(ifs, ifs.nMaps, "  "))) {
        std::cerr << "Could not write " << g.output << "\n";
        return 1;
    }
    if (g.picture.empty()) return 0;
    if (generator->draw) {
        RasterSurface picture(g.size, g.size, White);
        if (!generator->draw(s, host, g.args, picture, g.levels)) return 1;
        return savePicture(picture, g.picture) ? 0 : 1;
    }
    RenderOptions r;
    r.size = g.size;
    r.output = g.picture;
    r.deterministic = g.levels.has_value();
    if (g.levels) r.levels = *g.levels;
    return DrawWorkingIFS(s.wb, host, r);
}

}  // namespace quillane::cli
