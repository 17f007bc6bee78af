#include "shell/frame_menus.h"

#include <QActionGroup>
#include <QKeySequence>

namespace quillane {

namespace {

const std::string ListPrefix = "mnuNames(";
constexpr int FirstListIndex = 4;  // the separator; the entries follow

// The index of a fractal list item made at run time, or -1.
int listIndex(const std::string& key) {
    if (key.rfind(ListPrefix, 0) != 0 || key.back() != ')') return -1;
    const int index = std::stoi(key.substr(ListPrefix.size()));
    return index >= FirstListIndex ? index : -1;
}

}  // namespace

FrameMenus::FrameMenus(MenuTable& table, QMenuBar* bar, QWidget* owner, Trigger trigger,
                       HasCommand hasCommand)
    : QObject(owner), table_(table), trigger_(std::move(trigger)), hasCommand_(std::move(hasCommand)) {
    for (const MenuNode& top : MainMenuTree()) bar->addMenu(addSubmenu(owner, top));
    for (const MenuNode& popup : PopupMenus()) addSubmenu(owner, popup);
    syncAll();
}

QAction* FrameMenus::action(const std::string& key) const {
    const auto it = actions_.find(key);
    return it == actions_.end() ? nullptr : it->second;
}

QMenu* FrameMenus::menu(const std::string& key) const {
    const auto it = menus_.find(key);
    return it == menus_.end() ? nullptr : it->second;
}

QMenu* FrameMenus::addSubmenu(QWidget* parent, const MenuNode& node) {
    auto* menu = new QMenu(QString::fromStdString(node.caption), parent);
    menu->setObjectName(QString::fromStdString(node.key()));
    menus_[node.key()] = menu;
    actions_[node.key()] = menu->menuAction();
    addNodes(menu, node.children);
    return menu;
}

void FrameMenus::addNodes(QMenu* menu, const std::vector<MenuNode>& nodes) {
    for (const MenuNode& node : nodes) {
        if (node.separatorBefore) menu->addSeparator();
        if (node.children.empty())
            addItem(menu, node);
        else
            menu->addMenu(addSubmenu(menu, node));
    }
}

QAction* FrameMenus::addItem(QMenu* menu, const MenuNode& node) {
    QAction* action = makeAction(node.key(), node.shortcut, node.checkable, menu);
    action->setText(QString::fromStdString(node.caption));
    action->setVisible(node.visible);
    menu->addAction(action);
    joinRadioGroup(action, node);
    return action;
}

QAction* FrameMenus::makeAction(const std::string& key, const std::string& shortcut, bool checkable,
                                QMenu* menu) {
    auto* action = new QAction(menu);
    action->setObjectName(QString::fromStdString(key));
    if (!shortcut.empty())
        action->setShortcut(
            QKeySequence::fromString(QString::fromStdString(shortcut), QKeySequence::PortableText));
    action->setCheckable(checkable);
    connect(action, &QAction::triggered, this, [this, key] { trigger_(key); });
    actions_[key] = action;
    return action;
}

// The group only draws the items as radio items and keeps one ticked between two table changes;
// which one is ticked is always the table's word.
void FrameMenus::joinRadioGroup(QAction* action, const MenuNode& node) {
    if (!node.radio) return;
    const std::vector<std::string> keys = RadioGroupKeys(node.key());
    if (keys.empty()) return;
    QActionGroup*& group = groups_[keys.front()];
    if (!group) {
        group = new QActionGroup(this);
        group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
    }
    group->addAction(action);
}

void FrameMenus::syncAll() {
    for (const auto& [key, action] : actions_)
        if (listIndex(key) < 0) sync(key);
    // Both the entries shown and the entries in the table, as a sync may add or remove one.
    std::vector<std::string> listKeys;
    for (const auto& [index, action] : listEntries_) listKeys.push_back(action->objectName().toStdString());
    for (const auto& [key, state] : table_.items())
        if (listIndex(key) >= 0) listKeys.push_back(key);
    for (const std::string& key : listKeys) sync(key);
}

void FrameMenus::sync(const std::string& key) {
    const int index = listIndex(key);
    if (index >= 0) {
        syncListEntry(key, index);
        return;
    }
    QAction* action = this->action(key);
    if (!action || !table_.contains(key)) return;
    const MenuItemState& state = table_(key);
    const bool isMenu = menus_.count(key) != 0;
    action->setText(QString::fromStdString(state.caption));
    if (action->isCheckable()) action->setChecked(state.checked);
    action->setVisible(state.visible);
    action->setEnabled(state.enabled && (isMenu || hasCommand_(key)));
}

void FrameMenus::syncListEntry(const std::string& key, int index) {
    auto it = listEntries_.find(index);
    if (!table_.contains(key)) {
        if (it == listEntries_.end()) return;
        // The item may be the one whose command is running: let go of it later.
        menus_["mnuFractals"]->removeAction(it->second);
        it->second->deleteLater();
        actions_.erase(key);
        listEntries_.erase(it);
        return;
    }
    QMenu* fractals = menus_["mnuFractals"];
    if (it == listEntries_.end()) {
        QAction* action = makeAction(key, {}, true, fractals);
        const auto next = listEntries_.upper_bound(index);
        fractals->insertAction(next == listEntries_.end() ? nullptr : next->second, action);
        it = listEntries_.emplace(index, action).first;
    }
    QAction* action = it->second;
    const MenuItemState& state = table_(key);
    // A separator with a text would be drawn as a labelled section.
    action->setSeparator(state.caption == "-");
    action->setText(action->isSeparator() ? QString() : QString::fromStdString(state.caption));
    action->setChecked(state.checked);
    action->setVisible(state.visible);
    action->setEnabled(state.enabled && hasCommand_(key));
}

}  // namespace quillane
