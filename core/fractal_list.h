#pragma once
// The fractal list as the menu mnuFractals holds it. Items mnuNames(0) to (3) are the fixed
// commands, mnuNames(4) the separator, mnuNames(5) and on one item per entry with the trimmed
// Name as caption. NamesItemCount is the truth of the list's length; an item's enabled state says
// which entries count in chaos game mode.
#include <string>

namespace quillane {

class Host;
class Workbench;

// The menu key of mnuNames(index); entry n of the list is index n + 4.
std::string NamesKey(int index);
std::string EntryKey(int n);

// Adds Count items for entries Start + 1 on; with Start 0 the separator comes first.
void SetIFSMenu(Workbench& wb, int Count, int Start);
// Unloads the separator and all entries; only "add under a new name" stays enabled.
void ClearIFSMenu(Workbench& wb);
// Entries without a chaos game get Enable; entries with one are always enabled.
void AdjustIFSMenu(Workbench& wb, bool Enable);
// Checks the first entry whose caption is the Name of CurrentIFS and selects it.
void AdjustNameMenu(Workbench& wb);
// Checks the item of entry n and unchecks all others.
void CheckListEntry(Workbench& wb, int n);

// Takes entry n of the list as CurrentIFS: repairs all-zero probabilities in the entry, sets the
// table caption, lblComment and txtMaps, writes the table's texts and old texts in the form in use as
// a taken entry shows them (RowTextSource::ListEntry), selects and checks the entry. Returns false for
// an entry without functions. Then SetUpFunctions lays out its rows: more than the full matrix form
// holds fall back to the compact form, with the warning. setscale and the design are redrawn by the
// windows that call it.
bool TakeListEntry(Workbench& wb, Host& host, int n);
// The same without a box, for the start, before any window can show one.
bool TakeListEntry(Workbench& wb, int n);

}  // namespace quillane
