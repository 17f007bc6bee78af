#pragma once
// frmAnimDetGif, "Create Det Movie": the levels of the deterministic drawing as an animated GIF.
#include <QWidget>
#include <functional>

#include "app/movie_commands.h"

class QCheckBox;
class QComboBox;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace quillane {

class DetMovieDialog : public QWidget {
    Q_OBJECT
  public:
    DetMovieDialog(AppState& s, Host& host, std::function<void()> showFractal,
                   std::function<void(const QString&, const QString&)> showMovie, QWidget* parent = nullptr);
    DetMovieChoices choices() const;
    QComboBox* CmbIterations() const { return cmbIterations_; }
    QLineEdit* txtTime() const { return txtTime_; }
    QPushButton* cmdGo() const { return cmdGo_; }
    QPushButton* cmdStop() const { return cmdStop_; }
    QPushButton* cmdCancel() const { return cmdCancel_; }
    QCheckBox* chkViewer() const { return chkViewer_; }

  private:
    void go();
    AppState& s_;
    Host& host_;
    std::function<void()> showFractal_;
    std::function<void(const QString&, const QString&)> showMovie_;
    QComboBox* cmbIterations_;
    QLineEdit *txtTime_, *txtLoop_;
    QRadioButton* optLoop_[2];
    QCheckBox* chkViewer_;
    QPushButton *cmdGo_, *cmdStop_, *cmdCancel_;
};

}  // namespace quillane
