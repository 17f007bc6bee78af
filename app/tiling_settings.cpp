#include "app/tiling_settings.h"

namespace quillane {
namespace {

constexpr int WindowItems = 22;

std::string optionsItem() {
    return MenuTable::key("mnuWin", TilingOptionsWindowItem);
}

}  // namespace

void TilingSettingsShown(Workbench& wb, TilingState& tiles) {
    tiles.SettingsVisible = true;
    wb.Menu.setVisible(optionsItem(), true);
    for (int k = 0; k < WindowItems; ++k)
        wb.Menu.setChecked(MenuTable::key("mnuWin", k), k == TilingOptionsWindowItem);
}

void TilingSettingsClosed(Workbench& wb, TilingState& tiles) {
    tiles.SettingsVisible = false;
    wb.Menu.setChecked(optionsItem(), false);
    wb.Menu.setVisible(optionsItem(), false);
}

bool PickTilingColor(Workbench& wb, Host& host, int k) {
    if (k < 0 || k >= TilingColorCount) return false;
    const auto chosen = host.chooseColor(wb.TilingColor[static_cast<size_t>(k)]);
    if (!chosen) return false;
    wb.TilingColor[static_cast<size_t>(k)] = *chosen & 0xFFFFFFu;
    wb.SettingsChanged = true;
    return true;
}

}  // namespace quillane
