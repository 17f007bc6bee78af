#pragma once
// The Help menu's binding: the help window, the web and mail items through the system's browser,
// and the About box.
#include <string>

namespace quillane {

class MainWindow;
class EvaluateDialog;
class HelpWindow;

// Registers mnuHelp, the web and mail items and mnuWindowAbout, and lets Finish close the help.
void RegisterHelpCommands(MainWindow& frame);
// GetHelpFile for the frame: the page of `topic` in the frame's help window, or the "Help Error" box.
// The window, or nullptr when the page could not be shown.
HelpWindow* ShowHelpTopic(MainWindow& frame, const std::string& topic);
// Shows the page at `path` in the frame's help window, made on first use; false when it shows nothing.
bool ShowHelpPage(MainWindow& frame, const std::string& path);
// The expression box's Help opens its topic in the frame's help window.
void ConnectEvaluateHelp(MainWindow& frame, EvaluateDialog& dialog);

}  // namespace quillane
