#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMenu>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

#include <filesystem>

#include "app/chaos_design.h"
#include "app/help_commands.h"
#include "app/transform_commands.h"
#include "shell/chaos_design_area.h"
#include "shell/design_window.h"
#include "shell/help_window.h"
#include "shell/main_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class DesignToolbarTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
        QApplication::processEvents();
    }
    DesignForm& form() { return *frame->designWindow(); }
    // A Toolbar1 button by its key.
    QAction* button(const char* key) {
        for (QAction* a : form().toolbar()->actions())
            if (a->text() == key) return a;
        ADD_FAILURE() << key;
        return nullptr;
    }
    // A drop-down item of a button by the item's key.
    QAction* dropItem(const char* buttonKey, const char* itemKey) {
        QAction* b = button(buttonKey);
        if (!b || !b->menu()) {
            ADD_FAILURE() << buttonKey << " has no drop-down";
            return nullptr;
        }
        QAction* item = b->menu()->findChild<QAction*>(itemKey);
        EXPECT_NE(item, nullptr) << itemKey;
        return item;
    }
    std::vector<std::string> dropCaptions(const char* buttonKey) {
        std::vector<std::string> c;
        for (QAction* a : button(buttonKey)->menu()->actions()) c.push_back(a->text().toStdString());
        return c;
    }
    // Selects function `key` (1-based) by its digit in the picture that has the keys.
    void selectByDigit(Qt::Key key) {
        QWidget* target = wb().DesignMode == 1 ? static_cast<QWidget*>(chaosArea()) : form().picture();
        QTest::keyClick(target, key);
    }
    QWidget* chaosArea() { return form().findChild<ChaosDesignArea*>("picCGDesign"); }
    void enterChaosGame() {
        frame->runCommand("mnuNewChaosGame");
        QApplication::processEvents();
        ASSERT_EQ(wb().DesignMode, 1);
    }
    // The workbench as a copy that does not talk to the frame's menus.
    Workbench copy() {
        Workbench w = wb();
        w.Menu.observer = nullptr;
        return w;
    }
    std::string undoCaption() { return wb().menu("mnuUndo").caption; }
};

// What the open modal dialog showed when a timer looked at it.
struct SeenDialog {
    bool shown = false;
    std::string name, title;
    bool option0 = false, option1 = false;
};

// Looks at the modal dialog once it is open, types `angle` and, with `ok`, picks `direction` and
// presses OK; otherwise Cancel.
void answerRotation(SeenDialog& seen, const char* angle, int direction, bool ok) {
    QTimer::singleShot(0, [&seen, angle, direction, ok] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        seen.shown = true;
        seen.name = dialog->objectName().toStdString();
        seen.title = dialog->windowTitle().toStdString();
        auto* o0 = dialog->findChild<QRadioButton*>("optDirection0");
        auto* o1 = dialog->findChild<QRadioButton*>("optDirection1");
        seen.option0 = o0 && o0->isChecked();
        seen.option1 = o1 && o1->isChecked();
        if (auto* box = dialog->findChild<QLineEdit*>("txtRotate")) box->setText(angle);
        if (!ok) {
            dialog->reject();
            return;
        }
        if (o0 && o1) (direction == 1 ? o1 : o0)->setChecked(true);
        dialog->accept();
    });
}

TEST_F(DesignToolbarTest, DropDownCaptionsAreBuiltWithTheDegreeSign) {
    EXPECT_EQ(dropCaptions("rotate left"), (std::vector<std::string>{"30\xC2\xB0 ccw", "45\xC2\xB0 ccw", "60\xC2\xB0 ccw",
                                                                       "90\xC2\xB0 ccw", "120\xC2\xB0 ccw",
                                                                       "180\xC2\xB0 ccw", "Other"}));
    EXPECT_EQ(dropCaptions("rotate right"), (std::vector<std::string>{"30\xC2\xB0 cw", "45\xC2\xB0 cw", "60\xC2\xB0 cw",
                                                                        "90\xC2\xB0 cw", "120\xC2\xB0 cw",
                                                                        "180\xC2\xB0 cw", "Other"}));
    EXPECT_EQ(dropCaptions("lines"), (std::vector<std::string>{"thin", "medium", "thick"}));
    EXPECT_EQ(button("new")->menu(), nullptr);
    auto* tool = qobject_cast<QToolButton*>(form().toolbar()->widgetForAction(button("rotate left")));
    ASSERT_NE(tool, nullptr);
    EXPECT_EQ(tool->popupMode(), QToolButton::MenuButtonPopup);
}

TEST_F(DesignToolbarTest, FortyFiveLeftTurnsTheSelectedMapAsRotateIFSDesign) {
    selectByDigit(Qt::Key_2);
    ASSERT_TRUE(wb().MapSelected);
    const IFSFunction before = wb().CurrentIFS.function(1);
    Workbench expected = copy();
    RotateIFSDesign(expected, 45);
    form().setFocus();  // away from the picture, so that the item has to send it back
    ASSERT_NE(QApplication::focusWidget(), form().picture());
    dropItem("rotate left", "45 left")->trigger();
    EXPECT_EQ(wb().CurrentIFS.function(1), expected.CurrentIFS.function(1));
    EXPECT_NE(wb().CurrentIFS.function(1), before);
    EXPECT_EQ(wb().CurrentIFS.function(0), expected.CurrentIFS.function(0));
    EXPECT_EQ(undoCaption(), "&Undo Rotation");
    EXPECT_EQ(QApplication::focusWidget(), form().picture());
}

TEST_F(DesignToolbarTest, AngleItemsDoNothingWithoutASelection) {
    const IFSEntry before = wb().CurrentIFS;
    dropItem("rotate right", "90 right")->trigger();
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(DesignToolbarTest, LineItemsChooseTheStyle) {
    dropItem("lines", "thick")->trigger();
    EXPECT_EQ(wb().LineThickness, 4);
    EXPECT_TRUE(frame->menuAction("mnuDesignLine(2)")->isChecked());
    dropItem("lines", "medium")->trigger();
    EXPECT_EQ(wb().LineThickness, 2);
    dropItem("lines", "thin")->trigger();
    EXPECT_EQ(wb().LineThickness, 0);
    EXPECT_TRUE(frame->menuAction("mnuDesignLine(0)")->isChecked());
}

TEST_F(DesignToolbarTest, OneHundredTwentyRightInChaosGameModeTurnsTheRecipe) {
    enterChaosGame();
    selectByDigit(Qt::Key_1);
    ASSERT_TRUE(wb().CGMapSelected);
    Workbench expected = copy();
    RotateCGDesign(expected, -120);
    ASSERT_FLOAT_EQ(expected.CurrentIFS.Angle[0], -120);
    dropItem("rotate right", "120 right")->trigger();
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[0], expected.CurrentIFS.Angle[0]);
    EXPECT_EQ(wb().CurrentIFS.function(0), expected.CurrentIFS.function(0));
    EXPECT_EQ(undoCaption(), "&Undo Rotation");
}

TEST_F(DesignToolbarTest, AfterAnItemTheChaosGamePictureHasTheKeys) {
    enterChaosGame();
    newCGFixedPoint(wb(), frame->host(), false, 0.8f, 0.2f);
    frame->refreshWindows();
    selectByDigit(Qt::Key_1);
    form().setFocus();
    dropItem("rotate left", "30 left")->trigger();
    ASSERT_EQ(QApplication::focusWidget(), chaosArea());
    // The next digit goes to the picture that shows the points, as the person types it.
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_2);
    EXPECT_EQ(wb().SelectedMap, 1);
    dropItem("rotate left", "30 left")->trigger();
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[0], 30);
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[1], 30);
}

TEST_F(DesignToolbarTest, ThePlainRotateButtonTurnsTheRecipeInChaosGameMode) {
    enterChaosGame();
    selectByDigit(Qt::Key_1);
    ASSERT_TRUE(wb().CGMapSelected);
    button("rotate left")->trigger();
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[0], 90);
    EXPECT_EQ(wb().CurrentIFS.Step[2][0], "R");
    button("rotate right")->trigger();
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[0], 0);
}

TEST_F(DesignToolbarTest, OtherOnTheRightOpensRotateWithTheSecondDirectionPreset) {
    selectByDigit(Qt::Key_2);
    Workbench expected = copy();
    RotateIFSDesign(expected, -30);
    SeenDialog seen;
    answerRotation(seen, "30", 1, true);
    dropItem("rotate right", "Other")->trigger();
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.name, "frmRotate");
    EXPECT_EQ(seen.title, "Rotate");
    EXPECT_FALSE(seen.option0);
    EXPECT_TRUE(seen.option1);
    EXPECT_EQ(wb().CurrentIFS.function(1), expected.CurrentIFS.function(1));
}

TEST_F(DesignToolbarTest, OtherOnTheLeftPresetsTheFirstDirection) {
    selectByDigit(Qt::Key_1);
    Workbench expected = copy();
    RotateIFSDesign(expected, 15);
    SeenDialog seen;
    answerRotation(seen, "15", 0, true);
    dropItem("rotate left", "Other")->trigger();
    ASSERT_TRUE(seen.shown);
    EXPECT_TRUE(seen.option0);
    EXPECT_FALSE(seen.option1);
    EXPECT_EQ(wb().CurrentIFS.function(0), expected.CurrentIFS.function(0));
}

TEST_F(DesignToolbarTest, CancelOfOtherChangesNothing) {
    selectByDigit(Qt::Key_2);
    const IFSEntry before = wb().CurrentIFS;
    const std::string caption = undoCaption();
    SeenDialog seen;
    answerRotation(seen, "45", 0, false);
    dropItem("rotate left", "Other")->trigger();
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(wb().CurrentIFS, before);
    EXPECT_EQ(undoCaption(), caption);
}

TEST_F(DesignToolbarTest, OtherWithoutASelectionOpensNoDialog) {
    SeenDialog seen;
    answerRotation(seen, "45", 0, false);
    dropItem("rotate left", "Other")->trigger();
    QApplication::processEvents();  // lets the timer run if nothing blocked
    EXPECT_FALSE(seen.shown);
}

TEST_F(DesignToolbarTest, OtherInChaosGameModeOpensChaosGameRotation) {
    enterChaosGame();
    selectByDigit(Qt::Key_1);
    ASSERT_TRUE(wb().CGMapSelected);
    SeenDialog seen;
    answerRotation(seen, "50", 0, true);  // turned back to counterclockwise
    dropItem("rotate right", "Other")->trigger();
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(seen.name, "frmRotateCG");
    EXPECT_EQ(seen.title, "Chaos Game Rotation");
    EXPECT_FALSE(seen.option0);
    EXPECT_TRUE(seen.option1);
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[0], 50);
    SeenDialog second;
    answerRotation(second, "20", 1, true);
    dropItem("rotate left", "Other")->trigger();
    ASSERT_TRUE(second.shown);
    EXPECT_TRUE(second.option0);
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[0], 30);
}

TEST_F(DesignToolbarTest, CancelInChaosGameModeChangesNothing) {
    enterChaosGame();
    selectByDigit(Qt::Key_1);
    const IFSEntry before = wb().CurrentIFS;
    SeenDialog seen;
    answerRotation(seen, "50", 0, false);
    dropItem("rotate left", "Other")->trigger();
    ASSERT_TRUE(seen.shown);
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(DesignToolbarTest, ARightButtonReleaseOnThePictureAsksForThePopup) {
    std::vector<QPoint> asked;
    form().popup = [&asked](QPoint at) { asked.push_back(at); };
    const QPoint at(30, 40);
    QTest::mouseClick(form().picture(), Qt::LeftButton, Qt::NoModifier, at);
    EXPECT_TRUE(asked.empty());
    QTest::mouseClick(form().picture(), Qt::RightButton, Qt::NoModifier, at);
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0], form().picture()->mapToGlobal(at));
}

TEST_F(DesignToolbarTest, NoPopupWhileDrawingThePolygon) {
    int asked = 0;
    form().popup = [&asked](QPoint) { ++asked; };
    frame->runCommand("mnuDrawPoly");
    ASSERT_TRUE(frame->state().design.Poly.PolygonMode);
    QTest::mouseClick(form().picture(), Qt::RightButton, Qt::NoModifier, QPoint(30, 40));
    EXPECT_EQ(asked, 0);
    // Finish the polygon: the frame's teardown must not meet a picture still in polygon mode.
    QTest::keyClick(form().picture(), Qt::Key_Q);
    EXPECT_FALSE(frame->state().design.Poly.PolygonMode);
}

// The button goes through GetHelpFile, so its box names the help folder and the program's folder.
TEST_F(DesignToolbarTest, HelpWithoutAHelpFolderShowsTheHelpErrorBox) {
    button("help")->trigger();
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Help Error");
    EXPECT_EQ(host.shown()[0].text, HelpErrorText(frame->programDir()));
    EXPECT_EQ(frame->findChild<HelpWindow*>(), nullptr);
}

TEST_F(DesignToolbarTest, HelpOpensTheDesignWindowsPage) {
    std::filesystem::create_directories(dir.path("help"));
    dir.write("help/designWindow.html", "<html><body><h1>Design window</h1></body></html>");
    button("help")->trigger();
    EXPECT_TRUE(host.shown().empty());
    auto* help = frame->findChild<HelpWindow*>();
    ASSERT_NE(help, nullptr);
    EXPECT_TRUE(help->isVisible());
    EXPECT_EQ(help->currentTopic(), "designWindow.html");
}

TEST_F(DesignToolbarTest, EveryButtonHasAPictureOfItsOwnAndItsNameAsTip) {
    std::vector<QImage> pictures;
    for (QAction* a : form().toolbar()->actions()) {
        ASSERT_FALSE(a->icon().isNull()) << a->text().toStdString();
        const QImage image = a->icon().pixmap(24, 24).toImage();
        for (const QImage& other : pictures) EXPECT_NE(image, other) << a->text().toStdString();
        pictures.push_back(image);
        EXPECT_EQ(a->toolTip().toLower(), a->text()) << "the tip names the button";
    }
    EXPECT_EQ(pictures.size(), 15u);
}

}  // namespace
}  // namespace quillane::testing
