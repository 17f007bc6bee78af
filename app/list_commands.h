#pragma once
// The commands of the Fractals menu above the separator, mnuNames(0) to (3): store the working IFS
// in the list, add it under a name, delete one entry, delete all; and the rename of the working IFS.
// The two list dialogs are callbacks, so the logic runs the same with a window or a test script.
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quillane {

class Host;
class Workbench;

inline constexpr const char* ListFullTitle = "Warning";
inline constexpr const char* ListFullMessage = "Limit of 30 fractals. Delete an IFS before adding a new one.";
inline constexpr const char* DeleteAllTitle = "Delete All?";
inline constexpr const char* DeleteAllQuestion = "Really delete all the fractals in the list?";
inline constexpr const char* SaveListTitle = "Save IFS List?";
inline constexpr const char* SaveListQuestion = "Save changes made to the IFS list?";

inline constexpr int NamesPerColumn = 10;
// frmSaveIFSAs leaves this much room right of the widest name of a column, in twips.
inline constexpr double NameColumnGapTwips = 200;

// Width of a text in the font of the window that shows it, in any unit the caller likes.
using TextWidth = std::function<double(const std::string&)>;

// What frmSaveIFSAs shows: txtName preset (to be selected whole) and the list's names in columns of
// 10 for picName, entry 1 at the top of the first column.
struct ListNameRequest {
    std::string preset;
    std::vector<std::vector<std::string>> columns;
};

// The list dialogs. Each returns nothing for Cancel.
struct ListDialogs {
    // frmSaveIFSAs: the name typed in txtName.
    std::function<std::optional<std::string>(const ListNameRequest&)> frmSaveIFSAs;
    // frmDeleteIFS: shows the names of entries 1, 2, ... in order; returns the entry number (1-based)
    // chosen with cmdDelete.
    std::function<std::optional<int>(const std::vector<std::string>& names)> frmDeleteIFS;
};

// The trimmed names of entries 1 to the list's length.
std::vector<std::string> ListEntryNames(const Workbench& wb);
// The name in the table caption without its asterisk; empty for "Untitled".
std::string ListNamePreset(const Workbench& wb);
// The names of the list in columns of NamesPerColumn.
std::vector<std::vector<std::string>> ListNameColumns(const Workbench& wb);
// The left edge of each column: a column is as wide as its widest name plus gap.
std::vector<double> NameColumnLefts(const std::vector<std::vector<std::string>>& columns,
                                    const TextWidth& width, double gap);
// The first entry whose name equals name, ignoring case and blanks at the ends; 0 for none.
int FindListEntry(const Workbench& wb, const std::string& name);

// Stores CurrentIFS as entry k under its name; the edits are now saved in the list.
void UpdateListEntry(Workbench& wb, int k);
// Stores CurrentIFS under a name asked with frmSaveIFSAs: a name that is in the list already (in any
// case) replaces that entry without a question, a new one is added at the end. True when stored.
bool AddToList(Workbench& wb, Host& host, const ListDialogs& dialogs);

// Deletes entry n. Later entries move up one place and their menu items with them (caption, check,
// enabled state), the last item goes, and SelectedIFS follows its entry: 0 when it was n, one less
// when it was after n. The last entry deleted leaves the empty list of ClearIFSMenu.
bool DeleteListEntry(Workbench& wb, int n);
// mnuNames(3): asks "Delete All?", then for a modified list "Save IFS List?" (Yes saves through
// SaveListAs, and a failed save ends the command). True when the list was cleared; SelectedIFS is 0.
bool DeleteAllEntries(Workbench& wb, Host& host);

// The clicks on mnuNames(0) to (3); the entries themselves are taken by mnuNamesEntry_Click.
// Returns whether the list changed.
bool mnuNames_Click(Workbench& wb, Host& host, const ListDialogs& dialogs, int index);

// frmIFSName's preset: the name of CurrentIFS, empty for "Untitled".
std::string RenamePreset(const Workbench& wb);
// Gives CurrentIFS the trimmed name; an empty one changes nothing. The entry CurrentIFS came from
// (SelectedIFS) takes the new name and caption at once, its numbers stay as stored; the table caption
// keeps its asterisk while there are edits. A rename alone is no edit of the IFS.
bool RenameIFS(Workbench& wb, const std::string& name);
// mnuCodeRename: frmIFSName is shown with the preset and returns the name typed, nothing for Cancel.
bool mnuCodeRename_Click(
    Workbench& wb, const std::function<std::optional<std::string>(const std::string& preset)>& frmIFSName);

}  // namespace quillane
