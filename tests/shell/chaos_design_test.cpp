#include <QApplication>
#include <QCheckBox>
#include <QMouseEvent>
#include <QPushButton>
#include <QLabel>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <map>
#include <filesystem>

#include "shell/chaos_design_area.h"
#include "shell/chaos_moves_dialog.h"
#include "shell/design_window.h"
#include "shell/main_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class ChaosDesignWindow : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
        QApplication::processEvents();
        frame->runCommand("mnuNewChaosGame");
        QApplication::processEvents();
    }
    DesignForm& form() { return *frame->designWindow(); }
    DesignPictures& design() { return frame->state().design; }
    ChaosDesignArea* area() { return form().findChild<ChaosDesignArea*>("picCGDesign"); }
    QPoint pixelOf(double x, double y) {
        int64_t col = 0, row = 0;
        EXPECT_TRUE(design().picCGDesign.toPixel(x, y, col, row));
        return QPoint(static_cast<int>(col), static_cast<int>(row));
    }
    void drag(double x0, double y0, double x1, double y1, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::mousePress(area(), Qt::LeftButton, m, pixelOf(x0, y0));
        const QPointF to = pixelOf(x1, y1);
        QMouseEvent event(QEvent::MouseMove, to, area()->mapToGlobal(to), Qt::LeftButton, Qt::LeftButton, m);
        QApplication::sendEvent(area(), &event);
        QTest::mouseRelease(area(), Qt::LeftButton, m, pixelOf(x1, y1));
    }
};

TEST_F(ChaosDesignWindow, NewChaosGameShowsThePictureOfFixedPoints) {
    ASSERT_NE(area(), nullptr);
    EXPECT_TRUE(area()->isVisible());
    EXPECT_FALSE(form().picture()->isVisible());
    EXPECT_EQ(form().windowTitle().toStdString(), "Design (Chaos Game)");
    EXPECT_EQ(wb().CurrentIFS.nMaps, 1);
    const Workbench::RefPoint ref = wb().ReferencePoint;
    EXPECT_EQ(design().picCGDesign.point(ref.x, ref.y), Black);
    EXPECT_EQ(design().picCGDesign.point(0, 0), wb().FunctionColor[0]);
    EXPECT_EQ(item("mnuSaveIFSas")->text().toStdString(), "Save Chaso Game Fractals List &As...");
    // Of the view buttons only the two that mean nothing for fixed points are off.
    std::map<std::string, bool> enabled;
    for (QAction* a : form().toolbar()->actions()) enabled[a->text().toStdString()] = a->isEnabled();
    EXPECT_FALSE(enabled.at("polygon"));
    EXPECT_FALSE(enabled.at("fixed points"));
    EXPECT_TRUE(enabled.at("axes"));
    EXPECT_TRUE(enabled.at("grid"));
    EXPECT_TRUE(enabled.at("zoom in"));
}

TEST_F(ChaosDesignWindow, CtrlClickAddsAFixedPointAndDraggingMovesIt) {
    QTest::mouseClick(area(), Qt::LeftButton, Qt::ControlModifier, pixelOf(0.8, 0.2));
    ASSERT_EQ(wb().CurrentIFS.nMaps, 2);
    EXPECT_NEAR(wb().CurrentIFS.FPx[1], 0.8, 0.01);
    drag(wb().CurrentIFS.FPx[1], wb().CurrentIFS.FPy[1], 0.7, 0.3);
    EXPECT_NEAR(wb().CurrentIFS.FPx[1], 0.7, 0.01);
    EXPECT_EQ(wb().menu("mnuUndo").caption, "&Undo Move");
    EXPECT_EQ(wb().Table.text(8, 1).substr(0, 3), "0.7");
}

TEST_F(ChaosDesignWindow, DraggingTheReferencePointMovesThePaths) {
    const Workbench::RefPoint ref = wb().ReferencePoint;
    drag(ref.x, ref.y, 0.9, 0.9);
    EXPECT_NEAR(wb().ReferencePoint.x, 0.9, 0.01);
    EXPECT_EQ(design().picCGDesign.point(wb().ReferencePoint.x, wb().ReferencePoint.y), Black);
    EXPECT_EQ(wb().menu("mnuUndo").caption, "&Undo Move Reference Point");
    frame->runCommand("mnuUndo");
    EXPECT_FLOAT_EQ(wb().ReferencePoint.x, ref.x);
    EXPECT_EQ(design().picCGDesign.point(ref.x, ref.y), Black);
}

// The window's own keys reach their commands from the chaos game picture too.
TEST_F(ChaosDesignWindow, TheDesignKeysWorkOnTheChaosGamePicture) {
    area()->setFocus();
    QApplication::processEvents();
    Workbench& w = frame->state().wb;
    const WorldWindow before = w.DesignWindow;
    QTest::keyClick(area(), Qt::Key_PageDown);
    EXPECT_GT(w.DesignWindow.xmax - w.DesignWindow.xmin, before.xmax - before.xmin);
    QTest::keyClick(area(), Qt::Key_PageUp);
    QTest::keyClick(area(), Qt::Key_Home);
    EXPECT_EQ(item("mnuUndo")->isEnabled(), false);
    const bool grid = w.menu("mnuDesignGrid").checked;
    QTest::keyClick(area(), Qt::Key_G, Qt::ControlModifier);
    EXPECT_NE(w.menu("mnuDesignGrid").checked, grid);
    const bool axes = w.menu("mnuDesignAxes").checked;
    QTest::keyClick(area(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_NE(w.menu("mnuDesignAxes").checked, axes);
    const float gridX = w.GridX;
    QTest::keyClick(area(), Qt::Key_Plus);
    EXPECT_NE(w.GridX, gridX);
    // Escape drops the selection.
    w.MapSelected = true;
    w.CGMapSelected = true;
    QTest::keyClick(area(), Qt::Key_Escape);
    EXPECT_FALSE(w.MapSelected);
}

TEST_F(ChaosDesignWindow, PressingPicTransShowsTheChaosGameHelpCard) {
    auto* picTrans = form().findChild<QWidget*>("picTrans");
    ASSERT_NE(picTrans, nullptr);
    QTest::mousePress(picTrans, Qt::LeftButton);
    auto* card = form().findChild<QLabel*>("frmShortcuts");
    ASSERT_NE(card, nullptr);
    EXPECT_TRUE(card->isVisible());
    EXPECT_TRUE(card->text().contains("Left mouse click on FP"));
    EXPECT_TRUE(card->text().contains("Ctrl-Right mouse click"));
    QTest::mouseRelease(picTrans, Qt::LeftButton);
    EXPECT_FALSE(card->isVisible());
    // Back in IFS mode the card of the maps comes back.
    frame->runCommand("mnuNewIFS");
    QApplication::processEvents();
    QTest::mousePress(picTrans, Qt::LeftButton);
    EXPECT_FALSE(card->text().contains("Left mouse click on FP"));
    QTest::mouseRelease(picTrans, Qt::LeftButton);
}

TEST_F(ChaosDesignWindow, BackToIFSShowsPicdesignAgain) {
    frame->runCommand("mnuMatrix");
    QApplication::processEvents();
    EXPECT_EQ(wb().DesignMode, 0);
    EXPECT_FALSE(area()->isVisible());
    EXPECT_TRUE(form().picture()->isVisible());
}

TEST_F(ChaosDesignWindow, NewIFSComesBackToTheDesignOfMaps) {
    frame->runCommand("mnuNewIFS");
    QApplication::processEvents();
    EXPECT_EQ(wb().DesignMode, 0);
    EXPECT_FALSE(area()->isVisible());
    EXPECT_TRUE(form().picture()->isVisible());
    EXPECT_EQ(form().windowTitle().toStdString(), "Design (IFS)");
    EXPECT_EQ(item("mnuOpen")->text().toStdString(), "&Open IFS File...");
    EXPECT_FALSE(item("mnuDesignCGMoves")->isVisible());
    EXPECT_FALSE(item("mnuCodeFP")->isEnabled());
    EXPECT_EQ(frame->toolbar()->button("new")->toolTip(), "New IFS");
}

TEST_F(ChaosDesignWindow, MovesWindowBuildsTheRecipe) {
    std::string title;
    QTimer::singleShot(0, [&] {
        auto* dialog = frame->findChild<ChaosMovesDialog*>("frmScaleCG");
        ASSERT_NE(dialog, nullptr);
        title = dialog->windowTitle().toStdString();
        dialog->findChild<QCheckBox*>("chkStep(2)")->click();
        dialog->findChild<QPushButton*>("cmdOk")->click();
    });
    frame->runCommand("mnuDesignCGMoves");
    EXPECT_EQ(title, "Chaos Game Moves");
    EXPECT_EQ(wb().CurrentIFS.Step[2][0], "R");
    EXPECT_EQ(wb().Table.text(2, 0), "R");
    EXPECT_EQ(wb().ChangeCount, 1);
    EXPECT_FALSE(wb().Table.Locked);
}

TEST_F(ChaosDesignWindow, MovesWindowCancelPutsTheRecipeBack) {
    QTimer::singleShot(0, [&] {
        auto* dialog = frame->findChild<ChaosMovesDialog*>("frmScaleCG");
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QCheckBox*>("chkStep(4)")->click();
        EXPECT_EQ(wb().CurrentIFS.Step[2][0], "V");
        dialog->findChild<QPushButton*>("cmdCancel")->click();
    });
    frame->runCommand("mnuDesignCGMoves");
    EXPECT_EQ(wb().CurrentIFS.Step[2][0], "");
    EXPECT_EQ(wb().ChangeCount, 0);
}

TEST_F(ChaosDesignWindow, ScaleAndRotateOpenTheMovesWindowInChaosGameMode) {
    for (const char* command : {"mnuDesignScale", "mnuDesignRotate"}) {
        std::string title;
        QTimer::singleShot(0, [&] {
            auto* dialog = frame->findChild<ChaosMovesDialog*>("frmScaleCG");
            ASSERT_NE(dialog, nullptr);
            title = dialog->windowTitle().toStdString();
            dialog->findChild<QPushButton*>("cmdCancel")->click();
        });
        frame->runCommand(command);
        EXPECT_EQ(title, "Chaos Game Moves") << command;
    }
    EXPECT_EQ(wb().ChangeCount, 0);
}

TEST_F(ChaosDesignWindow, AppendingAndSavingAChaosGameListFromTheMenus) {
    host.fileNames.push_back(dir.write("pair.chg", "Pair {\nS 0.5 0 0.5 0 0\nS 0.5 0 0.5 1 0\n}\n"));
    item("mnuOpen")->trigger();
    host.fileNames.push_back(dir.write("one.chg", "Turn {\nSR 0.5 90 1 0.25 0.25\n}\n"));
    item("mnuFileAppend")->trigger();
    EXPECT_EQ(listedFractals(), (std::vector<std::string>{"Pair", "Turn"}));
    // Save As of a chaos game list tests for ".ifs" and its writer turns that into ".chg".
    host.fileNames.push_back(dir.path("both"));
    item("mnuSaveIFSas")->trigger();
    const std::string out = dir.path("both.chg");
    ASSERT_TRUE(std::filesystem::exists(out));
    EXPECT_EQ(host.dialogs().back().title, "Save Chaos Game file");
    host.fileNames.push_back(out);
    item("mnuOpen")->trigger();
    EXPECT_EQ(listedFractals(), (std::vector<std::string>{"Pair", "Turn"}));
    EXPECT_EQ(wb().CurrentIFS.Name, "Pair");
    frame->runCommand("mnuNames(6)");
    EXPECT_EQ(wb().CurrentIFS.nMaps, 1);
    EXPECT_EQ(wb().CurrentIFS.Step[2][0], "R");
    EXPECT_FLOAT_EQ(wb().CurrentIFS.Angle[0], 90);
}

TEST_F(ChaosDesignWindow, AChaosGameFileMakesTheRoundTripThroughTheWindows) {
    const std::string in = dir.write("pair.chg", "Pair {\nS 0.5 0 0.5 0 0\nS 0.5 0 0.5 1 0\n}\n");
    host.fileNames.push_back(in);
    frame->runCommand("mnuOpen");
    QApplication::processEvents();
    ASSERT_EQ(wb().CurrentIFS.nMaps, 2);
    EXPECT_EQ(wb().DesignMode, 1);
    EXPECT_TRUE(area()->isVisible());
    EXPECT_EQ(wb().Table.text(8, 1), "1.000");
    EXPECT_EQ(design().picCGDesign.point(1, 0), wb().FunctionColor[1]);

    // Move the second point by the mouse and give it a turn in the moves window.
    drag(1, 0, 0.75, 0.25);
    EXPECT_NEAR(wb().CurrentIFS.FPx[1], 0.75, 0.01);
    QTimer::singleShot(0, [&] {
        auto* dialog = frame->findChild<ChaosMovesDialog*>("frmScaleCG");
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QCheckBox*>("chkStep(2)")->click();
        dialog->findChild<QPushButton*>("cmdOk")->click();
    });
    frame->runCommand("mnuDesignCGMoves");
    ASSERT_EQ(wb().CurrentIFS.Step[2][1], "R");
    const IFSEntry edited = wb().CurrentIFS;

    const std::string out = dir.path("edited.chg");
    host.fileNames.push_back(out);
    frame->runCommand("mnuSaveCurrent");
    ASSERT_TRUE(std::filesystem::exists(out));
    EXPECT_EQ(wb().ChangeCount, 0);

    host.fileNames.push_back(out);
    frame->runCommand("mnuOpen");
    QApplication::processEvents();
    const IFSEntry& back = wb().CurrentIFS;
    ASSERT_EQ(back.nMaps, 2);
    EXPECT_EQ(back.Step[1][1], "S");
    EXPECT_EQ(back.Step[2][1], "R");
    // The file keeps six decimals.
    EXPECT_NEAR(back.FPx[1], edited.FPx[1], 1e-6);
    EXPECT_NEAR(back.FPy[1], edited.FPy[1], 1e-6);
    EXPECT_FLOAT_EQ(back.Scale[1], 0.5f);
    EXPECT_EQ(wb().Table.text(2, 1), "R");
    EXPECT_EQ(design().picCGDesign.point(back.FPx[1], back.FPy[1]), wb().FunctionColor[1]);
}

}  // namespace
}  // namespace quillane::testing
