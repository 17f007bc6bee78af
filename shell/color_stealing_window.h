#pragma once
// frmColorStealing, "Color Stealing Options": the colouring IFS list, the picture to steal from and
// the trace of the colouring orbit. Every control forwards to app/color_stealing_commands.
#include <QDialog>
#include <functional>
#include <string>

#include "app/app_state.h"
#include "app/color_stealing_commands.h"
#include "core/host.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class QStackedWidget;
class QTimer;

namespace quillane {

class ColorSwatch;
class PictureWidget;

class ColorStealingWindow : public QDialog {
    Q_OBJECT
  public:
    static constexpr int PictureAreaWidth = 360, PictureAreaHeight = 300;
    // Loads the default picture from programDir; `changed` runs after a control changed the state.
    ColorStealingWindow(AppState& s, Host& host, const std::string& programDir, std::function<void()> changed,
                        QWidget* parent = nullptr);

    // Shows the state: the list, the check boxes and the picture in use.
    void refresh();
    // ConfigureComboList, with the combo box following; the drawing's silent repair calls it.
    void configureComboList();
    // mnuEditPaste with this window active.
    bool paste(const std::optional<RasterSurface>& clipboard);
    // The window was the last one a person activated, and no child of the frame was since.
    bool lastActive() const { return lastActive_; }
    void setLastActive(bool active) { lastActive_ = active; }

    ColorStealingForm& form() { return form_; }
    QComboBox* listColoringIFS() const { return listColoringIFS_; }
    QPushButton* cmdFile() const { return cmdFile_; }
    QPushButton* cmdRefresh() const { return cmdRefresh_; }
    QPushButton* cmdSave() const { return cmdSave_; }
    QPushButton* cmdShow() const { return cmdShow_; }
    QPushButton* cmdHide() const { return cmdHide_; }
    QCheckBox* chkTrace() const { return chkTrace_; }
    QCheckBox* chkMethod() const { return chkMethod_; }
    ColorSwatch* picTraceColor() const { return picTraceColor_; }
    // picImage or picTrace, whichever chkTrace shows.
    PictureWidget* picImage() const { return picImage_; }
    // The full-size picture of cmdShow.
    PictureWidget* picFull() const { return picFull_; }
    QStackedWidget* pages() const { return pages_; }

  signals:
    void hidden();

  protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    bool event(QEvent* event) override;

  private:
    // The window's place, from the frame's corner in twips, into the settings kept at exit.
    void keepPlace();
    void build();
    QWidget* buildControls();
    QWidget* buildFullSize();
    void changed();
    void showPicture();

    AppState& s_;
    Host& host_;
    std::function<void()> changed_;
    ColorStealingForm form_;
    bool refreshing_ = false;
    bool lastActive_ = false;
    QStackedWidget* pages_ = nullptr;
    QComboBox* listColoringIFS_ = nullptr;
    QPushButton *cmdFile_ = nullptr, *cmdRefresh_ = nullptr, *cmdSave_ = nullptr, *cmdShow_ = nullptr,
                *cmdHide_ = nullptr;
    QCheckBox *chkTrace_ = nullptr, *chkMethod_ = nullptr;
    ColorSwatch* picTraceColor_ = nullptr;
    PictureWidget* picImage_ = nullptr;
    PictureWidget* picFull_ = nullptr;
    QTimer* traceTimer_ = nullptr;
};

}  // namespace quillane
