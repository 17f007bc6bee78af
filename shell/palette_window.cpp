#include "shell/palette_window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace quillane {
namespace {

constexpr int Columns = 10;

QGridLayout* swatchGrid(QWidget* parent, const char* name, std::array<ColorSwatch*, FunctionColorCount>& cells) {
    auto* grid = new QGridLayout;
    grid->setSpacing(1);
    for (int i = 0; i < FunctionColorCount; ++i) {
        auto* cell = new ColorSwatch(parent);
        cell->setObjectName(QString("%1(%2)").arg(name).arg(i));
        cell->setFixedSize(18, 18);
        cell->setToolTip(QString::number(i + 1));
        cells[static_cast<size_t>(i)] = cell;
        grid->addWidget(cell, i / Columns, i % Columns);
    }
    return grid;
}

}  // namespace

PaletteWindow::PaletteWindow(AppState& s, Host& host, QWidget* parent)
    : QDialog(parent), s_(s), host_(host), form_(mnuCodeEditPalette_Click(s.wb)) {
    setObjectName("frmPalette");
    setWindowTitle(PaletteFormCaption);
    auto* top = new QVBoxLayout(this);
    auto* panels = new QHBoxLayout;

    auto* left = new QVBoxLayout;
    left->addLayout(swatchGrid(this, "picSource", source_));
    left->addWidget(new QLabel(PaletteHelpLeft1, this));
    left->addWidget(new QLabel(PaletteHelpLeft2, this));
    panels->addLayout(left);

    auto* right = new QVBoxLayout;
    right->addLayout(swatchGrid(this, "picTarget", target_));
    right->addWidget(new QLabel(PaletteHelpRight1, this));
    right->addWidget(new QLabel(PaletteHelpRight2, this));
    panels->addLayout(right);
    top->addLayout(panels);

    auto* row = new QHBoxLayout;
    row->addWidget(new QLabel("Index", this));
    txtIndex_ = new QLineEdit(this);
    txtIndex_->setObjectName("txtIndex");
    txtIndex_->setFixedWidth(50);
    row->addWidget(txtIndex_);
    auto button = [this, row](const char* name, const char* caption) {
        auto* b = new QPushButton(caption, this);
        b->setObjectName(name);
        b->setAutoDefault(false);
        row->addWidget(b);
        return b;
    };
    cmdLoad_ = button("cmdLoad", "Load...");
    cmdSave_ = button("cmdSave", "Save...");
    row->addStretch();
    cmdAccept_ = button("cmdAccept", "Accept");
    cmdReject_ = button("cmdReject", "Reject");
    top->addLayout(row);

    for (int i = 0; i < FunctionColorCount; ++i) {
        connect(source_[static_cast<size_t>(i)], &ColorSwatch::clicked, this, [this, i] {
            if (picSource_Click(form_, i)) refresh();
        });
        connect(target_[static_cast<size_t>(i)], &ColorSwatch::clicked, this, [this, i] {
            picTarget_Click(form_, i);
            refresh();
        });
        connect(target_[static_cast<size_t>(i)], &ColorSwatch::doubleClicked, this, [this, i] {
            picTarget_DblClick(form_, i);
            refresh();
        });
    }
    connect(txtIndex_, &QLineEdit::editingFinished, this, [this] {
        if (txtIndex_->text() == QString::number(form_.Index)) return;
        txtIndex_Change(form_, host_, txtIndex_->text().toStdString());
        refresh();
    });
    connect(cmdLoad_, &QPushButton::clicked, this, [this] {
        if (cmdLoadPalette_Click(form_, host_)) refresh();
    });
    connect(cmdSave_, &QPushButton::clicked, this, [this] { cmdSavePalette_Click(form_, host_); });
    connect(cmdAccept_, &QPushButton::clicked, this, [this] {
        cmdAccept_Click(s_, form_);
        accept();
    });
    connect(cmdReject_, &QPushButton::clicked, this, [this] { reject(); });
    refresh();
}

void PaletteWindow::refresh() {
    for (int i = 0; i < FunctionColorCount; ++i) {
        const auto k = static_cast<size_t>(i);
        source_[k]->setColor(form_.Source[k]);
        target_[k]->setColor(form_.Target[k]);
        // The entry a left click copies to stands out by a thicker frame.
        target_[k]->setLineWidth(i + 1 == form_.Index ? 3 : 1);
    }
    txtIndex_->setText(QString::number(form_.Index));
}

}  // namespace quillane
