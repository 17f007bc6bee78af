#include "shell/help_window.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTextCursor>
#include <QToolButton>
#include <filesystem>

#include "app/help_commands.h"
#include "shell/evaluate_dialog.h"
#include "shell/frame_toolbar.h"
#include "shell/help_commands.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

// A frame whose program folder holds the repository's help pages.
class HelpTest : public FrameTest {
  protected:
    void SetUp() override {
        std::filesystem::copy(std::filesystem::path(QUILLANE_SOURCE_DIR) / "help", dir.path("help"),
                              std::filesystem::copy_options::recursive);
        dir.write("default.ifs", GoodBlock);
        open();
    }
    HelpWindow* help() { return frame->findChild<HelpWindow*>(); }
};

TEST_F(HelpTest, F1OpensTheHelpWindowAtTheMainPage) {
    EXPECT_EQ(item("mnuHelp")->shortcut(), QKeySequence(Qt::Key_F1));
    EXPECT_EQ(help(), nullptr);
    // A shortcut reaches only the active window.
    QApplication::setActiveWindow(frame.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    QTest::keyClick(frame.get(), Qt::Key_F1);
    ASSERT_NE(help(), nullptr);
    EXPECT_TRUE(help()->isVisible());
    EXPECT_EQ(help()->currentTopic(), "index.html");
    EXPECT_TRUE(help()->browser()->toPlainText().contains("Contents"));
    EXPECT_TRUE(frame->flags().HelpOpen);
    EXPECT_TRUE(host.shown().empty());
}

TEST_F(HelpTest, TheToolbarsHelpButtonOpensTheMainPage) {
    QAction* button = frame->toolbar()->button("help");
    ASSERT_NE(button, nullptr);
    button->trigger();
    ASSERT_NE(help(), nullptr);
    EXPECT_EQ(help()->currentTopic(), "index.html");
}

TEST_F(HelpTest, TheExpressionBoxsHelpOpensTheEvaluationPage) {
    EvaluateDialog dialog(host, "1/2", frame.get());
    ConnectEvaluateHelp(*frame, dialog);
    dialog.show();
    QTest::mouseClick(dialog.cmdHelp(), Qt::LeftButton);
    ASSERT_NE(help(), nullptr);
    EXPECT_EQ(help()->currentTopic(), "evaluationHelp.html");
    EXPECT_TRUE(help()->browser()->toPlainText().contains("SQRT"));
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(HelpTest, ContentsBackAndForwardMoveBetweenPages) {
    ASSERT_NE(ShowHelpTopic(*frame, EvaluateHelpTopic), nullptr);
    EXPECT_FALSE(help()->cmdBack()->isEnabled());
    help()->cmdContents()->click();
    EXPECT_EQ(help()->currentTopic(), "index.html");
    ASSERT_TRUE(help()->cmdBack()->isEnabled());
    help()->cmdBack()->click();
    EXPECT_EQ(help()->currentTopic(), "evaluationHelp.html");
    ASSERT_TRUE(help()->cmdForward()->isEnabled());
    help()->cmdForward()->click();
    EXPECT_EQ(help()->currentTopic(), "index.html");
}

TEST_F(HelpTest, FindSelectsTheNextMatchAndWrapsAround) {
    ASSERT_NE(ShowHelpTopic(*frame, EvaluateHelpTopic), nullptr);
    const int matches = help()->browser()->toPlainText().count("SQRT", Qt::CaseInsensitive);
    ASSERT_GE(matches, 1);
    QTest::keyClicks(help()->txtFind(), "sqrt");
    QTest::keyClick(help()->txtFind(), Qt::Key_Return);
    const QTextCursor first = help()->browser()->textCursor();
    EXPECT_EQ(first.selectedText().toLower(), "sqrt");
    for (int i = 0; i < matches; ++i) EXPECT_TRUE(help()->findInPage("sqrt"));
    // Past the last match the search starts again from the top.
    EXPECT_EQ(help()->browser()->textCursor().selectionStart(), first.selectionStart());
    EXPECT_FALSE(help()->findInPage("no such words in help"));
}

TEST_F(HelpTest, AMissingTopicShowsTheHelpErrorBoxAndNoWindow) {
    EXPECT_EQ(ShowHelpTopic(*frame, "noSuchPage.html"), nullptr);
    EXPECT_EQ(host.shown(), (Messages{{"Help Error", HelpErrorText(frame->programDir())}}));
    EXPECT_EQ(help(), nullptr);
    EXPECT_FALSE(frame->flags().HelpOpen);
}

TEST_F(HelpTest, ExitClosesTheHelpWindow) {
    item("mnuHelp")->trigger();
    ASSERT_NE(help(), nullptr);
    ASSERT_TRUE(help()->isVisible());
    frame->close();
    EXPECT_FALSE(help()->isVisible());
    EXPECT_FALSE(frame->flags().HelpOpen);
}

TEST_F(HelpTest, AboutNamesTheProgramAndTheLicences) {
    item("mnuWindowAbout")->trigger();
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "About Quillane");
    EXPECT_EQ(host.shown()[0].text, AboutText());
}

TEST_F(HelpTest, EveryWebItemIsEnabled) {
    for (const char* key : WebCommandKeys) EXPECT_TRUE(item(key)->isEnabled()) << key;
}

}  // namespace
}  // namespace quillane::testing
