#include "core/fractal_list.h"

#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/host.h"
#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

namespace {
constexpr int FirstEntryIndex = 5;
constexpr int SeparatorIndex = 4;
constexpr int LastIndex = FirstEntryIndex + MaxFractals - 1;
const char* const NoFunctionsText = "This IFS has no functions.   ";

bool validEntry(const Workbench& wb, int n) {
    return n >= 1 && n <= wb.ListCount();
}

// An entry read with no probabilities at all gets equal ones, the last taking the rounding rest.
void repairProbabilities(IFSEntry& entry) {
    const int n = entry.nMaps;
    double sum = 0;
    for (int i = 0; i < n; ++i) sum += entry.p[i];
    if (sum != 0) return;
    const double q = Round(1.0 / n, 6);
    for (int i = 0; i < n - 1; ++i) entry.p[i] = static_cast<float>(q);
    entry.p[n - 1] = static_cast<float>(Round(1.0 - (n - 1) * q, 6));
}

std::string firstComment(const IFSEntry& ifs) {
    return ifs.nComments >= 1 ? RTrim(ifs.Comment[1]) : std::string();
}
bool takeEntry(Workbench& wb, int n) {
    if (!validEntry(wb, n)) return false;
    IFSEntry& entry = wb.FractalList[n];
    if (entry.nMaps <= 0 || entry.nMaps > MaxMaps) return false;
    repairProbabilities(entry);
    wb.FunctionsCaption = "IFS [" + Trim(entry.Name) + "]";
    wb.lblComment = firstComment(entry);
    wb.txtMaps = std::to_string(entry.nMaps);
    wb.CurrentIFS = entry;
    // Taking an entry shows r and s rounded and its own phi for d = 0; the next edit of a row puts it right.
    WriteTableRows(wb, RowTextSource::ListEntry);
    wb.SelectedIFS = static_cast<int16_t>(n);
    CheckListEntry(wb, n);
    return true;
}

}  // namespace

std::string NamesKey(int index) {
    return MenuTable::key("mnuNames", index);
}
std::string EntryKey(int n) {
    return NamesKey(n + SeparatorIndex);
}

void SetIFSMenu(Workbench& wb, int Count, int Start) {
    if (Start < 0) Start = 0;
    if (Start + Count > MaxFractals) Count = MaxFractals - Start;
    if (Count < 0) Count = 0;
    if (Start == 0 && Count > 0) wb.Menu.set(NamesKey(SeparatorIndex), MenuItemState{"-"});
    for (int n = Start + 1; n <= Start + Count; ++n)
        wb.Menu.set(EntryKey(n), MenuItemState{Trim(wb.FractalList[n].Name)});
    if (Count > 0) wb.NamesItemCount = FirstEntryIndex + Start + Count;
    for (int k = 1; k <= 3; ++k) wb.Menu.setEnabled(NamesKey(k), true);
}

void ClearIFSMenu(Workbench& wb) {
    for (int k = SeparatorIndex; k <= LastIndex; ++k) wb.Menu.remove(NamesKey(k));
    wb.NamesItemCount = SeparatorIndex;
    for (int k = 0; k <= 3; ++k) wb.Menu.setEnabled(NamesKey(k), false);
    wb.Menu.setEnabled(NamesKey(1), true);
}

void AdjustIFSMenu(Workbench& wb, bool Enable) {
    for (int n = 1; n <= wb.ListCount(); ++n) {
        const bool chaos = wb.FractalList[n].HasChaosGame != False16;
        wb.Menu.setEnabled(EntryKey(n), chaos || Enable);
    }
}

void CheckListEntry(Workbench& wb, int n) {
    for (int k = 1; k <= wb.ListCount(); ++k) wb.Menu.setChecked(EntryKey(k), k == n);
}

void AdjustNameMenu(Workbench& wb) {
    int found = 0;
    for (int n = 1; n <= wb.ListCount(); ++n) {
        if (wb.menu(EntryKey(n)).caption == wb.CurrentIFS.Name) {
            found = n;
            break;
        }
    }
    CheckListEntry(wb, found);
    if (found > 0) wb.SelectedIFS = static_cast<int16_t>(found);
}

bool TakeListEntry(Workbench& wb, Host& host, int n) {
    if (validEntry(wb, n) && wb.FractalList[n].nMaps <= 0) {
        host.warn("Error", NoFunctionsText);
        return false;
    }
    if (!takeEntry(wb, n)) return false;
    // More rows than the full matrix layout holds fall back to the compact form, with its warning.
    SetUpFunctions(wb, host, wb.CurrentIFS.nMaps);
    return true;
}

bool TakeListEntry(Workbench& wb, int n) {
    SilentHost quiet;
    return TakeListEntry(wb, quiet, n);
}

}  // namespace quillane
