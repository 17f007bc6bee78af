#pragma once
// frmComplex: the base of a two-map IFS as a + bi or in polar form, the examples, and the choice
// between drawing it as an IFS and drawing it by the base method.
#include "app/complex_base_commands.h"
#include "shell/generator_window.h"

class QLabel;
class QLineEdit;
class QRadioButton;

namespace quillane {

class ComplexBaseWindow : public GeneratorWindow {
    Q_OBJECT
  public:
    explicit ComplexBaseWindow(MainWindow& frame);
    // cmdExample, cmdCreate.
    void nextExample();
    void create();

  protected:
    void closing() override;

  private:
    ComplexForm form() const;
    void showForm(const ComplexForm& f);
    void showEntryForm();
    void showColorOptions();
    void chooseMethod();

    int exampleIndex_ = 0;
    QRadioButton* opt1_ = nullptr;
    QRadioButton* opt2_ = nullptr;
    QLabel* label1_ = nullptr;
    QLabel* label2_ = nullptr;
    QLineEdit* txta_ = nullptr;
    QLineEdit* txtb_ = nullptr;
    QRadioButton* optDrawRegular_ = nullptr;
    QRadioButton* optDrawBase_ = nullptr;
    QRadioButton* optIFScolor_ = nullptr;
    QRadioButton* optPixelColor_ = nullptr;
    QLabel* lblWarning_ = nullptr;
};

}  // namespace quillane
