#include "shell/line_fractal_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/generator_run.h"
#include "app/help_commands.h"
#include "app/line_fractal_commands.h"
#include "shell/help_commands.h"
#include "shell/main_window.h"
#include "shell/picture_widget.h"

namespace quillane {
namespace {

QPushButton* button(const QString& text, const char* name, QWidget* parent) {
    auto* b = new QPushButton(text, parent);
    b->setObjectName(name);
    b->setAutoDefault(false);
    return b;
}

QCheckBox* check(const QString& text, const char* name, QWidget* parent) {
    auto* c = new QCheckBox(text, parent);
    c->setObjectName(name);
    return c;
}

}  // namespace

LineFractalWindow::LineFractalWindow(MainWindow& frame)
    : GeneratorWindow(frame, LineFractalsExample, LineFractalCaption) {
    buildControls();
    connectControls();
    model() = LineFractal{};
    SetPreviewView(previewSurface_, 0);
    applyView();
    redraw();
    redrawPreview(RecDepth(model().nSegments));
    for (QWidget* w : findChildren<QWidget*>()) w->installEventFilter(this);
    setMouseTracking(true);
}

LineFractal& LineFractalWindow::model() {
    return state().Line.Generator;
}

void LineFractalWindow::buildControls() {
    auto* layout = new QHBoxLayout(body());
    auto* pictures = new QVBoxLayout;
    auto* scaleTop = new QHBoxLayout;
    for (int k = 0; k < 4; ++k) {
        lblScale_[static_cast<size_t>(k)] = new QLabel(body());
        lblScale_[static_cast<size_t>(k)]->setObjectName(QStringLiteral("lblScale(%1)").arg(k));
    }
    scaleTop->addWidget(lblScale_[0]);
    scaleTop->addStretch(1);
    scaleTop->addWidget(lblScale_[3]);
    scaleTop->addStretch(1);
    scaleTop->addWidget(lblScale_[2]);
    scaleTop->addStretch(1);
    scaleTop->addWidget(lblScale_[1]);
    pictures->addLayout(scaleTop);
    picCanvas_ = new PictureWidget(body());
    picCanvas_->setObjectName("picCanvas");
    picCanvas_->setSurface(&canvas_);
    pictures->addWidget(picCanvas_);
    lblCoord_ = new QLabel(body());
    lblCoord_->setObjectName("lblCoord");
    pictures->addWidget(lblCoord_);
    lblStatus_ = new QLabel(ViewKeysStatus, body());
    lblStatus_->setObjectName("lblStatus");
    pictures->addWidget(lblStatus_);
    layout->addLayout(pictures);

    auto* side = new QVBoxLayout;
    auto* edges = new QHBoxLayout;
    edges->addWidget(new QLabel(tr("Segments"), body()));
    cmbEdges_ = new QComboBox(body());
    cmbEdges_->setObjectName("cmbEdges");
    for (int n = MinSegments; n <= MaxSegments; ++n) cmbEdges_->addItem(QString::number(n));
    edges->addWidget(cmbEdges_);
    cmdEdgeChange_[0] = button(tr("+"), "cmdEdgeChange(0)", body());
    cmdEdgeChange_[0]->setToolTip(tr("Add a vertex"));
    cmdEdgeChange_[1] = button(tr("-"), "cmdEdgeChange(1)", body());
    cmdEdgeChange_[1]->setToolTip(tr("Remove a vertex"));
    edges->addWidget(cmdEdgeChange_[0]);
    edges->addWidget(cmdEdgeChange_[1]);
    side->addLayout(edges);
    auto* direction = new QGroupBox(tr("Direction"), body());
    auto* directionRow = new QHBoxLayout(direction);
    const char* names[2] = {"Horizontal", "Vertical"};
    for (int k = 0; k < 2; ++k) {
        optDirection_[static_cast<size_t>(k)] = new QRadioButton(tr(names[k]), direction);
        optDirection_[static_cast<size_t>(k)]->setObjectName(QStringLiteral("optDirection(%1)").arg(k));
        directionRow->addWidget(optDirection_[static_cast<size_t>(k)]);
    }
    optDirection_[0]->setChecked(true);
    side->addWidget(direction);
    auto* gridRow = new QHBoxLayout;
    chkGrid_ = check(tr("Grid"), "chkGrid", body());
    cmdSnap_ = button(tr("Snap All"), "cmdSnap", body());
    cmdSnap_->setEnabled(false);
    gridRow->addWidget(chkGrid_);
    gridRow->addWidget(cmdSnap_);
    side->addLayout(gridRow);
    cmdReset_ = button(tr("Reset"), "cmdReset", body());
    side->addWidget(cmdReset_);
    chkOrient_ = check(tr("Orientation"), "chkOrient", body());
    side->addWidget(chkOrient_);
    txtOrient_ = new QLineEdit("FF", body());
    txtOrient_->setObjectName("txtOrient");
    txtOrient_->setMaxLength(2);
    txtOrient_->setEnabled(false);
    side->addWidget(txtOrient_);
    auto* letters = new QGridLayout;
    for (int k = 0; k < 4; ++k) {
        auto* l = new QLabel(OrientCaptions[static_cast<size_t>(k)], body());
        l->setObjectName(QStringLiteral("lblOrient(%1)").arg(k));
        l->setVisible(false);
        letters->addWidget(l, k / 2, k % 2);
        lblOrient_[static_cast<size_t>(k)] = l;
    }
    side->addLayout(letters);
    chkPreview_ = check(tr("Preview"), "chkPreview", body());
    side->addWidget(chkPreview_);
    picPreview_ = new PictureWidget(body());
    picPreview_->setObjectName("picPreview");
    picPreview_->setSurface(&previewSurface_);
    side->addWidget(picPreview_);
    chkRecursion_ = check(tr("Use recursion in deterministic drawing"), "chkRecursion", body());
    side->addWidget(chkRecursion_);
    lblWarning_ = new QLabel(OrientWarning, body());
    lblWarning_->setObjectName("lblWarning");
    lblWarning_->setWordWrap(true);
    lblWarning_->setMaximumWidth(260);
    side->addWidget(lblWarning_);
    auto* files = new QHBoxLayout;
    cmdOpen_ = button(tr("Open Points..."), "cmdOpen", body());
    cmdSave_ = button(tr("Save Points..."), "cmdSave", body());
    files->addWidget(cmdOpen_);
    files->addWidget(cmdSave_);
    side->addLayout(files);
    cmdSetup_ = button(tr("Create IFS"), "cmdSetup", body());
    cmdHelp_ = button(tr("Help"), "cmdHelp", body());
    side->addWidget(cmdSetup_);
    side->addWidget(cmdHelp_);
    side->addStretch(1);
    layout->addLayout(side);
}

void LineFractalWindow::connectControls() {
    connect(cmbEdges_, &QComboBox::currentIndexChanged, this, &LineFractalWindow::cmbEdgesChanged);
    for (int k = 0; k < 2; ++k) {
        connect(cmdEdgeChange_[static_cast<size_t>(k)], &QPushButton::clicked, this,
                [this, k] { cmdEdgeChange(k); });
        connect(optDirection_[static_cast<size_t>(k)], &QRadioButton::clicked, this,
                [this, k] { optDirectionClick(k); });
    }
    connect(cmdReset_, &QPushButton::clicked, this, &LineFractalWindow::cmdReset);
    connect(cmdSnap_, &QPushButton::clicked, this, &LineFractalWindow::cmdSnap);
    connect(chkGrid_, &QCheckBox::toggled, this, [this](bool on) {
        view_.chkGrid = on;
        cmdSnap_->setEnabled(on);
        redrawGrid();
        redraw();
    });
    connect(chkOrient_, &QCheckBox::clicked, this, &LineFractalWindow::chkOrientClick);
    connect(txtOrient_, &QLineEdit::textEdited, this, [this](const QString& text) {
        std::string kept;
        for (const char c : text.toStdString())
            if (const auto k = OrientKey(c); k && *k != 8) kept += *k;
        if (QString::fromStdString(kept) != text) {
            const int at = txtOrient_->cursorPosition();
            txtOrient_->setText(QString::fromStdString(kept));
            txtOrient_->setCursorPosition(std::min(at, static_cast<int>(kept.size())));
        }
        model().txtOrient = kept;
        redraw();
    });
    connect(chkPreview_, &QCheckBox::toggled, this, [this] { redrawPreview(RecDepth(model().nSegments)); });
    connect(chkRecursion_, &QCheckBox::clicked, this, [this](bool on) {
        chkRecursion_Click(state(), host(), on);
        this->frame().refreshWindows();
    });
    connect(cmdOpen_, &QPushButton::clicked, this, &LineFractalWindow::readPoints);
    connect(cmdSave_, &QPushButton::clicked, this, &LineFractalWindow::savePoints);
    connect(cmdSetup_, &QPushButton::clicked, this, &LineFractalWindow::create);
    connect(cmdHelp_, &QPushButton::clicked, this,
            [this] { ShowHelpTopic(this->frame(), LineFractalHelpTopic); });
    connect(picCanvas_, &PictureWidget::mousePressed, this,
            [this](QPointF world, Qt::MouseButton b, Qt::KeyboardModifiers) { canvasPress(world, b); });
    connect(picCanvas_, &PictureWidget::mouseMoved, this,
            [this](QPointF world, Qt::KeyboardModifiers) { canvasMove(world); });
    connect(picCanvas_, &PictureWidget::mouseReleased, this,
            [this](QPointF, Qt::MouseButton b, Qt::KeyboardModifiers m, QPoint global) {
                canvasRelease(b, m, global);
            });
}

void LineFractalWindow::applyView() {
    ApplyCanvasView(view_, canvas_, picgrid_);
    const auto labels = ScaleLabels(view_);
    for (size_t k = 0; k < 4; ++k) lblScale_[k]->setText(QString::fromStdString(labels[k]));
}

void LineFractalWindow::redrawGrid() {
    DrawGrid(picgrid_, view_);
}

void LineFractalWindow::redraw() {
    DrawPolyline(canvas_, picgrid_, model(), view_);
    picCanvas_->update();
}

void LineFractalWindow::redrawPreview(int depth) {
    previewSurface_.clear();
    if (chkPreview_->isChecked()) DrawPreview(previewSurface_, model(), depth);
    picPreview_->update();
}

void LineFractalWindow::showEdges() {
    ComboGuard = true;
    cmbEdges_->setCurrentIndex(model().nSegments - MinSegments);
    ComboGuard = false;
    txtOrient_->setMaxLength(std::max(model().nSegments, 1));
    txtOrient_->setText(QString::fromStdString(model().txtOrient));
}

void LineFractalWindow::cmbEdgesChanged(int index) {
    if (ComboGuard || index < 0) return;
    model().nSegments = index + MinSegments;
    cmdReset();
}

void LineFractalWindow::cmdEdgeChange(int index) {
    if (index == 0)
        AddEdge(model(), view_.SelectedPoint);
    else
        RemoveEdge(model(), view_.SelectedPoint);
    showEdges();
    redraw();
    redrawPreview(RecDepth(model().nSegments));
}

void LineFractalWindow::cmdReset() {
    ResetPolyline(model());
    view_.SelectedPoint = -1;
    showEdges();
    redraw();
    redrawPreview(RecDepth(model().nSegments));
}

void LineFractalWindow::cmdSnap() {
    SnapAll(model(), view_.GridX, view_.GridY);
    redraw();
    redrawPreview(PreviewDepth);
}

void LineFractalWindow::optDirectionClick(int index) {
    if (index == model().SegmentDirection) return;
    TurnPolyline(model(), index);
    TurnView(view_, index);
    SetPreviewView(previewSurface_, index);
    applyView();
    redrawGrid();
    redraw();
    redrawPreview(RecDepth(model().nSegments));
}

void LineFractalWindow::chkOrientClick(bool on) {
    model().chkOrient = on;
    txtOrient_->setEnabled(on);
    for (QLabel* l : lblOrient_) l->setVisible(on);
    if (on) {
        SavedRecursionValue = chkRecursion_->isChecked();
        SavedPreviewValue = chkPreview_->isChecked();
        chkRecursion_->setChecked(false);
        chkPreview_->setChecked(false);
        chkRecursion_Click(state(), host(), false);
        txtOrient_->setFocus();
        txtOrient_->end(false);
    } else {
        chkRecursion_->setChecked(SavedRecursionValue);
        chkPreview_->setChecked(SavedPreviewValue);
        if (SavedRecursionValue) chkRecursion_Click(state(), host(), true);
    }
    chkRecursion_->setEnabled(!on);
    chkPreview_->setEnabled(!on);
    lblWarning_->setEnabled(!on);
    redraw();
}

void LineFractalWindow::create() {
    if (!LineFractalSetup(state(), host(), chkRecursion_->isChecked())) return;
    txtOrient_->setText(QString::fromStdString(model().txtOrient));
    built();
}

void LineFractalWindow::closing() {
    LineFractalClosing(state());
}

}  // namespace quillane
