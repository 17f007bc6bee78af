#pragma once
// The face every generator window shares: a tool window of the frame, listed in the Window menu while
// open, with Close (keeps the build) and Cancel (restores what stood at the opening). Its close box
// acts as Close. A generator derives from it, fills body() with its controls and calls built() after
// its Create IFS.
#include <QDialog>
#include <functional>

#include "app/app_state.h"
#include "core/host.h"

class QPushButton;
class QVBoxLayout;

namespace quillane {

class MainWindow;

class GeneratorWindow : public QDialog {
    Q_OBJECT
  public:
    GeneratorWindow(MainWindow& frame, int example, const QString& title);
    int example() const { return example_; }
    QWidget* body() const { return body_; }
    QPushButton* closeButton() const { return cmdClose_; }
    QPushButton* cancelButton() const { return cmdCancel_; }

    // cmdClose and cmdCancel.
    void closeGenerator();
    void cancelGenerator();
    // Design > Examples opened it (again): the window shows its state for the current IFS.
    virtual void opened() {}

  protected:
    AppState& state();
    Host& host();
    MainWindow& frame() { return frame_; }
    // After Create IFS: the run notes the build and the frame's windows show it.
    void built();
    // The window's own part of closing (its flags), before it hides.
    virtual void closing() {}
    void closeEvent(QCloseEvent* event) override;
    bool event(QEvent* event) override;

  private:
    MainWindow& frame_;
    int example_;
    QWidget* body_ = nullptr;
    QPushButton* cmdClose_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

using GeneratorFactory = std::function<GeneratorWindow*(MainWindow& frame)>;

// mnuDesignExample(index) runs the generator run's opening and shows the window that make builds (made
// once; a later opening shows the same window again); its Window menu item brings it to the front.
// Examples without a registered window stay disabled.
void RegisterGenerator(MainWindow& frame, int index, GeneratorFactory make, bool lockDrawType = false);
// The open generator window, if any.
GeneratorWindow* OpenGenerator(MainWindow& frame);

}  // namespace quillane
