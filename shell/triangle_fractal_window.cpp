#include "shell/triangle_fractal_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/generator_run.h"
#include "app/grid_generator_commands.h"
#include "shell/help_commands.h"
#include "shell/main_window.h"
#include "shell/picture_widget.h"

namespace quillane {

TriangleFractalWindow::TriangleFractalWindow(MainWindow& frame)
    : GeneratorWindow(frame, TriangleFractalsExample, "Triangle Fractal Design") {
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
    auto* picInst = new QLabel("Click on the triangles\nyou want to remove\nfrom the design.", body());
    picInst->setObjectName("picInst");
    side->addWidget(picInst);
    auto* cmdReset = new QPushButton(tr("Reset"), body());
    cmdReset->setObjectName("cmdReset");
    auto* cmdCreate = new QPushButton(tr("Create IFS"), body());
    cmdCreate->setObjectName("cmdCreate");
    auto* cmdHelp = new QPushButton(tr("Help"), body());
    cmdHelp->setObjectName("cmdHelp");
    for (QPushButton* b : {cmdReset, cmdCreate, cmdHelp}) {
        b->setAutoDefault(false);
        side->addWidget(b);
    }
    side->addStretch(1);
    layout->addLayout(side);
    picCanvas_ = new PictureWidget(body());
    picCanvas_->setObjectName("picCanvas");
    picCanvas_->setSurface(&surface_);
    layout->addWidget(picCanvas_);
    connect(cmdReset, &QPushButton::clicked, this, [this] { drawGrid(); });
    connect(cmdCreate, &QPushButton::clicked, this, [this] {
        if (TriangleFractalCreate(state(), host(), tri_)) built();
    });
    connect(cmdHelp, &QPushButton::clicked, this,
            [this] { ShowHelpTopic(this->frame(), "howtoTriangleFractalDesign.html"); });
    connect(picCanvas_, &PictureWidget::mousePressed, this,
            [this](QPointF world, Qt::MouseButton button, Qt::KeyboardModifiers) {
                if (button == Qt::RightButton) return;
                if (ClickTriangle(tri_, surface_, world.x(), world.y())) picCanvas_->update();
            });
    drawGrid();
}

int TriangleFractalWindow::checkedSize() const {
    for (int n = 2; n <= 10; ++n)
        if (optsize_[n - 2]->isChecked()) return n;
    return 2;
}

void TriangleFractalWindow::drawGrid() {
    DrawTriangles(tri_, surface_, checkedSize());
    picCanvas_->update();
}

}  // namespace quillane
