#include "app/ifs_file_reader.h"

#include <filesystem>

#include "app/chaos_design.h"
#include "app/design_mode.h"
#include "core/function_forms.h"
#include "core/fractal_list.h"
#include "core/host.h"
#include "core/ifs_list_reading.h"
#include "core/numbers.h"
#include "core/recent_files.h"
#include "core/workbench.h"

namespace quillane {

namespace {

const char* const NoValidFunctionsText = "No valid functions found in this file";
const char* const IgnoredLine = "That IFS and the rest of the file were ignored.    ";
const char* const ListLimitTitle = "Open File";
const char* const AppendRoomLine = "There was room in the fractals list to append";

bool opened(const ListReadResult& r) {
    return r.fault != ReadFault::NotFound && r.fault != ReadFault::Open;
}

std::string bareName(const std::string& path) {
    const size_t slash = path.find_last_of("\\/");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// The fractal window's figure choice starts over with a new list.
void resetFigureChoice(Workbench& wb) {
    for (int k = 0; k <= 8; ++k) wb.Menu.setChecked(MenuTable::key("mnuDrawAddFigure", k), k == 0);
    wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
    wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), false);
}

// Puts the entries read into the menu; a new list also takes its first entry.
void installList(Workbench& wb, int Loaded, int Start, const std::string& FileName, bool chaos,
                 bool addRecent) {
    if (Start == 0) ClearIFSMenu(wb);
    SetIFSMenu(wb, Loaded, Start);
    if (Start == 0) {
        resetFigureChoice(wb);
        TakeListEntry(wb, 1);
        wb.SelectedIFS = 1;
        wb.FrameCaption = "Quillane - " + bareName(FileName);
        wb.IFSFileName = FileName;
        if (chaos)
            SetupChaosGameDesign(wb);
        else
            SetupIFSDesign(wb);
    }
    if (addRecent) {
        AddRecentFile(wb, FileName);
        wb.SettingsChanged = true;
    }
}

// A fault inside a block keeps the blocks before it; one before any block keeps the old list.
bool installsAfterFault(const ListReadResult& r) {
    return r.inBlock && r.n > 1;
}

std::string faultText(const ListReadResult& r, const std::string& FileName) {
    switch (r.fault) {
        case ReadFault::Subscript:
            return std::string("Too many IFS entries (max 30)\n") + IgnoredLine;
        case ReadFault::NotFound:
            return "This file cannot be found\n\n" + FileName + "    ";
        default:
            if (!r.inBlock) return "There was a problem reading this file.   ";
            return "There was a problem reading the code for     \nthe IFS with name \"" + r.faultName +
                   "\".   \n" + IgnoredLine;
    }
}

std::string listLimitText(int Start) {
    const int room = MaxFractals - Start;
    if (Start == 0)
        return "There were more than 30 functions in the file.   \nOnly the first 30 functions were used.";
    if (room > 1)
        return std::string(AppendRoomLine) + "\nonly the first " + std::to_string(room) +
               " functions in the file.   ";
    return std::string(AppendRoomLine) + "\nonly the first function in the file.   ";
}

FileDialogRequest openRequest(RowKind kind) {
    if (kind == RowKind::IFS)
        return {"Open IFS file", {{"Iterated Function Systems (*.ifs)", "*.ifs"}}, "", "OpenIFS"};
    return {"Open Chaos Game file", {{"Chaos Game Files (*.chg)", "*.chg"}}, "", "OpenChaos"};
}

bool openListFile(Workbench& wb, Host& host, int Start, std::string FileName, RowKind kind) {
    if (FileName.empty()) {
        auto chosen = host.openFileName(openRequest(kind));
        if (!chosen || chosen->empty()) return false;
        FileName = *chosen;
    }
    const bool chaos = kind == RowKind::Chaos;
    ListReadOptions options;
    options.rows = kind;
    options.equalProbabilities = !chaos;
    options.chaosEntries = chaos;
    const ListReadResult r = ReadListFile(wb, FileName, Start, options);
    if (opened(r)) wb.ListModified = !chaos && Start > 0;
    if (r.fault != ReadFault::None) {
        host.warn("File Error", faultText(r, FileName));
        if (installsAfterFault(r)) installList(wb, r.Loaded, Start, FileName, chaos, true);
        return installsAfterFault(r) && r.Loaded > 0;
    }
    if (r.Loaded == 0) {
        host.warn("Error", NoValidFunctionsText);
        return false;
    }
    installList(wb, r.Loaded, Start, FileName, chaos, true);
    if (r.moreBlocks) host.inform(ListLimitTitle, listLimitText(Start));
    return true;
}

}  // namespace

bool OpenIFSFile(Workbench& wb, Host& host, int Start, const std::string& FileName) {
    return openListFile(wb, host, Start, FileName, RowKind::IFS);
}

bool OpenChaosFile(Workbench& wb, Host& host, int Start, const std::string& FileName) {
    return openListFile(wb, host, Start, FileName, RowKind::Chaos);
}

FileOpenResult FileOpen(Workbench& wb, const std::string& Kind, const std::string& FileName,
                        bool commandLine) {
    const std::string name = FileName.empty() ? "default." + Kind : FileName;
    const std::string tail = ToLower(name.size() >= 3 ? name.substr(name.size() - 3) : name);
    const bool chg = tail == "chg";
    // A chaos game list starts a new chaos game first; nothing is modified yet, so nothing is asked.
    if (chg && std::filesystem::is_regular_file(name)) {
        SilentHost quiet;
        mnuNewChaosGame_Click(wb, quiet);
    }
    ListReadOptions options;
    options.rows = tail == "ifs" ? RowKind::IFS : RowKind::Chaos;
    options.missingPIsZero = false;
    options.chaosEntries = chg;
    const ListReadResult r = ReadListFile(wb, name, 0, options);
    if (opened(r)) wb.ListModified = false;

    FileOpenResult result;
    const bool complete = r.fault == ReadFault::None && r.Loaded > 0;
    if (complete || installsAfterFault(r)) {
        installList(wb, r.Loaded, 0, name, chg, commandLine);
        if (chg) ShowFunctionForm(wb, FixedPointItem, 2);
        result.ListLoaded = true;
    }
    if (complete || (r.fault == ReadFault::NotFound && !commandLine)) return result;
    result.Failed = true;
    if (commandLine) return result;
    if (r.fault == ReadFault::Subscript) {
        result.Code = 0;
    } else if (r.inBlock) {
        result.Code = 1;
        result.Name = r.faultName;
    } else {
        result.Code = 2;
    }
    return result;
}

std::string FileOpenMessage(const FileOpenResult& result) {
    switch (result.Code) {
        case 0:
            return "Too many IFS entries (max 30)   ";
        case 1:
            return "There was a problem reading the code for the IFS     \nwith name \"" + result.Name +
                   "\" in the default file.   \nThat IFS and the rest of the file were ignored.";
        case 2:
            return "There was a problem with the ifs or chg file.\nCheck that the file format is correct.   "
                   "\n"
                   "(See help file.)";
        default:
            return "";
    }
}

}  // namespace quillane
