#include "shell/pixel_coloring_window.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <QVBoxLayout>

#include "app/gradient_commands.h"

namespace quillane {
namespace {

QColor qColor(Color c) {
    int r = 0, g = 0, b = 0;
    GetRGBColors(c, r, g, b);
    return QColor(r, g, b);
}

// Captions of the mapping buttons 1 to 6; button 0 is never shown.
const char* const ColoringCaptions[7] = {"",       "By Height",    "By Width",    "Radial",
                                         "By Fixed Points", "Random", "By Visit Count"};

}  // namespace

ColorSwatch::ColorSwatch(QWidget* parent) : QFrame(parent) {
    setFrameShape(QFrame::Box);
    setAutoFillBackground(true);
    setCursor(Qt::PointingHandCursor);
}

void ColorSwatch::setColor(Color c) {
    color_ = c;
    QPalette p = palette();
    p.setColor(QPalette::Window, qColor(c));
    setPalette(p);
}

void ColorSwatch::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit clicked();
}

void ColorSwatch::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) emit doubleClicked();
}

GradientBar::GradientBar(const Workbench& wb, QWidget* parent) : QWidget(parent), wb_(wb) {
    setFixedSize(BarWidth + TickLength + 1, GradientStripCount);
}

QColor GradientBar::stripColor(int strip) const {
    return qColor(GradientStrips(wb_.Gradient)[static_cast<size_t>(strip)]);
}

void GradientBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const auto strips = GradientStrips(wb_.Gradient);
    for (int j = 0; j < GradientStripCount; ++j)
        painter.fillRect(0, j, BarWidth, 1, qColor(strips[static_cast<size_t>(j)]));
    if (!ticks_) return;
    painter.setPen(Qt::black);
    const int s = GradientBandWidth(wb_.Gradient.GradientColorCount);
    for (int k = 0; k < wb_.Gradient.GradientColorCount; ++k) {
        const int y = std::min(k * s, GradientStripCount - 1);
        painter.drawLine(BarWidth, y, BarWidth + TickLength, y);
    }
}

PixelColoringWindow::PixelColoringWindow(AppState& s, Host& host, std::function<void()> changed, QWidget* parent)
    : QDialog(parent, Qt::Tool), s_(s), host_(host), changed_(std::move(changed)) {
    setObjectName("frmPixelColoring");
    setWindowTitle(PixelColoringCaption);
    build();
    refresh();
}

void PixelColoringWindow::build() {
    auto* top = new QHBoxLayout(this);

    auto* left = new QVBoxLayout;
    cmbColors_ = new QComboBox(this);
    cmbColors_->setObjectName("cmbColors");
    for (int c = 2; c <= GradientColorSlots; ++c) cmbColors_->addItem(QString::number(c));
    connect(cmbColors_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (refreshing_ || index < 0) return;
        cmbColors_Click(s_.wb, index);
        changed();
    });
    left->addWidget(new QLabel("Colors", this));
    left->addWidget(cmbColors_);

    auto* rows = new QGridLayout;
    lblPC_ = new QLabel("Count", this);
    lblPC_->setObjectName("lblPC");
    rows->addWidget(lblPC_, 0, 1);
    for (int i = 0; i < GradientColorSlots; ++i) {
        auto* swatch = new ColorSwatch(this);
        swatch->setObjectName(QString("picColors(%1)").arg(i));
        swatch->setFixedSize(36, 20);
        connect(swatch, &ColorSwatch::clicked, this, [this, i] {
            if (picColors_Click(s_.wb, host_, i)) changed();
        });
        picColors_[static_cast<size_t>(i)] = swatch;
        rows->addWidget(swatch, i + 1, 0);

        auto* box = new QLineEdit(this);
        box->setObjectName(QString("txtCount(%1)").arg(i));
        box->setFixedWidth(60);
        box->installEventFilter(this);
        connect(box, &QLineEdit::textChanged, this, [this, i](const QString& text) {
            if (refreshing_) return;
            txtCount_Change(s_.wb, i, text.toStdString());
            changed();
        });
        txtCount_[static_cast<size_t>(i)] = box;
        rows->addWidget(box, i + 1, 1);
    }
    left->addLayout(rows);
    left->addStretch();
    top->addLayout(left);

    // The bar with the count labels beside the tops of the bands.
    auto* barArea = new QWidget(this);
    barArea->setObjectName("picGradientArea");
    barArea->setFixedSize(GradientBar::BarWidth + GradientBar::TickLength + 50, GradientStripCount + 12);
    picGradient_ = new GradientBar(s_.wb, barArea);
    picGradient_->setObjectName("picGradient");
    picGradient_->move(0, 6);
    for (int k = 0; k < GradientColorSlots; ++k) {
        auto* label = new QLabel(barArea);
        label->setObjectName(QString("lblCount(%1)").arg(k));
        label->setFixedWidth(48);
        lblCount_[static_cast<size_t>(k)] = label;
    }
    top->addWidget(barArea, 0, Qt::AlignTop);

    auto* right = new QVBoxLayout;
    auto* group = new QGroupBox("Coloring", this);
    auto* groupRows = new QVBoxLayout(group);
    for (int i = 0; i < GradientColorSlots; ++i) {
        auto* option = new QRadioButton(ColoringCaptions[i], group);
        option->setObjectName(QString("optColoring(%1)").arg(i));
        option->setVisible(i != 0);
        connect(option, &QRadioButton::clicked, this, [this, i] {
            if (refreshing_) return;
            optColoring_Click(s_, i);
            changed();
        });
        optColoring_[static_cast<size_t>(i)] = option;
        if (i != 0) groupRows->addWidget(option);
    }
    right->addWidget(group);
    auto button = [this, right](const char* name, const char* caption) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(name);
        b->setAutoDefault(false);
        right->addWidget(b);
        return b;
    };
    cmdDefault_ = button("cmdDefault", "Default");
    cmdSave_ = button("cmdSave", "Save...");
    cmdLoad_ = button("cmdLoad", "Load...");
    cmdClose_ = button("cmdClose", "Close");
    right->addStretch();
    top->addLayout(right);

    connect(cmdDefault_, &QPushButton::clicked, this, [this] {
        cmdDefault_Click(s_);
        changed();
    });
    connect(cmdSave_, &QPushButton::clicked, this, [this] { cmdSaveGradient_Click(s_.wb, host_); });
    connect(cmdLoad_, &QPushButton::clicked, this, [this] {
        if (cmdLoadGradient_Click(s_, host_)) changed();
    });
    connect(cmdClose_, &QPushButton::clicked, this, [this] {
        hide();
        emit closedByButton();
    });
}

void PixelColoringWindow::changed() {
    refresh();
    if (changed_) changed_();
}

void PixelColoringWindow::refresh() {
    refreshing_ = true;
    const Workbench& wb = s_.wb;
    const bool counts = CountRowsVisible(s_);
    cmbColors_->setCurrentIndex(cmbColorsIndex(wb));
    for (int i = 0; i < GradientColorSlots; ++i) {
        const auto k = static_cast<size_t>(i);
        const bool inUse = GradientRowVisible(wb, i);
        picColors_[k]->setColor(wb.Gradient.picColors[k]);
        picColors_[k]->setVisible(inUse);
        const QString text = QString::fromStdString(wb.Gradient.txtCount[k]);
        if (txtCount_[k]->text() != text) txtCount_[k]->setText(text);
        txtCount_[k]->setVisible(inUse && counts);
        lblCount_[k]->setText(text);
        const int y = 6 + std::min(lblCountStrip(wb, i), GradientStripCount - 1);
        lblCount_[k]->move(GradientBar::BarWidth + GradientBar::TickLength + 2, y - lblCount_[k]->sizeHint().height() / 2);
        lblCount_[k]->setVisible(inUse && counts);
        optColoring_[k]->setEnabled(optColoringEnabled(wb, i));
        optColoring_[k]->setChecked(s_.pics.Det.optColoring == i);
    }
    lblPC_->setVisible(counts);
    picGradient_->setTicks(counts);
    picGradient_->update();
    refreshing_ = false;
}

bool PixelColoringWindow::eventFilter(QObject* watched, QEvent* event) {
    for (int i = 0; i < GradientColorSlots; ++i) {
        QLineEdit* box = txtCount_[static_cast<size_t>(i)];
        if (watched != box) continue;
        if (event->type() == QEvent::KeyPress) {
            auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                txtCount_[static_cast<size_t>(txtCountNextBox(i))]->setFocus(Qt::TabFocusReason);
                return true;
            }
            if (key->key() == Qt::Key_Backspace) return false;
            const QString text = key->text();
            // Moving keys (arrows, Tab) carry no text and pass; every typed character is checked.
            if (text.isEmpty()) return false;
            return !(text.size() == 1 && txtCountKeyAccepted(text[0].toLatin1()));
        }
        if (event->type() == QEvent::FocusIn) {
            // A click places the caret; any other way in selects the whole text.
            if (static_cast<QFocusEvent*>(event)->reason() != Qt::MouseFocusReason)
                QTimer::singleShot(0, box, [box] { box->selectAll(); });
        }
        return false;
    }
    return QDialog::eventFilter(watched, event);
}

}  // namespace quillane
