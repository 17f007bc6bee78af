#pragma once
// The help viewer: the pages of the help folder in a QTextBrowser, with a link to the contents,
// back, forward and a search in the page. One per frame, opened at a topic by GetHelpFile.
#include <QString>
#include <QWidget>

class QLineEdit;
class QTextBrowser;
class QToolButton;

namespace quillane {

class HelpWindow : public QWidget {
    Q_OBJECT
  public:
    explicit HelpWindow(QWidget* parent = nullptr);

    // Shows the page at `path`, brings the window up; false when the page gave nothing to show.
    bool showPage(const QString& path);
    // The file name of the page shown ("index.html"), or "" before any.
    QString currentTopic() const;
    // Selects the next match of `text` after the cursor, from the top again past the last one;
    // false when the page does not hold it.
    bool findInPage(const QString& text);

    QTextBrowser* browser() const { return browser_; }
    QToolButton* cmdContents() const { return cmdContents_; }
    QToolButton* cmdBack() const { return cmdBack_; }
    QToolButton* cmdForward() const { return cmdForward_; }
    QLineEdit* txtFind() const { return txtFind_; }

  private:
    void showContents();

    QTextBrowser* browser_ = nullptr;
    QToolButton* cmdContents_ = nullptr;
    QToolButton* cmdBack_ = nullptr;
    QToolButton* cmdForward_ = nullptr;
    QLineEdit* txtFind_ = nullptr;
    QToolButton* cmdFind_ = nullptr;
    QString folder_;
};

}  // namespace quillane
