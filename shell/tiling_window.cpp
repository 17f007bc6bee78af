#include "shell/tiling_window.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegularExpressionValidator>
#include <QTimer>
#include <QVBoxLayout>

#include "app/help_commands.h"
#include "shell/help_commands.h"
#include "shell/main_window.h"
#include "shell/picture_widget.h"
#include "shell/tiling_settings_window.h"

namespace quillane {
namespace {

QLineEdit* numberBox(QWidget* parent, const QString& name, const std::string& text) {
    auto* edit = new QLineEdit(QString::fromStdString(text), parent);
    edit->setObjectName(name);
    edit->setMaximumWidth(70);
    return edit;
}

// The formulas beside the matrices: T = M^-1 alone, or conjugated by B.
const char* methodText(bool basis) {
    return basis ? "T = B M\u207B\u00B9 B\u207B\u00B9\nmaps: T(x) + B(u, v)"
                 : "T = M\u207B\u00B9\nmaps: T(x) + (u, v)";
}

}  // namespace

TilingWindow::TilingWindow(MainWindow& frame) : GeneratorWindow(frame, TilingsExample, TilingCaption) {
    setObjectName("frmTiling");
    auto* layout = new QHBoxLayout(body());
    auto* side = new QVBoxLayout;

    auto* frameM = new QGroupBox("M", body());
    auto* gridM = new QGridLayout(frameM);
    // Integers only: the common numeric filter without the point.
    auto* integers = new QRegularExpressionValidator(QRegularExpression("[-+]?[0-9]*"), this);
    for (int k = 0; k < 4; ++k) {
        txtM_[static_cast<size_t>(k)] =
            numberBox(frameM, QStringLiteral("txtM(%1)").arg(k), form_.txtM[static_cast<size_t>(k)]);
        txtM_[static_cast<size_t>(k)]->setValidator(integers);
        gridM->addWidget(txtM_[static_cast<size_t>(k)], k / 2, k % 2);
        connect(txtM_[static_cast<size_t>(k)], &QLineEdit::textChanged, this, [this] { showLabels(); });
    }
    side->addWidget(frameM);

    auto* eig = new QGroupBox("Eigenvalues modulus:", body());
    auto* eigLayout = new QVBoxLayout(eig);
    lblDet_ = new QLabel(eig);
    lblDet_->setObjectName("lblDet");
    lblTrace_ = new QLabel(eig);
    lblTrace_->setObjectName("lblTrace");
    lblEigType_ = new QLabel(eig);
    lblEigType_->setObjectName("lblEigType");
    lbleig1_ = new QLabel(eig);
    lbleig1_->setObjectName("lbleig1");
    lbleig2_ = new QLabel(eig);
    lbleig2_->setObjectName("lbleig2");
    for (QLabel* l : {lblDet_, lblTrace_, lblEigType_, lbleig1_, lbleig2_}) eigLayout->addWidget(l);
    side->addWidget(eig);

    chkbasis_ = new QCheckBox("Change of basis", body());
    chkbasis_->setObjectName("chkbasis");
    side->addWidget(chkbasis_);
    lblB_ = new QLabel("B", body());
    lblB_->setObjectName("lblB");
    lblB_->hide();
    side->addWidget(lblB_);
    auto* gridB = new QGridLayout;
    for (int k = 0; k < 4; ++k) {
        txtb_[static_cast<size_t>(k)] =
            numberBox(body(), QStringLiteral("txtb(%1)").arg(k), form_.txtb[static_cast<size_t>(k)]);
        txtb_[static_cast<size_t>(k)]->setEnabled(false);
        gridB->addWidget(txtb_[static_cast<size_t>(k)], k / 2, k % 2);
    }
    side->addLayout(gridB);
    picMethod_ = new QLabel(methodText(false), body());
    picMethod_->setObjectName("picMethod1");
    side->addWidget(picMethod_);

    auto* rvRow = new QHBoxLayout;
    rvRow->addWidget(new QLabel("Residue vectors:", body()));
    lblRV_ = new QLabel("0", body());
    lblRV_->setObjectName("lblRV");
    rvRow->addWidget(lblRV_);
    side->addLayout(rvRow);
    auto* cmdDraw = new QPushButton("Draw Lattice", body());
    cmdDraw->setObjectName("cmdDraw");
    auto* cmdClear = new QPushButton("Clear Lattice", body());
    cmdClear->setObjectName("cmdClear");
    auto* cmdApply = new QPushButton("Create IFS", body());
    cmdApply->setObjectName("cmdApply");
    auto* cmdHelp = new QPushButton("Help", body());
    cmdHelp->setObjectName("cmdHelp");
    for (QPushButton* b : {cmdDraw, cmdClear, cmdApply, cmdHelp}) {
        b->setAutoDefault(false);
        side->addWidget(b);
    }
    side->addStretch(1);
    layout->addLayout(side);

    picDraw_ = new PictureWidget(body());
    picDraw_->setObjectName("picDraw");
    picDraw_->setSurface(&form_.picDraw);
    picDraw_->setFocusPolicy(Qt::StrongFocus);
    picDraw_->installEventFilter(this);
    form_.picDraw.clear();
    layout->addWidget(picDraw_, 1);

    connect(chkbasis_, &QCheckBox::toggled, this, [this](bool on) { basisChecked(on); });
    connect(cmdDraw, &QPushButton::clicked, this, [this] { drawLattice(); });
    connect(cmdClear, &QPushButton::clicked, this, [this] { clearLattice(); });
    connect(cmdApply, &QPushButton::clicked, this, [this] { createIFS(); });
    connect(cmdHelp, &QPushButton::clicked, this, [this] { ShowHelpTopic(this->frame(), TilingHelpTopic); });
    connect(picDraw_, &PictureWidget::mouseReleased, this,
            [this](QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers, QPoint global) {
                if (button == Qt::RightButton) {
                    if (QMenu* popup = this->frame().menu("mnuPopup")) popup->popup(global);
                    return;
                }
                readBoxes();
                if (TilingLatticeClick(state().pics.Tiling, host(), form_, world.x(), world.y())) {
                    lblRV_->setText(QString::fromStdString(form_.lblRV));
                    picDraw_->update();
                }
            });
    // Every box selects all its text when it gets the focus.
    for (auto* box : txtM_) box->installEventFilter(this);
    for (auto* box : txtb_) box->installEventFilter(this);
    state().pics.Tiling.chkbasis = false;
    showLabels();
}

void TilingWindow::readBoxes() {
    for (size_t k = 0; k < 4; ++k) {
        form_.txtM[k] = txtM_[k]->text().toStdString();
        form_.txtb[k] = txtb_[k]->text().toStdString();
    }
}

void TilingWindow::showLabels() {
    readBoxes();
    const TilingEigenLabels l = EigenLabels(ReadTilingMatrix(form_.txtM));
    lblDet_->setText(QString::fromStdString(l.lblDet));
    lblTrace_->setText(QString::fromStdString(l.lblTrace));
    lblEigType_->setText(QString::fromStdString(l.lblEigType));
    lbleig1_->setText(QString::fromStdString(l.lbleig1));
    lbleig2_->setText(QString::fromStdString(l.lbleig2));
}

void TilingWindow::basisChecked(bool on) {
    SetTilingBasisCheck(state().pics.Tiling, form_, on);
    lblB_->setVisible(on);
    for (auto* box : txtb_) box->setEnabled(on);
    picMethod_->setText(methodText(on));
    if (on)
        txtb_[0]->setFocus();
    else
        picDraw_->setFocus();
}

void TilingWindow::drawLattice() {
    readBoxes();
    if (!TilingDrawLattice(state().pics.Tiling, host(), form_)) return;
    lblRV_->setText(QString::fromStdString(form_.lblRV));
    picDraw_->update();
    picDraw_->setFocus();
}

void TilingWindow::clearLattice() {
    TilingClearLattice(form_);
    lblRV_->setText(QString::fromStdString(form_.lblRV));
    picDraw_->update();
}

void TilingWindow::createIFS() {
    readBoxes();
    if (!TilingCreate(state(), host(), form_)) {
        if (form_.lattice.nResidues() < 2) picDraw_->setFocus();
        return;
    }
    built();
    RefreshTilingSettings(frame());
}

bool TilingWindow::eventFilter(QObject* watched, QEvent* event) {
    if (watched == picDraw_ && (event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease)) {
        auto* key = static_cast<QKeyEvent*>(event);
        int code = 0;
        switch (key->key()) {
            case Qt::Key_PageUp:
                code = TilingKeyPageUp;
                break;
            case Qt::Key_PageDown:
                code = TilingKeyPageDown;
                break;
            case Qt::Key_Home:
                code = TilingKeyHome;
                break;
            case Qt::Key_Left:
                code = TilingKeyLeft;
                break;
            case Qt::Key_Up:
                code = TilingKeyUp;
                break;
            case Qt::Key_Right:
                code = TilingKeyRight;
                break;
            case Qt::Key_Down:
                code = TilingKeyDown;
                break;
            default:
                return false;
        }
        if (event->type() == QEvent::KeyRelease) {
            if (!key->isAutoRepeat()) TilingLatticeKeyUp(form_);
        } else {
            readBoxes();
            if (TilingLatticeKeyDown(form_, code, key->modifiers() & Qt::ControlModifier)) picDraw_->update();
        }
        return true;
    }
    if (event->type() == QEvent::FocusIn)
        if (auto* box = qobject_cast<QLineEdit*>(watched))
            QTimer::singleShot(0, box, [box] { box->selectAll(); });
    return GeneratorWindow::eventFilter(watched, event);
}

void TilingWindow::closing() {
    picDraw_->setFocus();
}

}  // namespace quillane
