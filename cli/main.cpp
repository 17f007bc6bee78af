#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include "cli/commands.h"
#include "cli/options.h"

int main(int argc, char** argv) {
    using namespace quillane::cli;
    const std::vector<std::string> args(argv + 1, argv + argc);
    const ParseResult parsed = ParseCommandLine(args);
    if (!parsed.command) {
        std::cerr << "quillane-cli: " << parsed.error << "\n\n" << UsageText;
        return 2;
    }
    const Command& cmd = *parsed.command;
    try {
        switch (cmd.kind) {
            case Command::Help:
                std::cout << UsageText;
                return 0;
            case Command::List:
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
        }
    } catch (const std::exception& e) {
        std::cerr << "quillane-cli: " << e.what() << "\n";
        return 1;
    }
    return 1;
}
