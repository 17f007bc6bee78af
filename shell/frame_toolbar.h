#pragma once
// The frame's toolbar: each button runs a menu command and shows that item's state.
#include <QLineEdit>
#include <QToolBar>
#include <functional>
#include <map>
#include <string>

#include "core/workbench.h"

namespace quillane {

inline constexpr const char* MatrixCompactTip = "Matrix Compact Form";
inline constexpr const char* MatrixFunctionTip = "Matrix Function Form";

class FrameToolbar : public QToolBar {
    Q_OBJECT
  public:
    using Run = std::function<void(const std::string& menuKey)>;
    using HasCommand = std::function<bool(const std::string& menuKey)>;

    FrameToolbar(const Workbench& wb, Run run, HasCommand hasCommand, QWidget* parent = nullptr);

    // The button with this key ("new", "matrix", ...), or nullptr.
    QAction* button(const std::string& key) const;
    // The menu item the button runs now.
    std::string commandOf(const std::string& key) const;
    // Enabled, checked and tool tips as the menu items are.
    void sync();
    // txtFractalSize: the fractal picture's size in pixels, "width x height".
    QLineEdit* txtFractalSize() const { return txtFractalSize_; }

  private:
    const Workbench& wb_;
    Run run_;
    HasCommand hasCommand_;
    std::map<std::string, QAction*> buttons_;
    QLineEdit* txtFractalSize_ = nullptr;
};

// The drawn picture of a button.
QIcon ToolbarIcon(const std::string& key);

}  // namespace quillane
