#include "shell/list_dialogs.h"

#include <QDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillane {

namespace {

QDialogButtonBox* okCancel(QDialog& dialog) {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    return buttons;
}

// picName: the names of the list in columns of ten, each column as wide as its widest name plus a gap.
QWidget* nameColumns(QWidget* parent, const ListNameRequest& request) {
    auto* picName = new QWidget(parent);
    picName->setObjectName("picName");
    auto* grid = new QGridLayout(picName);
    grid->setHorizontalSpacing(parent->fontMetrics().horizontalAdvance(' ') * 2 + 13);  // the 200-twip gap
    for (int c = 0; c < static_cast<int>(request.columns.size()); ++c)
        for (int r = 0; r < static_cast<int>(request.columns[static_cast<size_t>(c)].size()); ++r)
            grid->addWidget(new QLabel(QString::fromStdString(
                                           request.columns[static_cast<size_t>(c)][static_cast<size_t>(r)]),
                                       picName),
                            r, c);
    return picName;
}

std::optional<std::string> askListName(QWidget* parent, const ListNameRequest& request) {
    QDialog dialog(parent);
    dialog.setObjectName("frmSaveIFSAs");
    dialog.setWindowTitle("Add Current IFS to List");
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel("Names in the list:", &dialog));
    layout->addWidget(nameColumns(&dialog, request));
    layout->addWidget(new QLabel("Name of the IFS:", &dialog));
    auto* txtName = new QLineEdit(QString::fromStdString(request.preset), &dialog);
    txtName->setObjectName("txtName");
    txtName->selectAll();
    layout->addWidget(txtName);
    layout->addWidget(okCancel(dialog));
    txtName->setFocus();
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return txtName->text().toStdString();
}

std::optional<int> askDeletion(QWidget* parent, const std::vector<std::string>& names) {
    QDialog dialog(parent);
    dialog.setObjectName("frmDeleteIFS");
    dialog.setWindowTitle("Delete from List");
    auto* layout = new QVBoxLayout(&dialog);
    auto* list = new QListWidget(&dialog);
    list->setObjectName("lstNames");
    for (const std::string& n : names) list->addItem(QString::fromStdString(n));
    if (!names.empty()) list->setCurrentRow(0);
    layout->addWidget(list);
    auto* buttons = new QDialogButtonBox(&dialog);
    QPushButton* cmdDelete = buttons->addButton("Delete", QDialogButtonBox::AcceptRole);
    cmdDelete->setObjectName("cmdDelete");
    QPushButton* cmdCancel = buttons->addButton("Cancel", QDialogButtonBox::RejectRole);
    cmdCancel->setObjectName("cmdCancel");
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    QObject::connect(list, &QListWidget::itemDoubleClicked, &dialog, &QDialog::accept);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted || list->currentRow() < 0) return std::nullopt;
    return list->currentRow() + 1;
}

std::optional<std::string> askIFSName(QWidget* parent, const std::string& preset) {
    QDialog dialog(parent);
    dialog.setObjectName("frmIFSName");
    dialog.setWindowTitle("Rename IFS");
    auto* layout = new QVBoxLayout(&dialog);
    layout->addWidget(new QLabel("New name of the IFS:", &dialog));
    auto* txtName = new QLineEdit(QString::fromStdString(preset), &dialog);
    txtName->setObjectName("txtName");
    txtName->selectAll();
    layout->addWidget(txtName);
    layout->addWidget(okCancel(dialog));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return txtName->text().toStdString();
}

std::optional<std::string> askComment(QWidget* parent, const std::string& text) {
    QDialog dialog(parent);
    dialog.setObjectName("frmAddComment");
    dialog.setWindowTitle("Add/Edit Comment");
    auto* layout = new QVBoxLayout(&dialog);
    auto* box = new QPlainTextEdit(QString::fromStdString(text), &dialog);
    box->setObjectName("txtComment");
    layout->addWidget(box);
    layout->addWidget(okCancel(dialog));
    dialog.resize(520, 300);
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return box->toPlainText().toStdString();
}

}  // namespace

ShellDialogs QtShellDialogs(QWidget* parent) {
    ShellDialogs d;
    d.list.frmSaveIFSAs = [parent](const ListNameRequest& r) { return askListName(parent, r); };
    d.list.frmDeleteIFS = [parent](const std::vector<std::string>& names) {
        return askDeletion(parent, names);
    };
    d.frmIFSName = [parent](const std::string& preset) { return askIFSName(parent, preset); };
    d.frmAddComment = [parent](const std::string& text) { return askComment(parent, text); };
    return d;
}

}  // namespace quillane
