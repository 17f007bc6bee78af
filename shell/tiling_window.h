#pragma once
// "Tiling with Integer Matrices": the matrix M, an optional change of basis B, the lattice on which the
// residues are picked, and Create IFS.
#include <array>

#include "app/tiling_commands.h"
#include "shell/generator_window.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace quillane {

class PictureWidget;

class TilingWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit TilingWindow(MainWindow& frame);
    const TilingForm& form() const { return form_; }
    PictureWidget* picture() const { return picDraw_; }

    // The buttons, for the frame's tests and the window's own.
    void drawLattice();
    void clearLattice();
    void createIFS();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closing() override;

  private:
    void readBoxes();
    void showLabels();
    void basisChecked(bool on);

    TilingForm form_;
    std::array<QLineEdit*, 4> txtM_{};
    std::array<QLineEdit*, 4> txtb_{};
    QCheckBox* chkbasis_ = nullptr;
    QLabel* lblB_ = nullptr;
    QLabel* lblDet_ = nullptr;
    QLabel* lblTrace_ = nullptr;
    QLabel* lblEigType_ = nullptr;
    QLabel* lbleig1_ = nullptr;
    QLabel* lbleig2_ = nullptr;
    QLabel* lblRV_ = nullptr;
    QLabel* picMethod_ = nullptr;
    PictureWidget* picDraw_ = nullptr;
};

}  // namespace quillane
