#include "render/deterministic.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "render/deterministic_scan.h"
#include "render/fractal_view.h"
#include "render/initial_figures.h"
#include "render/picture_figures.h"
#include "render/scale.h"

namespace quillane {

namespace {

bool frozen(const Workbench& wb) {
    return wb.menu("mnuDrawFreezeScale").checked;
}

void showLevel(const Workbench& wb, FractalPictures& pics) {
    pics.picCount = std::to_string(wb.IterationNumber) + pics.Det.CountSuffix;
}

// Level 0: the zoom commands work again and the display shows 0.
void backToLevelZero(Workbench& wb, FractalPictures& pics) {
    wb.IterationNumber = 0;
    pics.Det.CountSuffix.clear();
    wb.Menu.setEnabled("mnuZoom", true);
    wb.Menu.setEnabled("mnuDrawZoom", true);
    showLevel(wb, pics);
}

void fill(RasterSurface& s, Color c) {
    std::fill(s.data(), s.data() + static_cast<size_t>(s.width()) * s.height(),
              (c & 0xFFFFFFu) | 0xFF000000u);
}

void paintPlaced(RasterSurface& dest, const FractalPictures& pics) {
    try {
        dest.paint(pics.picPaste, pics.PasteX, pics.PasteY, RasterOp::Copy);
    } catch (const SurfaceOverflow&) {
        // A placed picture that far outside the view has nothing to show in it.
    }
}

// picImage, picMask and picImage4 as picfractal, with the window's mapping.
void sizeOffScreen(FractalPictures& pics) {
    const RasterSurface& view = pics.picfractal;
    for (RasterSurface* s : {&pics.picImage, &pics.picMask, &pics.picImage4}) {
        s->setBackColor(view.backColor());
        if (s->width() != view.width() || s->height() != view.height())
            s->resize(view.width(), view.height());
        s->setScale(view.scaleLeft(), view.scaleTop(), view.scaleRight(), view.scaleBottom());
    }
}

void takeShift(const Workbench& wb, FractalPictures& pics) {
    const WorldWindow& w = wb.Window;
    pics.picImageShift.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    pics.picImageShift.takeImage(pics.picfractal);
}

ScanRequest coloredRequest(const Workbench& wb, const FractalPictures& pics, int which) {
    ScanRequest q;
    q.which = which;
    const int mode = DeterministicColorMode(wb, pics);
    if (mode == 0) {
        q.kind = ScanKind::IfsColors;
    } else if (mode == 5 || mode == 6) {
        q.kind = ScanKind::SingleColor;
        q.color = pics.Det.DetSingleColor;
    } else {
        q.kind = ScanKind::Gradient;
        q.gradientMode = mode;
    }
    return q;
}

bool ifsColorScheme(const Workbench& wb) {
    return wb.menu(MenuTable::key("mnuDrawDetColorItems", 0)).checked;
}

// The plain level; false when it was aborted, and then nothing of it is shown.
bool plainLevel(Workbench& wb, FractalPictures& pics, Host& host, int which) {
    // Without a placed picture picImage4 ends equal to picImage, so one copy at the end replaces its
    // clearing and every second write.
    const bool placed = pics.PictureOverlaid && wb.DetFigure < 7;
    if (placed) {
        pics.picImage4.clear();
        paintPlaced(pics.picImage4, pics);
    }
    ScanRequest q;
    q.which = which;
    q.kind = ScanKind::ImageColors;
    if (ifsColorScheme(wb)) q = coloredRequest(wb, pics, which);
    q.writeShown = placed;
    if (!ScanLevel(wb, pics, host, q)) return false;
    if (!placed) pics.picImage4.takeImage(pics.picImage);
    pics.picImage3.takeImage(pics.picImage);
    pics.picfractal.takeImage(pics.picImage4);
    return true;
}

// The overlay level keeps the earlier levels: the mask clears the new pixels' places, then the new
// pixels are ORed in. picImage keeps the background for the scan, so its unset pixels count as 0 here.
bool overlayLevel(Workbench& wb, FractalPictures& pics, Host& host, int which, int level) {
    ScanRequest q;
    q.which = which;
    q.kind = ScanKind::Overlay;
    q.overlayImageColors = !ifsColorScheme(wb);
    q.color = wb.FunctionColor[static_cast<size_t>(std::max(level - 1, 0)) % wb.FunctionColor.size()];
    if (!ScanLevel(wb, pics, host, q)) return false;
    pics.picfractal.paint(pics.picMask, pics.picfractal.scaleLeft(), pics.picfractal.scaleTop(),
                          RasterOp::And);
    const size_t count = static_cast<size_t>(pics.picfractal.width()) * pics.picfractal.height();
    uint32_t* view = pics.picfractal.data();
    const uint32_t* img = pics.picImage.data();
    const uint32_t* mask = pics.picMask.data();
    if (pics.picImage.width() == pics.picfractal.width() &&
        pics.picImage.height() == pics.picfractal.height())
        for (size_t k = 0; k < count; ++k)
            if ((mask[k] & 0xFFFFFFu) == Black) view[k] |= img[k];
    pics.picImage3.takeImage(pics.picImage);
    pics.picImage4.takeImage(pics.picfractal);
    return true;
}

void startLevel(Workbench& wb, FractalPictures& pics, bool overlay) {
    wb.DrawingActive = true;
    pics.Det.IterationAbort = false;
    pics.picImage.clear();
    if (wb.IterationNumber <= 0) {
        sizeOffScreen(pics);
        // Only the overlay level shows picImage4 before its scan ends; a plain level replaces it.
        if (overlay) pics.picImage4.takeImage(pics.picImage3);
        wb.RecursionOff = {};
        pics.Det.CountSuffix.clear();
    }
    // The mask serves the overlay level alone.
    if (overlay) fill(pics.picMask, White);
    pics.Det.pgrIterate = 0;
    pics.Det.pgrIterateVisible = true;
}

void endLevel(Workbench& wb, FractalPictures& pics, bool picCoordWasVisible) {
    pics.Det.picCoordVisible = picCoordWasVisible;
    pics.Det.pgrIterateVisible = false;
    ResetUndoMenu(wb);
    wb.DrawingActive = false;
}

// A redraw that shows no dialog needs no person; this host answers nothing.
class SilentHost final : public Host {
  public:
    Answer message(MessageIcon, const std::string&, const std::string&, MessageButtons) override {
        return Answer::Cancel;
    }
    std::optional<std::string> openFileName(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<std::string> saveFileName(const FileDialogRequest&) override { return std::nullopt; }
    std::optional<Color> chooseColor(Color) override { return std::nullopt; }
    void yield() override {}
};

}  // namespace

int DeterministicColorMode(const Workbench& wb, const FractalPictures& pics) {
    if (wb.menu(MenuTable::key("mnuColors", 1)).checked) return std::clamp(pics.Det.optColoring, 1, 7);
    return 0;
}

void Iterate(Workbench& wb, FractalPictures& pics, Host& host, int Which) {
    const bool picCoordWasVisible = pics.Det.picCoordVisible;
    const bool overlay = wb.menu("mnuDrawOverlay").checked;
    startLevel(wb, pics, overlay);
    pics.Det.picCoordVisible = false;
    const bool done = overlay ? overlayLevel(wb, pics, host, Which, wb.IterationNumber + 1)
                              : plainLevel(wb, pics, host, Which);
    if (done && !pics.Det.IterationAbort) {
        takeShift(wb, pics);
        pics.picImage2.takeImage(pics.picfractal);
        wb.IterationNumber = std::max(wb.IterationNumber, 0) + 1;
        showLevel(wb, pics);
    }
    endLevel(wb, pics, picCoordWasVisible);
}

void IterateLevels(Workbench& wb, FractalPictures& pics, Host& host, int32_t levels) {
    pics.Det.IterationAbort = false;
    for (int32_t k = 0; k < levels; ++k) {
        if (k > 0) host.yield();
        if (pics.Det.IterationAbort) break;
        Iterate(wb, pics, host, -1);
        if (pics.Det.IterationAbort) break;
    }
}

void SetUpDeterministicWindow(Workbench& wb, FractalPictures& pics, float xmin, float xmax, float ymin,
                              float ymax, bool Flag) {
    if (!frozen(wb)) ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, Flag);
    pics.picfractal.clear();
}

bool DrawDetWindowFigure(Workbench& wb, FractalPictures& pics, Host& host, int Figure, bool ShowDialog,
                         bool ResetWindow) {
    if (Figure > 6) {
        if (!DrawPictureFigure(wb, pics, host, Figure, ShowDialog, ResetWindow)) return false;
    } else if (pics.Det.FigureDrawer) {
        if (!pics.Det.FigureDrawer(wb, pics, host, Figure, ShowDialog, ResetWindow)) return false;
    } else {
        // No figures yet: the initial set is empty.
        if (ResetWindow) {
            const WorldWindow w = wb.Window;
            SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
        }
        pics.picImage3.setBackColor(pics.picfractal.backColor());
        pics.picImage3.clear();
        pics.picfractal.clear();
    }
    pics.Det.DetWindow = wb.Window;
    pics.Det.DetWindowStored = true;
    return true;
}

void DrawDetFigure(Workbench& wb, FractalPictures& pics, Host& host, bool Flag) {
    if (wb.DetFigure <= 6 || !pics.PictureOverlaid) {
        DrawDetWindowFigure(wb, pics, host, std::max<int>(wb.DetFigure, 0), false, Flag);
        return;
    }
    paintPlaced(pics.picfractal, pics);
    pics.picImage2.takeImage(pics.picfractal);
    pics.picImage3.takeImage(pics.picfractal);
}

void ResetDeterministic(Workbench& wb, FractalPictures& pics, Host& host) {
    pics.picfractal.clear();
    DrawDetFigure(wb, pics, host, false);
    pics.picImage2.takeImage(pics.picfractal);
    backToLevelZero(wb, pics);
}

void ResetDetFigure(Workbench& wb, int Figure) {
    wb.DetFigure = static_cast<int16_t>(Figure);
    for (int k = 0; k <= 8; ++k) wb.Menu.setChecked(MenuTable::key("mnuDrawAddFigure", k), false);
    wb.Menu.setChecked(MenuTable::key("mnuDrawAddFigure", Figure < 0 ? 0 : Figure), true);
}

void ClearDeterministicImage(Workbench& wb, FractalPictures& pics, Host& host) {
    backToLevelZero(wb, pics);
    if (wb.DetFigure == -1) {
        DrawDetWindowFigure(wb, pics, host, 0, false, false);
        wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
        wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), false);
        ResetDetFigure(wb, 0);
    } else {
        const WorldWindow w = wb.Window;
        SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
        DrawDetFigure(wb, pics, host, false);
    }
    pics.picImage2.takeImage(pics.picfractal);
    if (wb.DetFigure > 6) takeShift(wb, pics);
}

void RedrawDeterministicView(Workbench& wb, FractalPictures& pics, Host& host) {
    pics.picfractal.clear();
    backToLevelZero(wb, pics);
    DrawDetFigure(wb, pics, host, false);
    takeShift(wb, pics);
    pics.picImage2.takeImage(pics.picfractal);
}

void CalcScaleDeterministic(Workbench& wb, FractalPictures& pics, Host& host) {
    pics.picfractal.clear();
    backToLevelZero(wb, pics);
    const WorldWindow before = wb.Window;
    setscale(wb, host);
    if (wb.DetFigure > 6 && pics.PictureOverlaid) {
        // A placed picture keeps its pixels; only the world around it changes.
        PastePositionAfterRescale(before, wb.Window, pics.picfractal.width(), pics.PasteX, pics.PasteY);
        const WorldWindow w = wb.Window;
        SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
        DrawDetFigure(wb, pics, host, false);
        pics.Det.DetWindow = wb.Window;
        pics.Det.DetWindowStored = true;
    } else {
        DrawDetWindowFigure(wb, pics, host, std::max<int>(wb.DetFigure, 0), false, true);
    }
    wb.FitWindow = wb.Window;
    pics.picImage2.takeImage(pics.picfractal);
}

void FractalKeyUp(Workbench& /*wb*/, FractalPictures& pics) {
    pics.Det.KeepFirstColor = false;
}

bool DeterministicDigitKey(Workbench& wb, FractalPictures& pics, Host& host, int keyCode, int shiftMask) {
    if (wb.RandomMode || wb.DrawingActive) return false;
    DeterministicState& det = pics.Det;
    const bool digit = keyCode >= '0' && keyCode <= '9';
    const int d = digit ? keyCode - '0' : 0;
    const int n = wb.mapsFromText();
    if ((shiftMask & ShiftMaskShift) == 0) {
        if (d < 1 || d > n) return false;
        Iterate(wb, pics, host, d - 1);
        return true;
    }
    if (!digit) {
        det.DigitPending = false;
        return false;
    }
    if (!det.DigitPending) {
        det.TensDigit = d;
        det.DigitPending = true;
        return false;
    }
    det.DigitPending = false;
    const int map = det.TensDigit * 10 + d;
    if (map < 1 || map > n) return false;
    Iterate(wb, pics, host, map - 1);
    return true;
}

}  // namespace quillane

namespace quillane {

namespace {

void toDeterministicMenus(Workbench& wb, FractalPictures& pics) {
    MenuTable& m = wb.Menu;
    m.setChecked(MenuTable::key("mnuDrawType", 0), false);
    m.setChecked(MenuTable::key("mnuDrawType", 1), true);
    for (const char* k :
         {"mnuFileSaveAnimGif", "mnuDrawAddFigureItems", "mnuDrawDetColors", "mnuDrawOverlay"})
        m.setEnabled(k, true);
    m.setEnabled("mnuTracing", false);
    const bool stealing = m(MenuTable::key("mnuColors", 2)).checked;
    const bool counts = m(MenuTable::key("mnuColors", 1)).checked && pics.Det.optColoring == 6;
    pics.Det.SavedColorItem = m(MenuTable::key("mnuColors", 2)).checked   ? 2
                              : m(MenuTable::key("mnuColors", 1)).checked ? 1
                                                                          : 0;
    pics.Det.SavedOptColoring = pics.Det.optColoring;
    m.setEnabled(MenuTable::key("mnuColors", 2), false);
    m.setEnabled(MenuTable::key("optColoring", 6), false);
    if (stealing || counts) {
        for (int k = 0; k < 3; ++k) m.setChecked(MenuTable::key("mnuColors", k), k == 0);
    }
    m.setEnabled("mnuCodeColorStealingOptions", false);
}

void toRandomMenus(Workbench& wb, FractalPictures& pics) {
    MenuTable& m = wb.Menu;
    m.setChecked(MenuTable::key("mnuDrawType", 0), true);
    m.setChecked(MenuTable::key("mnuDrawType", 1), false);
    m.setEnabled("mnuDrawOverlay", false);
    m.setChecked("mnuDrawOverlay", false);
    for (const char* k : {"mnuDrawAddFigureItems", "mnuDrawDetColors", "mnuFileSaveAnimGif"})
        m.setEnabled(k, false);
    for (const char* k : {"mnuTracing", "mnuDrawZoom", "mnuDrawFixedNumber", "mnuZoom", "mnuDrawLoadPicture",
                          "mnuCodeColorStealingOptions"})
        m.setEnabled(k, true);
    m.setEnabled(MenuTable::key("mnuColors", 2), true);
    m.setEnabled(MenuTable::key("optColoring", 6), true);
    for (int k = 0; k < 3; ++k) m.setChecked(MenuTable::key("mnuColors", k), k == pics.Det.SavedColorItem);
    pics.Det.optColoring = pics.Det.SavedOptColoring;
}

void toDeterministic(Workbench& wb, FractalPictures& pics, Host& host) {
    toDeterministicMenus(wb, pics);
    wb.RandomMode = false;
    pics.Det.picTrace.clear();
    pics.picCoord.clear();
    wb.IterationNumber = 0;
    wb.FractalCaption = DeterministicCaption;
    wb.FractalWindowCaption = DeterministicCaption;
    // A figure never drawn in this session is drawn and fitted as the first one.
    if (wb.DetFigure == -1 || !pics.Det.DetWindowStored) {
        if (wb.DetFigure == -1) {
            wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 0), true);
            wb.Menu.setChecked(MenuTable::key("mnuDrawDetColorItems", 1), false);
        }
        const int figure = std::max<int>(wb.DetFigure, 0);
        DrawDetWindowFigure(wb, pics, host, figure, false, true);
        wb.FitWindow = wb.Window;
        ResetDetFigure(wb, figure);
    } else {
        if (!frozen(wb)) {
            wb.Window = pics.Det.DetWindow;
            WriteWindowText(wb);
        }
        const WorldWindow w = wb.Window;
        SetUpDeterministicWindow(wb, pics, w.xmin, w.xmax, w.ymin, w.ymax, false);
        DrawDetFigure(wb, pics, host, false);
    }
    pics.picImage2.takeImage(pics.picfractal);
    backToLevelZero(wb, pics);
}

void toRandom(Workbench& wb, FractalPictures& pics) {
    pics.picfractal.clear();
    if (pics.PictureOverlaid && wb.DetFigure < 7) paintPlaced(pics.picfractal, pics);
    takeShift(wb, pics);
    pics.picImage2.takeImage(pics.picfractal);
    toRandomMenus(wb, pics);
    wb.RandomMode = true;
    wb.FractalCaption = RandomCaption;
    wb.FractalWindowCaption = RandomCaption;
    wb.IterationNumber = -1;  // a marker until the next view change
    wb.PointCount = 0;
    pics.picCount.clear();
}

}  // namespace

void mnuDrawType_Click(Workbench& wb, FractalPictures& pics, Host& host, int Index) {
    if (wb.DrawingActive) return;
    if (Index == 1 && wb.RandomMode) toDeterministic(wb, pics, host);
    if (Index == 0 && !wb.RandomMode) toRandom(wb, pics);
}

void ClearImageDeterministicBranch(Workbench& wb, FractalPictures& pics) {
    SilentHost host;
    ClearDeterministicImage(wb, pics, host);
}

}  // namespace quillane
