// Typing in the function table: every key and commit goes to the table's logic.
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "core/numbers.h"
#include "core/table_editing.h"
#include "app/design_view.h"
#include "app/table_commands.h"
#include "shell/functions_window.h"

namespace quillane {

namespace {

// The character a key event types, or 0 for a key that types nothing.
char typedChar(const QKeyEvent* event) {
    const QString text = event->text();
    if (text.size() != 1) return 0;
    const QChar c = text.at(0);
    return c.unicode() < 128 && c.isPrint() ? static_cast<char>(c.unicode()) : 0;
}

BoxKeyContext contextOf(const QLineEdit* box, const std::string& text, int column, bool chaos) {
    BoxKeyContext ctx;
    ctx.text = text;
    ctx.selStart = box->hasSelectedText() ? box->selectionStart() : box->cursorPosition();
    ctx.selLength = box->hasSelectedText() ? static_cast<int>(box->selectedText().size()) : 0;
    ctx.caret = box->cursorPosition();
    ctx.column = column;
    ctx.chaosGame = chaos;
    return ctx;
}

bool isEnter(const QKeyEvent* e) {
    return e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
}

}  // namespace

void FunctionsWindow::watch(QLineEdit* box, BoxId id) {
    ids_[box] = id;
    box->installEventFilter(this);
    if (id.kind == BoxKind::Row) {
        // The model keeps what is typed, so a refresh at a yield does not undo typing.
        connect(box, &QLineEdit::textEdited, this, [this, id](const QString& text) {
            state_.wb.Table.text(id.column, id.index) = text.toStdString();
        });
    }
}

FunctionsWindow::BoxId FunctionsWindow::idOf(QObject* box) const {
    const auto it = ids_.find(box);
    return it == ids_.end() ? BoxId{BoxKind::Row, -1, -1} : it->second;
}

bool FunctionsWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonRelease) {
        if (watched == lblComment_) {
            showComments();
            return true;
        }
        for (int i = 0; i < static_cast<int>(rows_.size()); ++i)
            if (watched == rows_[static_cast<size_t>(i)].picColor) {
                chooseColor(i);
                return true;
            }
        return false;
    }
    auto* box = qobject_cast<QLineEdit*>(watched);
    if (detached_ || !box || !ids_.count(watched)) return QWidget::eventFilter(watched, event);
    const BoxId id = idOf(watched);
    switch (event->type()) {
        case QEvent::KeyPress: {
            auto* key = static_cast<QKeyEvent*>(event);
            if (id.kind == BoxKind::Row) return rowKey(box, id, key);
            if (id.kind == BoxKind::Maps) return mapsKey(key);
            return windowKey(box, id, key);
        }
        case QEvent::FocusIn:
            if (id.kind == BoxKind::Row) BoxGotFocus(state_.wb, id.column, id.index);
            return false;
        case QEvent::FocusOut:
            if (committing_) return false;
            if (id.kind == BoxKind::Row)
                commitRow(box, id);
            else if (id.kind == BoxKind::Maps)
                commitMaps(true);
            else if (box->isModified())
                commitWindow(id.kind);
            return false;
        default:
            return false;
    }
}

bool FunctionsWindow::rowKey(QLineEdit* box, BoxId id, QKeyEvent* event) {
    if (event->key() == Qt::Key_Up || event->key() == Qt::Key_Down) {
        commitRow(box, id);
        const BoxAddress to = ArrowTarget(state_.wb, id.column, id.index, event->key() == Qt::Key_Down);
        focusBox(to.column, to.row);
        return true;
    }
    if (event->key() == Qt::Key_Escape) {
        EscapeBox(state_.wb, id.column, id.index);
        box->setText(QString::fromStdString(state_.wb.Table.text(id.column, id.index)));
        box->end(false);
        return true;
    }
    if (isEnter(event)) {
        commitRow(box, id);
        box->end(false);
        return true;
    }
    const char c = typedChar(event);
    if (c == 0 || (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) return false;
    if (box->isReadOnly()) return true;
    const std::string text = box->text().toStdString();
    const BoxKeyResult r = TableBoxKey(contextOf(box, text, id.column, state_.wb.DesignMode == 1), c);
    if (r.action == BoxKey::Passed) {
        box->insert(QString(QChar(r.key)));
        state_.wb.Table.text(id.column, id.index) = box->text().toStdString();
    }
    return true;  // passed keys were typed above, refused ones are swallowed
}

bool FunctionsWindow::windowKey(QLineEdit* box, BoxId id, QKeyEvent* event) {
    const auto& texts = id.kind == BoxKind::Win ? state_.wb.txtWin : state_.wb.txtDesign;
    if (event->key() == Qt::Key_Escape) {
        if (id.kind == BoxKind::Win)
            EscapeWinBox(state_.wb, id.index);
        else
            EscapeDesignBox(state_.wb, id.index);
        box->setText(QString::fromStdString(texts[static_cast<size_t>(id.index)]));
        box->setModified(false);
        return true;
    }
    if (isEnter(event)) {
        commitWindow(id.kind);
        return true;
    }
    const char c = typedChar(event);
    if (c == 0 || (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) return false;
    const std::string text = box->text().toStdString();
    if (WindowBoxKeyPasses(contextOf(box, text, 0, false), c)) return false;
    return true;
}

bool FunctionsWindow::mapsKey(QKeyEvent* event) {
    if (isEnter(event)) {
        commitMaps(false);
        return true;
    }
    const char c = typedChar(event);
    if (c == 0 || (event->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) return false;
    return !MapsKeyPasses(c);
}

void FunctionsWindow::commitRow(QLineEdit* box, BoxId id) {
    state_.wb.Table.text(id.column, id.index) = box->text().toStdString();
    if (HandleTextBoxChange(state_.wb, id.column, id.index))
        edited();
    else
        refresh();
}

void FunctionsWindow::commitMaps(bool focusLost) {
    state_.wb.txtMaps = txtMaps_->text().toStdString();
    committing_ = true;
    const MapsCommit result = txtMaps_Commit(state_.wb, host_, focusLost);
    committing_ = false;
    if (result.beep) QApplication::beep();
    edited();
    if (result.focusRow) focusBox(1, *result.focusRow);
}

void FunctionsWindow::commitWindow(BoxKind kind) {
    auto& boxes = kind == BoxKind::Win ? txtWin_ : txtDesign_;
    auto& texts = kind == BoxKind::Win ? state_.wb.txtWin : state_.wb.txtDesign;
    for (int k = 0; k < 4; ++k)
        texts[static_cast<size_t>(k)] = boxes[static_cast<size_t>(k)]->text().toStdString();
    committing_ = true;
    if (kind == BoxKind::Win) {
        txtWin_Commit(state_.wb, state_.pics, host_);
    } else if (txtDesign_Commit(state_.wb, host_) == BoxCommit::Changed) {
        // The typed window is the design window's new view.
        ScaleDesignWindows(state_.wb, state_.design);
        RedrawDesignView(state_.wb, state_.design);
    }
    committing_ = false;
    for (QLineEdit* b : boxes) b->setModified(false);
    edited();
}

void FunctionsWindow::focusBox(int column, int row) {
    if (row < 0 || row >= static_cast<int>(rows_.size()) || column < 1 || column > TableColumns) return;
    QLineEdit* target = rows_[static_cast<size_t>(row)].boxes[static_cast<size_t>(column - 1)];
    target->setFocus(Qt::TabFocusReason);
    target->selectAll();
}

void FunctionsWindow::selectBox(int column, int row) {
    refresh();
    focusBox(column, row);
}

void FunctionsWindow::chooseColor(int row) {
    Workbench& wb = state_.wb;
    if (row >= wb.CurrentIFS.nMaps) return;
    const auto chosen = host_.chooseColor(wb.FunctionColor[static_cast<size_t>(row)]);
    if (!chosen) return;
    wb.FunctionColor[static_cast<size_t>(row)] = *chosen;
    wb.SettingsChanged = true;
    edited();
}

void FunctionsWindow::showComments() {
    const IFSEntry& ifs = state_.wb.CurrentIFS;
    QDialog dialog(this);
    dialog.setObjectName("frmComments");
    dialog.setWindowTitle(QString::fromStdString("Comments - " + Trim(ifs.Name)));
    auto* layout = new QVBoxLayout(&dialog);
    auto* text = new QPlainTextEdit(&dialog);
    text->setReadOnly(true);
    QStringList lines;
    for (int k = 1; k <= ifs.nComments && k <= MaxComments; ++k)
        lines << QString::fromStdString(RTrim(ifs.Comment[static_cast<size_t>(k)]));
    text->setPlainText(lines.join('\n'));
    layout->addWidget(text);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, &dialog);
    connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog.resize(520, 260);
    dialog.exec();
}

void FunctionsWindow::edited() {
    if (afterEdit)
        afterEdit();
    else
        refresh();
}

}  // namespace quillane
