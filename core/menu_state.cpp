#include "core/menu_state.h"

namespace quillane {

std::string MenuTable::key(const std::string& name, int index) {
    return name + "(" + std::to_string(index) + ")";
}

const MenuItemState& MenuTable::operator()(const std::string& key) const {
    static const MenuItemState untouched;
    auto it = items_.find(key);
    return it == items_.end() ? untouched : it->second;
}

void MenuTable::changed(const std::string& key) {
    if (observer) observer(key);
}

void MenuTable::setChecked(const std::string& key, bool checked) {
    auto& item = items_[key];
    if (item.checked == checked) return;
    item.checked = checked;
    changed(key);
}

void MenuTable::setEnabled(const std::string& key, bool enabled) {
    auto& item = items_[key];
    if (item.enabled == enabled) return;
    item.enabled = enabled;
    changed(key);
}

void MenuTable::setVisible(const std::string& key, bool visible) {
    auto& item = items_[key];
    if (item.visible == visible) return;
    item.visible = visible;
    changed(key);
}

void MenuTable::setCaption(const std::string& key, const std::string& caption) {
    auto& item = items_[key];
    if (item.caption == caption) return;
    item.caption = caption;
    changed(key);
}

void MenuTable::set(const std::string& key, const MenuItemState& state) {
    items_[key] = state;
    changed(key);
}

void MenuTable::remove(const std::string& key) {
    if (items_.erase(key)) changed(key);
}

}  // namespace quillane
