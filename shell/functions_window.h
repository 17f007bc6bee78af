#pragma once
// frmfunctions: the function table, showing CurrentIFS.
#include <QWidget>
#include <array>
#include <vector>

#include "core/function_table.h"
#include "shell/app_state.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace quillane {

class FunctionsWindow : public QWidget {
    Q_OBJECT
  public:
    explicit FunctionsWindow(AppState& state, QWidget* parent = nullptr);
    // Rewrites every box, label and swatch from the workbench.
    void refresh();

    // The boxes of one row: txta, txtb, txtC, txtD, txtE, txtF, txtProb, txtFPx, txtFPy.
    const std::array<QLineEdit*, TableColumns>& row(int i) const {
        return rows_[static_cast<size_t>(i)].boxes;
    }
    QLabel* picColor(int i) const { return rows_[static_cast<size_t>(i)].picColor; }
    int rowCount() const { return static_cast<int>(rows_.size()); }

  private:
    struct Row {
        QLabel* picColor = nullptr;
        std::array<QLineEdit*, TableColumns> boxes{};
    };
    QWidget* buildWindowBoxes(const QString& title, const QString& prefix, std::array<QLineEdit*, 4>& boxes);
    void ensureRows(int n);
    void showRow(int i, bool visible);

    AppState& state_;
    QLineEdit* txtMaps_ = nullptr;
    QLabel* lblComment_ = nullptr;
    QLabel* lblProbSum_ = nullptr;
    QGridLayout* grid_ = nullptr;
    std::array<QLabel*, TableColumns> headings_{};
    std::vector<Row> rows_;
    std::array<QLineEdit*, 4> txtWin_{};
    std::array<QLineEdit*, 4> txtDesign_{};
};

}  // namespace quillane
