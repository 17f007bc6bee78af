#include "shell/tiling_settings_window.h"

#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/tiling_settings.h"
#include "core/menu_tree.h"
#include "core/window_positions.h"
#include "shell/main_window.h"

namespace quillane {
namespace {

QString swatchStyle(Color c) {
    return QStringLiteral("background-color: rgb(%1, %2, %3); border: 1px solid black;")
        .arg(c & 0xFF)
        .arg((c >> 8) & 0xFF)
        .arg((c >> 16) & 0xFF);
}

}  // namespace

TilingSettingsWindow::TilingSettingsWindow(MainWindow& frame) : QDialog(&frame, Qt::Tool), frame_(frame) {
    setObjectName("frmTilingSettings");
    setWindowTitle(TilingSettingsCaption);
    TilingState& t = frame_.state().pics.Tiling;
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(new QLabel(TilingSettingsNotice, this));

    auto* vectors = new QGridLayout;
    vectors->addWidget(new QLabel("Tile vectors", this), 0, 0, 1, 2);
    for (int k = 0; k < 4; ++k) {
        auto* box = new QLineEdit(this);
        box->setObjectName(QStringLiteral("txtT(%1)").arg(k));
        box->setMaximumWidth(70);
        vectors->addWidget(box, 1 + k / 2, k % 2);
        txtT_[static_cast<size_t>(k)] = box;
        connect(box, &QLineEdit::textChanged, this, [this, k](const QString& text) {
            if (!refreshing_) frame_.state().pics.Tiling.txtT[static_cast<size_t>(k)] = text.toStdString();
        });
    }
    layout->addLayout(vectors);

    auto* radiusRow = new QHBoxLayout;
    radiusRow->addWidget(new QLabel("Radius", this));
    cmbRadius_ = new QComboBox(this);
    cmbRadius_->setObjectName("cmbRadius");
    for (int r = 0; r <= MaxTileRadius; ++r) cmbRadius_->addItem(QString::number(r));
    cmbRadius_->setCurrentIndex(0);
    t.cmbRadius = 0;
    connect(cmbRadius_, &QComboBox::currentIndexChanged, this,
            [this](int index) { frame_.state().pics.Tiling.cmbRadius = index < 0 ? 0 : index; });
    radiusRow->addWidget(cmbRadius_);
    radiusRow->addStretch(1);
    layout->addLayout(radiusRow);

    optColor1_ = new QRadioButton("Use IFS color scheme", this);
    optColor1_->setObjectName("optColor1");
    optColor2_ = new QRadioButton("Color each tile separately", this);
    optColor2_->setObjectName("optColor2");
    (t.optColor2 ? optColor2_ : optColor1_)->setChecked(true);
    layout->addWidget(optColor1_);
    layout->addWidget(optColor2_);
    connect(optColor2_, &QRadioButton::toggled, this, [this](bool on) {
        frame_.state().pics.Tiling.optColor2 = on;
        showColorBoxes();
    });

    auto* colors = new QGridLayout;
    for (int k = 0; k < TilingColorCount; ++k) {
        auto* swatch = new QPushButton(this);
        swatch->setObjectName(QStringLiteral("picTileColors(%1)").arg(k));
        swatch->setFixedSize(28, 28);
        swatch->setAutoDefault(false);
        colors->addWidget(swatch, k / 3, k % 3);
        picTileColors_[static_cast<size_t>(k)] = swatch;
        connect(swatch, &QPushButton::clicked, this, [this, k] { pickColor(k); });
    }
    layout->addLayout(colors);

    auto* cmdCancel = new QPushButton("Close", this);
    cmdCancel->setObjectName("cmdCancel");
    cmdCancel->setAutoDefault(false);
    connect(cmdCancel, &QPushButton::clicked, this, [this] { hide(); });
    layout->addWidget(cmdCancel);

    const WindowPlace& place = frame_.state().wb.Windows.tilingOptions;
    move(frame.frameGeometry().topLeft() +
         QPoint(TwipsToPixels(place.left, logicalDpiX()), TwipsToPixels(place.top, logicalDpiY())));
    refresh();
}

void TilingSettingsWindow::refresh() {
    const TilingState& t = frame_.state().pics.Tiling;
    refreshing_ = true;
    for (size_t k = 0; k < 4; ++k) txtT_[k]->setText(QString::fromStdString(t.txtT[k]));
    refreshing_ = false;
    cmbRadius_->setCurrentIndex(t.cmbRadius);
    showColorBoxes();
}

void TilingSettingsWindow::showColorBoxes() {
    const Workbench& wb = frame_.state().wb;
    for (size_t k = 0; k < picTileColors_.size(); ++k) {
        picTileColors_[k]->setStyleSheet(swatchStyle(wb.TilingColor[k]));
        picTileColors_[k]->setVisible(optColor2_->isChecked());
    }
}

void TilingSettingsWindow::pickColor(int k) {
    if (PickTilingColor(frame_.state().wb, frame_.host(), k)) showColorBoxes();
}

void TilingSettingsWindow::showEvent(QShowEvent* event) {
    TilingSettingsShown(frame_.state().wb, frame_.state().pics.Tiling);
    QDialog::showEvent(event);
}

void TilingSettingsWindow::hideEvent(QHideEvent* event) {
    TilingSettingsClosed(frame_.state().wb, frame_.state().pics.Tiling);
    QDialog::hideEvent(event);
}

void TilingSettingsWindow::closeEvent(QCloseEvent* event) {
    // The close box hides the window; it lives as long as the frame.
    event->ignore();
    hide();
}

void TilingSettingsWindow::moveEvent(QMoveEvent* event) {
    QDialog::moveEvent(event);
    if (!isVisible()) return;
    Workbench& wb = frame_.state().wb;
    const QPoint offset = frameGeometry().topLeft() - frame_.frameGeometry().topLeft();
    WindowPlace& place = wb.Windows.tilingOptions;
    const int left = PixelsToTwips(offset.x(), logicalDpiX());
    const int top = PixelsToTwips(offset.y(), logicalDpiY());
    if (left != place.left || top != place.top) {
        place.left = left;
        place.top = top;
        wb.SettingsChanged = true;
    }
}

TilingSettingsWindow& TilingSettings(MainWindow& frame) {
    if (auto* w = frame.findChild<TilingSettingsWindow*>("frmTilingSettings")) return *w;
    return *new TilingSettingsWindow(frame);
}

void RefreshTilingSettings(MainWindow& frame) {
    if (auto* w = frame.findChild<TilingSettingsWindow*>("frmTilingSettings")) w->refresh();
}

void RegisterTilingSettings(MainWindow& frame) {
    auto open = [&frame] {
        TilingSettingsWindow& w = TilingSettings(frame);
        w.refresh();
        w.show();
        w.raise();
        w.activateWindow();
        frame.refreshWindows();
    };
    frame.setCommand(MenuTable::key("mnuWin", TilingOptionsWindowItem), open);
    frame.setCommand("mnuDrawTiling", open);
}

}  // namespace quillane
