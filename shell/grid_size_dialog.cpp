#include "shell/grid_size_dialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/numbers.h"

namespace quillane {

GridSizeDialog::GridSizeDialog(Host& host, float x, float y, QWidget* parent) : QDialog(parent), host_(host) {
    setObjectName("frmDesignGridSize");
    setWindowTitle(GridSizeCaption);
    auto* grid = new QGridLayout(this);
    lblxgrid_ = new QLabel(this);
    lblxgrid_->setObjectName("lblxgrid");
    lblygrid_ = new QLabel("y Grid Size", this);
    lblygrid_->setObjectName("lblygrid");
    txtGrid_ = new QLineEdit(QString::fromStdString(Trim(Str(x))), this);
    txtGrid_->setObjectName("txtGrid");
    txtygrid_ = new QLineEdit(QString::fromStdString(Trim(Str(y))), this);
    txtygrid_->setObjectName("txtygrid");
    chkScale_ = new QCheckBox("Different y spacing", this);
    chkScale_->setObjectName("chkScale");
    chkScale_->setChecked(x != y);
    grid->addWidget(lblxgrid_, 0, 0);
    grid->addWidget(txtGrid_, 0, 1);
    grid->addWidget(lblygrid_, 1, 0);
    grid->addWidget(txtygrid_, 1, 1);
    grid->addWidget(chkScale_, 2, 0, 1, 2);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName("cmdOK");
    buttons->button(QDialogButtonBox::Cancel)->setObjectName("cmdCancel");
    grid->addWidget(buttons, 3, 0, 1, 2);
    connect(buttons, &QDialogButtonBox::accepted, this, &GridSizeDialog::ok);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(chkScale_, &QCheckBox::toggled, this, &GridSizeDialog::showScale);
    showScale();
}

void GridSizeDialog::showScale() {
    const bool apart = chkScale_->isChecked();
    lblxgrid_->setText(GridSizeLabel(apart));
    lblygrid_->setVisible(apart);
    txtygrid_->setVisible(apart);
}

void GridSizeDialog::ok() {
    spacing_ = EvaluateGridSize({txtGrid_->text().toStdString(), txtygrid_->text().toStdString(),
                                 chkScale_->isChecked()},
                                host_);
    if (spacing_ && accepts && !accepts(*spacing_)) spacing_.reset();
    if (spacing_) accept();
}

}  // namespace quillane
