#include "shell/color_stealing_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QShortcut>
#include <QStackedWidget>
#include <QTimer>
#include <QVBoxLayout>

#include "core/window_positions.h"
#include "shell/picture_widget.h"
#include "shell/pixel_coloring_window.h"
#include "shell/surface_image.h"

namespace quillane {

ColorStealingWindow::ColorStealingWindow(AppState& s, Host& host, const std::string& programDir,
                                         std::function<void()> changed, QWidget* parent)
    : QDialog(parent, Qt::Tool), s_(s), host_(host), changed_(std::move(changed)) {
    setObjectName("frmColorStealing");
    setWindowTitle(ColorStealingCaption);
    form_.picTestWidth = PictureAreaWidth;
    form_.picTestHeight = PictureAreaHeight;
    build();
    // The kept place counts from the frame's corner, so the window opens over the program.
    const WindowPlace& place = s_.wb.Windows.colorStealing;
    const QPoint corner = parent ? parent->frameGeometry().topLeft() : QPoint();
    move(corner + QPoint(TwipsToPixels(place.left, logicalDpiX()), TwipsToPixels(place.top, logicalDpiY())));
    ColorStealingState& cs = s_.pics.Stealing;
    ConfigureComboList(s_.wb, cs, form_);
    LoadDefaultStealingPicture(s_.wb, cs, form_, programDir);
    refresh();
}

void ColorStealingWindow::build() {
    auto* top = new QVBoxLayout(this);
    pages_ = new QStackedWidget(this);
    pages_->addWidget(buildControls());
    pages_->addWidget(buildFullSize());
    top->addWidget(pages_);

    // The frame's Paste shortcut does not reach a window of its own.
    auto* paste = new QShortcut(QKeySequence::Paste, this);
    connect(paste, &QShortcut::activated, this, [this] {
        if (this->paste(ClipboardBitmap())) changed();
    });
    // The drawing sets the orbit's dots between yields; the trace is shown as it grows.
    traceTimer_ = new QTimer(this);
    traceTimer_->setInterval(250);
    connect(traceTimer_, &QTimer::timeout, this, [this] {
        if (s_.pics.Stealing.chkTrace) picImage_->update();
    });
}

QWidget* ColorStealingWindow::buildControls() {
    auto* page = new QWidget(this);
    auto* row = new QHBoxLayout(page);
    auto* left = new QVBoxLayout;
    left->addWidget(new QLabel("Coloring IFS", page));
    listColoringIFS_ = new QComboBox(page);
    listColoringIFS_->setObjectName("listColoringIFS");
    listColoringIFS_->setMinimumWidth(160);
    connect(listColoringIFS_, &QComboBox::currentIndexChanged, this, [this](int index) {
        if (refreshing_ || index < 0) return;
        listColoringIFS_Click(s_.wb, s_.pics.Stealing, form_, index);
        changed();
    });
    left->addWidget(listColoringIFS_);
    auto button = [page, left](const char* name, const char* caption) {
        auto* b = new QPushButton(caption, page);
        b->setObjectName(name);
        left->addWidget(b);
        return b;
    };
    cmdRefresh_ = button("cmdRefresh", "Refresh List");
    connect(cmdRefresh_, &QPushButton::clicked, this, [this] {
        cmdRefresh_Click(s_.wb, s_.pics.Stealing, form_);
        changed();
    });
    cmdFile_ = button("cmdFile", "Load Picture...");
    connect(cmdFile_, &QPushButton::clicked, this, [this] {
        if (cmdFile_Click(s_.wb, s_.pics.Stealing, form_, host_)) changed();
    });
    chkMethod_ = new QCheckBox("Equal Scale", page);
    chkMethod_->setObjectName("chkMethod");
    connect(chkMethod_, &QCheckBox::toggled, this, [this](bool on) {
        if (refreshing_) return;
        chkMethod_Click(s_.wb, s_.pics.Stealing, on);
        changed();
    });
    left->addWidget(chkMethod_);
    cmdShow_ = button("cmdShow", "Full Size");
    connect(cmdShow_, &QPushButton::clicked, this, [this] {
        form_.ShowingFullSize = true;
        refresh();
    });

    auto* trace = new QHBoxLayout;
    chkTrace_ = new QCheckBox("Trace", page);
    chkTrace_->setObjectName("chkTrace");
    connect(chkTrace_, &QCheckBox::toggled, this, [this](bool on) {
        if (refreshing_) return;
        chkTrace_Click(s_.pics.Stealing, on);
        changed();
    });
    picTraceColor_ = new ColorSwatch(page);
    picTraceColor_->setObjectName("picTraceColor");
    picTraceColor_->setFixedSize(36, 20);
    connect(picTraceColor_, &ColorSwatch::clicked, this, [this] {
        if (picTraceColor_Click(s_.pics.Stealing, host_)) changed();
    });
    trace->addWidget(chkTrace_);
    trace->addWidget(picTraceColor_);
    left->addLayout(trace);
    cmdSave_ = button("cmdSave", "Save Trace...");
    connect(cmdSave_, &QPushButton::clicked, this,
            [this] { cmdSave_Click(s_.pics.Stealing, host_, s_.wb.SavePictureFilter); });
    left->addStretch();
    row->addLayout(left);

    // picTest: the area the picture is fitted into, the picture centred in it.
    auto* area = new QWidget(page);
    area->setObjectName("picTest");
    area->setFixedSize(PictureAreaWidth, PictureAreaHeight);
    auto* centre = new QGridLayout(area);
    centre->setContentsMargins(0, 0, 0, 0);
    picImage_ = new PictureWidget(area);
    picImage_->setObjectName("picImage");
    centre->addWidget(picImage_, 0, 0, Qt::AlignCenter);
    row->addWidget(area);
    return page;
}

QWidget* ColorStealingWindow::buildFullSize() {
    auto* page = new QWidget(this);
    auto* column = new QVBoxLayout(page);
    auto* scroll = new QScrollArea(page);
    picFull_ = new PictureWidget;
    picFull_->setObjectName("picHidden");
    scroll->setWidget(picFull_);
    scroll->setMinimumSize(PictureAreaWidth, PictureAreaHeight);
    column->addWidget(scroll);
    cmdHide_ = new QPushButton("Back", page);
    cmdHide_->setObjectName("cmdHide");
    connect(cmdHide_, &QPushButton::clicked, this, [this] {
        form_.ShowingFullSize = false;
        refresh();
    });
    column->addWidget(cmdHide_);
    return page;
}

void ColorStealingWindow::refresh() {
    refreshing_ = true;
    const ColorStealingState& cs = s_.pics.Stealing;
    listColoringIFS_->clear();
    for (const ColoringCandidate& c : form_.listColoringIFS)
        listColoringIFS_->addItem(QString::fromStdString(c.title));
    listColoringIFS_->setCurrentIndex(form_.ListIndex);
    chkTrace_->setChecked(cs.chkTrace);
    chkMethod_->setChecked(cs.chkMethod);
    picTraceColor_->setColor(cs.picTraceColor);
    cmdSave_->setEnabled(cs.chkTrace);
    pages_->setCurrentIndex(form_.ShowingFullSize ? 1 : 0);
    showPicture();
    refreshing_ = false;
}

void ColorStealingWindow::showPicture() {
    picImage_->setSurface(&ShownStealingPicture(s_.pics.Stealing));
    picFull_->setSurface(&form_.picHidden);
    picFull_->adjustSize();
}

void ColorStealingWindow::configureComboList() {
    ConfigureComboList(s_.wb, s_.pics.Stealing, form_);
    refresh();
}

bool ColorStealingWindow::paste(const std::optional<RasterSurface>& clipboard) {
    return PasteStealingPicture(s_.wb, s_.pics.Stealing, form_, clipboard);
}

void ColorStealingWindow::changed() {
    refresh();
    if (changed_) changed_();
}

void ColorStealingWindow::showEvent(QShowEvent* event) {
    s_.pics.Stealing.Visible = true;
    traceTimer_->start();
    QDialog::showEvent(event);
}

void ColorStealingWindow::hideEvent(QHideEvent* event) {
    s_.pics.Stealing.Visible = false;
    traceTimer_->stop();
    lastActive_ = false;
    QDialog::hideEvent(event);
    emit hidden();
}

void ColorStealingWindow::moveEvent(QMoveEvent* event) {
    QDialog::moveEvent(event);
    keepPlace();
}

void ColorStealingWindow::resizeEvent(QResizeEvent* event) {
    QDialog::resizeEvent(event);
    keepPlace();
}

void ColorStealingWindow::keepPlace() {
    if (!isVisible()) return;
    const QWidget* frame = parentWidget();
    const QPoint from = frame ? frame->frameGeometry().topLeft() : QPoint();
    const QRect g = frameGeometry();
    const double dpiX = logicalDpiX(), dpiY = logicalDpiY();
    const WindowPlace place{PixelsToTwips(g.left() - from.x(), dpiX), PixelsToTwips(g.top() - from.y(), dpiY),
                            PixelsToTwips(g.width(), dpiX), PixelsToTwips(g.height(), dpiY)};
    WindowPlace& kept = s_.wb.Windows.colorStealing;
    if (place.left == kept.left && place.top == kept.top && place.width == kept.width &&
        place.height == kept.height)
        return;
    kept = place;
    s_.wb.SettingsChanged = true;
}

bool ColorStealingWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) lastActive_ = true;
    return QDialog::event(event);
}

}  // namespace quillane
