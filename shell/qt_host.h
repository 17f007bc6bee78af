#pragma once
// The Host of the windowed program: Qt message boxes, file and colour dialogs, and yields that
// let the event loop run only every ~15 ms.
#include <QElapsedTimer>
#include <QString>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <map>

#include "core/host.h"

namespace quillane {

class QtHost : public Host {
  public:
    // Yield points closer together than this do not process events.
    static constexpr qint64 YieldInterval = 15;

    // programDir is where every file dialog starts the first time.
    explicit QtHost(QString programDir, QWidget* parent = nullptr);

    Answer message(MessageIcon icon, const std::string& title, const std::string& text,
                   MessageButtons buttons) override;
    std::optional<std::string> openFileName(const FileDialogRequest& request) override;
    std::optional<std::string> saveFileName(const FileDialogRequest& request) override;
    std::optional<Color> chooseColor(Color initial) override;
    void yield() override;

    // Runs before the events of a yield, so that the windows show the picture as it stands.
    std::function<void()> onYield;

    // Milliseconds of a steady clock; tests give their own.
    void setClock(std::function<qint64()> clock);
    void setParentWidget(QWidget* parent) { parent_ = parent; }

    // The folder a dialog with this key starts in.
    QString startFolder(const std::string& folderKey) const;
    void rememberFolder(const std::string& folderKey, const QString& fileName);

    // Qt name filters, "Description (*.a *.b)"; patterns inside the parentheses are separated by
    // blanks only, as Qt reads them.
    static QStringList nameFilters(const std::vector<FileFilter>& filters);

  private:
    std::optional<std::string> fileDialog(const FileDialogRequest& request, bool save);

    QString programDir_;
    QWidget* parent_;
    std::map<std::string, QString> folders_;
    QElapsedTimer timer_;
    std::function<qint64()> clock_;
    qint64 lastEvents_ = 0;
};

}  // namespace quillane
