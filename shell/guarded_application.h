#pragma once
// The program's last line of defence: an exception that escapes a command reaches the event loop
// here, is shown in a box and the program goes on with its state, instead of ending and losing work.
#include <QApplication>
#include <exception>
#include <functional>
#include <string>

namespace quillane {

inline constexpr const char* UnexpectedErrorTitle = "Error";
// The box's text for an exception with this description.
std::string UnexpectedErrorText(const std::string& what);

// Runs deliver; an exception it throws goes to onError (with its description) and counts as handled.
bool DeliverGuarded(const std::function<bool()>& deliver, const std::function<void(const std::string&)>& onError);

class GuardedApplication : public QApplication {
  public:
    GuardedApplication(int& argc, char** argv) : QApplication(argc, argv) {}
    bool notify(QObject* receiver, QEvent* event) override;
    // Shows the message; the frame sets it, so that it can also end a drawing that was cut short.
    std::function<void(const std::string& what)> onError;
};

}  // namespace quillane
