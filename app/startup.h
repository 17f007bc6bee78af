#pragma once
// The model side of the program's start and of its way out: the default list, the messages collected
// during the start, the regional check, the exit test and the save question. The frame calls these;
// tests drive them with a scripted host.
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/host.h"
#include "app/ifs_file_reader.h"

namespace quillane {

class Workbench;

inline constexpr const char* FileErrorTitle = "File Error";
inline constexpr const char* RegionalWarningTitle = "Warning";
inline constexpr const char* CheckSaveTitle = "Continue without saving?";
inline constexpr const char* InvalidSettingsMessage = "Invalid ini file.\nDefault settings will be used.   ";
inline constexpr const char* UnsavedIFSLine = "The current IFS code has not been saved.   ";
inline constexpr const char* ModifiedListLine = "The fractals list has been modified.";
// Two start messages in one box stand apart by one empty line.
inline constexpr const char* StartMessageSeparator = "\n\n";

// The flags of one run from start to exit.
struct StartFlags {
    bool Exiting = false;   // mnuExit has decided to end the program
    bool Finished = false;  // Finish has run
    FileOpenResult FileOpened;
    bool SettingsRead = false;     // the settings file was there
    bool SettingsInvalid = false;  // it could not be used, or there was none
    bool HelpOpen = false;         // a help page is shown (GetHelpFile succeeded)
};

// Where the settings file is read and written, and how the windows' live places are taken, is
// the shell's to say. Left empty, the start behaves as if there were no settings file: defaults,
// no message, and a write at the end.
struct SettingsHooks {
    std::function<void(Workbench&, StartFlags&)> ReadSettings;
    std::function<void(const Workbench&)> WriteSettings;
    // Before Finish decides: the windows as they stand now (TakeLiveWindows).
    std::function<void(Workbench&)> TakeLiveSettings;
    // Closes the help window; Finish calls it while help is open, as the help must not outlive the program.
    std::function<void()> CloseHelp;
};

// What the start needs from the layers above the model.
struct StartHooks {
    SettingsHooks settings;
    // Computes the fractal window's scale from the new CurrentIFS (setscale).
    std::function<void()> setscale;
    // Shows the windows as they now stand, before any box of the start.
    std::function<void()> showWindows;
};

// Removes one double quote at either end.
std::string stripQuotes(const std::string& text);

// The warning for a locale that writes 1.2 with a decimal comma, or nothing.
std::optional<std::string> RegionalSettingWarning(const std::string& formattedOnePointTwo);

// The messages the start shows together at its end, in order.
std::vector<std::string> StartMessages(const StartFlags& flags);

// The exit test: the save test of the working IFS, extended by the list.
bool ExitNeedsSave(const Workbench& wb);

// The question of CheckSave for the modifications there are.
std::string CheckSaveQuestion(const Workbench& wb);
// Asks whether to go on without saving; true for OK.
bool CheckSave(const Workbench& wb, Host& host);

// Runs the start from the settings to the collected messages. commandLine is taken whole; an empty
// one opens the default list in programDir.
StartFlags StartProgram(Workbench& wb, Host& host, const std::string& commandLine,
                        const std::string& programDir, const std::string& localeText,
                        const StartHooks& hooks = {});

// Stops any drawing, closes the help while it is open, and hands the settings to WriteSettings when
// they changed or were unusable. Runs once; returns whether the settings were due to be written.
bool Finish(Workbench& wb, StartFlags& flags, const SettingsHooks& hooks);

// mnuExit: the exit test and CheckSave; Cancel keeps the program running (false). Otherwise
// Exiting is set and Finish runs.
bool mnuExit_Click(Workbench& wb, Host& host, StartFlags& flags, const SettingsHooks& hooks);
// The frame's close request: unless mnuExit decided already, the same test; false cancels the close.
bool QueryUnload(Workbench& wb, Host& host, StartFlags& flags, const SettingsHooks& hooks);

}  // namespace quillane
