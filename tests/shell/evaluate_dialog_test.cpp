#include "shell/evaluate_dialog.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

#include "core/scripted_host.h"

namespace quillane {
namespace {

// Types into the box as a person would and presses a key there.
void type(EvaluateDialog& dialog, const QString& text, Qt::Key finish) {
    QTest::keyClicks(dialog.txtExpression(), text);
    QTest::keyClick(dialog.txtExpression(), finish);
}

TEST(EvaluateDialog, ShowsTheBoxAndTheThreeButtons) {
    ScriptedHost host;
    EvaluateDialog dialog(host, "1/2");
    EXPECT_EQ(dialog.objectName(), "frmEvaluate");
    EXPECT_EQ(dialog.windowTitle(), "Evaluate Expression");
    EXPECT_EQ(dialog.txtExpression()->text(), "1/2");
    EXPECT_EQ(dialog.txtExpression()->selectedText(), "1/2");
    EXPECT_EQ(dialog.cmdOk()->text(), "OK");
    EXPECT_EQ(dialog.cmdCancel()->text(), "Cancel");
    EXPECT_EQ(dialog.cmdHelp()->text(), "Help");
    EXPECT_TRUE(dialog.cmdOk()->isDefault());
}

TEST(EvaluateDialog, EnterEvaluatesWhatWasTypedAndCloses) {
    ScriptedHost host;
    EvaluateDialog dialog(host);
    dialog.show();
    type(dialog, "sin(pi / 2) + 0,5", Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(dialog.resultCode(), 1);
    EXPECT_EQ(dialog.value(), 1.5f);
    EXPECT_TRUE(host.shown().empty());
}

TEST(EvaluateDialog, TextThatCannotBeEvaluatedKeepsTheDialogOpenWithTheTextSelected) {
    ScriptedHost host;
    EvaluateDialog dialog(host);
    dialog.show();
    type(dialog, "2/0", Qt::Key_Return);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text, "Cannot evaluate expression");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.resultCode(), 0);
    EXPECT_EQ(dialog.txtExpression()->selectedText(), "2/0");
    // Typing replaces the selection; the second try goes through.
    type(dialog, "2^-2", Qt::Key_Enter);
    EXPECT_EQ(host.shown().size(), 1u);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.value(), 0.25f);
}

TEST(EvaluateDialog, OkButtonClickEvaluatesToo) {
    ScriptedHost host;
    EvaluateDialog dialog(host, "3rad");
    dialog.show();
    QTest::mouseClick(dialog.cmdOk(), Qt::LeftButton);
    EXPECT_EQ(dialog.resultCode(), 1);
    EXPECT_FLOAT_EQ(dialog.value(), static_cast<float>(3 * 180 / 3.14159265358979));
}

TEST(EvaluateDialog, EscapeCancelsWithoutAMessage) {
    ScriptedHost host;
    EvaluateDialog dialog(host);
    dialog.show();
    type(dialog, "nonsense(", Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(dialog.result(), QDialog::Rejected);
    EXPECT_EQ(dialog.resultCode(), 2);
    EXPECT_TRUE(host.shown().empty());
}

TEST(EvaluateDialog, HelpAsksForTheEvaluationTopicAndStaysOpen) {
    ScriptedHost host;
    EvaluateDialog dialog(host, "1");
    dialog.show();
    QSignalSpy help(&dialog, &EvaluateDialog::helpRequested);
    QTest::mouseClick(dialog.cmdHelp(), Qt::LeftButton);
    ASSERT_EQ(help.count(), 1);
    EXPECT_EQ(help.at(0).at(0).toString(), "evaluationHelp.html");
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialog.resultCode(), 0);
}

}  // namespace
}  // namespace quillane
