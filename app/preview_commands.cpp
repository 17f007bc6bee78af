#include "app/preview_commands.h"

#include "app/app_state.h"
#include "render/preview_drawing.h"

namespace quillane {
namespace {

PreviewState::Shown shownNow(const AppState& s) {
    const RasterSurface& pic = s.Preview.picPreview;
    return {s.wb.CurrentIFS,         s.wb.FunctionColor, s.wb.Window,
            s.Preview.PreviewPoints, pic.width(),        pic.height()};
}

void showItem(Workbench& wb, bool shown) {
    const std::string item = MenuTable::key("mnuWin", PreviewWindowItem);
    wb.Menu.setVisible(item, shown);
    if (!shown) wb.Menu.setChecked(item, false);
}

}  // namespace

bool mnuDesignPreview_Click(AppState& s) {
    const bool shown = !s.wb.menu("mnuDesignPreview").checked;
    s.wb.Menu.setChecked("mnuDesignPreview", shown);
    showItem(s.wb, shown);
    if (shown)
        PreviewDraw(s);
    else
        PreviewClosed(s);
    return shown;
}

void PreviewDraw(AppState& s) {
    RasterSurface& pic = s.Preview.picPreview;
    const WorldWindow& w = s.wb.Window;
    pic.setScale(w.xmin, w.ymax, w.xmax, w.ymin);
    DrawPreview(s.wb.CurrentIFS, s.wb.FunctionColor, s.Preview.PreviewPoints, s.wb.Rng, pic);
    s.Preview.LastShown = shownNow(s);
}

bool PreviewRefresh(AppState& s) {
    if (!s.wb.menu("mnuDesignPreview").checked || shownNow(s) == s.Preview.LastShown) return false;
    PreviewDraw(s);
    return true;
}

void PreviewKeyUp(AppState& s, int direction) {
    s.Preview.PreviewPoints = StepPreviewPoints(s.Preview.PreviewPoints, direction);
    s.Preview.Status = PreviewStatusText(s.Preview.PreviewPoints);
    PreviewDraw(s);
}

void PreviewClosed(AppState& s) {
    s.wb.Menu.setChecked("mnuDesignPreview", false);
    showItem(s.wb, false);
    s.Preview.picPreview.clear();
    s.Preview.LastShown = {};
}

}  // namespace quillane
