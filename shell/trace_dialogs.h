#pragma once
// frmTracePoint, frmTracePointSize and frmAxisSize: the small dialogs of the fractal window's marks.
#include <QDialog>
#include <optional>
#include <utility>

class QComboBox;
class QLineEdit;

namespace quillane {

class Host;
class PictureWidget;

// The trace's initial point, two expressions.
class TracePointDialog : public QDialog {
    Q_OBJECT
  public:
    TracePointDialog(Host& host, float x, float y, QWidget* parent = nullptr);
    std::optional<std::pair<float, float>> point() const { return point_; }
    QLineEdit* txtX() const { return txtX_; }
    QLineEdit* txtY() const { return txtY_; }

  private:
    Host& host_;
    QLineEdit *txtX_ = nullptr, *txtY_ = nullptr;
    std::optional<std::pair<float, float>> point_;
};

// The trace dot's radius from a list, with a sample of the dot.
class TracePointSizeDialog : public QDialog {
    Q_OBJECT
  public:
    TracePointSizeDialog(int size, QWidget* parent = nullptr);
    int size() const;
    QComboBox* cmbSize() const { return cmbSize_; }
    QWidget* picDot() const { return picDot_; }

  private:
    QComboBox* cmbSize_ = nullptr;
    QWidget* picDot_ = nullptr;
};

// The axes' line width: list index + 1 pixels.
class AxisSizeDialog : public QDialog {
    Q_OBJECT
  public:
    AxisSizeDialog(int thickness, QWidget* parent = nullptr);
    int listIndex() const;
    QComboBox* cmbThickness() const { return cmbThickness_; }

  private:
    QComboBox* cmbThickness_ = nullptr;
};

}  // namespace quillane
