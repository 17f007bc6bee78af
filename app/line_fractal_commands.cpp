#include "app/line_fractal_commands.h"

#include <algorithm>
#include <fstream>
#include <sstream>

#include "app/design_view.h"
#include "app/deterministic_commands.h"
#include "core/chaos_game.h"
#include "core/fractal_list.h"
#include "core/function_forms.h"
#include "core/function_table.h"
#include "core/ifs_file_writer.h"
#include "core/initial_polygons.h"
#include "core/menu_tree.h"
#include "core/numbers.h"
#include "core/undo_menu.h"
#include "design/design_drawing.h"
#include "render/deterministic.h"
#include "render/scale.h"

namespace quillane {
namespace {

constexpr int HorizontalLineItem = 4;
constexpr int VerticalLineItem = 5;
// Lines between yields of the recursive drawing: about as often as a level yields per row.
constexpr int64_t LinesPerYield = 4096;

void keepRefusedMaps(IFSEntry& ifs, const LineMaps& maps) {
    for (int i = 0; i < maps.refusedSegment; ++i) {
        const auto k = static_cast<size_t>(i);
        ifs.a[k] = maps.ifs.a[k], ifs.b[k] = maps.ifs.b[k], ifs.c[k] = maps.ifs.c[k];
        ifs.d[k] = maps.ifs.d[k], ifs.e[k] = maps.ifs.e[k], ifs.f[k] = maps.ifs.f[k];
    }
}

void takeMaps(IFSEntry& ifs, const LineMaps& maps, const LineFractal& g) {
    keepRefusedMaps(ifs, LineMaps{maps.ifs, g.segments(), 0});
    ifs.nMaps = static_cast<int16_t>(g.segments());
    const std::vector<std::string> comments = LineFractalComments(g);
    ifs.nComments = static_cast<int16_t>(std::min<size_t>(comments.size(), MaxComments));
    for (int k = 1; k <= ifs.nComments; ++k)
        ifs.Comment[static_cast<size_t>(k)] = comments[static_cast<size_t>(k - 1)];
    ifs.Name = LineFractalName(g.nSegments);
}

void usePolygon(Workbench& wb, int item) {
    for (int k = 0; k <= UserPolygonItem; ++k) wb.Menu.setChecked(MenuTable::key("mnupoly", k), false);
    wb.InitialPolygon = BuiltInPolygon(item);
    wb.Menu.setChecked(MenuTable::key("mnupoly", item), true);
}

void installRecursion(AppState& s) {
    LineFractalState* line = &s.Line;
    s.pics.Det.RecursiveDrawings[0] = [line](Workbench& wb, FractalPictures& pics, Host& host) {
        return LineRecursionPass(*line, wb, pics, host);
    };
}

}  // namespace

bool LineFractalSetup(AppState& s, Host& host, bool chkRecursion) {
    Workbench& wb = s.wb;
    LineFractal& g = s.Line.Generator;
    g.MaxRatio = 0;
    const LineMaps maps = LineFractalMaps(g);
    if (maps.refusedSegment >= 0) {
        keepRefusedMaps(wb.CurrentIFS, maps);
        host.warn("Error", NotContractingMessage);
        return false;
    }
    g.MaxRatio = maps.MaxRatio;
    takeMaps(wb.CurrentIFS, maps, g);
    wb.lblComment = RTrim(wb.CurrentIFS.Comment[1]);
    wb.txtMaps = std::to_string(g.segments());
    PropProb(wb);
    WriteTableRows(wb);
    ResetDetFigure(wb, wb.DetFigure);
    setscale(wb, host, true, &s.pics);
    usePolygon(wb, g.SegmentDirection == 1 ? VerticalLineItem : HorizontalLineItem);
    s.Line.LineRecursionAllowed = !g.chkOrient;
    DesignScale(wb, s.design);
    wb.Menu.setEnabled("mnuRun", true);
    wb.Menu.setEnabled("mnuTrace", true);
    wb.Menu.setEnabled(NamesKey(0), true);
    s.Line.SavedDirtyFlag = wb.IFSModified;
    wb.IFSModified = true;
    wb.ChangeCount = 1;
    DrawDesign(wb, s.design, true);

    if (g.chkOrient && g.txtOrient.size() < static_cast<size_t>(g.segments()))
        g.txtOrient.resize(static_cast<size_t>(g.segments()), 'F');
    SetUpFunctions(wb, host, g.segments());
    wb.FunctionsCaption = FunctionsCaptionFor(wb.CurrentIFS.Name);
    if (wb.menu("mnuDrawType(1)").checked) ResetDeterministic(wb, s.pics, host);
    for (int k = 5; k <= 4 + MaxFractals; ++k) wb.Menu.setChecked(NamesKey(k), false);
    ResetUndoMenu(wb);
    GeneratorBuilt(s.Generator);
    installRecursion(s);
    s.Line.UseLineRecursion = chkRecursion;
    if (chkRecursion && wb.RandomMode) mnuDrawType_Click(wb, s.pics, host, 1);
    wb.UndoWindow = wb.Window;
    return true;
}

void chkRecursion_Click(AppState& s, Host& host, bool ticked) {
    if (!ticked) {
        s.Line.UseLineRecursion = false;
        s.wb.RecursionOff[0] = false;
        return;
    }
    s.Line.UseLineRecursion = true;
    if (s.Generator.SetupDone && s.wb.RandomMode) mnuDrawType_Click(s.wb, s.pics, host, 1);
}

void LineFractalClosing(AppState& s) {
    s.Line.UseLineRecursion = false;
    const int item = s.Generator.SavedColorItem;
    s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), item == 0);
    s.wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), item != 0);
}

bool LineRecursionPass(LineFractalState& line, Workbench& wb, FractalPictures& pics, Host& host) {
    if (!line.UseLineRecursion || !line.LineRecursionAllowed || wb.RecursionOff[0]) return false;
    LineFractal& g = line.Generator;
    InitializeGenerator(g);
    const double pixel = std::fabs(pics.picfractal.pixelsToWorldX(1));
    const int L = LimitRecursionLevel(g, std::max<int>(wb.IterationNumber, 0), pixel);
    DrawLineFractal(line, wb, pics, host, L + 1);
    return true;
}

void DrawLineFractal(LineFractalState& line, Workbench& wb, FractalPictures& pics, Host& host, int depth) {
    LineFractal& g = line.Generator;
    const bool overlay = wb.menu("mnuDrawOverlay").checked;
    const bool fixedColor = wb.menu(MenuTable::key("mnuDrawDetColorItems", 1)).checked;
    const int width = pics.picfractal.drawWidth();
    pics.picImage.setDrawWidth(width);
    const size_t colors = wb.FunctionColor.size();
    const Color levelColor = wb.FunctionColor[static_cast<size_t>(std::max(depth - 1, 0)) % colors];
    if (!overlay) {
        pics.picfractal.clear();
        pics.picImage.clear();
        if (pics.PictureOverlaid && wb.DetFigure < 7) PaintPlacedPicture(pics.picfractal, pics);
    }
    const int64_t total = std::max<int64_t>(LineCount(g, depth), 1);
    int64_t count = 0;
    pics.Det.pgrIterate = 0;
    RecurseLines(g, depth, [&](double x1, double y1, double x2, double y2, int branch) {
        Color c = levelColor;
        if (!overlay)
            c = fixedColor ? pics.Det.DetSingleColor
                           : wb.FunctionColor[static_cast<size_t>(std::max(branch, 0)) % colors];
        pics.picfractal.line(x1, y1, x2, y2, c);
        pics.picImage.line(x1, y1, x2, y2, c);
        ++count;
        if (count % LinesPerYield == 0) {
            pics.Det.pgrIterate = static_cast<int>(count * 100 / total);
            host.yield();
            if (pics.Det.IterationAbort) return false;
        }
        return true;
    });
    pics.Det.pgrIterate = static_cast<int>(std::min<int64_t>(count * 100 / total, 100));
}

std::string WithTxtExtension(const std::string& name) {
    const std::string lower = ToLower(Trim(name));
    if (lower.size() >= 4 && lower.substr(lower.size() - 4) == ".txt") return name;
    return name + ".txt";
}

bool SaveLinePoints(const LineFractal& g, Host& host) {
    FileDialogRequest r;
    r.title = SavePointsTitle;
    r.filters = {{SavePointsFilter, "*.txt"}};
    r.folderKey = "LineFractalSave";
    const std::optional<std::string> chosen = host.saveFileName(r);
    if (!chosen || Trim(*chosen).empty()) return false;
    return WriteTextFileReplacing(WithTxtExtension(*chosen), WritePointsFile(g));
}

std::optional<PointsFile> OpenLinePoints(Host& host) {
    FileDialogRequest r;
    r.title = OpenPointsTitle;
    r.filters = {{OpenPointsFilter, "*.txt"}};
    r.folderKey = "LineFractalOpen";
    const std::optional<std::string> name = host.openFileName(r);
    if (!name || name->empty()) return std::nullopt;
    std::ifstream in(*name, std::ios::binary);
    PointsFile file;
    if (!in) {
        file.error = ReadProblemMessage;
    } else {
        std::ostringstream text;
        text << in.rdbuf();
        file = ReadPointsFile(text.str());
    }
    if (!file.error.empty()) host.warn(PointsFileTitle, file.error);
    return file;
}

}  // namespace quillane
