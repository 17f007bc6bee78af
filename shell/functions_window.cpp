#include "shell/functions_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QStackedWidget>
#include <QVBoxLayout>

#include "core/numbers.h"
#include "core/table_editing.h"

namespace quillane {

namespace {
// Refreshes run at every yield of a drawing: only changed texts are set.
void setText(QLineEdit* box, const std::string& text) {
    const QString t = QString::fromStdString(text);
    if (box->text() != t) box->setText(t);
}
void setText(QLabel* label, const std::string& text) {
    const QString t = QString::fromStdString(text);
    if (label->text() != t) label->setText(t);
}

// txtWin and txtDesign are laid out as the window's edges: top ymax, bottom ymin, left xmin, right xmax.
constexpr int TopBox = 0, BottomBox = 1, LeftBox = 2, RightBox = 3;

QLineEdit* numberBox(QWidget* parent, const QString& name, int chars) {
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    box->setAlignment(Qt::AlignRight);
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(QString(chars, '8')) + 12);
    return box;
}

QString swatchStyle(Color c) {
    return QString("background-color: rgb(%1,%2,%3); color: white; border: 1px solid gray;")
        .arg(RedOf(c))
        .arg(GreenOf(c))
        .arg(BlueOf(c));
}
}  // namespace

FunctionsWindow::FunctionsWindow(AppState& state, Host& host, QWidget* parent)
    : QWidget(parent), state_(state), host_(host) {
    setObjectName("frmfunctions");
    auto* layout = new QVBoxLayout(this);

    auto* top = new QHBoxLayout;
    auto* lblMaps = new QLabel("Number of functions:", this);
    lblMaps->setObjectName("lblMaps");
    top->addWidget(lblMaps);
    txtMaps_ = numberBox(this, "txtMaps", 4);
    watch(txtMaps_, {BoxKind::Maps, 0, 0});
    top->addWidget(txtMaps_);
    lblComment_ = new QLabel(this);
    lblComment_->setObjectName("lblComment");
    lblComment_->setCursor(Qt::PointingHandCursor);
    lblComment_->installEventFilter(this);
    top->addWidget(lblComment_, 1);
    // Without comments (a chaos game has none) the spare width goes here, not to the label, so the
    // box stays beside its label.
    top->addStretch(0);
    layout->addLayout(top);

    pages_ = new QStackedWidget;
    auto* table = new QWidget;
    grid_ = new QGridLayout(table);
    grid_->setHorizontalSpacing(4);
    grid_->setVerticalSpacing(2);
    for (int k = 0; k < TableColumns; ++k) {
        headings_[k] = new QLabel(table);
        headings_[k]->setAlignment(Qt::AlignCenter);
        grid_->addWidget(headings_[k], 0, k + 1);
    }
    grid_->setRowStretch(MaxMaps + 1, 1);
    grid_->setColumnStretch(TableColumns + 1, 1);
    auto* functionPage = new QWidget;
    blocks_ = new QGridLayout(functionPage);
    blocks_->setRowStretch(MaxMatrixFunctionForm, 1);
    blocks_->setColumnStretch(2, 1);
    pages_->addWidget(table);
    pages_->addWidget(functionPage);
    auto* picCompact = new QScrollArea(this);
    picCompact->setObjectName("picCompact");
    picCompact->setWidget(pages_);
    picCompact->setWidgetResizable(true);
    layout->addWidget(picCompact, 1);

    auto* sum = new QHBoxLayout;
    sum->addWidget(new QLabel("Sum of probabilities:", this));
    lblProbSum_ = new QLabel(this);
    lblProbSum_->setObjectName("lblProbSum");
    sum->addWidget(lblProbSum_);
    sum->addStretch(1);
    layout->addLayout(sum);

    auto* windows = new QHBoxLayout;
    windows->addWidget(buildWindowBoxes("Fractal Window", "txtWin", txtWin_));
    windows->addWidget(buildWindowBoxes("Design Window", "txtDesign", txtDesign_));
    windows->addStretch(1);
    layout->addLayout(windows);
    resize(640, 420);
    refresh();
}

QWidget* FunctionsWindow::buildWindowBoxes(const QString& title, const QString& prefix,
                                           std::array<QLineEdit*, 4>& boxes) {
    auto* group = new QGroupBox(title, this);
    auto* grid = new QGridLayout(group);
    const BoxKind kind = prefix == "txtWin" ? BoxKind::Win : BoxKind::Design;
    for (int k = 0; k < 4; ++k) {
        boxes[k] = numberBox(group, QString("%1(%2)").arg(prefix).arg(k), 7);
        watch(boxes[k], {kind, 0, k});
    }
    grid->addWidget(boxes[TopBox], 0, 1);
    grid->addWidget(boxes[LeftBox], 1, 0);
    grid->addWidget(boxes[RightBox], 1, 2);
    grid->addWidget(boxes[BottomBox], 2, 1);
    return group;
}

void FunctionsWindow::ensureRows(int n) {
    static const char* names[TableColumns] = {"txta", "txtb",    "txtC",   "txtD",  "txtE",
                                              "txtF", "txtProb", "txtFPx", "txtFPy"};
    QWidget* table = grid_->parentWidget();
    while (static_cast<int>(rows_.size()) < n) {
        const int i = static_cast<int>(rows_.size());
        Row r;
        r.picColor = new QLabel(QString::number(i + 1), table);
        r.picColor->setObjectName(QString("picColor(%1)").arg(i));
        r.picColor->setAlignment(Qt::AlignCenter);
        r.picColor->setFixedWidth(r.picColor->fontMetrics().horizontalAdvance("8888") + 6);
        r.picColor->setCursor(Qt::PointingHandCursor);
        r.picColor->installEventFilter(this);
        grid_->addWidget(r.picColor, i + 1, 0);
        for (int k = 0; k < TableColumns; ++k) {
            r.boxes[k] = numberBox(table, QString("%1(%2)").arg(names[k]).arg(i), 7);
            watch(r.boxes[k], {BoxKind::Row, k + 1, i});
            grid_->addWidget(r.boxes[k], i + 1, k + 1);
        }
        rows_.push_back(r);
    }
}

void FunctionsWindow::showRow(int i, bool visible) {
    Row& r = rows_[static_cast<size_t>(i)];
    r.picColor->setVisible(visible);
    const bool fixedPoint = state_.wb.CodeForm == 2;
    for (int k = 0; k < TableColumns; ++k) {
        r.boxes[k]->setVisible(visible && (k < 7 || fixedPoint));
        r.boxes[k]->setReadOnly(BoxLocked(state_.wb, k + 1));
    }
}

void FunctionsWindow::refresh() {
    const Workbench& wb = state_.wb;
    if (windowTitle().toStdString() != wb.FunctionsCaption)
        setWindowTitle(QString::fromStdString(wb.FunctionsCaption));
    setText(txtMaps_, wb.txtMaps);
    const IFSEntry& ifs = wb.CurrentIFS;
    lblComment_->setVisible(!wb.lblComment.empty());
    setText(lblComment_, wb.lblComment);
    const auto headings = ColumnHeadings(wb);
    for (int k = 0; k < TableColumns; ++k) {
        setText(headings_[k], headings[k]);
        headings_[k]->setVisible(!headings[k].empty());
    }
    const int n = std::min<int>(ifs.nMaps, MaxMaps);
    ensureRows(n);
    arrange(wb.CodeForm == 0 && wb.MatrixFunctionForm == 1 ? Layout::Function : Layout::Compact);
    for (int i = 0; i < static_cast<int>(rows_.size()); ++i) {
        showRow(i, i < n);
        if (i >= n) continue;
        Row& row = rows_[static_cast<size_t>(i)];
        for (int k = 0; k < TableColumns; ++k) setText(row.boxes[k], wb.Table.text(k + 1, i));
        const QString style = swatchStyle(wb.FunctionColor[static_cast<size_t>(i)]);
        if (row.picColor->styleSheet() != style) row.picColor->setStyleSheet(style);
    }
    setText(lblProbSum_, wb.lblProbSum);
    for (int k = 0; k < 4; ++k) {
        setText(txtWin_[k], wb.txtWin[k]);
        setText(txtDesign_[k], wb.txtDesign[k]);
    }
}

}  // namespace quillane

namespace quillane {

void FunctionsWindow::placeCompact(int i) {
    Row& r = rows_[static_cast<size_t>(i)];
    grid_->addWidget(r.picColor, i + 1, 0);
    for (int k = 0; k < TableColumns; ++k) grid_->addWidget(r.boxes[k], i + 1, k + 1);
}

// x' = | a b | x + | e |   p
// y'   | c d | y   | f |
void FunctionsWindow::placeInBlock(int i) {
    Row& r = rows_[static_cast<size_t>(i)];
    if (!r.block) {
        r.block = new QWidget;
        r.block->setObjectName(QString("picMatrix(%1)").arg(i));
        auto* g = new QGridLayout(r.block);
        g->setContentsMargins(4, 4, 4, 4);
        g->setHorizontalSpacing(3);
        g->addWidget(new QLabel("x' =", r.block), 0, 1);
        g->addWidget(new QLabel("y' =", r.block), 1, 1);
        g->addWidget(new QLabel("x +", r.block), 0, 4);
        g->addWidget(new QLabel("y +", r.block), 1, 4);
        g->addWidget(new QLabel("p =", r.block), 0, 6);
        blocks_->addWidget(r.block, i / 2, i % 2);
    }
    auto* g = static_cast<QGridLayout*>(r.block->layout());
    g->addWidget(r.picColor, 0, 0, 2, 1);
    g->addWidget(r.boxes[0], 0, 2);
    g->addWidget(r.boxes[1], 0, 3);
    g->addWidget(r.boxes[2], 1, 2);
    g->addWidget(r.boxes[3], 1, 3);
    g->addWidget(r.boxes[4], 0, 5);
    g->addWidget(r.boxes[5], 1, 5);
    g->addWidget(r.boxes[6], 0, 7);
}

void FunctionsWindow::arrange(Layout layout) {
    const bool changed = layout != layout_;
    layout_ = layout;
    const int n = std::min<int>(state_.wb.CurrentIFS.nMaps, MaxMaps);
    for (int i = 0; i < static_cast<int>(rows_.size()); ++i) {
        Row& r = rows_[static_cast<size_t>(i)];
        if (layout == Layout::Function && i < MaxMatrixFunctionForm) {
            if (changed || !r.block) placeInBlock(i);
            r.block->setVisible(i < n);
        } else {
            if (changed && r.block) placeCompact(i);
            if (r.block) r.block->setVisible(false);
        }
    }
    pages_->setCurrentIndex(layout == Layout::Function ? 1 : 0);
}

}  // namespace quillane
