#include "core/recent_files.h"

#include <algorithm>

#include "core/menu_state.h"
#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

namespace {
bool isSeparator(char ch) {
    return ch == '\\' || ch == '/';
}

void showSlot(Workbench& wb, int i) {
    wb.Menu.setCaption(MRUKey(i), RecentFileCaption(wb.RecentFiles[i]));
    wb.Menu.setVisible(MRUKey(i), true);
}
}  // namespace

std::string MRUKey(int index) {
    return MenuTable::key("mnuMRU", index);
}

std::string RecentFileCaption(const std::string& path) {
    int separators = 0;
    for (char ch : path)
        if (isSeparator(ch)) ++separators;
    if (separators < 3) return path;
    size_t last = path.find_last_of("\\/");
    size_t lastButOne = path.find_last_of("\\/", last - 1);
    return path.substr(0, 3) + "..." + path.substr(lastButOne);
}

void AddRecentFile(Workbench& wb, const std::string& path) {
    int used = wb.RecentFileCount;
    if (used < 0) used = 0;
    if (used > RecentFileSlots) used = RecentFileSlots;
    const std::string upper = ToUpper(path);
    int found = -1;
    for (int i = 0; i < used && found < 0; ++i)
        if (ToUpper(wb.RecentFiles[i]) == upper) found = i;
    int last = found;
    if (found < 0) {
        if (used < RecentFileSlots) ++used;
        last = used - 1;
    }
    for (int i = last; i > 0; --i) wb.RecentFiles[i] = wb.RecentFiles[i - 1];
    wb.RecentFiles[0] = path;
    wb.RecentFileCount = used;
    for (int i = 0; i <= last; ++i) showSlot(wb, i);
}

void RemoveRecentFile(Workbench& wb, int index) {
    const int used = std::min(std::max(wb.RecentFileCount, 0), RecentFileSlots);
    if (index < 0 || index >= used) return;
    for (int i = index; i < used - 1; ++i) {
        wb.RecentFiles[i] = wb.RecentFiles[i + 1];
        showSlot(wb, i);
    }
    wb.RecentFiles[used - 1].clear();
    wb.Menu.setVisible(MRUKey(used - 1), false);
    wb.RecentFileCount = used - 1;
}

void ClearRecentFiles(Workbench& wb) {
    for (int i = 0; i < RecentFileSlots; ++i) {
        wb.RecentFiles[i].clear();
        wb.Menu.setVisible(MRUKey(i), false);
    }
    wb.RecentFileCount = 0;
}

}  // namespace quillane
