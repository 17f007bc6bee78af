#pragma once
// The File menu's list commands: open, append, save the list, save it under a name, save the working
// IFS alone, and the model part of a new IFS. Boxes and file dialogs go through the Host.
#include <string>

namespace quillane {

class Host;
class Workbench;

inline constexpr const char* AppendFullTitle = "Warning";
inline constexpr const char* AppendFullMessage =
    "The current fractal list already has 30 entries.\nThere is no room to append additional items.     ";

// mnuOpen: CheckSave when the list or the IFS is modified (Cancel ends), then the open dialog and
// OpenIFSFile, or OpenChaosFile in chaos game mode, with Start 0. True when a new list was read and
// its entry 1 is now CurrentIFS: the view must then follow (ShowTakenIFS).
bool mnuOpen_Click(Workbench& wb, Host& host);
// mnuFileAppend: with a full list the box titled AppendFullTitle; otherwise the open dialog and the
// reader of the mode with Start = the list's length. CurrentIFS stays. True when entries were added.
bool mnuFileAppend_Click(Workbench& wb, Host& host);
// mnuSaveIFS: the save test and CheckSave (Cancel ends), then the list is written to its file, or
// through SaveListAs when none is known. On success ListModified is false.
bool mnuSaveIFS_Click(Workbench& wb, Host& host);
// mnuSaveIFSas: the same, always asking for the name (SaveChaosListAs in chaos game mode).
bool mnuSaveIFSas_Click(Workbench& wb, Host& host);
// mnuSaveCurrent: SaveCurrentIFSFile, or SaveCurrentChaosFile in chaos game mode; on success
// IFSModified is false and ChangeCount 0.
bool mnuSaveCurrent_Click(Workbench& wb, Host& host);

inline constexpr const char* RecentNotFoundTitle = "File Not Found";
inline constexpr const char* RecentNotFoundQuestion = "This file cannot be found. Remove from list?   ";
enum class RecentOpen { Nothing, Removed, Kept, Opened };
// mnuMRU(index): an empty slot does nothing. A file that is gone is offered for removal (Yes takes
// the slot out). Otherwise the save test and CheckSave (Cancel ends), then the list is read in the
// mode its extension names, leaving or entering chaos game mode first. Opened means a new
// CurrentIFS that the view must follow (ShowTakenIFS); the status bar's first panel is cleared
// after Removed and Kept.
RecentOpen mnuMRU_Click(Workbench& wb, Host& host, int index);
// mnuFileClearMRU: every slot emptied and its item hidden; the settings are due to be written.
void mnuFileClearMRU_Click(Workbench& wb);

// The model part of mnuNewIFS: the save test and CheckSave (false for Cancel); the fixed point form
// gives way to the matrix form in use; IFS mode with every entry enabled; CurrentIFS the one-function
// "Untitled"; no entry selected; the table's texts rewritten.
bool NewIFS(Workbench& wb, Host& host);

// Ticks the Code menu's form command that CodeForm and MatrixFunctionForm stand for.
void CheckCodeFormMenu(Workbench& wb);

}  // namespace quillane
