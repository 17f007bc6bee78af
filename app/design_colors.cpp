#include "app/design_colors.h"

#include "app/design_view.h"
#include "core/host.h"
#include "core/workbench.h"
#include "design/design_pictures.h"

namespace quillane {

namespace {

bool chooseInto(Color& colour, Workbench& wb, Host& host) {
    const std::optional<Color> chosen = host.chooseColor(colour);
    if (!chosen) return false;
    colour = *chosen;
    wb.SettingsChanged = true;
    return true;
}

}  // namespace

bool mnuDesignColorsBack_Click(Workbench& wb, DesignPictures& d, Host& host) {
    if (!chooseInto(wb.DesignBackColor, wb, host)) return false;
    d.setBackColor(wb.DesignBackColor);
    RedrawDesignView(wb, d);
    return true;
}

bool mnuDesignColorsAxes_Click(Workbench& wb, DesignPictures& d, Host& host) {
    if (!chooseInto(wb.DesignAxisColor, wb, host)) return false;
    RedrawDesignView(wb, d);
    return true;
}

}  // namespace quillane
