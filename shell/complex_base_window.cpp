#include "shell/complex_base_window.h"

#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "shell/help_commands.h"
#include "shell/main_window.h"

namespace quillane {
namespace {

QRadioButton* option(QWidget* parent, const char* name, const char* text) {
    auto* b = new QRadioButton(text, parent);
    b->setObjectName(name);
    return b;
}

QPushButton* button(QWidget* parent, const char* name, const char* text) {
    auto* b = new QPushButton(text, parent);
    b->setObjectName(name);
    b->setAutoDefault(false);
    return b;
}

}  // namespace

ComplexBaseWindow::ComplexBaseWindow(MainWindow& frame)
    : GeneratorWindow(frame, ComplexBasesExample, ComplexCaption) {
    auto* layout = new QVBoxLayout(body());
    auto* entry = new QGroupBox("Complex base", body());
    auto* grid = new QGridLayout(entry);
    opt1_ = option(entry, "opt1", "a + bi");
    opt2_ = option(entry, "opt2", "Polar form R, A (radians)");
    auto* forms = new QButtonGroup(this);
    forms->addButton(opt1_);
    forms->addButton(opt2_);
    grid->addWidget(opt1_, 0, 0, 1, 2);
    grid->addWidget(opt2_, 0, 2, 1, 2);
    label1_ = new QLabel("a", entry);
    label1_->setObjectName("Label1");
    label2_ = new QLabel("b", entry);
    label2_->setObjectName("Label2");
    const ComplexForm defaults;
    txta_ = new QLineEdit(QString::fromStdString(defaults.txta), entry);
    txta_->setObjectName("txta");
    txtb_ = new QLineEdit(QString::fromStdString(defaults.txtb), entry);
    txtb_->setObjectName("txtb");
    grid->addWidget(label1_, 1, 0);
    grid->addWidget(txta_, 1, 1);
    grid->addWidget(label2_, 1, 2);
    grid->addWidget(txtb_, 1, 3);
    layout->addWidget(entry);

    auto* method = new QGroupBox("Drawing", body());
    auto* methodLayout = new QVBoxLayout(method);
    optDrawRegular_ = option(method, "optDrawRegular", "Draw as an IFS");
    optDrawBase_ = option(method, "optDrawBase", "Draw by the base method (sums of powers)");
    auto* methods = new QButtonGroup(this);
    methods->addButton(optDrawRegular_);
    methods->addButton(optDrawBase_);
    methodLayout->addWidget(optDrawRegular_);
    methodLayout->addWidget(optDrawBase_);
    optIFScolor_ = option(method, "optIFScolor", ComplexIFSColorCaption);
    optPixelColor_ = option(method, "optPixelColor", "Use pixel count colors");
    auto* colors = new QButtonGroup(this);
    colors->addButton(optIFScolor_);
    colors->addButton(optPixelColor_);
    methodLayout->addWidget(optIFScolor_);
    methodLayout->addWidget(optPixelColor_);
    lblWarning_ = new QLabel("The drawing type stays Random while the base method draws.", method);
    lblWarning_->setObjectName("lblWarning");
    lblWarning_->setWordWrap(true);
    methodLayout->addWidget(lblWarning_);
    layout->addWidget(method);

    auto* row = new QHBoxLayout;
    auto* cmdExample = button(body(), "cmdExample", "Example");
    auto* cmdCreate = button(body(), "cmdCreate", "Create IFS");
    auto* cmdHelp = button(body(), "cmdHelp", "Help");
    row->addWidget(cmdExample);
    row->addWidget(cmdCreate);
    row->addWidget(cmdHelp);
    layout->addLayout(row);

    opt1_->setChecked(true);
    optDrawRegular_->setChecked(true);
    optIFScolor_->setChecked(true);
    showEntryForm();
    showColorOptions();

    connect(opt1_, &QRadioButton::toggled, this, [this] { showEntryForm(); });
    connect(optDrawBase_, &QRadioButton::toggled, this, [this] { chooseMethod(); });
    connect(optPixelColor_, &QRadioButton::toggled, this,
            [this](bool on) { ComplexChooseColor(state(), on); });
    connect(cmdExample, &QPushButton::clicked, this, [this] { nextExample(); });
    connect(cmdCreate, &QPushButton::clicked, this, [this] { create(); });
    connect(cmdHelp, &QPushButton::clicked, this, [this] { ShowHelpTopic(this->frame(), ComplexHelpTopic); });
}

ComplexForm ComplexBaseWindow::form() const {
    ComplexForm f;
    f.polar = opt2_->isChecked();
    f.txta = txta_->text().toStdString();
    f.txtb = txtb_->text().toStdString();
    f.optDrawBase = optDrawBase_->isChecked();
    f.optPixelColor = optPixelColor_->isChecked();
    f.ExampleIndex = exampleIndex_;
    return f;
}

void ComplexBaseWindow::showForm(const ComplexForm& f) {
    (f.polar ? opt2_ : opt1_)->setChecked(true);
    txta_->setText(QString::fromStdString(f.txta));
    txtb_->setText(QString::fromStdString(f.txtb));
    exampleIndex_ = f.ExampleIndex;
    showEntryForm();
}

void ComplexBaseWindow::showEntryForm() {
    const bool polar = opt2_->isChecked();
    label1_->setText(polar ? "R" : "a");
    label2_->setText(polar ? "A" : "b");
}

void ComplexBaseWindow::showColorOptions() {
    const ComplexColorOptions o = ComplexColorOptionsFor(optDrawBase_->isChecked());
    optPixelColor_->setVisible(o.pixelColorVisible);
    if (!o.pixelColorVisible) optIFScolor_->setChecked(true);
    optIFScolor_->setText(QString::fromStdString(o.ifsColorCaption));
    lblWarning_->setVisible(o.warningVisible);
    // The warning needs its height when it shows.
    adjustSize();
}

void ComplexBaseWindow::chooseMethod() {
    showColorOptions();
    ComplexChooseColor(state(), optPixelColor_->isChecked());
    ComplexChooseMethod(state(), host(), optDrawBase_->isChecked());
    frame().refreshWindows();
}

void ComplexBaseWindow::nextExample() {
    ComplexForm f = form();
    ComplexNextExample(f);
    showForm(f);
}

void ComplexBaseWindow::create() {
    switch (ComplexCreate(state(), host(), form())) {
        case ComplexFocus::None:
            built();
            return;
        case ComplexFocus::A:
            txta_->setFocus();
            return;
        case ComplexFocus::B:
            txtb_->setFocus();
            return;
    }
}

void ComplexBaseWindow::closing() {
    ComplexRelease(state());
    // The next opening starts with the regular method, as Close leaves it.
    optDrawRegular_->setChecked(true);
}

}  // namespace quillane
