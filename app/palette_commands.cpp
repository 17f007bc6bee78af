#include "app/palette_commands.h"

#include <filesystem>

#include "app/design_view.h"
#include "core/ifs_file_writer.h"
#include "core/numbers.h"
#include "core/palette_files.h"

namespace quillane {
namespace {

constexpr const char* PaletteFolder = "palette";

std::string extensionOf(const std::string& name) {
    return ToLower(std::filesystem::path(name).extension().string());
}

bool validEntry(int i) { return i >= 0 && i < FunctionColorCount; }

}  // namespace

PaletteForm mnuCodeEditPalette_Click(const Workbench& wb) {
    PaletteForm f;
    f.Source.fill(RemovedPaletteColor);
    f.Target = wb.FunctionColor;
    return f;
}

bool picSource_Click(PaletteForm& f, int i) {
    if (!f.SourceLoaded || !validEntry(i)) return false;
    f.Target[static_cast<size_t>(f.Index - 1)] = f.Source[static_cast<size_t>(i)];
    return true;
}

void picTarget_Click(PaletteForm& f, int i) {
    if (validEntry(i)) f.Index = i + 1;
}

void picTarget_DblClick(PaletteForm& f, int i) {
    if (validEntry(i)) f.Target[static_cast<size_t>(i)] = RemovedPaletteColor;
}

bool txtIndex_Change(PaletteForm& f, Host& host, const std::string& text) {
    const std::string t = Trim(text);
    bool digits = !t.empty();
    for (char c : t) digits = digits && c >= '0' && c <= '9';
    const long n = digits && t.size() < 6 ? std::stol(t) : 0;
    if (n < 1 || n > PaletteIndexLimit) {
        host.warn("Error", PaletteIndexMessage + std::to_string(PaletteIndexLimit));
        return false;
    }
    f.Index = static_cast<int>(n);
    return true;
}

bool cmdLoadPalette_Click(PaletteForm& f, Host& host) {
    FileDialogRequest r;
    r.title = OpenPaletteTitle;
    r.filters = {{AllPalettesFilterText, "*.map;*.ifp"},
                 {MapPaletteFilterText, "*.map"},
                 {IfpPaletteFilterText, "*.ifp"}};
    r.folderKey = PaletteFolder;
    const std::optional<std::string> name = host.openFileName(r);
    if (!name || name->empty()) return false;
    const std::optional<std::string> text = ReadPaletteText(*name);
    std::optional<FunctionColors> colors;
    if (text && extensionOf(*name) == ".map") colors = ReadMapPalette(*text);
    if (text && extensionOf(*name) == ".ifp") colors = ReadIfpPalette(*text);
    if (!colors) {
        host.warn("File Error", NotAPaletteMessage);
        return false;
    }
    f.Source = *colors;
    f.SourceLoaded = true;
    return true;
}

bool cmdSavePalette_Click(const PaletteForm& f, Host& host) {
    int chosenFilter = 1;
    FileDialogRequest r;
    r.title = SaveMapTitle;
    r.filters = {{MapPaletteFilterText, "*.map"}, {IfpPaletteFilterText, "*.ifp"}};
    r.folderKey = PaletteFolder;
    r.chosenFilter = &chosenFilter;
    const std::optional<std::string> chosen = host.saveFileName(r);
    if (!chosen) return false;
    std::string name = Trim(*chosen);
    if (name.empty()) return false;
    // A bare name takes the extension of the chosen filter.
    if (extensionOf(name).empty()) name += chosenFilter == 2 ? ".ifp" : ".map";
    const std::string ext = extensionOf(name);
    if (ext != ".map" && ext != ".ifp") {
        host.warn("File Error", PaletteExtensionMessage);
        return false;
    }
    return WriteTextFileReplacing(name, ext == ".map" ? MapPaletteText(f.Target) : IfpPaletteText(f.Target));
}

void cmdAccept_Click(AppState& s, const PaletteForm& f) {
    s.wb.FunctionColor = f.Target;
    s.wb.SettingsChanged = true;
    RedrawDesignView(s.wb, s.design);
}

}  // namespace quillane
