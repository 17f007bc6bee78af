#pragma once
// frmAnimatedGifSize ("Create Fractal Movie") and frmMovieSize ("Set Frame Size").
#include <QDialog>

#include "app/movie_commands.h"

class QCheckBox;
class QLineEdit;
class QRadioButton;

namespace quillane {

class AnimatedGifSizeDialog : public QDialog {
    Q_OBJECT
  public:
    AnimatedGifSizeDialog(Host& host, QWidget* parent = nullptr);
    AnimatedGifChoices choices() const;
    QLineEdit* txtMovieSize() const { return txtMovieSize_; }
    QLineEdit* txtTime() const { return txtTime_; }

  private:
    void cmdOk();
    Host& host_;
    QLineEdit *txtMovieSize_, *txtTime_, *txtLoop_;
    QRadioButton* optLoop_[2];
    QCheckBox *chkMovieviewer_, *chkDesignMovie_;
};

}  // namespace quillane
