#pragma once
// The one way logic reaches the person: message boxes, file and colour dialogs, yields.
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/colors.h"

namespace quillane {

enum class MessageIcon { None, Information, Warning, Question, Critical };
enum class MessageButtons { OK, OKCancel, YesNo, YesNoCancel };
enum class Answer { OK, Cancel, Yes, No };

struct FileFilter {
    std::string description;  // "Iterated Function Systems (*.ifs)"
    std::string pattern;      // "*.ifs"
};

struct FileDialogRequest {
    std::string title;
    std::vector<FileFilter> filters;
    std::string initialName;  // preset file name (save dialogs)
    // Dialogs that share a key share the remembered folder.
    std::string folderKey;
    // When set, receives the filter the person chose, counted from 1.
    int* chosenFilter = nullptr;
    // The filter selected when the dialog opens, counted from 1; 0 leaves the first.
    int initialFilter = 0;
};

class Host {
  public:
    virtual ~Host() = default;
    // A modal box; returns the button pressed. Lines are separated by "\n".
    virtual Answer message(MessageIcon icon, const std::string& title, const std::string& text,
                           MessageButtons buttons) = 0;
    // The name chosen, or nothing on Cancel.
    virtual std::optional<std::string> openFileName(const FileDialogRequest& request) = 0;
    virtual std::optional<std::string> saveFileName(const FileDialogRequest& request) = 0;
    virtual std::optional<Color> chooseColor(Color initial) = 0;
    // Lets the interface handle events; long loops call it at their yield points.
    virtual void yield() = 0;

    // The usual warning box with an OK button.
    void warn(const std::string& title, const std::string& text) {
        message(MessageIcon::Warning, title, text, MessageButtons::OK);
    }
    void inform(const std::string& title, const std::string& text) {
        message(MessageIcon::Information, title, text, MessageButtons::OK);
    }
};

// For routines that run where no person can be asked (the start, a redraw without a dialog): every
// box is cancelled, every dialog returns nothing, and nothing is shown.
class SilentHost final : public Host {
  public:
    Answer message(MessageIcon, const std::string&, const std::string&, MessageButtons) override {
        return Answer::Cancel;
    }
    std::optional<std::string> openFileName(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> saveFileName(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<Color> chooseColor(Color) override { return std::nullopt; }
    void yield() override {}
};

}  // namespace quillane
