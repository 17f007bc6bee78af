#pragma once
// The frame's menu bar and pop-up menus, built from the menu trees: one QAction per item key, each
// following its row of the MenuTable (caption, checked, enabled, visible).
#include <QMenu>
#include <QMenuBar>
#include <QObject>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/menu_state.h"
#include "core/menu_tree.h"

namespace quillane {

class FrameMenus : public QObject {
    Q_OBJECT
  public:
    using Trigger = std::function<void(const std::string& key)>;
    using HasCommand = std::function<bool(const std::string& key)>;

    // Items run trigger with their key; an item is enabled only where hasCommand says it has one.
    FrameMenus(MenuTable& table, QMenuBar* bar, QWidget* owner, Trigger trigger, HasCommand hasCommand);

    // The action of an item or of a submenu, or nullptr.
    QAction* action(const std::string& key) const;
    // A submenu of the bar, or one of the pop-up menus ("mnuPopup", "mnuPicPastePopUpMenu").
    QMenu* menu(const std::string& key) const;

    // Shows one item as the table has it; items of the fractal list come and go here.
    void sync(const std::string& key);
    void syncAll();

  private:
    void addNodes(QMenu* menu, const std::vector<MenuNode>& nodes);
    QMenu* addSubmenu(QWidget* parent, const MenuNode& node);
    QAction* addItem(QMenu* menu, const MenuNode& node);
    QAction* makeAction(const std::string& key, const std::string& shortcut, bool checkable, QMenu* menu);
    void joinRadioGroup(QAction* action, const MenuNode& node);
    void syncListEntry(const std::string& key, int index);

    MenuTable& table_;
    Trigger trigger_;
    HasCommand hasCommand_;
    std::map<std::string, QAction*> actions_;
    std::map<std::string, QMenu*> menus_;
    std::map<std::string, QActionGroup*> groups_;
    std::map<int, QAction*> listEntries_;  // mnuNames(4) and on, made as the list fills
};

}  // namespace quillane
