#pragma once
// The recent files of the File menu: slots 0 to 5, newest first, shown as mnuMRU(0) to (5).
#include <string>

namespace quillane {

class Workbench;

std::string MRUKey(int index);

// Puts Path on top. A path already listed (compared in upper case) moves up from its slot;
// a new one pushes the others down and the oldest drops off when all six are used.
void AddRecentFile(Workbench& wb, const std::string& path);

// Takes slot `index` out: the later slots move up, the last used item is hidden.
void RemoveRecentFile(Workbench& wb, int index);

// Empties every slot and hides the six items.
void ClearRecentFiles(Workbench& wb);

// The menu caption of a path: with three or more separators, the first 3 characters, "..." and
// the part from the last-but-one separator on (C:\...\Fractals\demo.ifs); otherwise the whole path.
std::string RecentFileCaption(const std::string& path);

}  // namespace quillane
