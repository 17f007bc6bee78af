#include "shell/pythagorean_window.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

#include "core/numbers.h"
#include "shell/surface_image.h"

namespace quillane {
namespace {

constexpr int DefaultAngle = 45;
constexpr int ImageSide = 160;

}  // namespace

PythagoreanWindow::PythagoreanWindow(MainWindow& frame)
    : GeneratorWindow(frame, PythagoreanTreesExample, PythagoreanCaption) {
    auto* layout = new QVBoxLayout(body());
    picImage_ = new QLabel(body());
    picImage_->setObjectName("picImage");
    picImage_->setAlignment(Qt::AlignCenter);
    layout->addWidget(picImage_);

    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel("Angle (degrees)", body()));
    sliTheta_ = new QSlider(Qt::Horizontal, body());
    sliTheta_->setObjectName("sliTheta");
    sliTheta_->setRange(PythMinAngle, PythMaxAngle);
    sliTheta_->setValue(DefaultAngle);
    row->addWidget(sliTheta_, 1);
    txtTheta_ = new QLineEdit(QString::number(DefaultAngle), body());
    txtTheta_->setObjectName("txtTheta");
    txtTheta_->setMaximumWidth(60);
    row->addWidget(txtTheta_);
    layout->addLayout(row);

    auto* cmdSetup = new QPushButton("Create IFS", body());
    cmdSetup->setObjectName("cmdSetup");
    layout->addWidget(cmdSetup);

    connect(sliTheta_, &QSlider::valueChanged, this, [this](int v) {
        txtTheta_->setText(QString::fromStdString(PythThetaText(v)));
        showImage(static_cast<float>(v));
    });
    connect(txtTheta_, &QLineEdit::editingFinished, this, [this] { thetaEntered(); });
    connect(cmdSetup, &QPushButton::clicked, this, [this] { create(); });
    showImage(DefaultAngle);
}

void PythagoreanWindow::showImage(float angle) {
    picImage_->setPixmap(QPixmap::fromImage(ImageOfSurface(PythagoreanImage(angle, ImageSide))));
}

bool PythagoreanWindow::thetaEntered() {
    // The message box takes the focus from the box, which must not check it again.
    if (checking_) return false;
    checking_ = true;
    const auto angle = PythCheckTheta(txtTheta_->text().toStdString(), host());
    checking_ = false;
    if (!angle) return false;
    const QSignalBlocker quiet(sliTheta_);
    sliTheta_->setValue(PythSliderValue(*angle));
    showImage(*angle);
    return true;
}

void PythagoreanWindow::create() {
    if (checking_) return;
    checking_ = true;
    const bool done = PythagoreanSetup(state(), host(), txtTheta_->text().toStdString());
    checking_ = false;
    if (!done) {
        txtTheta_->setFocus();
        return;
    }
    const QSignalBlocker quiet(sliTheta_);
    sliTheta_->setValue(PythSliderValue(static_cast<float>(Val(txtTheta_->text().toStdString()))));
    built();
}

}  // namespace quillane
