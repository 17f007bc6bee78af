#include "app/list_commands.h"

#include <algorithm>

#include "core/fractal_list.h"
#include "core/function_table.h"
#include "core/host.h"
#include "core/ifs_file_writer.h"
#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

namespace {

constexpr int SeparatorIndex = 4;
constexpr int FullItemCount = SeparatorIndex + 1 + MaxFractals;

bool validEntry(const Workbench& wb, int n) {
    return n >= 1 && n <= wb.ListCount();
}

// In chaos game mode only entries with a chaos game can be chosen.
bool entryEnabled(const Workbench& wb, const IFSEntry& entry) {
    return wb.DesignMode != 1 || entry.HasChaosGame != False16;
}

// A new item at the end of the list, with the separator first when the list was empty.
int appendEntryItem(Workbench& wb) {
    if (wb.ListCount() == 0) {
        wb.Menu.set(NamesKey(SeparatorIndex), MenuItemState{"-"});
        wb.NamesItemCount = SeparatorIndex + 1;
    }
    const int n = wb.ListCount() + 1;
    wb.NamesItemCount = SeparatorIndex + 1 + n;
    wb.Menu.set(EntryKey(n), MenuItemState{Trim(wb.CurrentIFS.Name)});
    wb.Menu.setEnabled(NamesKey(3), true);
    return n;
}

void storeSelected(Workbench& wb) {
    const int n = wb.SelectedIFS;
    wb.FractalList[static_cast<size_t>(n)] = wb.CurrentIFS;
    wb.Menu.setEnabled(EntryKey(n), entryEnabled(wb, wb.CurrentIFS));
    CheckListEntry(wb, n);
    wb.Menu.setEnabled(NamesKey(0), true);
    wb.Menu.setEnabled(NamesKey(2), true);
    wb.ListModified = true;
    wb.IFSModified = false;
    wb.ChangeCount = 0;
}

std::string captionName(const std::string& caption) {
    const size_t open = caption.find('[');
    const size_t close = caption.rfind(']');
    if (open == std::string::npos || close == std::string::npos || close < open) return "";
    std::string name = caption.substr(open + 1, close - open - 1);
    if (!name.empty() && name.back() == '*') name.pop_back();
    return name;
}

bool deleteChosen(Workbench& wb, const ListDialogs& dialogs) {
    if (!dialogs.frmDeleteIFS || wb.ListCount() == 0) return false;
    const auto n = dialogs.frmDeleteIFS(ListEntryNames(wb));
    return n && DeleteListEntry(wb, *n);
}

}  // namespace

std::vector<std::string> ListEntryNames(const Workbench& wb) {
    std::vector<std::string> names;
    for (int n = 1; n <= wb.ListCount(); ++n)
        names.push_back(Trim(wb.FractalList[static_cast<size_t>(n)].Name));
    return names;
}

std::string ListNamePreset(const Workbench& wb) {
    const std::string name = captionName(wb.FunctionsCaption);
    return name == "Untitled" ? "" : name;
}

std::vector<std::vector<std::string>> ListNameColumns(const Workbench& wb) {
    std::vector<std::vector<std::string>> columns;
    const std::vector<std::string> names = ListEntryNames(wb);
    for (size_t k = 0; k < names.size(); ++k) {
        if (k % NamesPerColumn == 0) columns.emplace_back();
        columns.back().push_back(names[k]);
    }
    return columns;
}

std::vector<double> NameColumnLefts(const std::vector<std::vector<std::string>>& columns,
                                    const TextWidth& width, double gap) {
    std::vector<double> lefts;
    double left = 0;
    for (const auto& column : columns) {
        lefts.push_back(left);
        double widest = 0;
        for (const std::string& name : column) widest = std::max(widest, width(name));
        left += widest + gap;
    }
    return lefts;
}

int FindListEntry(const Workbench& wb, const std::string& name) {
    const std::string wanted = ToLower(Trim(name));
    for (int n = 1; n <= wb.ListCount(); ++n)
        if (ToLower(Trim(wb.FractalList[static_cast<size_t>(n)].Name)) == wanted) return n;
    return 0;
}

void UpdateListEntry(Workbench& wb, int k) {
    if (!validEntry(wb, k)) return;
    wb.FractalList[static_cast<size_t>(k)] = wb.CurrentIFS;
    wb.Menu.setCaption(EntryKey(k), Trim(wb.CurrentIFS.Name));
    wb.IFSModified = false;
    wb.ChangeCount = 0;
    AddAsterickToName(wb);
    wb.ListModified = true;
}

bool AddToList(Workbench& wb, Host& host, const ListDialogs& dialogs) {
    if (wb.NamesItemCount >= FullItemCount) {
        host.warn(ListFullTitle, ListFullMessage);
        return false;
    }
    if (!dialogs.frmSaveIFSAs) return false;
    const auto typed = dialogs.frmSaveIFSAs({ListNamePreset(wb), ListNameColumns(wb)});
    if (!typed || Trim(*typed).empty()) return false;
    wb.CurrentIFS.Name = Trim(*typed);
    wb.FunctionsCaption = FunctionsCaptionFor(wb.CurrentIFS.Name);
    const int existing = FindListEntry(wb, wb.CurrentIFS.Name);
    if (existing > 0) {
        UpdateListEntry(wb, existing);
        wb.SelectedIFS = static_cast<int16_t>(existing);
    } else {
        wb.SelectedIFS = static_cast<int16_t>(appendEntryItem(wb));
    }
    storeSelected(wb);
    return true;
}

bool DeleteListEntry(Workbench& wb, int n) {
    const int count = wb.ListCount();
    if (!validEntry(wb, n)) return false;
    for (int k = n; k < count; ++k) {
        wb.FractalList[static_cast<size_t>(k)] = wb.FractalList[static_cast<size_t>(k + 1)];
        wb.Menu.set(EntryKey(k), wb.menu(EntryKey(k + 1)));
    }
    wb.FractalList[static_cast<size_t>(count)] = IFSEntry{};
    wb.Menu.remove(EntryKey(count));
    wb.NamesItemCount = SeparatorIndex + count;
    if (count == 1) ClearIFSMenu(wb);
    if (wb.SelectedIFS == n) wb.SelectedIFS = 0;
    if (wb.SelectedIFS > n) --wb.SelectedIFS;
    wb.ListModified = true;
    return true;
}

bool DeleteAllEntries(Workbench& wb, Host& host) {
    if (host.message(MessageIcon::Question, DeleteAllTitle, DeleteAllQuestion, MessageButtons::OKCancel) !=
        Answer::OK)
        return false;
    if (wb.ListModified) {
        const Answer save =
            host.message(MessageIcon::Question, SaveListTitle, SaveListQuestion, MessageButtons::YesNoCancel);
        if (save == Answer::Cancel) return false;
        if (save == Answer::Yes && !SaveListAs(wb, host)) return false;
    }
    for (int n = 1; n <= wb.ListCount(); ++n) wb.FractalList[static_cast<size_t>(n)] = IFSEntry{};
    ClearIFSMenu(wb);
    wb.SelectedIFS = 0;
    wb.ListModified = true;
    return true;
}

bool mnuNames_Click(Workbench& wb, Host& host, const ListDialogs& dialogs, int index) {
    wb.DrawingActive = false;
    switch (index) {
        case 0:
            if (validEntry(wb, wb.SelectedIFS)) {
                UpdateListEntry(wb, wb.SelectedIFS);
                return true;
            }
            return AddToList(wb, host, dialogs);
        case 1:
            return AddToList(wb, host, dialogs);
        case 2:
            return deleteChosen(wb, dialogs);
        case 3:
            return DeleteAllEntries(wb, host);
        default:
            return false;
    }
}

std::string RenamePreset(const Workbench& wb) {
    const std::string name = Trim(wb.CurrentIFS.Name);
    return name == "Untitled" ? "" : name;
}

bool RenameIFS(Workbench& wb, const std::string& name) {
    const std::string trimmed = Trim(name);
    if (trimmed.empty()) return false;
    wb.CurrentIFS.Name = trimmed;
    const bool marked = trimmed != "Untitled" && wb.ChangeCount > 0;
    wb.FunctionsCaption = "IFS [" + trimmed + (marked ? "*" : "") + "]";
    if (validEntry(wb, wb.SelectedIFS)) {
        wb.FractalList[static_cast<size_t>(wb.SelectedIFS)].Name = trimmed;
        wb.Menu.setCaption(EntryKey(wb.SelectedIFS), trimmed);
        wb.ListModified = true;
    }
    return true;
}

bool mnuCodeRename_Click(
    Workbench& wb, const std::function<std::optional<std::string>(const std::string& preset)>& frmIFSName) {
    if (!frmIFSName) return false;
    const auto typed = frmIFSName(RenamePreset(wb));
    return typed && RenameIFS(wb, *typed);
}

}  // namespace quillane
