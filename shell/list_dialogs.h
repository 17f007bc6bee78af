#pragma once
// The dialogs of the fractal list and of the working IFS's name and comments.
#include <QWidget>
#include <functional>
#include <optional>
#include <string>

#include "app/list_commands.h"

namespace quillane {

// What the frame's commands ask through; tests replace the members with scripts.
struct ShellDialogs {
    ListDialogs list;
    std::function<std::optional<std::string>(const std::string& preset)> frmIFSName;
    std::function<std::optional<std::string>(const std::string& text)> frmAddComment;
};

// The Qt dialogs, parented to `parent`.
ShellDialogs QtShellDialogs(QWidget* parent);

}  // namespace quillane
