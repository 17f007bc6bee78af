#include "shell/koch_window.h"

#include <QCheckBox>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpressionValidator>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

#include "app/generator_run.h"
#include "shell/help_commands.h"
#include "shell/main_window.h"
#include "shell/picture_widget.h"

namespace quillane {
namespace {

QPushButton* button(QWidget* parent, const char* name, const QString& text) {
    auto* b = new QPushButton(text, parent);
    b->setObjectName(name);
    b->setAutoDefault(false);
    return b;
}

QLineEdit* box(QWidget* parent, const char* name, const std::string& text) {
    auto* edit = new QLineEdit(QString::fromStdString(text), parent);
    edit->setObjectName(name);
    edit->setMaximumWidth(120);
    return edit;
}

std::optional<KochSliderKey> sliderKey(int key) {
    switch (key) {
        case Qt::Key_PageDown:
            return KochSliderKey::PageDown;
        case Qt::Key_PageUp:
            return KochSliderKey::PageUp;
        case Qt::Key_Left:
            return KochSliderKey::Left;
        case Qt::Key_Right:
            return KochSliderKey::Right;
        case Qt::Key_Up:
            return KochSliderKey::Up;
        case Qt::Key_Down:
            return KochSliderKey::Down;
        default:
            return std::nullopt;
    }
}

}  // namespace

KochWindow::KochWindow(MainWindow& frame) : GeneratorWindow(frame, KochCurvesExample, KochCaption) {
    auto* layout = new QHBoxLayout(body());
    auto* side = new QVBoxLayout;

    auto* edges = new QGroupBox(tr("Number of edges n"), body());
    auto* edgeRow = new QHBoxLayout(edges);
    txtN_ = box(edges, "txtN", form_.txtN);
    // Only digits: "." is refused, as in the function table's whole-number boxes.
    txtN_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]*"), txtN_));
    auto* cmdNdec = button(edges, "cmdNdec", "-");
    auto* cmdNinc = button(edges, "cmdNinc", "+");
    edgeRow->addWidget(txtN_);
    edgeRow->addWidget(cmdNdec);
    edgeRow->addWidget(cmdNinc);
    side->addWidget(edges);

    auto* length = new QGroupBox(tr("Edge length c"), body());
    auto* lengthGrid = new QGridLayout(length);
    txtC_ = box(length, "txtC", form_.txtC);
    auto* lblC = new QLabel("0 < c < 1", length);
    lblC->setObjectName("lblC");
    sliC_ = new QSlider(Qt::Horizontal, length);
    sliC_->setObjectName("sliC");
    sliC_->setRange(0, 1000);
    sliC_->setValue(form_.sliC);
    sliC_->installEventFilter(this);
    auto* cmdAvoid = button(length, "cmdAvoid", "self-avoiding");
    lengthGrid->addWidget(txtC_, 0, 0);
    lengthGrid->addWidget(lblC, 0, 1);
    lengthGrid->addWidget(sliC_, 1, 0, 1, 2);
    lengthGrid->addWidget(cmdAvoid, 2, 0, 1, 2);
    side->addWidget(length);

    auto* levels = new QGroupBox(tr("Levels"), body());
    auto* levelRow = new QHBoxLayout(levels);
    for (int k = 0; k < 3; ++k) {
        auto* option = new QRadioButton(QString::number(k + 1), levels);
        option->setObjectName(QStringLiteral("optIter(%1)").arg(k));
        levelRow->addWidget(option);
        optIter_[static_cast<size_t>(k)] = option;
    }
    optIter_[0]->setChecked(true);
    side->addWidget(levels);

    auto* cmdFit = button(body(), "cmdFit", "Draw");
    auto* cmdCreate = button(body(), "cmdCreate", "Create IFS");
    chkRecursion_ = new QCheckBox("Use recursion", body());
    chkRecursion_->setObjectName("chkRecursion");
    auto* lblWarning = new QLabel(KochWarning, body());
    lblWarning->setObjectName("lblWarning");
    lblWarning->setWordWrap(true);
    lblWarning->setMaximumWidth(220);
    auto* cmdHelp = button(body(), "cmdHelp", "Help");
    side->addWidget(cmdFit);
    side->addWidget(cmdCreate);
    side->addWidget(chkRecursion_);
    side->addWidget(lblWarning);
    side->addWidget(cmdHelp);
    side->addStretch(1);
    layout->addLayout(side);

    picCanvas_ = new PictureWidget(body());
    picCanvas_->setObjectName("picCanvas");
    picCanvas_->setSurface(&surface_);
    picCanvas_->setFixedSize(surface_.width(), surface_.height());
    layout->addWidget(picCanvas_);

    for (int k = 0; k < 3; ++k)
        connect(optIter_[static_cast<size_t>(k)], &QRadioButton::toggled, this, [this, k](bool on) {
            if (!on) return;
            form_.PreviewLevel = k + 1;
            drawPreview();
        });
    connect(cmdFit, &QPushButton::clicked, this, [this] { drawPreview(); });
    connect(cmdCreate, &QPushButton::clicked, this, [this] { create(); });
    connect(cmdAvoid, &QPushButton::clicked, this, [this] {
        readBoxes();
        KochSelfAvoiding(form_);
        showForm();
        drawPreview();
    });
    connect(cmdNinc, &QPushButton::clicked, this, [this] {
        readBoxes();
        if (KochStepEdges(form_, 1)) showForm();
        drawPreview();
    });
    connect(cmdNdec, &QPushButton::clicked, this, [this] {
        readBoxes();
        if (KochStepEdges(form_, -1)) showForm();
        drawPreview();
    });
    connect(sliC_, &QSlider::valueChanged, this, [this](int value) {
        readBoxes();
        KochSliderMoved(form_, value);
        showForm();
        drawPreview();
    });
    connect(txtN_, &QLineEdit::returnPressed, this, [this] { drawPreview(); });
    txtC_->installEventFilter(this);
    connect(txtC_, &QLineEdit::returnPressed, this, [this] {
        if (txtC_->text() == cOnFocus_) return;
        cOnFocus_ = txtC_->text();
        drawPreview();
    });
    connect(chkRecursion_, &QCheckBox::toggled, this, [this](bool on) {
        form_.chkRecursion = on;
        KochRecursionClicked(state(), host(), form_);
        this->frame().refreshWindows();
    });
    connect(cmdHelp, &QPushButton::clicked, this, [this] { ShowHelpTopic(this->frame(), KochHelpTopic); });
    connect(picCanvas_, &PictureWidget::mouseReleased, this,
            [this](QPointF, Qt::MouseButton b, Qt::KeyboardModifiers, QPoint global) {
                if (b != Qt::RightButton) return;
                if (QMenu* popup = this->frame().menu("mnuPopup")) popup->popup(global);
            });
    drawPreview();
}

void KochWindow::readBoxes() {
    form_.txtN = txtN_->text().toStdString();
    form_.txtC = txtC_->text().toStdString();
}

void KochWindow::showForm() {
    txtN_->setText(QString::fromStdString(form_.txtN));
    txtC_->setText(QString::fromStdString(form_.txtC));
    const QSignalBlocker quiet(sliC_);
    sliC_->setValue(form_.sliC);
}

void KochWindow::focusBox(KochFocus box) {
    QLineEdit* edit = box == KochFocus::C ? txtC_ : box == KochFocus::N ? txtN_ : nullptr;
    if (!edit) return;
    edit->setFocus();
    edit->selectAll();
}

void KochWindow::drawPreview(bool fit) {
    readBoxes();
    KochFocus box = KochFocus::None;
    if (!CheckKochForm(form_, host(), &box)) {
        focusBox(box);
        return;
    }
    KochPreview(form_, host(), surface_, fit);
    picCanvas_->update();
}

void KochWindow::create() {
    readBoxes();
    const KochFocus box = KochCreate(state(), host(), form_);
    if (box != KochFocus::None) {
        focusBox(box);
        return;
    }
    built();
}

bool KochWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate && !isMinimized()) {
        for (size_t k = 0; k < optIter_.size(); ++k)
            if (optIter_[k]->isChecked()) form_.PreviewLevel = static_cast<int>(k) + 1;
        form_.chkRecursion = chkRecursion_->isChecked();
        KochActivated(state(), form_);
    }
    return GeneratorWindow::event(event);
}

bool KochWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == txtC_ && event->type() == QEvent::FocusIn) cOnFocus_ = txtC_->text();
    if (watched == sliC_ && event->type() == QEvent::KeyPress) {
        const auto key = sliderKey(static_cast<QKeyEvent*>(event)->key());
        if (key) {
            readBoxes();
            KochSliderKeyDown(form_, *key);
            showForm();
            drawPreview(false);
            return true;
        }
    }
    return GeneratorWindow::eventFilter(watched, event);
}

void KochWindow::closing() {
    KochClose(state());
}

}  // namespace quillane
