#include "shell/det_movie_dialog.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "movies/movie_options.h"

namespace quillane {

DetMovieDialog::DetMovieDialog(AppState& s, Host& host, std::function<void()> showFractal,
                               std::function<void(const QString&, const QString&)> showMovie, QWidget* parent)
    : QWidget(parent, Qt::Window),
      s_(s),
      host_(host),
      showFractal_(std::move(showFractal)),
      showMovie_(std::move(showMovie)) {
    setObjectName("frmAnimDetGif");
    setWindowTitle(DetMovieCaption);
    const DetMovieChoices d;
    cmbIterations_ = new QComboBox(this);
    for (int k = 1; k <= 75; ++k) cmbIterations_->addItem(QString::number(k));
    cmbIterations_->setCurrentIndex(0);
    txtTime_ = new QLineEdit(QString::fromStdString(d.txtTime), this);
    txtLoop_ = new QLineEdit(QString::fromStdString(d.txtLoop), this);
    optLoop_[0] = new QRadioButton("Repeat animation indefinitely", this);
    optLoop_[1] = new QRadioButton("Play it", this);
    optLoop_[0]->setChecked(true);
    chkViewer_ = new QCheckBox("Start Movie Viewer when finished", this);
    chkViewer_->setChecked(d.chkViewer);
    cmdGo_ = new QPushButton("Go", this);
    cmdStop_ = new QPushButton("Stop", this);
    cmdCancel_ = new QPushButton("Cancel", this);
    auto* form = new QFormLayout;
    form->addRow("Iterations", cmbIterations_);
    form->addRow("Display time (in milliseconds)", txtTime_);
    auto* loopRow = new QHBoxLayout;
    loopRow->addWidget(optLoop_[1]);
    loopRow->addWidget(txtLoop_);
    loopRow->addWidget(new QLabel("times", this));
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(cmdGo_);
    buttons->addWidget(cmdStop_);
    buttons->addWidget(cmdCancel_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(optLoop_[0]);
    layout->addLayout(loopRow);
    layout->addWidget(chkViewer_);
    layout->addLayout(buttons);
    connect(cmdGo_, &QPushButton::clicked, this, [this] { go(); });
    connect(cmdStop_, &QPushButton::clicked, this, [this] {
        s_.pics.Det.IterationAbort = true;
        cmdStop_->setFocus();
    });
    connect(cmdCancel_, &QPushButton::clicked, this, &QWidget::hide);
}

DetMovieChoices DetMovieDialog::choices() const {
    DetMovieChoices c;
    c.txtTime = txtTime_->text().toStdString();
    c.CmbIterations = cmbIterations_->currentIndex();
    c.optLoop = optLoop_[1]->isChecked() ? 1 : 0;
    c.txtLoop = txtLoop_->text().toStdString();
    c.chkViewer = chkViewer_->isChecked();
    return c;
}

void DetMovieDialog::go() {
    if (!CheckDetMovieTime(txtTime_->text().toStdString()).empty()) {
        host_.warn(MovieErrorTitle, FrameRateMessage);
        txtTime_->setFocus();
        return;
    }
    if (showFractal_) showFractal_();
    const auto file = DetMovieGo(s_, host_, choices());
    if (showFractal_) showFractal_();
    if (file) showMovie_(QString::fromStdString(*file), QString::fromStdString(DetViewerCaptionFor(*file)));
}

}  // namespace quillane
