#pragma once
// frmfunctions: the function table, showing CurrentIFS.
#include <QKeyEvent>
#include <QWidget>
#include <array>
#include <functional>
#include <map>
#include <vector>

#include "core/function_table.h"
#include "core/host.h"
#include "app/app_state.h"

class QGridLayout;
class QLabel;
class QLineEdit;
class QStackedWidget;

namespace quillane {

class FunctionsWindow : public QWidget {
    Q_OBJECT
  public:
    FunctionsWindow(AppState& state, Host& host, QWidget* parent = nullptr);
    // Rewrites every box, label and swatch from the workbench.
    void refresh();

    // The boxes of one row: txta, txtb, txtC, txtD, txtE, txtF, txtProb, txtFPx, txtFPy.
    const std::array<QLineEdit*, TableColumns>& row(int i) const {
        return rows_[static_cast<size_t>(i)].boxes;
    }
    QLabel* picColor(int i) const { return rows_[static_cast<size_t>(i)].picColor; }
    int rowCount() const { return static_cast<int>(rows_.size()); }
    QLineEdit* txtMaps() const { return txtMaps_; }
    QLineEdit* txtWin(int k) const { return txtWin_[static_cast<size_t>(k)]; }
    QLineEdit* txtDesign(int k) const { return txtDesign_[static_cast<size_t>(k)]; }

    // The program is closing: focus changes no longer commit anything.
    void detach() {
        detached_ = true;
        afterEdit = nullptr;
    }

    // Gives a row box the focus with its text selected.
    void selectBox(int column, int row);

    // Called after an edit changed the workbench, to show it in every window (set by the frame).
    std::function<void()> afterEdit;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    // Which box an editor is: column 1..9 and row, or the count and window boxes.
    enum class BoxKind { Row, Maps, Win, Design };
    struct BoxId {
        BoxKind kind = BoxKind::Row;
        int column = 0;
        int index = 0;  // row, or 0..3 of the window boxes
    };
    void watch(QLineEdit* box, BoxId id);
    BoxId idOf(QObject* box) const;
    bool rowKey(QLineEdit* box, BoxId id, QKeyEvent* event);
    bool windowKey(QLineEdit* box, BoxId id, QKeyEvent* event);
    bool mapsKey(QKeyEvent* event);
    void commitRow(QLineEdit* box, BoxId id);
    void commitMaps(bool focusLost);
    void commitWindow(BoxKind kind);
    void focusBox(int column, int row);
    void chooseColor(int row);
    void showComments();
    void edited();

    struct Row {
        QLabel* picColor = nullptr;
        std::array<QLineEdit*, TableColumns> boxes{};
        QWidget* block = nullptr;  // the row's frame in the matrix function form
    };
    enum class Layout { Compact, Function };
    QWidget* buildWindowBoxes(const QString& title, const QString& prefix, std::array<QLineEdit*, 4>& boxes);
    void ensureRows(int n);
    // Places the rows' widgets for the form in use (ArrangeMatrixCompact / ArrangeMatrixLayout).
    void arrange(Layout layout);
    void placeCompact(int i);
    void placeInBlock(int i);
    void showRow(int i, bool visible);

    AppState& state_;
    Host& host_;
    std::map<QObject*, BoxId> ids_;
    bool committing_ = false;
    bool detached_ = false;
    QLineEdit* txtMaps_ = nullptr;
    QLabel* lblComment_ = nullptr;
    QLabel* lblProbSum_ = nullptr;
    QGridLayout* grid_ = nullptr;    // the compact form: one row a function
    QGridLayout* blocks_ = nullptr;  // the function form: one small matrix a function
    QStackedWidget* pages_ = nullptr;
    Layout layout_ = Layout::Compact;
    std::array<QLabel*, TableColumns> headings_{};
    std::vector<Row> rows_;
    std::array<QLineEdit*, 4> txtWin_{};
    std::array<QLineEdit*, 4> txtDesign_{};
};

}  // namespace quillane
