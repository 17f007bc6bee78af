#pragma once
// "Tiling Options": the tile vectors, the radius and the colours of the copies. While it is open the
// random and the deterministic drawing paint the tile with its neighbours.
#include <QDialog>
#include <array>

class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quillane {

class MainWindow;

class TilingSettingsWindow : public QDialog {
    Q_OBJECT
  public:
    explicit TilingSettingsWindow(MainWindow& frame);
    // The boxes show the tile state again (Create IFS wrote the vectors).
    void refresh();
    QComboBox* radiusBox() const { return cmbRadius_; }
    QRadioButton* separateColors() const { return optColor2_; }

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void moveEvent(QMoveEvent* event) override;

  private:
    void showColorBoxes();
    void pickColor(int k);

    MainWindow& frame_;
    std::array<QLineEdit*, 4> txtT_{};
    QComboBox* cmbRadius_ = nullptr;
    QRadioButton* optColor1_ = nullptr;
    QRadioButton* optColor2_ = nullptr;
    std::array<QPushButton*, 9> picTileColors_{};
    bool refreshing_ = false;
};

// The window, made on first use.
TilingSettingsWindow& TilingSettings(MainWindow& frame);
// Shows the boxes again if the window was made.
void RefreshTilingSettings(MainWindow& frame);
// mnuWin(7) and mnuDrawTiling open it.
void RegisterTilingSettings(MainWindow& frame);

}  // namespace quillane
