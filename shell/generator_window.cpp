#include "shell/generator_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "app/generator_run.h"
#include "core/menu_tree.h"
#include "shell/main_window.h"

namespace quillane {

GeneratorWindow::GeneratorWindow(MainWindow& frame, int example, const QString& title)
    : QDialog(&frame, Qt::Tool), frame_(frame), example_(example) {
    setObjectName(QStringLiteral("generator%1").arg(example));
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);
    body_ = new QWidget(this);
    layout->addWidget(body_, 1);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    cmdClose_ = new QPushButton(tr("Close"), this);
    cmdClose_->setObjectName("cmdClose");
    cmdCancel_ = new QPushButton(tr("Cancel"), this);
    cmdCancel_->setObjectName("cmdCancel");
    // Return belongs to the window's own boxes, not to a default button.
    cmdClose_->setAutoDefault(false);
    cmdCancel_->setAutoDefault(false);
    buttons->addWidget(cmdClose_);
    buttons->addWidget(cmdCancel_);
    layout->addLayout(buttons);
    connect(cmdClose_, &QPushButton::clicked, this, &GeneratorWindow::closeGenerator);
    connect(cmdCancel_, &QPushButton::clicked, this, &GeneratorWindow::cancelGenerator);
}

AppState& GeneratorWindow::state() {
    return frame_.state();
}

Host& GeneratorWindow::host() {
    return frame_.host();
}

void GeneratorWindow::built() {
    GeneratorBuilt(state().Generator);
    frame_.refreshWindows();
}

void GeneratorWindow::closeGenerator() {
    closing();
    if (state().Generator.Index == example_) GeneratorClose(state().wb, state().Generator);
    hide();
    frame_.refreshWindows();
}

void GeneratorWindow::cancelGenerator() {
    AppState& s = state();
    closing();
    if (s.Generator.Index == example_) GeneratorCancel(s.wb, s.Generator, host(), s.pics, s.design);
    hide();
    frame_.refreshWindows();
}

void GeneratorWindow::closeEvent(QCloseEvent* event) {
    // The close box hides the window as Close does; the window lives as long as the frame.
    event->ignore();
    closeGenerator();
}

bool GeneratorWindow::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) CheckGeneratorWindowItem(state().wb, state().Generator);
    return QDialog::event(event);
}

namespace {

GeneratorWindow* findGenerator(MainWindow& frame, int index) {
    for (GeneratorWindow* w : frame.findChildren<GeneratorWindow*>(Qt::FindDirectChildrenOnly))
        if (w->example() == index) return w;
    return nullptr;
}

void bringUp(GeneratorWindow& w) {
    w.show();
    w.raise();
    w.activateWindow();
}

}  // namespace

GeneratorWindow* OpenGenerator(MainWindow& frame) {
    const int index = frame.state().Generator.Index;
    return index < 0 ? nullptr : findGenerator(frame, index);
}

void RegisterGenerator(MainWindow& frame, int index, GeneratorFactory make, bool lockDrawType) {
    frame.setCommand(MenuTable::key("mnuDesignExample", index), [&frame, index, make, lockDrawType] {
        AppState& s = frame.state();
        GeneratorWindow* other = OpenGenerator(frame);
        if (!mnuDesignExample_Click(s.wb, s.Generator, frame.host(), index, lockDrawType)) return;
        if (other && other->example() != index) other->hide();
        GeneratorWindow* w = findGenerator(frame, index);
        if (!w) w = make(frame);
        w->opened();
        bringUp(*w);
    });
    const int item = GeneratorWindowItem[static_cast<size_t>(index)];
    frame.setCommand(MenuTable::key("mnuWin", item), [&frame, index] {
        if (GeneratorWindow* w = findGenerator(frame, index); w && frame.state().Generator.Index == index) {
            bringUp(*w);
            CheckGeneratorWindowItem(frame.state().wb, frame.state().Generator);
        }
    });
}

}  // namespace quillane
