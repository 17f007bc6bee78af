#pragma once
// frmDesignGridSize / frmGridSize: the grid's spacing, x alone or x and y apart.
#include <QDialog>
#include <functional>
#include <optional>

#include "app/grid_size.h"

class QCheckBox;
class QLabel;
class QLineEdit;

namespace quillane {

class Host;

class GridSizeDialog : public QDialog {
    Q_OBJECT
  public:
    GridSizeDialog(Host& host, float x, float y, QWidget* parent = nullptr);
    // What OK accepted; nothing after Cancel.
    std::optional<GridSpacing> spacing() const { return spacing_; }
    // A further check of the window that asks (the fractal window's range); the dialog stays open on false.
    std::function<bool(const GridSpacing&)> accepts;

    QLineEdit* txtGrid() const { return txtGrid_; }
    QLineEdit* txtygrid() const { return txtygrid_; }
    QCheckBox* chkScale() const { return chkScale_; }
    QLabel* lblxgrid() const { return lblxgrid_; }

  private:
    void showScale();
    void ok();
    Host& host_;
    QLineEdit *txtGrid_ = nullptr, *txtygrid_ = nullptr;
    QCheckBox* chkScale_ = nullptr;
    QLabel *lblxgrid_ = nullptr, *lblygrid_ = nullptr;
    std::optional<GridSpacing> spacing_;
};

}  // namespace quillane
