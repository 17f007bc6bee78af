// The game window driven by real clicks, keys and menu items, offscreen.
#include "shell/sierpinski_game_window.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QKeyEvent>
#include <QTest>

#include "app/help_commands.h"
#include "core/menu_tree.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class GameWindowTest : public FrameTest {
  protected:
    SierpinskiGameWindow& openGame() {
        open();
        item("mnuNewSTG")->trigger();
        auto* w = frame->findChild<SierpinskiGameWindow*>("frmSierpG");
        EXPECT_NE(w, nullptr);
        // Keys go to the active window, as they do for a person at the keyboard.
        w->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(w));
        QApplication::processEvents();
        return *w;
    }
};

TEST_F(GameWindowTest, F9OpensTheGameWithItsWindowItemShownAndChecked) {
    open();
    EXPECT_EQ(item("mnuNewSTG")->shortcut(), QKeySequence(Qt::Key_F9));
    EXPECT_FALSE(wb().menu("mnuWin(10)").visible);
    SierpinskiGameWindow& w = [&]() -> SierpinskiGameWindow& {
        item("mnuNewSTG")->trigger();
        return *frame->findChild<SierpinskiGameWindow*>("frmSierpG");
    }();
    QApplication::processEvents();
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(w.windowTitle(), "Sierpinski Triangle Game");
    EXPECT_TRUE(wb().menu("mnuWin(10)").visible);
    EXPECT_TRUE(wb().menu("mnuWin(10)").checked);
    EXPECT_TRUE(item("mnuWin(10)")->isVisible());
    EXPECT_EQ(w.lbllevel()->text(), "Level: 1");
    EXPECT_EQ(w.lblRotation()->text(), "Rotations: None");
    EXPECT_EQ(w.lblGoal()->text(), "Goal:  3");
    EXPECT_EQ(w.lblMoves()->text(), "Moves:  0");
    EXPECT_EQ(w.game().Pieces.size(), 3u);
    EXPECT_TRUE(w.action("mnuGameLevel(0)")->isChecked());
    EXPECT_EQ(w.action("mnuGameLevel(2)")->text(), "Level 3\tCtrl+3");
    EXPECT_EQ(w.action("mnuRotations(1)")->text(), "One\tShift+2");
    EXPECT_FALSE(w.action("mnuEditUndo")->isEnabled());
}

TEST_F(GameWindowTest, TheCanvasFollowsTheWindowAndShowsTheFigure) {
    SierpinskiGameWindow& w = openGame();
    EXPECT_EQ(w.game().picCanvas.width(), w.picCanvas()->width());
    EXPECT_EQ(w.game().picCanvas.height(), w.picCanvas()->height());
    const QImage shown = w.picCanvas()->grab().toImage();
    const GamePoint dot = w.game().Dot;
    EXPECT_EQ(shown.pixelColor(dot.x, dot.y), QColor(0, 0, 255));
    w.resize(w.width() + 80, w.height() + 40);
    QApplication::processEvents();
    EXPECT_EQ(w.game().picCanvas.width(), w.picCanvas()->width());
}

TEST_F(GameWindowTest, CornerButtonsAndKeysMoveTheDot) {
    SierpinskiGameWindow& w = openGame();
    QTest::mouseClick(w.cmdCorner(2), Qt::LeftButton);
    EXPECT_EQ(w.TxtMoves()->text(), " 2");
    EXPECT_EQ(w.lblMoves()->text(), "Moves:  1");
    EXPECT_TRUE(w.action("mnuEditUndo")->isEnabled());
    QTest::keyClick(&w, Qt::Key_1);
    QTest::keyClick(&w, Qt::Key_3, Qt::KeypadModifier);
    // The navigation keys go straight to the window: through the platform's key path a corner button
    // that holds the focus may take them first, which the window does not see.
    for (Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_Left}) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QApplication::sendEvent(&w, &press);
    }
    // The puzzle is drawn at random: when the third move wins the game (goal 3 at level 1), the game
    // is over and takes no further move.
    const bool wonAtThird = w.game().GameOver;
    if (wonAtThird) {
        EXPECT_TRUE(w.game().TxtDoneWon);
        EXPECT_EQ(w.game().Goal, 3);
    }
    const std::string taken = wonAtThird ? " 2 1 3" : " 2 1 3 1 2 3";
    EXPECT_EQ(w.game().TxtMoves, taken);
    EXPECT_EQ(w.TxtMoves()->text().toStdString(), taken);
}

TEST_F(GameWindowTest, CtrlDigitsSetTheLevelAndShiftDigitsTheRotations) {
    SierpinskiGameWindow& w = openGame();
    QTest::keyClick(&w, Qt::Key_3, Qt::ControlModifier);
    EXPECT_EQ(w.game().GameLevel, 2);
    EXPECT_EQ(w.lbllevel()->text(), "Level: 3");
    EXPECT_TRUE(w.action("mnuGameLevel(2)")->isChecked());
    EXPECT_FALSE(w.action("mnuGameLevel(0)")->isChecked());
    EXPECT_EQ(w.game().Pieces.size(), 27u);
    QTest::keyClick(&w, Qt::Key_3, Qt::ShiftModifier);
    EXPECT_EQ(w.lblRotation()->text(), "Rotations: Three");
    EXPECT_TRUE(w.action("mnuRotations(2)")->isChecked());
    QTest::keyClick(&w, Qt::Key_At, Qt::ShiftModifier);  // Shift+2 on a keyboard that gives "@"
    EXPECT_EQ(w.lblRotation()->text(), "Rotations: One");
    EXPECT_EQ(w.game().TxtMoves, "");  // neither a level nor a rotation key is a move
}

TEST_F(GameWindowTest, PlusAndMinusChangeTheDotSizeAndKeepTheMoves) {
    SierpinskiGameWindow& w = openGame();
    QTest::keyClick(&w, Qt::Key_2);
    QTest::keyClick(&w, Qt::Key_Plus);
    QTest::keyClick(&w, Qt::Key_Plus, Qt::ShiftModifier);
    EXPECT_EQ(w.game().DotSize, 7);
    for (int i = 0; i < 8; ++i) QTest::keyClick(&w, Qt::Key_Minus);
    EXPECT_EQ(w.game().DotSize, 2);
    EXPECT_EQ(w.TxtMoves()->text(), " 2");
    w.action("mnuEditDotSize(0)")->trigger();
    EXPECT_EQ(w.game().DotSize, 3);
    EXPECT_EQ(w.action("mnuEditDotSize(0)")->text(), "Increase Dot Size\t  +");
}

TEST_F(GameWindowTest, UndoFromTheMenuReplaysAllButTheLastMove) {
    SierpinskiGameWindow& w = openGame();
    for (int k : {1, 2, 3}) QTest::mouseClick(w.cmdCorner(k), Qt::LeftButton);
    w.action("mnuEditUndo")->trigger();
    EXPECT_EQ(w.TxtMoves()->text(), " 1 2");
    EXPECT_EQ(w.lblMoves()->text(), "Moves:  2");
    QTest::keyClick(&w, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&w, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(w.TxtMoves()->text(), "");
    EXPECT_FALSE(w.action("mnuEditUndo")->isEnabled());
}

TEST_F(GameWindowTest, TheTwentyFifthPressSaysYouLose) {
    SierpinskiGameWindow& w = openGame();
    // The start corner is the fixed point of its own button: pressing it never reaches the target.
    const int start = w.game().StartCorner[0];
    for (int i = 0; i < 24; ++i) QTest::keyClick(&w, static_cast<Qt::Key>(Qt::Key_0 + start));
    EXPECT_EQ(w.TxtDone()->text(), "");
    QTest::keyClick(&w, static_cast<Qt::Key>(Qt::Key_0 + start));
    EXPECT_EQ(w.TxtDone()->text(), "You lose!\nTry again.");
    EXPECT_FALSE(w.TxtDone()->font().bold());
}

TEST_F(GameWindowTest, NewAndSameGameFromTheGameMenu) {
    SierpinskiGameWindow& w = openGame();
    QTest::keyClick(&w, Qt::Key_1);
    const int16_t target = w.game().TargetPiece[0];
    w.action("mnuGameAction(1)")->trigger();
    EXPECT_EQ(w.TxtMoves()->text(), "");
    EXPECT_EQ(w.game().TargetPiece[0], target);
    QTest::keyClick(&w, Qt::Key_1);
    w.action("mnuGameAction(0)")->trigger();
    EXPECT_EQ(w.lblMoves()->text(), "Moves:  0");
}

TEST_F(GameWindowTest, QuitHidesTheWindowAndUnchecksItsItem) {
    SierpinskiGameWindow& w = openGame();
    w.action("mnuFileQuit")->trigger();
    EXPECT_FALSE(w.isVisible());
    EXPECT_FALSE(wb().menu("mnuWin(10)").checked);
    item("mnuWin(10)")->trigger();
    EXPECT_TRUE(w.isVisible());
    EXPECT_TRUE(wb().menu("mnuWin(10)").checked);
}

TEST(GameWindowHelp, HowToOpensTheGamePageAndAFailureSaysSo) {
    ScriptedHost host;
    std::vector<std::string> opened;
    bool works = true;
    SierpinskiGameWindow w(host, "/opt/q", [&](const std::string& url) {
        opened.push_back(url);
        return works;
    });
    w.action("mnuHelpHowTo")->trigger();
    ASSERT_EQ(opened.size(), 1u);
    EXPECT_EQ(opened[0], "file:///opt/q/help/sierpinskiGame.html");
    EXPECT_TRUE(host.shown().empty());
    works = false;
    w.action("mnuHelpHowTo")->trigger();
    EXPECT_EQ(host.shown(), (Messages{{"URL Failed", "A problem occurred with the browser"}}));
}

TEST(GameWindowCopy, CopyPutsTheCanvasOnTheClipboard) {
    ScriptedHost host;
    SierpinskiGameWindow w(host, "/opt/q", [](const std::string&) { return true; });
    w.show();
    QApplication::processEvents();
    w.action("mnuEditCopy")->trigger();
    const QImage copied = QGuiApplication::clipboard()->image();
    ASSERT_FALSE(copied.isNull());
    EXPECT_EQ(copied.width(), w.game().picCanvas.width());
    const GamePoint dot = w.game().Dot;
    EXPECT_EQ(copied.pixelColor(dot.x, dot.y), QColor(0, 0, 255));
}

}  // namespace
}  // namespace quillane::testing
