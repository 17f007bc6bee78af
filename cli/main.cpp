#include <exception>
#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/options.h"
#include "core/resource_folder.h"

namespace {

// The list the program starts with, found as the program finds it.
quillane::cli::Command withDefaultList(quillane::cli::Command cmd, const char* argv0) {
    namespace fs = std::filesystem;
    std::error_code ec;
    fs::path self = fs::read_symlink("/proc/self/exe", ec);
    if (ec) self = fs::absolute(argv0, ec);
    cmd.files = {(fs::path(quillane::ResourceFolder(self.parent_path().string())) / "default.ifs").string()};
    return cmd;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace quillane::cli;
    const std::vector<std::string> args(argv + 1, argv + argc);
    const ParseResult parsed = ParseCommandLine(args);
    if (!parsed.command) {
        std::cerr << "quillane-cli: " << parsed.error << "\n\n" << FullUsageText();
        return 2;
    }
    const Command& cmd = *parsed.command;
    try {
        switch (cmd.kind) {
            case Command::Help:
                std::cout << FullUsageText();
                return 0;
            case Command::List:
                if (cmd.files.empty()) return RunList(withDefaultList(cmd, argv[0]));
                return RunList(cmd);
            case Command::Save:
                return RunSave(cmd);
            case Command::Render:
                return RunRender(cmd);
            case Command::Bench:
                return RunBench(cmd);
            case Command::Print:
                return RunPrint(cmd.print);
            case Command::Movie:
                return RunMovie(cmd.movie);
            case Command::GifInfo:
                return RunGifInfo(cmd.files[0]);
            case Command::Generate:
                return RunGenerate(cmd.generate);
        }
    } catch (const std::exception& e) {
        std::cerr << "quillane-cli: " << e.what() << "\n";
        return 1;
    }
    return 1;
}
