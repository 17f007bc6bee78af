#include "app/gradient_commands.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>

#include "core/ifs_file_writer.h"
#include "core/menu_tree.h"
#include "core/numbers.h"

namespace quillane {

void mnuColors_Click(Workbench& wb, int Index) {
    for (int k = 0; k < 3; ++k) wb.Menu.setChecked(MenuTable::key("mnuColors", k), k == Index);
}

void mnuColorsGradient_Click(Workbench& wb) { mnuColors_Click(wb, 1); }

void optColoring_Click(AppState& s, int Index) {
    mnuColors_Click(s.wb, 1);
    s.pics.Det.optColoring = Index;
    if (Index == VisitCountMode) s.wb.PointCount = 0;
}

bool optColoringEnabled(const Workbench& wb, int Index) { return Index != VisitCountMode || wb.RandomMode; }

bool CountRowsVisible(const AppState& s) { return s.pics.Det.optColoring == VisitCountMode; }

bool GradientRowVisible(const Workbench& wb, int Index) {
    return Index >= 0 && Index < wb.Gradient.GradientColorCount;
}

void cmbColors_Click(Workbench& wb, int ListIndex) {
    wb.Gradient.GradientColorCount = std::clamp(ListIndex + 2, 2, GradientColorSlots);
}

int cmbColorsIndex(const Workbench& wb) { return wb.Gradient.GradientColorCount - 2; }

bool picColors_Click(Workbench& wb, Host& host, int Index) {
    if (Index < 0 || Index >= GradientColorSlots) return false;
    Color& swatch = wb.Gradient.picColors[static_cast<size_t>(Index)];
    const std::optional<Color> chosen = host.chooseColor(swatch);
    if (!chosen) return false;
    swatch = *chosen;
    return true;
}

void cmdDefault_Click(AppState& s) {
    GradientColors g = DefaultGradient();
    g.picColors = s.GradientDefaults;
    s.wb.Gradient = g;
}

bool txtCountKeyAccepted(char key) { return (key >= '0' && key <= '9') || key == '\b'; }

int txtCountNextBox(int Index) { return (Index + 1) % GradientColorSlots; }

void txtCount_Change(Workbench& wb, int Index, const std::string& text) {
    if (Index < 0 || Index >= GradientColorSlots) return;
    wb.Gradient.txtCount[static_cast<size_t>(Index)] = text;
}

int lblCountStrip(const Workbench& wb, int k) { return k * GradientBandWidth(wb.Gradient.GradientColorCount); }

FileDialogRequest GradientFileRequest(const char* title) {
    FileDialogRequest r;
    r.title = title;
    r.filters = {{GradientFilterText, "*.txt"}};
    r.folderKey = "gradient";
    return r;
}

bool cmdSaveGradient_Click(const Workbench& wb, Host& host) {
    const std::optional<std::string> chosen = host.saveFileName(GradientFileRequest(SaveGradientTitle));
    if (!chosen) return false;
    std::string name = Trim(*chosen);
    if (name.empty()) return false;
    if (name.size() < 4 || ToLower(name.substr(name.size() - 4)) != ".txt") name += ".txt";
    return WriteTextFileReplacing(name, GradientFileText(wb.Gradient));
}

bool cmdLoadGradient_Click(AppState& s, Host& host) {
    const std::optional<std::string> name = host.openFileName(GradientFileRequest(LoadGradientTitle));
    if (!name || name->empty()) return false;
    std::ifstream in(*name, std::ios::binary);
    if (!in) return false;
    std::ostringstream text;
    text << in.rdbuf();
    // The handler is silent: a short or unreadable file leaves the gradient as it was.
    const std::optional<GradientColors> loaded = ReadGradientFile(text.str());
    if (!loaded) return false;
    s.wb.Gradient = *loaded;
    s.GradientDefaults = loaded->picColors;
    return true;
}

}  // namespace quillane
