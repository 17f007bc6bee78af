#pragma once
// A Host for tests and the command line: answers boxes and dialogs from queues, in order,
// and records everything that was shown.
#include <deque>
#include <functional>

#include "core/host.h"

namespace quillane {

struct ShownMessage {
    std::string title;
    std::string text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::OK;
    bool operator==(const ShownMessage& o) const { return title == o.title && text == o.text; }
};

class ScriptedHost : public Host {
  public:
    // Answers for the next boxes; when empty a box gets its default (OK or Yes).
    std::deque<Answer> answers;
    // Names for the next file dialogs; an empty optional stands for Cancel.
    std::deque<std::optional<std::string>> fileNames;
    std::deque<std::optional<Color>> colors;
    // The filters chosen in the next file dialogs that ask for one (when empty, the one it opened on).
    std::deque<int> filters;
    // Runs at every yield, so a test can act "during" a loop.
    std::function<void(int yieldNumber)> onYield;

    Answer message(MessageIcon icon, const std::string& title, const std::string& text,
                   MessageButtons buttons) override;
    std::optional<std::string> openFileName(const FileDialogRequest& request) override;
    std::optional<std::string> saveFileName(const FileDialogRequest& request) override;
    std::optional<Color> chooseColor(Color initial) override;
    void yield() override;

    const std::vector<ShownMessage>& shown() const { return shown_; }
    const std::vector<FileDialogRequest>& dialogs() const { return dialogs_; }
    int yields() const { return yields_; }
    void clear() {
        shown_.clear();
        dialogs_.clear();
    }

  private:
    std::optional<std::string> nextFileName(const FileDialogRequest& request);
    std::vector<ShownMessage> shown_;
    std::vector<FileDialogRequest> dialogs_;
    int yields_ = 0;
};

}  // namespace quillane
