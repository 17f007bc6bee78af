#include "core/scripted_host.h"

#include <algorithm>

namespace quillane {

Answer ScriptedHost::message(MessageIcon icon, const std::string& title, const std::string& text,
                             MessageButtons buttons) {
    shown_.push_back({title, text, icon, buttons});
    if (!answers.empty()) {
        Answer a = answers.front();
        answers.pop_front();
        return a;
    }
    return (buttons == MessageButtons::YesNo || buttons == MessageButtons::YesNoCancel) ? Answer::Yes
                                                                                        : Answer::OK;
}

std::optional<std::string> ScriptedHost::nextFileName(const FileDialogRequest& request) {
    dialogs_.push_back(request);
    if (request.chosenFilter) {
        // Without a scripted choice the person keeps the filter the dialog opened on.
        *request.chosenFilter = filters.empty() ? std::max(request.initialFilter, 1) : filters.front();
        if (!filters.empty()) filters.pop_front();
    }
    if (fileNames.empty()) return std::nullopt;
    auto name = fileNames.front();
    fileNames.pop_front();
    return name;
}

std::optional<std::string> ScriptedHost::openFileName(const FileDialogRequest& request) {
    return nextFileName(request);
}

std::optional<std::string> ScriptedHost::saveFileName(const FileDialogRequest& request) {
    return nextFileName(request);
}

std::optional<Color> ScriptedHost::chooseColor(Color initial) {
    if (colors.empty()) return initial;
    auto c = colors.front();
    colors.pop_front();
    return c;
}

void ScriptedHost::yield() {
    ++yields_;
    if (onYield) onYield(yields_);
}

}  // namespace quillane
