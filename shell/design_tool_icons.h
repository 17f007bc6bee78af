#pragma once
// The drawn pictures of the design window's tool buttons, by button key ("new", "rotate left", ...).
#include <QIcon>
#include <string>

namespace quillane {

// An empty icon for a key that has no picture.
QIcon DesignToolIcon(const std::string& key);

}  // namespace quillane
