#pragma once
// frmCombinations, "Fractal Movie Creator": two lists of the fractal list, the frame and its design, the
// play buttons and keys, and the File and Options menus. Every control forwards to app/movie_commands.
#include <QWidget>
#include <functional>

#include "app/movie_commands.h"

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QListWidget;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QAction;

namespace quillane {

class PictureWidget;

class MovieCreatorWindow : public QWidget {
    Q_OBJECT
  public:
    // `showMovie` opens a written movie in the viewer with a caption.
    MovieCreatorWindow(AppState& s, Host& host, std::function<void(const QString&, const QString&)> showMovie,
                       QWidget* parent = nullptr);
    MovieCreator& creator() { return mc_; }
    // Fills both lists again from the fractal list.
    void reload();
    QListWidget* List1() const { return list1_; }
    QListWidget* List2() const { return list2_; }
    QLineEdit* txtSteps() const { return txtSteps_; }
    QLineEdit* txtIterations() const { return txtIterations_; }
    QLineEdit* txtFrame() const { return txtFrame_; }
    QComboBox* cmbRotate() const { return cmbRotate_; }
    QPushButton* cmdStop() const { return cmdStop_; }
    QPushButton* cmdplay(int mode) const { return play_[mode - 1]; }
    QAction* menuItem(const QString& name) const;
    void play(MovieMode mode);
    void saveMovie(const AnimatedGifChoices& c);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void buildMenus(QMenuBar* bar);
    void listClicked();
    void takeText();
    void showPictures();
    void buildViewMenus(QMenuBar* bar);
    // The green box around the active view.
    void markActiveView();
    AppState& s_;
    Host& host_;
    std::function<void(const QString&, const QString&)> showMovie_;
    MovieCreator mc_;
    QListWidget *list1_, *list2_;
    QLineEdit *txtSteps_, *txtIterations_, *txtFrame_;
    QComboBox* cmbRotate_;
    QLabel *lblRotate_, *lblMsg_;
    QProgressBar* pgrMakeMovie_;
    QPushButton* play_[4];
    QPushButton* cmdStop_;
    PictureWidget *picCanvas_, *picdesign_;
    QFrame *canvasBox_, *designBox_;
};

}  // namespace quillane
