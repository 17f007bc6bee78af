#pragma once
// Where the settings file lives.
#include <QString>
#include <string>

namespace quillane {

// QUILLANE_SETTINGS when it is set (tests and scripts); else the program's folder when the program
// may write there; else the user's configuration folder. The file is read from where it would be
// written.
std::string SettingsFilePath(const QString& programDir);

}  // namespace quillane
