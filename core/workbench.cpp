#include "core/workbench.h"

#include "core/initial_polygons.h"
#include "core/numbers.h"

namespace quillane {

Workbench::Workbench() : FractalList(MaxFractals + 1) {
    InitializeIFS(CurrentIFS);
    SavedIFS = CurrentIFS;
    FunctionColorDefaults = quillane::FunctionColorDefaults();
    TilingColorDefaults = quillane::TilingColorDefaults();
    FunctionColor = FunctionColorDefaults;
    FileColors = FunctionColorDefaults;
    TilingColor = TilingColorDefaults;
    TilingFileColors = TilingColorDefaults;
    Window = {-0.1f, 1.1f, -0.1f, 1.1f};
    InitialPolygon = BuiltInPolygon(0);
    WriteWindowText(*this);
}

int Workbench::mapsFromText() const {
    int n = CInt(Val(txtMaps));
    if (n < 0) return 0;
    return n > MaxMaps ? MaxMaps : n;
}

bool NeedsSave(const Workbench& wb) {
    return (wb.CurrentIFS.Name == "Untitled" && wb.CurrentIFS.nMaps > 1 && wb.IFSModified) ||
           (wb.IFSModified && wb.ChangeCount > 0);
}

void AddAsterickToName(Workbench& wb) {
    if (wb.CurrentIFS.Name == "Untitled") return;
    std::string& caption = wb.FunctionsCaption;
    size_t bracket = caption.rfind(']');
    if (bracket == std::string::npos || bracket == 0) return;
    char m = caption[bracket - 1];
    if (wb.ChangeCount == 0 && m == '*') {
        caption = caption.substr(0, bracket - 1) + "]";
    } else if (m != '*' && wb.ChangeCount > 0) {
        caption.insert(bracket, "*");
        wb.TableRecursionFlags.fill(false);
    }
}

void CountEdit(Workbench& wb) {
    ++wb.ChangeCount;
    wb.IFSModified = true;
    AddAsterickToName(wb);
}

void WriteWindowText(Workbench& wb) {
    wb.txtWin[0] = Format(wb.Window.ymax, "0.000");
    wb.txtWin[1] = Format(wb.Window.ymin, "0.000");
    wb.txtWin[2] = Format(wb.Window.xmin, "0.000");
    wb.txtWin[3] = Format(wb.Window.xmax, "0.000");
}

}  // namespace quillane
