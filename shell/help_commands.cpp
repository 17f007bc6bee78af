#include "shell/help_commands.h"

#include <QDesktopServices>
#include <QUrl>

#include "app/help_commands.h"
#include "shell/evaluate_dialog.h"
#include "shell/help_window.h"
#include "shell/main_window.h"

namespace quillane {

namespace {

bool openWithSystem(const std::string& url) {
    return QDesktopServices::openUrl(QUrl(QString::fromStdString(url)));
}

}  // namespace

bool ShowHelpPage(MainWindow& frame, const std::string& path) {
    auto* help = frame.findChild<HelpWindow*>();
    if (!help) help = new HelpWindow(&frame);
    if (!help->showPage(QString::fromStdString(path))) return false;
    frame.flags().HelpOpen = true;
    return true;
}

HelpWindow* ShowHelpTopic(MainWindow& frame, const std::string& topic) {
    const bool shown = GetHelpFile(frame.host(), frame.programDir(), topic,
                                   [&frame](const std::string& path) { return ShowHelpPage(frame, path); });
    return shown ? frame.findChild<HelpWindow*>() : nullptr;
}

void ConnectEvaluateHelp(MainWindow& frame, EvaluateDialog& dialog) {
    QObject::connect(&dialog, &EvaluateDialog::helpRequested, &frame,
                     [&frame](const QString& topic) { ShowHelpTopic(frame, topic.toStdString()); });
}

void RegisterHelpCommands(MainWindow& frame) {
    frame.setCommand("mnuHelp", [&frame] { ShowHelpTopic(frame, HelpIndexTopic); });
    for (const char* key : WebCommandKeys) {
        const std::string command = key;
        frame.setCommand(command, [&frame, command] {
            RunWebCommand(frame.host(), frame.programDir(), command, openWithSystem);
        });
    }
    frame.setCommand("mnuWindowAbout", [&frame] { mnuWindowAbout_Click(frame.host()); });
    frame.settingsHooks().CloseHelp = [&frame] {
        if (auto* help = frame.findChild<HelpWindow*>()) help->close();
    };
}

}  // namespace quillane
