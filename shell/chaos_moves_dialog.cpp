#include "shell/chaos_moves_dialog.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include "app/chaos_moves.h"

namespace quillane {

namespace {
constexpr const char* StepCaptions[5] = {"", "Scale", "Rotate", "Horizontal Reflection",
                                         "Vertical Reflection"};
}  // namespace

ChaosMovesDialog::ChaosMovesDialog(Workbench& wb, Host& host, std::function<void()> changed, QWidget* parent)
    : QDialog(parent), wb_(wb), host_(host), changed_(std::move(changed)) {
    setObjectName("frmScaleCG");
    setWindowTitle(ScaleCGTitle);
    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel("Fixed Point", this), 0, 0);
    cmbFP_ = new QComboBox(this);
    cmbFP_->setObjectName("cmbFP");
    grid->addWidget(cmbFP_, 0, 1);
    connect(cmbFP_, &QComboBox::activated, this, [this](int i) {
        cmbFP_Click(wb_, i);
        after();
    });
    buildSteps(grid);
    buildSliders(grid);
    auto* buttons = new QHBoxLayout;
    for (const char* name : {"cmdApply", "cmdOk", "cmdCancel"}) {
        auto* b = new QPushButton(name == std::string("cmdApply") ? "Apply"
                                  : name == std::string("cmdOk")  ? "OK"
                                                                  : "Cancel",
                                  this);
        b->setObjectName(name);
        b->setAutoDefault(false);
        buttons->addWidget(b);
        connect(b, &QPushButton::clicked, this, [this, n = std::string(name)] {
            if (n == "cmdApply") cmdApply_Click(wb_);
            if (n == "cmdOk") cmdOk_Click(wb_);
            if (n == "cmdCancel") cmdCancel_Click(wb_, host_);
            if (n == "cmdApply") return;
            finished_ = true;
            after();
            n == "cmdOk" ? accept() : reject();
        });
    }
    grid->addLayout(buttons, 12, 0, 1, 3);
    showSettings();
}

void ChaosMovesDialog::buildSteps(QGridLayout* grid) {
    for (int k = 1; k <= 4; ++k) {
        chkStep_[k] = new QCheckBox(StepCaptions[k], this);
        chkStep_[k]->setObjectName(QString("chkStep(%1)").arg(k));
        grid->addWidget(chkStep_[k], k, 0);
        connect(chkStep_[k], &QCheckBox::toggled, this, [this, k](bool on) {
            if (quiet_) return;
            chkStep_Click(wb_, k, on);
            after();
        });
    }
    grid->addWidget(new QLabel("Sequence of Moves: ", this), 5, 0);
    auto* row = new QHBoxLayout;
    for (int k = 1; k <= 4; ++k) {
        picStep_[k] = new QLabel(this);
        picStep_[k]->setObjectName(QString("picStep(%1)").arg(k));
        picStep_[k]->setFrameStyle(QFrame::Box);
        picStep_[k]->setFixedSize(24, 24);
        picStep_[k]->setAlignment(Qt::AlignCenter);
        picStep_[k]->installEventFilter(this);
        row->addWidget(picStep_[k]);
    }
    grid->addLayout(row, 5, 1);
    grid->addWidget(new QLabel("(Click on 2 boxes to swap)", this), 6, 1);
}

void ChaosMovesDialog::buildSliders(QGridLayout* grid) {
    sliScale_ = new QSlider(Qt::Horizontal, this);
    sliScale_->setObjectName("sliScale");
    sliScale_->setRange(0, 1000);
    sliRotate_ = new QSlider(Qt::Horizontal, this);
    sliRotate_->setObjectName("sliRotate");
    sliRotate_->setRange(-360, 360);
    txtS_ = new QLineEdit(this);
    txtS_->setObjectName("txtS");
    txtRotate_ = new QLineEdit(this);
    txtRotate_->setObjectName("txtRotate");
    grid->addWidget(new QLabel("Scale", this), 7, 0);
    grid->addWidget(sliScale_, 7, 1);
    grid->addWidget(txtS_, 7, 2);
    grid->addWidget(new QLabel("Rotate", this), 8, 0);
    grid->addWidget(sliRotate_, 8, 1);
    grid->addWidget(txtRotate_, 8, 2);
    grid->addWidget(new QLabel("degrees", this), 8, 3);
    grid->addWidget(new QLabel("(clockwise)", this), 9, 0);
    grid->addWidget(new QLabel("(counterclockwise)", this), 9, 2);
    grid->addWidget(new QLabel("Page Up/Down change by 0.005 or 5 degrees", this), 10, 0, 1, 3);
    for (QWidget* w : {static_cast<QWidget*>(sliScale_), static_cast<QWidget*>(sliRotate_),
                       static_cast<QWidget*>(txtS_), static_cast<QWidget*>(txtRotate_)})
        w->installEventFilter(this);
    connect(sliScale_, &QSlider::valueChanged, this, [this](int v) {
        if (quiet_) return;
        sliScale_Change(wb_, v);
        after();
    });
    connect(sliRotate_, &QSlider::valueChanged, this, [this](int v) {
        if (quiet_) return;
        sliRotate_Change(wb_, v);
        after();
    });
}

void ChaosMovesDialog::showSettings() {
    quiet_ = true;
    const Workbench::ScaleCGControls& c = wb_.ScaleCG;
    cmbFP_->clear();
    for (int i = 1; i <= wb_.CurrentIFS.nMaps; ++i) cmbFP_->addItem(QString::number(i));
    cmbFP_->setCurrentIndex(c.cmbFP);
    for (int k = 1; k <= 4; ++k) {
        chkStep_[k]->setChecked(c.chkStep[k]);
        picStep_[k]->setText(QString::fromStdString(c.txtStep[k]));
        QFont f = picStep_[k]->font();
        f.setBold(c.BoldStep == k);
        picStep_[k]->setFont(f);
    }
    sliScale_->setValue(c.sliScale);
    sliRotate_->setValue(c.sliRotate);
    txtS_->setText(QString::fromStdString(c.txtS));
    txtRotate_->setText(QString::fromStdString(c.txtRotate));
    // A locked chaos game shows its moves but takes no change.
    const bool open = c.ControlsEnabled;
    sliScale_->setEnabled(open && c.ScaleEnabled);
    txtS_->setEnabled(open && c.ScaleEnabled);
    sliRotate_->setEnabled(open && c.RotateEnabled);
    txtRotate_->setEnabled(open && c.RotateEnabled);
    cmbFP_->setEnabled(open);
    for (int k = 1; k <= 4; ++k) {
        chkStep_[k]->setEnabled(open);
        picStep_[k]->setEnabled(open);
    }
    setWindowTitle(open ? QString(ScaleCGTitle) : QString::fromStdString(wb_.ScaleCGCaption));
    quiet_ = false;
}

void ChaosMovesDialog::after() {
    showSettings();
    if (changed_) changed_();
}

bool ChaosMovesDialog::eventFilter(QObject* watched, QEvent* event) {
    for (int k = 1; k <= 4; ++k)
        if (watched == picStep_[k] && event->type() == QEvent::MouseButtonPress) {
            picStep_Click(wb_, k);
            after();
            return true;
        }
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        const int code = key == Qt::Key_PageUp     ? 33
                         : key == Qt::Key_PageDown ? 34
                         : key == Qt::Key_Left     ? 37
                         : key == Qt::Key_Right    ? 39
                                                   : 0;
        if (watched == sliScale_ || watched == sliRotate_) {
            if (code == 0) return false;
            if (watched == sliScale_ ? sliScale_KeyDown(wb_, code) : sliRotate_KeyDown(wb_, code)) after();
            return true;  // the slider's own step is not taken
        }
        const bool enter = key == Qt::Key_Return || key == Qt::Key_Enter, escape = key == Qt::Key_Escape;
        if ((watched == txtS_ || watched == txtRotate_) && (enter || escape)) {
            wb_.ScaleCG.txtS = txtS_->text().toStdString();
            wb_.ScaleCG.txtRotate = txtRotate_->text().toStdString();
            if (watched == txtS_) escape ? txtS_Escape(wb_) : void(txtS_Commit(wb_, host_, false));
            if (watched == txtRotate_)
                escape ? txtRotate_Escape(wb_) : void(txtRotate_Commit(wb_, host_, false));
            after();
            return true;
        }
    }
    if (event->type() == QEvent::FocusOut && (watched == txtS_ || watched == txtRotate_) && !finished_) {
        wb_.ScaleCG.txtS = txtS_->text().toStdString();
        wb_.ScaleCG.txtRotate = txtRotate_->text().toStdString();
        watched == txtS_ ? void(txtS_Commit(wb_, host_, true)) : void(txtRotate_Commit(wb_, host_, true));
        after();
    }
    return QDialog::eventFilter(watched, event);
}

void ChaosMovesDialog::closeEvent(QCloseEvent* event) {
    if (!finished_) {
        finished_ = true;
        cmdOk_Click(wb_);
        after();
    }
    QDialog::closeEvent(event);
}

}  // namespace quillane
