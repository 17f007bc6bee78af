#include "shell/qt_host.h"

#include <QColorDialog>
#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QRegularExpression>

namespace quillane {

namespace {

QMessageBox::Icon boxIcon(MessageIcon icon) {
    switch (icon) {
        case MessageIcon::Information:
            return QMessageBox::Information;
        case MessageIcon::Warning:
            return QMessageBox::Warning;
        case MessageIcon::Question:
            return QMessageBox::Question;
        case MessageIcon::Critical:
            return QMessageBox::Critical;
        default:
            return QMessageBox::NoIcon;
    }
}

QMessageBox::StandardButtons boxButtons(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::OKCancel:
            return QMessageBox::Ok | QMessageBox::Cancel;
        case MessageButtons::YesNo:
            return QMessageBox::Yes | QMessageBox::No;
        case MessageButtons::YesNoCancel:
            return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
        default:
            return QMessageBox::Ok;
    }
}

// A box closed without a button (Escape, close box) gives its most cautious answer.
Answer answerOf(int pressed, MessageButtons buttons) {
    switch (pressed) {
        case QMessageBox::Ok:
            return Answer::OK;
        case QMessageBox::Yes:
            return Answer::Yes;
        case QMessageBox::No:
            return Answer::No;
        case QMessageBox::Cancel:
            return Answer::Cancel;
        default:
            if (buttons == MessageButtons::OK) return Answer::OK;
            return buttons == MessageButtons::YesNo ? Answer::No : Answer::Cancel;
    }
}

QString blankSeparated(QString patterns) {
    patterns.replace(';', ' ').replace(',', ' ');
    return patterns.simplified();
}

}  // namespace

QtHost::QtHost(QString programDir, QWidget* parent) : programDir_(std::move(programDir)), parent_(parent) {
    timer_.start();
    clock_ = [this] { return timer_.elapsed(); };
    lastEvents_ = clock_();
}

Answer QtHost::message(MessageIcon icon, const std::string& title, const std::string& text,
                       MessageButtons buttons) {
    QMessageBox box(boxIcon(icon), QString::fromStdString(title), QString::fromStdString(text),
                    boxButtons(buttons), parent_);
    box.setTextFormat(Qt::PlainText);
    return answerOf(box.exec(), buttons);
}

std::optional<std::string> QtHost::openFileName(const FileDialogRequest& request) {
    return fileDialog(request, false);
}

std::optional<std::string> QtHost::saveFileName(const FileDialogRequest& request) {
    return fileDialog(request, true);
}

std::optional<std::string> QtHost::fileDialog(const FileDialogRequest& request, bool save) {
    QFileDialog dialog(parent_, QString::fromStdString(request.title), startFolder(request.folderKey));
    dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!request.filters.empty()) {
        const QStringList filters = nameFilters(request.filters);
        dialog.setNameFilters(filters);
        if (request.initialFilter >= 1 && request.initialFilter <= filters.size())
            dialog.selectNameFilter(filters[request.initialFilter - 1]);
    }
    if (!request.initialName.empty()) dialog.selectFile(QString::fromStdString(request.initialName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
    const QString chosen = dialog.selectedFiles().constFirst();
    rememberFolder(request.folderKey, chosen);
    if (request.chosenFilter) {
        const int index = static_cast<int>(nameFilters(request.filters).indexOf(dialog.selectedNameFilter()));
        *request.chosenFilter = index < 0 ? 1 : index + 1;
    }
    return chosen.toStdString();
}

std::optional<Color> QtHost::chooseColor(Color initial) {
    const QColor chosen =
        QColorDialog::getColor(QColor(RedOf(initial), GreenOf(initial), BlueOf(initial)), parent_);
    if (!chosen.isValid()) return std::nullopt;
    return RGB(chosen.red(), chosen.green(), chosen.blue());
}

void QtHost::yield() {
    const qint64 now = clock_();
    if (now - lastEvents_ < YieldInterval) return;
    lastEvents_ = now;
    if (onYield) onYield();
    QCoreApplication::processEvents();
}

void QtHost::setClock(std::function<qint64()> clock) {
    clock_ = std::move(clock);
    lastEvents_ = clock_();
}

QString QtHost::startFolder(const std::string& folderKey) const {
    const auto it = folders_.find(folderKey);
    return it == folders_.end() ? programDir_ : it->second;
}

void QtHost::rememberFolder(const std::string& folderKey, const QString& fileName) {
    folders_[folderKey] = QFileInfo(fileName).absolutePath();
}

QStringList QtHost::nameFilters(const std::vector<FileFilter>& filters) {
    static const QRegularExpression trailingPatterns(QStringLiteral("^(.*)\\(([^()]*)\\)\\s*$"));
    QStringList list;
    for (const FileFilter& filter : filters) {
        const QString description = QString::fromStdString(filter.description);
        const QRegularExpressionMatch match = trailingPatterns.match(description);
        if (match.hasMatch())
            list << match.captured(1) + '(' + blankSeparated(match.captured(2)) + ')';
        else
            list << description + " (" + blankSeparated(QString::fromStdString(filter.pattern)) + ')';
    }
    return list;
}

}  // namespace quillane
