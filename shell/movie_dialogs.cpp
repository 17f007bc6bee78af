#include "shell/movie_dialogs.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QVBoxLayout>

#include "movies/movie_options.h"

namespace quillane {

AnimatedGifSizeDialog::AnimatedGifSizeDialog(Host& host, QWidget* parent) : QDialog(parent), host_(host) {
    setObjectName("frmAnimatedGifSize");
    setWindowTitle(AnimatedGifSizeCaption);
    const AnimatedGifChoices d;
    txtMovieSize_ = new QLineEdit(QString::fromStdString(d.txtMovieSize), this);
    txtTime_ = new QLineEdit(QString::fromStdString(d.txtTime), this);
    txtLoop_ = new QLineEdit(QString::fromStdString(d.txtLoop), this);
    optLoop_[0] = new QRadioButton("Repeat animation indefinitely", this);
    optLoop_[1] = new QRadioButton("Play it", this);
    optLoop_[0]->setChecked(true);
    chkMovieviewer_ = new QCheckBox("Start Movie Viewer when finished", this);
    chkMovieviewer_->setChecked(d.chkMovieviewer);
    chkDesignMovie_ = new QCheckBox("Also create animated gif of design window", this);
    auto* form = new QFormLayout;
    form->addRow("Animated Gif Movie Size (pixels)", txtMovieSize_);
    form->addRow("Display time (in milliseconds)", txtTime_);
    auto* loopRow = new QHBoxLayout;
    loopRow->addWidget(optLoop_[1]);
    loopRow->addWidget(txtLoop_);
    loopRow->addWidget(new QLabel("times", this));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, [this] { cmdOk(); });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(optLoop_[0]);
    layout->addLayout(loopRow);
    layout->addWidget(chkMovieviewer_);
    layout->addWidget(chkDesignMovie_);
    layout->addWidget(buttons);
}

AnimatedGifChoices AnimatedGifSizeDialog::choices() const {
    AnimatedGifChoices c;
    c.txtMovieSize = txtMovieSize_->text().toStdString();
    c.txtTime = txtTime_->text().toStdString();
    c.optLoop = optLoop_[1]->isChecked() ? 1 : 0;
    c.txtLoop = txtLoop_->text().toStdString();
    c.chkMovieviewer = chkMovieviewer_->isChecked();
    c.chkDesignMovie = chkDesignMovie_->isChecked();
    return c;
}

void AnimatedGifSizeDialog::cmdOk() {
    const std::string e =
        CheckAnimatedGifSize(txtTime_->text().toStdString(), txtMovieSize_->text().toStdString());
    if (!e.empty()) {
        host_.warn(MovieErrorTitle, e);
        (e == FrameRateMessage ? txtTime_ : txtMovieSize_)->setFocus();
        return;
    }
    accept();
}

}  // namespace quillane
