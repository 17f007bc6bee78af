#include "shell/box_fractal_window.h"

#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/generator_run.h"
#include "app/grid_generator_commands.h"
#include "shell/help_commands.h"
#include "shell/main_window.h"
#include "shell/picture_widget.h"

namespace quillane {

BoxFractalWindow::BoxFractalWindow(MainWindow& frame)
    : GeneratorWindow(frame, BoxFractalsExample, "Box Fractal Design") {
    auto* layout = new QHBoxLayout(body());
    auto* side = new QVBoxLayout;
    auto* sizes = new QGroupBox(tr("Size"), body());
    auto* sizeGrid = new QGridLayout(sizes);
    for (int n = 2; n <= 10; ++n) {
        auto* option = new QRadioButton(QString::number(n), sizes);
        option->setObjectName(QStringLiteral("optsize(%1)").arg(n));
        sizeGrid->addWidget(option, (n - 2) / 3, (n - 2) % 3);
        optsize_[n - 2] = option;
        connect(option, &QRadioButton::clicked, this, [this] { drawGrid(); });
    }
    optsize_[0]->setChecked(true);
    side->addWidget(sizes);
    auto* picInst = new QLabel("Click on the boxes\nyou want to remove", body());
    picInst->setObjectName("picInst");
    side->addWidget(picInst);
    auto* cmdReset = new QPushButton(tr("Reset"), body());
    cmdReset->setObjectName("cmdReset");
    auto* cmdSetup = new QPushButton(tr("Create IFS"), body());
    cmdSetup->setObjectName("cmdSetup");
    auto* cmdHelp = new QPushButton(tr("Help"), body());
    cmdHelp->setObjectName("cmdHelp");
    for (QPushButton* b : {cmdReset, cmdSetup, cmdHelp}) {
        b->setAutoDefault(false);
        side->addWidget(b);
    }
    side->addStretch(1);
    layout->addLayout(side);
    picBox_ = new PictureWidget(body());
    picBox_->setObjectName("picBox");
    picBox_->setSurface(&surface_);
    layout->addWidget(picBox_);
    connect(cmdReset, &QPushButton::clicked, this, [this] { drawGrid(); });
    connect(cmdSetup, &QPushButton::clicked, this, [this] { create(); });
    connect(cmdHelp, &QPushButton::clicked, this,
            [this] { ShowHelpTopic(this->frame(), "howtoCreateBoxFractalDesign.html"); });
    connect(picBox_, &PictureWidget::mouseReleased, this,
            [this](QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers, QPoint global) {
                if (button == Qt::LeftButton) {
                    if (ClickBox(box_, surface_, world.x(), world.y())) picBox_->update();
                } else if (button == Qt::RightButton) {
                    if (QMenu* popup = this->frame().menu("mnuPopup")) popup->popup(global);
                }
            });
    drawGrid();
}

int BoxFractalWindow::checkedSize() const {
    for (int n = 2; n <= 10; ++n)
        if (optsize_[n - 2]->isChecked()) return n;
    return 2;
}

void BoxFractalWindow::drawGrid() {
    DrawBoxes2(box_, surface_, checkedSize());
    picBox_->update();
}

void BoxFractalWindow::create() {
    if (BoxFractalSetup(state(), host(), box_)) built();
}

bool BoxFractalWindow::event(QEvent* event) {
    // Activation reads the box size again from the option in force.
    if (event->type() == QEvent::WindowActivate) box_.BoxSize = GetBoxSize(checkedSize());
    return GeneratorWindow::event(event);
}

}  // namespace quillane
