#include "app/startup.h"

#include <filesystem>

#include "core/function_table.h"
#include "core/menu_tree.h"
#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

namespace {

const char* const RegionalWarningText =
    "It appears that your regional setting for numbers uses\n"
    "a comma as a decimal separator rather than a period.\n"
    "\n"
    "For the program to work correctly you should change the\n"
    "option in the Regional and Language Options Control Panel   \n"
    "so that the period is the decimal symbol.";
const char* const CheckSaveTail =
    "\n\nClick Cancel to return and save.\nClick Ok to continue without saving.";

std::string inFolder(const std::string& folder, const std::string& name) {
    return (std::filesystem::path(folder) / name).string();
}

void readSettings(Workbench& wb, StartFlags& flags, const SettingsHooks& hooks) {
    if (hooks.ReadSettings) {
        hooks.ReadSettings(wb, flags);
        return;
    }
    // No settings file: defaults now, and Finish writes one.
    flags.SettingsRead = false;
    flags.SettingsInvalid = true;
}

// The list from the command-line file, else default.ifs, else default.chg.
void openStartList(Workbench& wb, StartFlags& flags, const std::string& commandLine,
                   const std::string& programDir) {
    const std::string named = stripQuotes(Trim(commandLine));
    if (named.empty())
        flags.FileOpened = FileOpen(wb, "ifs", inFolder(programDir, "default.ifs"), false);
    else
        flags.FileOpened = FileOpen(wb, "ifs", named, true);
    if (flags.FileOpened.ListLoaded) return;
    const FileOpenResult chaos = FileOpen(wb, "chg", inFolder(programDir, "default.chg"), false);
    const bool keepFirstFailure = flags.FileOpened.Failed && !chaos.Failed;
    if (!keepFirstFailure) flags.FileOpened = chaos;
    flags.FileOpened.ListLoaded = chaos.ListLoaded;
}

void takeDefaultIFS(Workbench& wb) {
    wb.CurrentIFS = DefaultIFS();
    wb.FunctionsCaption = "IFS [Untitled]";
    wb.txtMaps = "1";
    WriteTableRows(wb);
    wb.SelectedIFS = 0;
}

// The Code menu ticks the form the table shows.
void checkCodeForm(Workbench& wb) {
    std::string form = "mnuMatrix";
    if (wb.CodeForm == 0 && wb.MatrixFunctionForm == 1) form = "mnuCodeMatrixFormat";
    if (wb.CodeForm == 1) form = "mnuRotation";
    if (wb.CodeForm == 2) form = "mnuCodeFP";
    for (const std::string& key : RadioGroupKeys("mnuMatrix")) wb.Menu.setChecked(key, key == form);
}

void windowFromText(Workbench& wb) {
    wb.Window.ymax = static_cast<float>(Val(wb.txtWin[0]));
    wb.Window.ymin = static_cast<float>(Val(wb.txtWin[1]));
    wb.Window.xmin = static_cast<float>(Val(wb.txtWin[2]));
    wb.Window.xmax = static_cast<float>(Val(wb.txtWin[3]));
}

void showStartMessages(Host& host, const StartFlags& flags) {
    std::string text;
    for (const std::string& m : StartMessages(flags)) text += (text.empty() ? "" : StartMessageSeparator) + m;
    if (!text.empty()) host.warn(FileErrorTitle, text);
}

}  // namespace

std::string stripQuotes(const std::string& text) {
    std::string s = text;
    if (!s.empty() && s.front() == '"') s.erase(0, 1);
    if (!s.empty() && s.back() == '"') s.pop_back();
    return s;
}

std::optional<std::string> RegionalSettingWarning(const std::string& formattedOnePointTwo) {
    if (formattedOnePointTwo.find(',') == std::string::npos) return std::nullopt;
    return std::string(RegionalWarningText);
}

std::vector<std::string> StartMessages(const StartFlags& flags) {
    std::vector<std::string> messages;
    if (flags.FileOpened.Failed && flags.FileOpened.Code >= 0)
        messages.push_back(FileOpenMessage(flags.FileOpened));
    if (flags.SettingsRead && flags.SettingsInvalid) messages.push_back(InvalidSettingsMessage);
    return messages;
}

bool ExitNeedsSave(const Workbench& wb) {
    return NeedsSave(wb) || wb.ListModified;
}

std::string CheckSaveQuestion(const Workbench& wb) {
    std::string lines;
    // The lines follow the modifications there are, not the save test that decided to ask.
    if (wb.IFSModified) lines = UnsavedIFSLine;
    if (wb.ListModified) lines += (lines.empty() ? "" : "\n") + std::string(ModifiedListLine);
    return lines + CheckSaveTail;
}

bool CheckSave(const Workbench& wb, Host& host) {
    return host.message(MessageIcon::Question, CheckSaveTitle, CheckSaveQuestion(wb),
                        MessageButtons::OKCancel) == Answer::OK;
}

StartFlags StartProgram(Workbench& wb, Host& host, const std::string& commandLine,
                        const std::string& programDir, const std::string& localeText,
                        const StartHooks& hooks) {
    StartFlags flags;
    wb.DetFigure = -1;
    wb.SettingsChanged = false;
    // The menus take their first state before the settings set the tool tips and recent files.
    InitializeMenuState(wb.Menu);
    readSettings(wb, flags, hooks.settings);
    openStartList(wb, flags, commandLine, programDir);
    if (!flags.FileOpened.ListLoaded) takeDefaultIFS(wb);
    checkCodeForm(wb);
    if (hooks.setscale) hooks.setscale();
    wb.FractalCaption = "Fractal (Random)";
    wb.FractalWindowCaption = wb.FractalCaption;
    if (hooks.showWindows) hooks.showWindows();
    if (auto warning = RegionalSettingWarning(localeText)) host.warn(RegionalWarningTitle, *warning);
    windowFromText(wb);
    wb.Rng.Randomize();
    showStartMessages(host, flags);
    return flags;
}

bool Finish(Workbench& wb, StartFlags& flags, const SettingsHooks& hooks) {
    if (flags.Finished) return false;
    flags.Finished = true;
    wb.DrawingActive = false;
    if (flags.HelpOpen && hooks.CloseHelp) hooks.CloseHelp();
    flags.HelpOpen = false;
    if (hooks.TakeLiveSettings) hooks.TakeLiveSettings(wb);
    const bool write = wb.SettingsChanged || flags.SettingsInvalid;
    if (write && hooks.WriteSettings) hooks.WriteSettings(wb);
    return write;
}

bool mnuExit_Click(Workbench& wb, Host& host, StartFlags& flags, const SettingsHooks& hooks) {
    if (ExitNeedsSave(wb) && !CheckSave(wb, host)) return false;
    flags.Exiting = true;
    Finish(wb, flags, hooks);
    return true;
}

bool QueryUnload(Workbench& wb, Host& host, StartFlags& flags, const SettingsHooks& hooks) {
    if (!flags.Exiting && ExitNeedsSave(wb) && !CheckSave(wb, host)) return false;
    Finish(wb, flags, hooks);
    return true;
}

}  // namespace quillane
