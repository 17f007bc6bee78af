#include "app/file_commands.h"

#include <algorithm>
#include <cctype>
#include <filesystem>

#include "app/chaos_design.h"
#include "app/design_mode.h"
#include "core/fractal_list.h"
#include "core/function_table.h"
#include "core/host.h"
#include "app/ifs_file_reader.h"
#include "core/ifs_file_writer.h"
#include "core/menu_tree.h"
#include "core/recent_files.h"
#include "app/startup.h"
#include "core/workbench.h"

namespace quillane {

namespace {

bool chaosMode(const Workbench& wb) {
    return wb.DesignMode == 1;
}

bool readList(Workbench& wb, Host& host, int Start) {
    return chaosMode(wb) ? OpenChaosFile(wb, host, Start, "") : OpenIFSFile(wb, host, Start, "");
}

// The working IFS is about to be left out of what follows: ask when it has unsaved edits.
bool saveTestPassed(const Workbench& wb, Host& host) {
    return !NeedsSave(wb) || CheckSave(wb, host);
}

// A list written under its name is a recent file too.
bool listSaved(Workbench& wb, bool written) {
    if (!written) return false;
    wb.ListModified = false;
    if (!wb.IFSFileName.empty()) {
        AddRecentFile(wb, wb.IFSFileName);
        wb.SettingsChanged = true;
    }
    return true;
}

}  // namespace

bool mnuOpen_Click(Workbench& wb, Host& host) {
    if ((wb.ListModified || wb.IFSModified) && !CheckSave(wb, host)) return false;
    return readList(wb, host, 0);
}

bool mnuFileAppend_Click(Workbench& wb, Host& host) {
    if (wb.ListCount() >= MaxFractals) {
        host.warn(AppendFullTitle, AppendFullMessage);
        return false;
    }
    return readList(wb, host, wb.ListCount());
}

bool mnuSaveIFS_Click(Workbench& wb, Host& host) {
    if (!saveTestPassed(wb, host)) return false;
    if (wb.IFSFileName.empty()) return listSaved(wb, SaveListAs(wb, host));
    const bool written =
        chaosMode(wb) ? SaveChaosList(wb, host, wb.IFSFileName) : SaveIFSList(wb, host, wb.IFSFileName);
    return listSaved(wb, written);
}

bool mnuSaveIFSas_Click(Workbench& wb, Host& host) {
    if (!saveTestPassed(wb, host)) return false;
    return listSaved(wb, chaosMode(wb) ? SaveChaosListAs(wb, host) : SaveListAs(wb, host));
}

bool mnuSaveCurrent_Click(Workbench& wb, Host& host) {
    const bool written = chaosMode(wb) ? SaveCurrentChaosFile(wb, host) : SaveCurrentIFSFile(wb, host);
    if (written) {
        wb.IFSModified = false;
        wb.ChangeCount = 0;
    }
    return written;
}

void CheckCodeFormMenu(Workbench& wb) {
    std::string form = "mnuMatrix";
    if (wb.CodeForm == 0 && wb.MatrixFunctionForm == 1) form = "mnuCodeMatrixFormat";
    if (wb.CodeForm == 1) form = "mnuRotation";
    if (wb.CodeForm == 2) form = "mnuCodeFP";
    for (const std::string& key : RadioGroupKeys("mnuMatrix")) wb.Menu.setChecked(key, key == form);
}

RecentOpen mnuMRU_Click(Workbench& wb, Host& host, int index) {
    if (index < 0 || index >= std::min(wb.RecentFileCount, RecentFileSlots)) return RecentOpen::Nothing;
    const std::string path = wb.RecentFiles[index];
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec)) {
        const Answer a = host.message(MessageIcon::Question, RecentNotFoundTitle,
                                      "    " + path + "\n\n" + RecentNotFoundQuestion, MessageButtons::YesNo);
        if (a != Answer::Yes) return RecentOpen::Kept;
        RemoveRecentFile(wb, index);
        wb.SettingsChanged = true;
        return RecentOpen::Removed;
    }
    if (!saveTestPassed(wb, host)) return RecentOpen::Nothing;
    wb.IFSModified = false;
    std::string tail = path.size() >= 3 ? path.substr(path.size() - 3) : path;
    for (char& ch : tail) ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    // The questions were asked above: the mode change must not ask again.
    SilentHost quiet;
    if (tail == "chg") {
        if (!chaosMode(wb)) mnuNewChaosGame_Click(wb, quiet);
        return OpenChaosFile(wb, host, 0, path) ? RecentOpen::Opened : RecentOpen::Nothing;
    }
    if (chaosMode(wb)) NewIFS(wb, quiet);
    return OpenIFSFile(wb, host, 0, path) ? RecentOpen::Opened : RecentOpen::Nothing;
}

void mnuFileClearMRU_Click(Workbench& wb) {
    ClearRecentFiles(wb);
    wb.SettingsChanged = true;
}

bool NewIFS(Workbench& wb, Host& host) {
    wb.DrawingActive = false;
    if (!saveTestPassed(wb, host)) return false;
    if (wb.CodeForm == 2) wb.CodeForm = 0;
    CheckCodeFormMenu(wb);
    AdjustIFSMenu(wb, true);
    SetupIFSDesign(wb);
    InitializeIFS(wb.CurrentIFS);
    wb.SelectedIFS = 0;
    CheckListEntry(wb, 0);
    wb.SelectedMap = 0;
    wb.MapSelected = false;
    wb.CGMapSelected = false;
    wb.IFSModified = false;
    wb.ChangeCount = 0;
    wb.FunctionsCaption = FunctionsCaptionFor(wb.CurrentIFS.Name);
    wb.lblComment.clear();
    wb.lblProbSum = "1.000";
    wb.txtMaps = "1";
    wb.Table.Locked = false;
    WriteTableRows(wb);
    return true;
}

}  // namespace quillane
