#include "shell/help_window.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include "app/help_commands.h"

namespace quillane {

namespace {

QToolButton* toolButton(QWidget* parent, const char* name, const QString& text) {
    auto* button = new QToolButton(parent);
    button->setObjectName(name);
    button->setText(text);
    button->setToolButtonStyle(Qt::ToolButtonTextOnly);
    return button;
}

}  // namespace

HelpWindow::HelpWindow(QWidget* parent) : QWidget(parent, Qt::Window) {
    setObjectName("HelpWindow");
    setWindowTitle("Quillane Help");
    cmdContents_ = toolButton(this, "cmdContents", "&Contents");
    cmdBack_ = toolButton(this, "cmdBack", "&Back");
    cmdForward_ = toolButton(this, "cmdForward", "&Forward");
    txtFind_ = new QLineEdit(this);
    txtFind_->setObjectName("txtFind");
    txtFind_->setPlaceholderText("Find in page");
    txtFind_->setClearButtonEnabled(true);
    cmdFind_ = toolButton(this, "cmdFind", "Find &Next");
    browser_ = new QTextBrowser(this);
    browser_->setObjectName("browser");
    // Pages of the help folder stay here; addresses outside it go to the system's browser.
    browser_->setOpenExternalLinks(true);

    auto* bar = new QHBoxLayout;
    bar->addWidget(cmdContents_);
    bar->addWidget(cmdBack_);
    bar->addWidget(cmdForward_);
    bar->addStretch(1);
    bar->addWidget(new QLabel("Find:", this));
    bar->addWidget(txtFind_);
    bar->addWidget(cmdFind_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(bar);
    layout->addWidget(browser_, 1);

    cmdBack_->setEnabled(false);
    cmdForward_->setEnabled(false);
    connect(browser_, &QTextBrowser::backwardAvailable, cmdBack_, &QToolButton::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, cmdForward_, &QToolButton::setEnabled);
    connect(cmdBack_, &QToolButton::clicked, browser_, &QTextBrowser::backward);
    connect(cmdForward_, &QToolButton::clicked, browser_, &QTextBrowser::forward);
    connect(cmdContents_, &QToolButton::clicked, this, [this] { showContents(); });
    connect(cmdFind_, &QToolButton::clicked, this, [this] { findInPage(txtFind_->text()); });
    connect(txtFind_, &QLineEdit::returnPressed, this, [this] { findInPage(txtFind_->text()); });
    resize(760, 600);
}

bool HelpWindow::showPage(const QString& path) {
    const QFileInfo page(path);
    if (!page.isFile()) return false;
    folder_ = page.absolutePath();
    browser_->setSource(QUrl::fromLocalFile(page.absoluteFilePath()));
    if (browser_->document()->isEmpty()) return false;
    if (isMinimized()) showNormal();
    show();
    raise();
    activateWindow();
    return true;
}

QString HelpWindow::currentTopic() const {
    const QUrl source = browser_->source();
    return source.isEmpty() ? QString() : QFileInfo(source.toLocalFile()).fileName();
}

bool HelpWindow::findInPage(const QString& text) {
    if (text.isEmpty()) return false;
    if (browser_->find(text)) return true;
    QTextCursor top = browser_->textCursor();
    top.movePosition(QTextCursor::Start);
    browser_->setTextCursor(top);
    return browser_->find(text);
}

void HelpWindow::showContents() {
    if (folder_.isEmpty()) return;
    browser_->setSource(QUrl::fromLocalFile(QDir(folder_).filePath(HelpIndexTopic)));
}

}  // namespace quillane
