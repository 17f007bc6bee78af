#include <QApplication>
#include <QCoreApplication>
#include <QMdiSubWindow>

#include "core/window_positions.h"
#include "shell/fractal_window.h"
#include "shell/functions_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

const std::string Tail = "\n\nClick Cancel to return and save.\nClick Ok to continue without saving.";

TEST_F(FrameTest, WithoutADefaultFileTheProgramStartsUntitledAndSaysNothing) {
    open();
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(frame->windowTitle(), "Quillane");
    EXPECT_EQ(frame->functionsWindow()->windowTitle(), "IFS [Untitled]");
    EXPECT_EQ(listedFractals(), std::vector<std::string>{});
    EXPECT_FALSE(item("mnuNames(0)")->isEnabled());
}

TEST_F(FrameTest, TheDefaultListIsLoadedAndScaled) {
    dir.write("default.ifs", GoodBlock + OtherBlock);
    const WorldWindow before = Workbench().Window;
    open();
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(frame->windowTitle(), "Quillane - default.ifs");
    EXPECT_EQ(frame->functionsWindow()->windowTitle(), "IFS [First]");
    EXPECT_EQ(frame->fractalWindow()->windowTitle(), "Fractal (Random)");
    EXPECT_EQ(listedFractals(), (std::vector<std::string>{"First", "Other"}));
    EXPECT_NE(wb().Window, before);
    EXPECT_EQ(wb().lblProbSum, "1.000");
}

TEST_F(FrameTest, ADamagedSecondBlockIsReportedInOneFileErrorBox) {
    dir.write("default.ifs", GoodBlock + DamagedBlock + OtherBlock);
    open();
    EXPECT_EQ(host.shown(), (Messages{{"File Error",
                                       "There was a problem reading the code for the IFS     \n"
                                       "with name \"Second\" in the default file.   \n"
                                       "That IFS and the rest of the file were ignored."}}));
    EXPECT_EQ(listedFractals(), std::vector<std::string>{"First"});
    EXPECT_EQ(frame->functionsWindow()->windowTitle(), "IFS [First]");
}

TEST_F(FrameTest, ACommandLineFileIsOpenedInsteadOfTheDefault) {
    dir.write("default.ifs", GoodBlock);
    const std::string mine = dir.write("my list.ifs", OtherBlock);
    open("\"" + mine + "\"");
    EXPECT_EQ(frame->windowTitle(), "Quillane - my list.ifs");
    EXPECT_EQ(listedFractals(), std::vector<std::string>{"Other"});
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(FrameTest, TheChaosDefaultStartsInTheFixedPointForm) {
    dir.write("default.chg", "Pair {\nS 0.5 0 0.5 0 0\nS 0.5 0 0.5 1 0\n}\n");
    open();
    EXPECT_EQ(frame->windowTitle(), "Quillane - default.chg");
    EXPECT_TRUE(item("mnuCodeFP")->isChecked());
    EXPECT_FALSE(item("mnuMatrix")->isChecked());
    EXPECT_TRUE(frame->toolbar()->button("fixed point")->isChecked());
}

TEST_F(FrameTest, ACommaLocaleIsWarnedAbout) {
    open("", "1,2");
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Warning");
    EXPECT_EQ(host.shown()[0].text.substr(0, 55), "It appears that your regional setting for numbers uses\n");
}

TEST_F(FrameTest, ExitWithoutChangesAsksNothingAndCloses) {
    dir.write("default.ifs", GoodBlock);
    open();
    item("mnuExit")->trigger();
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_FALSE(frame->isVisible());
    EXPECT_TRUE(frame->flags().Exiting);
    EXPECT_TRUE(frame->flags().Finished);
}

TEST_F(FrameTest, ExitWithAnEditedIFSAsksAndCancelKeepsTheFrame) {
    dir.write("default.ifs", GoodBlock);
    open();
    CountEdit(wb());
    host.answers = {Answer::Cancel};
    item("mnuExit")->trigger();
    EXPECT_EQ(host.shown(),
              (Messages{{"Continue without saving?", "The current IFS code has not been saved.   " + Tail}}));
    EXPECT_TRUE(frame->isVisible());
    EXPECT_FALSE(frame->flags().Finished);
}

TEST_F(FrameTest, TheCloseBoxAsksTheSameQuestion) {
    dir.write("default.ifs", GoodBlock);
    open();
    wb().ListModified = true;
    host.answers = {Answer::Cancel, Answer::OK};
    EXPECT_FALSE(frame->close());
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(frame->close());
    EXPECT_FALSE(frame->isVisible());
    EXPECT_EQ(host.shown(),
              (Messages{{"Continue without saving?", "The fractals list has been modified." + Tail},
                        {"Continue without saving?", "The fractals list has been modified." + Tail}}));
    EXPECT_TRUE(frame->flags().Finished);
}

TEST_F(FrameTest, ExitAfterOKClosesWithoutAskingTwice) {
    dir.write("default.ifs", GoodBlock);
    open();
    CountEdit(wb());
    item("mnuExit")->trigger();
    EXPECT_EQ(host.shown().size(), 1u);
    EXPECT_FALSE(frame->isVisible());
}

TEST_F(FrameTest, TheWindowMenuBringsAChildForwardAndTicksIt) {
    open();
    item("mnuWin(1)")->trigger();
    EXPECT_EQ(frame->mdiArea()->activeSubWindow(), frame->childWindow(1));
    EXPECT_TRUE(item("mnuWin(1)")->isChecked());
    EXPECT_FALSE(item("mnuWin(0)")->isChecked());
    item("mnuWin(0)")->trigger();
    EXPECT_EQ(frame->mdiArea()->activeSubWindow(), frame->childWindow(0));
    EXPECT_TRUE(item("mnuWin(0)")->isChecked());
    EXPECT_FALSE(item("mnuWin(1)")->isChecked());
}

TEST_F(FrameTest, TheTickFollowsTheActiveChild) {
    open();
    frame->mdiArea()->setActiveSubWindow(frame->childWindow(1));
    EXPECT_TRUE(item("mnuWin(1)")->isChecked());
    EXPECT_FALSE(item("mnuWin(0)")->isChecked());
}

TEST_F(FrameTest, WindowActionsApplyToTheTickedChild) {
    open();
    item("mnuWin(1)")->trigger();
    QMdiSubWindow* fractal = frame->childWindow(1);
    item("mnuWinAction(1)")->trigger();
    EXPECT_TRUE(fractal->isMinimized());
    EXPECT_FALSE(frame->childWindow(0)->isMinimized());
    item("mnuWin(1)")->trigger();
    EXPECT_FALSE(fractal->isMinimized());
    item("mnuWinAction(2)")->trigger();
    EXPECT_TRUE(fractal->isMaximized());
    item("mnuWinAction(3)")->trigger();
    EXPECT_FALSE(fractal->isMaximized());
    EXPECT_FALSE(fractal->isMinimized());
}

TEST_F(FrameTest, AClosedChildIsOnlyHiddenAndTheWindowMenuBringsItBack) {
    open();
    QMdiSubWindow* table = frame->childWindow(0);
    table->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    ASSERT_EQ(frame->childWindow(0), table);
    EXPECT_FALSE(table->isVisible());
    item("mnuWin(0)")->trigger();
    EXPECT_TRUE(table->isVisible());
    EXPECT_TRUE(frame->functionsWindow()->isVisible());
    EXPECT_EQ(frame->mdiArea()->activeSubWindow(), table);
}

TEST_F(FrameTest, TheFirstStartShowsTheThreeWindowsWholeInsideTheFrame) {
    open();
    QApplication::processEvents();
    const double dpi = frame->logicalDpiX();
    const WindowPositions p = SetDefaultWindowPositions(0);
    const QRect table = frame->childWindow(0)->geometry();
    EXPECT_EQ(table.topLeft(), QPoint(0, 0));
    EXPECT_EQ(table.width(), TwipsToPixels(p.functions.width, dpi));
    EXPECT_EQ(table.height(), TwipsToPixels(p.functions.height, dpi));
    const QRect design = frame->childWindow(2)->geometry();
    EXPECT_EQ(design.topLeft(), QPoint(TwipsToPixels(p.design.left, dpi), TwipsToPixels(p.design.top, dpi)));
    EXPECT_EQ(frame->childWindow(1)->geometry().topLeft(), QPoint(TwipsToPixels(p.fractal.left, dpi), 0));
    const QRect area = frame->mdiArea()->viewport()->rect();
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(area.contains(frame->childWindow(i)->geometry())) << "child " << i;
}

TEST(Frame, TheProgramItselfTalksThroughQtAndStartsInItsOwnFolder) {
    MainWindow frame;
    EXPECT_NE(dynamic_cast<QtHost*>(&frame.host()), nullptr);
    EXPECT_EQ(frame.objectName(), "MDIForm1");
    EXPECT_EQ(frame.windowTitle(), "Quillane");
    EXPECT_EQ(FrameStart::fromApplication().programDir, QCoreApplication::applicationDirPath().toStdString());
    EXPECT_EQ(FrameStart::fromApplication().commandLine, "");
}

}  // namespace
}  // namespace quillane::testing
