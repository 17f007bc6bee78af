#include "app/design_toolbar.h"

#include "app/chaos_design.h"
#include "app/help_commands.h"
#include "design/gesture_math.h"
#include "app/transform_commands.h"

namespace quillane {

std::vector<ToolbarDropItem> LineDropItems() {
    return {{"thin", "thin"}, {"medium", "medium"}, {"thick", "thick"}};
}

std::vector<ToolbarDropItem> RotateDropItems(bool left) {
    std::vector<ToolbarDropItem> items;
    for (const int angle : RotateItemAngles) {
        const std::string number = std::to_string(angle);
        items.push_back({number + (left ? " left" : " right"), number + DegreeSign + (left ? " ccw" : " cw")});
    }
    items.push_back({RotateOtherKey, RotateOtherKey});
    return items;
}

double RotateItemAngle(int item, bool left) {
    if (item < 0 || item >= RotateItemCount) return 0;
    const double angle = RotateItemAngles[item];
    return left ? angle : -angle;
}

bool ToolbarCanRotate(const Workbench& wb) {
    if (wb.DrawingActive) return false;
    return wb.DesignMode == 1 ? wb.CGMapSelected : wb.MapSelected;
}

void ToolbarRotate(Workbench& wb, double angle) {
    if (!ToolbarCanRotate(wb)) return;
    if (wb.DesignMode == 1)
        RotateCGDesign(wb, angle);
    else
        RotateIFSDesign(wb, angle);
}

bool DesignHelp(Host& host, const std::string& programDir, const std::function<bool(const std::string&)>& show) {
    return GetHelpFile(host, programDir, DesignWindowHelpTopic, show);
}

}  // namespace quillane
