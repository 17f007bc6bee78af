#include "render/deterministic.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "render/deterministic_scan.h"
#include "render/floating_picture.h"
#include "render/fractal_overlays.h"
#include "core/undo_menu.h"
#include "render/initial_figures.h"
#include "render/picture_figures.h"
#include "render/scale.h"

namespace quillane {

namespace {

void fill(RasterSurface& s, Color c) {
    std::fill(s.data(), s.data() + static_cast<size_t>(s.width()) * s.height(),
              (c & 0xFFFFFFu) | 0xFF000000u);
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
        PaintPlacedPicture(pics.picImage4, pics);
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

// The generators' own recursions, in the order they are asked: trees first, then the line-based ones.
bool recursiveLevel(Workbench& wb, FractalPictures& pics, Host& host) {
    for (const size_t slot : {2u, 3u, 0u, 1u}) {
        const RecursiveDrawer& draw = pics.Det.RecursiveDrawing[slot];
        if (!draw || !draw(wb, pics, host)) continue;
        pics.picImage4.takeImage(pics.picfractal);
        TakeShiftImage(wb, pics);
        pics.picImage3.takeImage(pics.picImage);
        pics.Det.CountSuffix = RecursionSuffix;
        return true;
    }
    return false;
}

void endLevel(Workbench& wb, FractalPictures& pics, bool picCoordWasVisible) {
    pics.Det.picCoordVisible = picCoordWasVisible;
    pics.Det.pgrIterateVisible = false;
    ResetUndoMenu(wb);
    wb.DrawingActive = false;
}

}  // namespace

bool ScaleFrozen(const Workbench& wb) {
    return wb.menu("mnuDrawFreezeScale").checked;
}

void ShowDetLevel(const Workbench& wb, FractalPictures& pics) {
    pics.picCount = std::to_string(wb.IterationNumber) + pics.Det.CountSuffix;
}

// Level 0: the zoom commands work again and the display shows 0.
void BackToLevelZero(Workbench& wb, FractalPictures& pics) {
    wb.IterationNumber = 0;
    pics.Det.CountSuffix.clear();
    wb.Menu.setEnabled("mnuZoom", true);
    wb.Menu.setEnabled("mnuDrawZoom", true);
    ShowDetLevel(wb, pics);
}

void PaintPlacedPicture(RasterSurface& dest, const FractalPictures& pics) {
    try {
        dest.paint(pics.picPaste, pics.PasteX, pics.PasteY, RasterOp::Copy);
    } catch (const SurfaceOverflow&) {
        // A placed picture that far outside the view has nothing to show in it.
    }
}

void TakeShiftImage(const Workbench& wb, FractalPictures& pics) {
    const WorldWindow& w = wb.Window;
    pics.picImageShift.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    pics.picImageShift.takeImage(pics.picfractal);
}


int DeterministicColorMode(const Workbench& wb, const FractalPictures& pics) {
    // Chosen as for the random drawing; here 7 stands for the random strips.
    if (wb.menu(MenuTable::key("mnuColors", 2)).checked) return 7;
    if (wb.menu(MenuTable::key("mnuColors", 1)).checked) return std::clamp(pics.Det.optColoring, 1, 7);
    return 0;
}

void Iterate(Workbench& wb, FractalPictures& pics, Host& host, int Which) {
    const bool picCoordWasVisible = pics.Det.picCoordVisible;
    const bool overlay = wb.menu("mnuDrawOverlay").checked;
    startLevel(wb, pics, overlay);
    pics.Det.picCoordVisible = false;
    const bool done = recursiveLevel(wb, pics, host) ||
                      (overlay ? overlayLevel(wb, pics, host, Which, wb.IterationNumber + 1)
                               : plainLevel(wb, pics, host, Which));
    if (done && !pics.Det.IterationAbort) {
        TakeShiftImage(wb, pics);
        pics.picImage2.takeImage(pics.picfractal);
        FractalGridAxesFP(wb, pics);
        wb.IterationNumber = std::max(wb.IterationNumber, 0) + 1;
        ShowDetLevel(wb, pics);
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
    if (!ScaleFrozen(wb)) ScalefrmFractalWindows(wb, pics, xmin, xmax, ymin, ymax, Flag);
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
    PaintPlacedPicture(pics.picfractal, pics);
    pics.picImage2.takeImage(pics.picfractal);
    pics.picImage3.takeImage(pics.picfractal);
}

void ResetDeterministic(Workbench& wb, FractalPictures& pics, Host& host) {
    pics.picfractal.clear();
    DrawDetFigure(wb, pics, host, false);
    pics.picImage2.takeImage(pics.picfractal);
    FractalGridAxesFP(wb, pics);
    BackToLevelZero(wb, pics);
}

void ResetDetFigure(Workbench& wb, int Figure) {
    wb.DetFigure = static_cast<int16_t>(Figure);
    for (int k = 0; k <= 8; ++k) wb.Menu.setChecked(MenuTable::key("mnuDrawAddFigure", k), false);
    wb.Menu.setChecked(MenuTable::key("mnuDrawAddFigure", Figure < 0 ? 0 : Figure), true);
}

void ClearDeterministicImage(Workbench& wb, FractalPictures& pics, Host& host) {
    BackToLevelZero(wb, pics);
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
    FractalGridAxesFP(wb, pics);
    if (wb.DetFigure > 6) TakeShiftImage(wb, pics);
}

void RedrawDeterministicView(Workbench& wb, FractalPictures& pics, Host& host) {
    pics.picfractal.clear();
    BackToLevelZero(wb, pics);
    DrawDetFigure(wb, pics, host, false);
    TakeShiftImage(wb, pics);
    pics.picImage2.takeImage(pics.picfractal);
    FractalGridAxesFP(wb, pics);
}

void CalcScaleDeterministic(Workbench& wb, FractalPictures& pics, Host& host) {
    pics.picfractal.clear();
    BackToLevelZero(wb, pics);
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
    FractalGridAxesFP(wb, pics);
}

void ClearImageDeterministicBranch(Workbench& wb, FractalPictures& pics) {
    SilentHost host;
    ClearDeterministicImage(wb, pics, host);
}

}  // namespace quillane
