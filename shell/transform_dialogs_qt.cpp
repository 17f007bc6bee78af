#include "shell/transform_dialogs_qt.h"

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "app/transform_swap.h"

namespace quillane {

namespace {

// A check's verdict in the form of the dialog: the message, empty when good, and the box.
template <class T>
std::pair<std::string, int> verdict(const DialogCheck<T>& c, std::optional<T>& out) {
    out = c.value;
    return {c.value ? std::string() : c.message, c.box};
}

}  // namespace

TransformDialog::TransformDialog(Host& host, const char* name, const char* title,
                                 const std::vector<Box>& boxes, const std::vector<const char*>& options,
                                 Check check, QWidget* parent)
    : QDialog(parent), host_(host), check_(std::move(check)) {
    setObjectName(name);
    setWindowTitle(title);
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    auto* form = new QFormLayout;
    for (const Box& b : boxes) {
        auto* edit = new QLineEdit(b.text, this);
        edit->setObjectName(b.name);
        form->addRow(b.label, edit);
        boxes_.push_back(edit);
    }
    layout->addLayout(form);
    for (size_t k = 0; k < options.size(); ++k) {
        auto* option = new QRadioButton(options[k], this);
        option->setObjectName(QString("optDirection%1").arg(k));
        option->setChecked(k == 0);
        layout->addWidget(option);
        options_.push_back(option);
    }
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &TransformDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &TransformDialog::reject);
    layout->addWidget(buttons);
    if (!boxes_.empty()) {
        boxes_.front()->setFocus();
        boxes_.front()->selectAll();
    }
}

std::vector<std::string> TransformDialog::texts() const {
    std::vector<std::string> t;
    for (const QLineEdit* e : boxes_) t.push_back(e->text().toStdString());
    return t;
}

int TransformDialog::chosenOption() const {
    for (size_t k = 0; k < options_.size(); ++k)
        if (options_[k]->isChecked()) return static_cast<int>(k);
    return 0;
}

void TransformDialog::accept() {
    const auto [message, faulty] = check_(texts(), chosenOption());
    if (!message.empty()) {
        host_.warn(TransformDialogTitle, message);
        QLineEdit* e = box(faulty);
        e->setFocus();
        e->selectAll();
        return;  // the values stay, the dialog stays open
    }
    QDialog::accept();
}

std::optional<float> AskScalePercent(Host& host, QWidget* parent) {
    std::optional<float> value;
    TransformDialog dialog(
        host, "frmScale", "Scale", {{"txtScale", "Scale (%)", "100"}}, {},
        [&value](const std::vector<std::string>& t, int) { return verdict(CheckScaleDialog(t[0]), value); },
        parent);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return value;
}

namespace {

// frmRotate and frmRotateCG differ only in name and title.
std::optional<double> askRotation(Host& host, QWidget* parent, int direction, const char* name, const char* title) {
    std::optional<double> value;
    TransformDialog dialog(
        host, name, title, {{"txtRotate", "Angle (degrees)", "90"}},
        {"Counterclockwise", "Clockwise"},
        [&value](const std::vector<std::string>& t, int option) {
            return verdict(CheckRotateDialog(t[0], option), value);
        },
        parent);
    dialog.option(direction == 1 ? 1 : 0)->setChecked(true);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return value;
}

}  // namespace

std::optional<double> AskRotationAngle(Host& host, QWidget* parent, int direction) {
    return askRotation(host, parent, direction, "frmRotate", "Rotate");
}

std::optional<double> AskCGRotationAngle(Host& host, QWidget* parent, int direction) {
    return askRotation(host, parent, direction, "frmRotateCG", RotateCGTitle);
}

std::optional<SkewValues> AskStretchShear(Host& host, QWidget* parent) {
    std::optional<SkewValues> value;
    const SkewDialogText defaults;
    TransformDialog dialog(
        host, "frmSkew", "Stretch/Shear",
        {{"txtStrHori", "Horizontal stretch (%)", defaults.txtStrHori.c_str()},
         {"txtStrVert", "Vertical stretch (%)", defaults.txtStrVert.c_str()},
         {"txtSkewHori", "Horizontal shear (degrees)", defaults.txtSkewHori.c_str()},
         {"txtSkewVert", "Vertical shear (degrees)", defaults.txtSkewVert.c_str()}},
        {},
        [&value](const std::vector<std::string>& t, int) {
            return verdict(CheckSkewDialog({t[0], t[1], t[2], t[3]}), value);
        },
        parent);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return value;
}

void RunSwapDialog(Workbench& wb, const std::function<void()>& redraw, QWidget* parent) {
    SwapDialog state = OpenSwapDialog(wb);
    QDialog dialog(parent);
    dialog.setObjectName("frmSwap");
    dialog.setWindowTitle("Swap Transformations");
    auto* layout = new QVBoxLayout(&dialog);
    auto* lists = new QHBoxLayout;
    QComboBox* combos[2];
    for (int k = 0; k < 2; ++k) {
        combos[k] = new QComboBox(&dialog);
        combos[k]->setObjectName(k == 0 ? "cmbList1" : "cmbList2");
        for (int i = 1; i <= wb.CurrentIFS.nMaps; ++i) combos[k]->addItem(QString::number(i));
        combos[k]->setCurrentIndex((k == 0 ? state.cmbList1 : state.cmbList2) - 1);
        lists->addWidget(combos[k]);
    }
    layout->addLayout(lists);
    QRadioButton* kinds[3];
    const char* kindCaptions[3] = {"Swap IFS and Colors", "Swap Colors only", "Swap IFS only"};
    for (int k = 0; k < 3; ++k) {
        kinds[k] = new QRadioButton(kindCaptions[k], &dialog);
        kinds[k]->setObjectName(QString("OptSwap%1").arg(k));
        kinds[k]->setChecked(k == 0);
        layout->addWidget(kinds[k]);
    }
    auto* buttons = new QHBoxLayout;
    auto* cmdSwap = new QPushButton("Swap", &dialog);
    cmdSwap->setObjectName("cmdSwap");
    auto* cmdClose = new QPushButton("Close", &dialog);
    cmdClose->setObjectName("cmdClose");
    auto* cmdCancel = new QPushButton("Cancel", &dialog);
    cmdCancel->setObjectName("cmdCancel");
    for (QPushButton* b : {cmdSwap, cmdClose, cmdCancel}) buttons->addWidget(b);
    layout->addLayout(buttons);
    bool cancelled = false;
    QObject::connect(cmdSwap, &QPushButton::clicked, &dialog, [&] {
        state.cmbList1 = combos[0]->currentIndex() + 1;
        state.cmbList2 = combos[1]->currentIndex() + 1;
        int kind = 0;
        for (int k = 0; k < 3; ++k)
            if (kinds[k]->isChecked()) kind = k;
        cmdSwap_Click(wb, state, static_cast<SwapKind>(kind));
        redraw();
    });
    QObject::connect(cmdClose, &QPushButton::clicked, &dialog, &QDialog::accept);
    QObject::connect(cmdCancel, &QPushButton::clicked, &dialog, [&] {
        cancelled = true;
        dialog.reject();
    });
    dialog.exec();
    // The close box counts as Close.
    if (cancelled)
        SwapDialogCancel(wb, state);
    else
        SwapDialogClose(wb, state);
    redraw();
}

}  // namespace quillane
