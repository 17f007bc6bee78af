#pragma once
// Menu items as data: checked / enabled / visible / caption, keyed by the item's name and
// index ("mnuUndo", "mnuColors(2)"). The shell builds its actions from this table and follows
// its changes through the one observer.
#include <functional>
#include <map>
#include <string>

namespace quillane {

struct MenuItemState {
    std::string caption;
    bool checked = false;
    bool enabled = true;
    bool visible = true;
    bool operator==(const MenuItemState&) const = default;
};

class MenuTable {
  public:
    // The key of an indexed item: MenuKey("mnuColors", 2) is "mnuColors(2)".
    static std::string key(const std::string& name, int index);

    // The state of an item; an item never touched is enabled, visible, unchecked, no caption.
    const MenuItemState& operator()(const std::string& key) const;
    bool contains(const std::string& key) const { return items_.count(key) != 0; }

    void setChecked(const std::string& key, bool checked);
    void setEnabled(const std::string& key, bool enabled);
    void setVisible(const std::string& key, bool visible);
    void setCaption(const std::string& key, const std::string& caption);
    void set(const std::string& key, const MenuItemState& state);
    void remove(const std::string& key);

    // Called with the key after every change.
    std::function<void(const std::string& key)> observer;

    const std::map<std::string, MenuItemState>& items() const { return items_; }

  private:
    void changed(const std::string& key);
    std::map<std::string, MenuItemState> items_;
};

}  // namespace quillane
