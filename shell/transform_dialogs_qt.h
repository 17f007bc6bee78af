#pragma once
// The small modal dialogs of the design commands: frmScale, frmRotate, frmRotateCG, frmSkew and
// frmSwap. Their checks are in design/transform_dialogs and design/transform_swap; these only show
// boxes.
#include <QDialog>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/host.h"
#include "core/workbench.h"
#include "app/transform_dialogs.h"

class QLineEdit;
class QRadioButton;

namespace quillane {

// Text boxes with labels, and optionally a pair of radio buttons; OK runs `check`, which returns
// the message and the faulty box, or an empty message when the values are good.
class TransformDialog : public QDialog {
    Q_OBJECT
  public:
    struct Box {
        const char* name;
        const char* label;
        const char* text;
    };
    using Check =
        std::function<std::pair<std::string, int>(const std::vector<std::string>& texts, int option)>;
    TransformDialog(Host& host, const char* name, const char* title, const std::vector<Box>& boxes,
                    const std::vector<const char*>& options, Check check, QWidget* parent = nullptr);
    QLineEdit* box(int k) const { return boxes_[static_cast<size_t>(k)]; }
    QRadioButton* option(int k) const { return options_[static_cast<size_t>(k)]; }
    std::vector<std::string> texts() const;
    int chosenOption() const;

    void accept() override;

  private:
    Host& host_;
    Check check_;
    std::vector<QLineEdit*> boxes_;
    std::vector<QRadioButton*> options_;
};

// Each returns the checked value after OK, or nothing after Cancel.
std::optional<float> AskScalePercent(Host& host, QWidget* parent);
// `direction` 0 or 1 preselects optDirection; the angle comes back negated for 1.
std::optional<double> AskRotationAngle(Host& host, QWidget* parent, int direction = 0);
// frmRotateCG: the same for a chaos game function.
inline constexpr const char* RotateCGTitle = "Chaos Game Rotation";
std::optional<double> AskCGRotationAngle(Host& host, QWidget* parent, int direction = 0);
std::optional<SkewValues> AskStretchShear(Host& host, QWidget* parent);

// frmSwap, modal; `redraw` shows each swap at once.
void RunSwapDialog(Workbench& wb, const std::function<void()>& redraw, QWidget* parent);

}  // namespace quillane
