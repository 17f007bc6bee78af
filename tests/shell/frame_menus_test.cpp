#include <QHelpEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenuBar>
#include <QTest>

#include "app/fractal_view.h"
#include "app/undo.h"
#include "core/fractal_list.h"
#include "shell/functions_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

struct Expected {
    const char* key;
    const char* menu;  // the menu that holds the item
    const char* caption;
    const char* shortcut;
};

const Expected Sample[] = {
    {"mnuNewIFS", "mnuNew", "&IFS", "F5"},
    {"mnuNewChaosGame", "mnuNew", "&Chaos Game", "F6"},
    {"mnuNewSTG", "mnuNew", "&Sierpinski Triangle Game", "F9"},
    {"mnuFileNewMovie", "mnuNew", "&Fractal Tranformation Movie", "F11"},
    {"mnuFileSaveAnimGif", "mnuNew", "&Deterministic Fractal Movie", "F12"},
    {"mnuNew", "mnuFile", "&New", ""},
    {"mnuOpen", "mnuFile", "&Open IFS File...", "Ctrl+O"},
    {"mnuFileAppend", "mnuFile", "Appen&d IFS File...", ""},
    {"mnuRecent", "mnuFile", "Open &Recent", ""},
    {"mnuFileClearMRU", "mnuRecent", "&Clear List", ""},
    {"mnuSaveIFSas", "mnuFile", "Save IFS Fractals List &As...", ""},
    {"mnuFileSavePolygon", "mnuFile", "Save &Initial Polygon", ""},
    {"mnuExit", "mnuFile", "&Exit", ""},
    {"mnuUndo", "mnuEdit", "&Undo", "Ctrl+Z"},
    {"mnuEditCopy", "mnuEdit", "&Copy", "Ctrl+C"},
    {"mnuEditPaste", "mnuEdit", "&Paste", "Ctrl+V"},
    {"mnuEditPasteBackground", "mnuEdit", "Paste Fractal &Background", "Ctrl+B"},
    {"mnuEditToolTips", "mnuEdit", "&Show Tool Tips", ""},
    {"mnuMatrix", "mnuCode", "Matrix &Compact Form", ""},
    {"mnuCodeMatrixFormat", "mnuCode", "&Matrix Function Form", ""},
    {"mnuCodeFP", "mnuCode", "&Fixed Point Form", ""},
    {"mnuColors(2)", "mnuColorChoice", "Use Color Stealing", ""},
    {"mnuCodeLoadPalette", "mnuColorChoice", "Load IFS Palette", ""},
    {"mnuCodeRename", "mnuCode", "Re&name IFS", ""},
    {"mnuDesignExample(5)", "mnuDesignExamples", "&Fractals derived from Complex Bases", ""},
    {"mnuDesignNew", "mnuDesign", "&New Transformation", "Ctrl+N"},
    {"mnuDesignDuplicate", "mnuDesign", "&Duplicate Transformation", "Ctrl+U"},
    {"mnuDesignClear", "mnuDesign", "&Clear Transformation", "Shift+Del"},
    {"mnuDesignScale", "mnuDesign", "&Scale...", "Ctrl+S"},
    {"mnuDesignRotate", "mnuDesign", "&Rotate...", "Ctrl+R"},
    {"mnuDesignStretch", "mnuDesign", "&Stretch/Shear...", "Ctrl+E"},
    {"mnuDesignFlipHor", "mnuDesign", "&Horizontal Reflection", "Ctrl+H"},
    {"mnuDesignFlipVert", "mnuDesign", "&Vertical Reflection", "Ctrl+L"},
    {"mnupoly(11)", "mnuPickPoly", "Octogon", ""},
    {"mnuDesignLine(2)", "mnuDesignLineThickness", "Thick", ""},
    {"mnuDesignPreview", "mnuDesign", "&Show Preview", "Ctrl+P"},
    {"MnuDesignShiftDir(3)", "MnuDesignShift", "Shift Up", ""},
    {"mnuDrawType(1)", "mnuDraw", "&Deterministic", ""},
    {"mnuRun", "mnuDraw", "&Draw", "Ctrl+D"},
    {"mnuStop", "mnuDraw", "&Stop", ""},
    {"mnuDrawFixedNumber", "mnuDraw", "Draw This Many...", "Ctrl+I"},
    {"mnuCalcScale", "mnuDraw", "&Scale to Fit", "Ctrl+W"},
    {"mnuDrawZoomOut(3)", "mnuDrawZoom", "Zoom Out by 200%", ""},
    {"mnuDrawZoomOut(5)", "mnuDrawZoom", "Restore", ""},
    {"mnuClear", "mnuDraw", "&Clear", "Del"},
    {"mnuDrawAddFigure(8)", "mnuDrawAddFigureItems", "From Clipboard", ""},
    {"mnuTrace", "mnuTracing", "&Turn Trace On", "Ctrl+T"},
    {"mnuDrawTraceDotSize", "mnuTracing", "&Dot Size...", ""},
    {"mnuBlackFP", "mnuFP", "&Black Dots", ""},
    {"mnudrawFractalGrid", "mnuDraw", "&Show Grid", ""},
    {"mnuDrawImageSize", "mnudrawWindowSize", "Unfreeze Image Size", ""},
    {"mnuDrawClearBGPic", "mnuDraw", "Clear Background Picture", "Ctrl+X"},
    {"mnuNames(0)", "mnuFractals", "&Save Current IFS to List", ""},
    {"mnuNames(3)", "mnuFractals", "&Clear List", ""},
    {"mnuWin(0)", "mnuWindow", "&IFS", ""},
    {"mnuWin(2)", "mnuWindow", "&Design", ""},
    {"mnuWin(21)", "mnuWindow", "Symmetric Fractals", ""},
    {"mnuWinAction(1)", "mnuWindow", "&Minimize", ""},
    {"mnuWinAction(3)", "mnuWindow", "&Restore", ""},
    {"mnuHelp", "mnuHelpMenu", "&Help", "F1"},
    {"mnuHelpVisitClassic", "mnuHelpMenu", "&Visit Classic IFS Website", ""},
    {"mnuWindowAbout", "mnuHelpMenu", "&About Quillane...", ""},
    {"mnuPopupCopy", "mnuPopup", "Copy image to clipboard", ""},
    {"mnuPicPastePopUpCancel", "mnuPicPastePopUpMenu", "Cancel", ""},
};

TEST_F(FrameTest, TheMenuBarHoldsTheEightMenusInOrder) {
    open();
    QStringList titles;
    for (QAction* action : frame->menuBar()->actions()) titles << action->text();
    EXPECT_EQ(titles,
              (QStringList{"&File", "&Edit", "&Code", "&Design", "D&raw", "Fr&actals", "&Window", "&Help"}));
}

TEST_F(FrameTest, EveryItemHasItsCaptionShortcutAndPlace) {
    open();
    for (const Expected& e : Sample) {
        QAction* action = item(e.key);
        if (!action) continue;
        EXPECT_EQ(action->text().toStdString(), e.caption) << e.key;
        EXPECT_EQ(action->shortcut().toString(QKeySequence::PortableText).toStdString(), e.shortcut) << e.key;
        QMenu* holder = frame->menu(e.menu);
        ASSERT_NE(holder, nullptr) << e.menu;
        EXPECT_TRUE(holder->actions().contains(action)) << e.key << " in " << e.menu;
    }
}

void expectShortcutsReadable(MainWindow& frame, const std::vector<MenuNode>& nodes) {
    for (const MenuNode& node : nodes) {
        if (!node.shortcut.empty()) {
            EXPECT_FALSE(frame.menuAction(node.key())->shortcut().isEmpty()) << node.key();
        }
        expectShortcutsReadable(frame, node.children);
    }
}

TEST_F(FrameTest, EveryShortcutOfTheTreeBecomesAKey) {
    open();
    expectShortcutsReadable(*frame, MainMenuTree());
    expectShortcutsReadable(*frame, PopupMenus());
}

TEST_F(FrameTest, OnlyTheThreeMainWindowsAreListedAtFirst) {
    open();
    EXPECT_TRUE(item("mnuWin(0)")->isVisible());
    EXPECT_TRUE(item("mnuWin(2)")->isVisible());
    EXPECT_FALSE(item("mnuWin(3)")->isVisible());
    EXPECT_FALSE(item("mnuMRU(0)")->isVisible());
}

TEST_F(FrameTest, AnItemDisabledInTheTableIsGreyed) {
    open();
    ASSERT_TRUE(item("mnuExit")->isEnabled());
    wb().Menu.setEnabled("mnuExit", false);
    EXPECT_FALSE(item("mnuExit")->isEnabled());
    wb().Menu.setEnabled("mnuExit", true);
    EXPECT_TRUE(item("mnuExit")->isEnabled());
    wb().Menu.setEnabled("mnuDraw", false);
    EXPECT_FALSE(frame->menu("mnuDraw")->menuAction()->isEnabled());
}

TEST_F(FrameTest, ACaptionChangeShowsInTheItem) {
    open();
    wb().Menu.setCaption("mnuUndo", "&Redo Move");
    EXPECT_EQ(item("mnuUndo")->text(), "&Redo Move");
    wb().Menu.setCaption("mnuZoom", "Zoom Selection\tPage Up");
    EXPECT_EQ(item("mnuZoom")->text(), "Zoom Selection\tPage Up");
    EXPECT_TRUE(item("mnuZoom")->shortcut().isEmpty());
}

TEST_F(FrameTest, TicksAndVisibilityFollowTheTable) {
    open();
    EXPECT_FALSE(item("mnuDrawFreezeScale")->isChecked());
    wb().Menu.setChecked("mnuDrawFreezeScale", true);
    EXPECT_TRUE(item("mnuDrawFreezeScale")->isChecked());
    wb().Menu.setVisible("mnuWin(4)", true);
    EXPECT_TRUE(item("mnuWin(4)")->isVisible());
}

TEST_F(FrameTest, CommandsNotBuiltYetAreVisibleButDisabled) {
    open();
    // Every item of the menu bar without a command stays disabled, whichever they are at the time.
    int without = 0;
    for (QAction* action : frame->findChildren<QAction*>()) {
        const std::string key = action->objectName().toStdString();
        if (key.rfind("mnu", 0) != 0 || frame->menuAction(key) != action || action->menu() ||
            action->isSeparator() || frame->hasCommand(key))
            continue;
        ++without;
        EXPECT_FALSE(action->isEnabled()) << key;
    }
    EXPECT_GT(without, 0);
    EXPECT_TRUE(item("mnuWin(0)")->isEnabled());
    EXPECT_TRUE(item("mnuWinAction(2)")->isEnabled());
}

TEST_F(FrameTest, ARegisteredCommandEnablesItsItemAndRunsOnTrigger) {
    open();
    int runs = 0;
    frame->setCommand("mnuRun", [&] { ++runs; });
    EXPECT_TRUE(item("mnuRun")->isEnabled());
    item("mnuRun")->trigger();
    EXPECT_EQ(runs, 1);
    wb().Menu.setEnabled("mnuRun", false);
    EXPECT_FALSE(item("mnuRun")->isEnabled());
}

TEST_F(FrameTest, TheTableDecidesTheTickAfterAClick) {
    open();
    frame->setCommand("mnuDrawType(1)", [] {});
    item("mnuDrawType(1)")->trigger();
    EXPECT_TRUE(item("mnuDrawType(0)")->isChecked());
    EXPECT_FALSE(item("mnuDrawType(1)")->isChecked());
    frame->setCommand("mnuDrawType(1)", [this] {
        wb().Menu.setChecked("mnuDrawType(0)", false);
        wb().Menu.setChecked("mnuDrawType(1)", true);
    });
    item("mnuDrawType(1)")->trigger();
    EXPECT_FALSE(item("mnuDrawType(0)")->isChecked());
    EXPECT_TRUE(item("mnuDrawType(1)")->isChecked());
}

TEST_F(FrameTest, AnArrayCommandServesEveryIndex) {
    open();
    // The examples that no generator window has taken yet serve as the array's free items.
    std::vector<int> free;
    for (int i = 0; i < 10; ++i)
        if (!item(MenuTable::key("mnuDesignExample", i))->isEnabled()) free.push_back(i);
    if (free.size() < 2) GTEST_SKIP() << "every example has a window of its own";
    const int low = free.front(), high = free.back();
    std::vector<int> taken;
    frame->setArrayCommand("mnuDesignExample", [&](int index) { taken.push_back(index); });
    ASSERT_TRUE(item(MenuTable::key("mnuDesignExample", low))->isEnabled());
    item(MenuTable::key("mnuDesignExample", high))->trigger();
    item(MenuTable::key("mnuDesignExample", low))->trigger();
    EXPECT_EQ(taken, (std::vector<int>{high, low}));
    // From a first index on only: the items before it stay disabled.
    frame->setArrayCommand(
        "mnuDesignExample", [&](int index) { taken.push_back(index); }, high);
    EXPECT_FALSE(item(MenuTable::key("mnuDesignExample", low))->isEnabled());
    EXPECT_TRUE(item(MenuTable::key("mnuDesignExample", high))->isEnabled());
}

TEST_F(FrameTest, TheFractalsMenuFollowsTheList) {
    dir.write("default.ifs", GoodBlock + OtherBlock);
    open();
    EXPECT_EQ(listedFractals(), (std::vector<std::string>{"First", "Other"}));
    EXPECT_TRUE(item(EntryKey(1))->isChecked());
    EXPECT_TRUE(item("mnuNames(4)")->isSeparator());
    ClearIFSMenu(wb());
    EXPECT_EQ(listedFractals(), std::vector<std::string>{});
    EXPECT_EQ(frame->menuAction(EntryKey(1)), nullptr);
    wb().FractalList[1].Name = "Again";
    SetIFSMenu(wb(), 1, 0);
    EXPECT_EQ(listedFractals(), std::vector<std::string>{"Again"});
}

TEST_F(FrameTest, ToolbarButtonsRunTheirMenuCommands) {
    open();
    QAction* print = frame->toolbar()->button("print");
    ASSERT_NE(print, nullptr);
    EXPECT_TRUE(print->isEnabled());
    // The button runs whatever command the item has now.
    int runs = 0;
    frame->setCommand("mnuFilePrint", [&] { ++runs; });
    print->trigger();
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(frame->toolbar()->commandOf("new"), "mnuNewIFS");
    wb().DesignMode = 1;
    EXPECT_EQ(frame->toolbar()->commandOf("new"), "mnuNewChaosGame");
}

TEST_F(FrameTest, TheMatrixButtonTogglesTheTwoMatrixForms) {
    open();
    QAction* matrix = frame->toolbar()->button("matrix");
    ASSERT_NE(matrix, nullptr);
    EXPECT_EQ(matrix->toolTip(), "Matrix Compact Form");
    EXPECT_TRUE(matrix->isChecked());
    EXPECT_EQ(frame->toolbar()->commandOf("matrix"), "mnuCodeMatrixFormat");
    wb().Menu.setChecked("mnuMatrix", false);
    wb().Menu.setChecked("mnuCodeMatrixFormat", true);
    EXPECT_EQ(matrix->toolTip(), "Matrix Function Form");
    EXPECT_TRUE(matrix->isChecked());
    EXPECT_EQ(frame->toolbar()->commandOf("matrix"), "mnuMatrix");
    wb().Menu.setChecked("mnuCodeMatrixFormat", false);
    wb().Menu.setChecked("mnuCodeFP", true);
    EXPECT_FALSE(matrix->isChecked());
    EXPECT_TRUE(frame->toolbar()->button("fixed point")->isChecked());
}

TEST_F(FrameTest, TheUndoButtonIsEnabledAsTheItemIs) {
    open();
    frame->setCommand("mnuUndo", [] {});
    QAction* undo = frame->toolbar()->button("undo");
    EXPECT_FALSE(undo->isEnabled());
    OfferUndo(wb());
    EXPECT_TRUE(undo->isEnabled());
    // The item rules: an undo the menu does not offer is not offered by the button either.
    wb().Menu.setEnabled("mnuUndo", false);
    EXPECT_FALSE(undo->isEnabled());
}

TEST_F(FrameTest, ChaosGameModeRenamesTheFirstTwoButtonsAndEnablesTheFixedPointButton) {
    open();
    FrameToolbar* bar = frame->toolbar();
    EXPECT_EQ(bar->button("new")->toolTip(), "New IFS");
    EXPECT_EQ(bar->button("open")->toolTip(), "Open IFS File");
    EXPECT_FALSE(bar->button("fixed point")->isEnabled());
    frame->runCommand("mnuNewChaosGame");
    EXPECT_EQ(bar->button("new")->toolTip(), "New Chaos Game");
    EXPECT_EQ(bar->button("open")->toolTip(), "Open Chaos Game file");
    EXPECT_TRUE(bar->button("fixed point")->isEnabled());
    EXPECT_EQ(bar->commandOf("new"), "mnuNewChaosGame");
    // The entry of the button rules even where its menu item is enabled.
    wb().Menu.setEnabled(FrameButtonKey(12), false);
    EXPECT_TRUE(wb().menu("mnuCodeFP").enabled);
    EXPECT_FALSE(bar->button("fixed point")->isEnabled());
}

TEST_F(FrameTest, TheUndoButtonTurnsItsArrowWhileItOffersARedo) {
    open();
    QAction* undo = frame->toolbar()->button("undo");
    const QImage undoImage = undo->icon().pixmap(24, 24).toImage();
    SetUndoCaption(wb(), RedoMoveCaption);
    OfferUndo(wb());
    const QImage redoImage = undo->icon().pixmap(24, 24).toImage();
    EXPECT_NE(redoImage, undoImage);
    // The arrowhead stands on the left for undo and on the right for redo.
    auto ink = [](const QImage& image, int from, int to) {
        int n = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = from; x < to; ++x) n += qAlpha(image.pixel(x, y)) > 128;
        return n;
    };
    EXPECT_GT(ink(undoImage, 0, 8), ink(undoImage, 16, 24));
    EXPECT_GT(ink(redoImage, 16, 24), ink(redoImage, 0, 8));
    ResetUndoMenu(wb());
    EXPECT_EQ(undo->icon().pixmap(24, 24).toImage(), undoImage);
}

TEST_F(FrameTest, ShowToolTipsTurnsTheTipsOfAllWindowsOffAndOn) {
    open();
    QHelpEvent tip(QEvent::ToolTip, QPoint(1, 1), QPoint(1, 1));
    QWidget* inChild = frame->functionsWindow();
    ASSERT_TRUE(item("mnuEditToolTips")->isChecked());
    EXPECT_FALSE(frame->eventFilter(inChild, &tip));
    item("mnuEditToolTips")->trigger();
    EXPECT_FALSE(item("mnuEditToolTips")->isChecked());
    EXPECT_FALSE(wb().menu("mnuEditToolTips").checked);
    EXPECT_TRUE(wb().SettingsChanged);
    EXPECT_TRUE(frame->eventFilter(inChild, &tip));
    item("mnuEditToolTips")->trigger();
    EXPECT_TRUE(item("mnuEditToolTips")->isChecked());
    EXPECT_FALSE(frame->eventFilter(inChild, &tip));
}

}  // namespace
}  // namespace quillane::testing

namespace quillane::testing {
namespace {

TEST_F(FrameTest, CtrlWScalesToFitWhicheverChildIsActive) {
    open();
    int runs = 0;
    frame->setCommand("mnuCalcScale", [&runs] { ++runs; });
    frame->activateWindow();
    QApplication::setActiveWindow(frame.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(frame.get()));
    int opens = 0;
    frame->setCommand("mnuOpen", [&opens] { ++opens; });
    QTest::keyClick(frame->childWindow(1)->widget(), Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(opens, 1);
    for (int child = 0; child < 3; ++child) {
        QMdiSubWindow* sub = frame->childWindow(child);
        frame->mdiArea()->setActiveSubWindow(sub);
        QApplication::processEvents();
        QWidget* target = QApplication::focusWidget() ? QApplication::focusWidget() : sub->widget();
        QTest::keyClick(target, Qt::Key_W, Qt::ControlModifier);
        EXPECT_EQ(runs, child + 1) << "child " << child;
        EXPECT_TRUE(sub->isVisible()) << "child " << child;
    }
}

}  // namespace
}  // namespace quillane::testing
