#include "shell/fractal_commands.h"

#include <QGuiApplication>
#include <QImage>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>

#include "render/floating_picture.h"
#include "app/deterministic_commands.h"
#include "app/fractal_view.h"
#include "app/list_entry_commands.h"
#include "app/picture_commands.h"
#include "app/table_commands.h"
#include "shell/fractal_window.h"
#include "shell/surface_image.h"
#include "shell/frame_toolbar.h"
#include "shell/functions_window.h"
#include "shell/how_many_dialog.h"
#include "shell/image_size_dialog.h"
#include "shell/main_window.h"
#include "shell/overlay_commands_qt.h"
#include "shell/paste_data_dialog.h"
#include "app/background_commands.h"
#include "app/window_commands.h"

namespace quillane {

namespace {

// What "Draw This Many..." offers next time, per mode.
struct HowManyMemory {
    QString randomText = "10000";
    QString deterministicText = "5";
    bool add = true;
};

double screenPixelsPerInch(QWidget* w) {
    const QScreen* screen = w->screen();
    return screen ? screen->logicalDotsPerInch() : 96.0;
}

// Brings the fractal window forward and gives it the focus, as Draw does before it runs.
void showFractalWindow(MainWindow& frame) {
    FractalWindow* fractal = frame.fractalWindow();
    if (!fractal) return;
    if (auto* sub = qobject_cast<QMdiSubWindow*>(fractal->parentWidget())) {
        if (sub->isMinimized()) return;
        sub->show();
        frame.mdiArea()->setActiveSubWindow(sub);
    }
    fractal->show();
    fractal->setFocus();
}

void registerDrawing(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuRun", [&frame, &s, &host] {
        if (s.wb.DrawingActive) return;
        showFractalWindow(frame);
        mnuRun_Click(s.wb, s.pics, host);
    });
    frame.setCommand("mnuStop", [&s] { mnuStop_Click(s.wb); });
    frame.setCommand("mnuClear", [&s] { mnuClear_Click(s.wb, s.pics); });
    auto memory = std::make_shared<HowManyMemory>();
    frame.setCommand("mnuDrawFixedNumber", [&frame, &s, &host, memory] {
        const bool random = s.wb.RandomMode;
        HowManyDialog dialog(host, random, random ? memory->randomText : memory->deterministicText,
                             memory->add, &frame);
        if (dialog.exec() != QDialog::Accepted) return;
        (random ? memory->randomText : memory->deterministicText) = dialog.text();
        memory->add = dialog.addChosen();
        showFractalWindow(frame);
        DrawFixedNumber(s.wb, s.pics, host, dialog.result());
    });
}

void registerView(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuCalcScale", [&s, &host] { mnuCalcScale_Click(s.wb, s.pics, host); });
    frame.setCommand("mnuDrawFreezeScale", [&s] { mnuDrawFreezeScale_Click(s.wb); });
    frame.setCommand("mnuDrawScaleDesign", [&s, &host] { mnuDrawScaleDesign_Click(s.wb, s.pics, host); });
    frame.setCommand("mnuDrawOverlay", [&s] { mnuDrawOverlay_Click(s.wb); });
    frame.setCommand("mnuZoom", [&s, &host] { mnuZoom_Click(s.wb, s.pics, host); });
    frame.setCommand("mnuDrawRestore", [&s, &host] { ZoomOut(s.wb, s.pics, host, -1, true); });
    static constexpr int percents[] = {5, 25, 50, 100};
    for (int i = 0; i < 4; ++i)
        frame.setCommand("mnuDrawZoomOut(" + std::to_string(i) + ")",
                         [&s, &host, i] { ZoomOut(s.wb, s.pics, host, percents[i], true); });
    frame.setCommand("mnuDrawZoomOut(5)", [&s, &host] { ZoomOut(s.wb, s.pics, host, -1, true); });
    // "Shift Left", "Shift Right", "Shift Down", "Shift Up".
    static constexpr int keys[] = {KeyLeft, KeyRight, KeyDown, KeyUp};
    for (int i = 0; i < 4; ++i)
        frame.setCommand("mnuDrawShiftDir(" + std::to_string(i) + ")",
                         [&s, &host, i] { ShiftDrawWin(s.wb, s.pics, host, keys[i]); });
    frame.setCommand("mnuDrawSetImageSize", [&frame, &s, &host] {
        FractalWindow* fractal = frame.fractalWindow();
        ImageSizeDialog dialog(host, s.pics.picfractal.width(), screenPixelsPerInch(&frame), &frame);
        if (dialog.exec() != QDialog::Accepted) return;
        SetImageSize(s.wb, s.pics, dialog.twips());
        if (fractal) fractal->relayout();
    });
    frame.setCommand("mnuDrawImageSize", [&frame, &s] {
        mnuDrawImageSize_Click(s.wb, s.pics);
        if (frame.fractalWindow()) frame.fractalWindow()->relayout();
    });
}

// The picture of the fractal window to the clipboard and to files.
void registerPictures(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    auto copy = [&s] {
        if (!s.wb.DrawingActive) CopySurfaceToClipboard(s.pics.picfractal);
    };
    frame.setCommand("mnuEditCopy", copy);
    frame.setCommand("mnuPopupCopy", copy);
    frame.setCommand("mnuSaveFractal",
                     [&s, &host] { SavePictureCommand(s.pics.picfractal, host, SaveFractalTitle, s.wb.SavePictureFilter); });
    frame.setCommand("mnuPopupSave",
                     [&s, &host] { SavePictureCommand(s.pics.picfractal, host, SaveImageTitle, s.wb.SavePictureFilter); });
    frame.setCommand("mnuPopUpClear", [] {});
    frame.setCommand("mnuFileSaveDesign", [&s, &host] { mnuFileSaveDesign_Click(s.wb, s.design, host); });
}

// A picture floating over the drawing, and placed under it.
void registerBackground(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuDrawLoadPicture", [&s, &host] { mnuDrawLoadPicture_Click(s.wb, s.pics, host); });
    frame.setCommand("mnuDrawClearBGPic", [&s] { mnuDrawClearBGPic_Click(s.wb, s.pics); });
    frame.setCommand("mnuEditPasteBackground", [&frame, &s] {
        QMdiSubWindow* active = frame.mdiArea()->activeSubWindow();
        if (!active || active->widget() != frame.fractalWindow()) return;
        const std::optional<RasterSurface> clipboard = ClipboardBitmap();
        mnuEditPasteBackground_Click(s.wb, s.pics, clipboard ? &*clipboard : nullptr);
    });
    frame.setCommand("mnuPicPastePopUpFinish", [&s] { PlaceFractalSelection(s.wb, s.pics); });
    frame.setCommand("mnuPicPastePopUpResize", [&s] { mnuPicPastePopUpResize_Click(s); });
    frame.setCommand("mnuPicPastePopUpSet", [&frame, &s, &host] {
        if (!s.pics.Floating.Visible) return;
        PasteDataDialog dialog(host, FractalPasteArea(s.pics), &frame);
        if (dialog.exec() == QDialog::Accepted) ApplyPasteData(s.pics, dialog.values());
    });
    frame.setCommand("mnuPicPastePopUpCancel", [] {});
    s.wb.Menu.setChecked("mnuPicPastePopUpResize", s.pics.Floating.ResizeHandles);
}

}  // namespace

void RegisterFractalCommands(MainWindow& frame) {
    registerDrawing(frame);
    registerView(frame);
    registerPictures(frame);
    registerBackground(frame);
    RegisterOverlayCommands(frame);
    if (FractalWindow* fractal = frame.fractalWindow()) {
        fractal->runCommand = [&frame](const std::string& key) { frame.runCommand(key); };
        fractal->afterCommand = [&frame] { frame.refreshWindows(); };
        fractal->onSizeChanged = [&frame](const std::string& text) {
            frame.toolbar()->txtFractalSize()->setText(QString::fromStdString(text));
        };
        frame.toolbar()->txtFractalSize()->setText(QString::fromStdString(fractal->sizeText));
        fractal->onDrawMenuRequested = [&frame](QPoint at) {
            if (QMenu* draw = frame.menu("mnuDraw")) draw->exec(at);
        };
        fractal->onPastePopupRequested = [&frame](QPoint at) {
            if (QMenu* popup = frame.menu("mnuPicPastePopUpMenu")) popup->exec(at);
        };
    }
}

}  // namespace quillane
