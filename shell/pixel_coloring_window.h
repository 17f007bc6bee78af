#pragma once
// frmPixelColoring, "Gradient Color Options": the gradient's swatches, the strip bar, the visit-count
// thresholds and the mapping buttons. Every control forwards to app/gradient_commands.
#include <QDialog>
#include <QFrame>
#include <array>
#include <functional>

#include "app/app_state.h"
#include "core/host.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quillane {

// A colour swatch that reports a click.
class ColorSwatch : public QFrame {
    Q_OBJECT
  public:
    explicit ColorSwatch(QWidget* parent = nullptr);
    void setColor(Color c);
    Color color() const { return color_; }
  signals:
    void clicked();
    void doubleClicked();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    Color color_ = 0;
};

// picGradient: the 181 strips top to bottom, with the tick lines of mode 6 on the right.
class GradientBar : public QWidget {
    Q_OBJECT
  public:
    static constexpr int BarWidth = 24;
    static constexpr int TickLength = 7;  // about 100 twips
    explicit GradientBar(const Workbench& wb, QWidget* parent = nullptr);
    void setTicks(bool shown) { ticks_ = shown; update(); }
    bool ticks() const { return ticks_; }
    QColor stripColor(int strip) const;

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    const Workbench& wb_;
    bool ticks_ = false;
};

class PixelColoringWindow : public QDialog {
    Q_OBJECT
  public:
    // `changed` runs after a control changed the state, so the frame shows it.
    PixelColoringWindow(AppState& s, Host& host, std::function<void()> changed, QWidget* parent = nullptr);
    // Shows the state: swatches, strips, count rows and which buttons are on.
    void refresh();

    QComboBox* cmbColors() const { return cmbColors_; }
    ColorSwatch* picColors(int i) const { return picColors_[static_cast<size_t>(i)]; }
    QLineEdit* txtCount(int i) const { return txtCount_[static_cast<size_t>(i)]; }
    QLabel* lblCount(int i) const { return lblCount_[static_cast<size_t>(i)]; }
    QLabel* lblPC() const { return lblPC_; }
    GradientBar* picGradient() const { return picGradient_; }
    QRadioButton* optColoring(int i) const { return optColoring_[static_cast<size_t>(i)]; }
    QPushButton* cmdDefault() const { return cmdDefault_; }
    QPushButton* cmdClose() const { return cmdClose_; }
    QPushButton* cmdSave() const { return cmdSave_; }
    QPushButton* cmdLoad() const { return cmdLoad_; }

    bool eventFilter(QObject* watched, QEvent* event) override;

  signals:
    void closedByButton();

  private:
    void build();
    void changed();
    AppState& s_;
    Host& host_;
    std::function<void()> changed_;
    bool refreshing_ = false;
    QComboBox* cmbColors_ = nullptr;
    std::array<ColorSwatch*, 7> picColors_{};
    std::array<QLineEdit*, 7> txtCount_{};
    std::array<QLabel*, 7> lblCount_{};
    QLabel* lblPC_ = nullptr;
    GradientBar* picGradient_ = nullptr;
    std::array<QRadioButton*, 7> optColoring_{};
    QPushButton *cmdDefault_ = nullptr, *cmdClose_ = nullptr, *cmdSave_ = nullptr, *cmdLoad_ = nullptr;
};

}  // namespace quillane
