#pragma once
// The command line's Host: every box goes to stderr, dialogs are cancelled, yields do nothing.
#include <iostream>

#include "core/host.h"

namespace quillane {

class CliHost : public Host {
  public:
    Answer message(MessageIcon icon, const std::string& title, const std::string& text,
                   MessageButtons buttons) override {
        std::cerr << title << ": " << text << "\n";
        if (icon == MessageIcon::Warning || icon == MessageIcon::Critical) ++warnings;
        return (buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel) ? Answer::No
                                                                                            : Answer::OK;
    }
    std::optional<std::string> openFileName(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> saveFileName(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<Color> chooseColor(Color) override { return std::nullopt; }
    void yield() override {}

    int warnings = 0;
};

}  // namespace quillane
