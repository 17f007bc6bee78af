#include "shell/guarded_application.h"

#include <QMessageBox>

namespace quillane {

std::string UnexpectedErrorText(const std::string& what) {
    return "The command could not be completed:\n" + what + "\n\nThe program goes on; your work is kept.";
}

bool DeliverGuarded(const std::function<bool()>& deliver, const std::function<void(const std::string&)>& onError) {
    try {
        return deliver();
    } catch (const std::exception& e) {
        onError(e.what());
    } catch (...) {
        onError("unknown error");
    }
    return true;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
    return DeliverGuarded([&] { return QApplication::notify(receiver, event); },
                          [this](const std::string& what) {
                              if (onError) {
                                  onError(what);
                                  return;
                              }
                              QMessageBox::critical(nullptr, UnexpectedErrorTitle,
                                                    QString::fromStdString(UnexpectedErrorText(what)));
                          });
}

}  // namespace quillane
