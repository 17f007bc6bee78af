#pragma once
// "Tiling Options": how many copies of the tile both drawings paint, and in which colours. While the
// window is open the drawings are in tile mode.
#include "app/app_state.h"
#include "core/host.h"

namespace quillane {

inline constexpr const char* TilingSettingsCaption = "Tiling Options";
inline constexpr const char* TilingSettingsNotice = "Leave this window open while drawing the tiles.";
inline constexpr int TilingDesignWindowItem = 6;   // mnuWin(6) "Tiling Design"
inline constexpr int TilingOptionsWindowItem = 7;  // mnuWin(7) "Tiling Options"

// The window was shown: tile mode on, its Window menu item shown and ticked alone.
void TilingSettingsShown(Workbench& wb, TilingState& tiles);
// Closed (cmdCancel "Close" or the close box): tile mode off, its item unticked and hidden.
void TilingSettingsClosed(Workbench& wb, TilingState& tiles);
// A click on picTileColors(k): the colour dialog; a chosen colour becomes TilingColor(k) and the
// settings count as changed. True when it changed.
bool PickTilingColor(Workbench& wb, Host& host, int k);

}  // namespace quillane
