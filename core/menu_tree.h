#pragma once
// The frame window's menus and toolbar as plain data. The shell builds its menus from these trees,
// and the logic and the tests read captions and initial states without a window.
#include <string>
#include <vector>

#include "core/menu_state.h"

namespace quillane {

struct MenuNode {
    std::string name;
    int index = -1;  // -1: not an array item
    std::string caption;
    std::string shortcut;  // portable key text such as "Ctrl+O", "F5", "Shift+Del"; empty for none
    bool separatorBefore = false;
    bool checkable = false;
    // A run of radio siblings with no separator between them is one exclusive group.
    bool radio = false;
    bool visible = true;
    std::vector<MenuNode> children;

    // "mnuOpen", or "mnuColors(2)" for an array item.
    std::string key() const;
};

// The menu bar of the frame window, left to right.
const std::vector<MenuNode>& MainMenuTree();

// `mnuPopup` (pictures) and `mnuPicPastePopUpMenu` (a pasted picture being placed).
const std::vector<MenuNode>& PopupMenus();

struct ToolbarButton {
    std::string key;
    std::string toolTip;
    int number = 0;  // the button's entry "tbrMain(number)" in the menu table; a gap is a separator
};

const std::vector<ToolbarButton>& MainToolbarButtons();
// The menu-table key of frame toolbar button `number`: its caption is the tool tip, and a disabled
// entry disables the button whatever its command.
std::string FrameButtonKey(int number);

// Writes every item of both trees into the table, then the states the program starts with.
void InitializeMenuState(MenuTable& table);

// The node with this key in the menu bar or the pop-up menus, or nullptr.
const MenuNode* FindMenuNode(const std::string& key);

// The keys of the exclusive group the item belongs to, in menu order; empty when it is not a radio item.
std::vector<std::string> RadioGroupKeys(const std::string& key);

// The design window's Toolbar1 has 15 buttons; its entries in the menu table let logic enable them
// without a window.
inline constexpr int DesignToolbarButtons = 15;
std::string DesignToolbarKey(int button);
// The Toolbar1 buttons that mean nothing for fixed points: "polygon" and "fixed points".
inline constexpr int PolygonButton = 8, FixedPointsButton = 10;

}  // namespace quillane
