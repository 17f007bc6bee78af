#pragma once
// frmPalette, "Edit IFS Palette": two panels of 100 swatches, the index box, the palette files,
// Accept and Reject. Every control forwards to app/palette_commands.
#include <QDialog>
#include <array>

#include "app/palette_commands.h"
#include "shell/pixel_coloring_window.h"

class QLineEdit;
class QPushButton;

namespace quillane {

class PaletteWindow : public QDialog {
    Q_OBJECT
  public:
    PaletteWindow(AppState& s, Host& host, QWidget* parent = nullptr);
    void refresh();
    const PaletteForm& form() const { return form_; }

    ColorSwatch* picSource(int i) const { return source_[static_cast<size_t>(i)]; }
    ColorSwatch* picTarget(int i) const { return target_[static_cast<size_t>(i)]; }
    QLineEdit* txtIndex() const { return txtIndex_; }
    QPushButton* cmdLoad() const { return cmdLoad_; }
    QPushButton* cmdSave() const { return cmdSave_; }
    QPushButton* cmdAccept() const { return cmdAccept_; }
    QPushButton* cmdReject() const { return cmdReject_; }

  private:
    AppState& s_;
    Host& host_;
    PaletteForm form_;
    std::array<ColorSwatch*, FunctionColorCount> source_{}, target_{};
    QLineEdit* txtIndex_ = nullptr;
    QPushButton *cmdLoad_ = nullptr, *cmdSave_ = nullptr, *cmdAccept_ = nullptr, *cmdReject_ = nullptr;
};

}  // namespace quillane
