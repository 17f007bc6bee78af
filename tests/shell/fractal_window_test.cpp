#include "shell/fractal_window.h"

#include <QMdiSubWindow>
#include <cmath>
#include <QScrollArea>
#include <QTest>

#include "app/fractal_view.h"
#include "core/numbers.h"
#include "shell/functions_window.h"
#include "shell/picture_widget.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class FractalWindowTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
        wb().Rng.pin(11);
        QApplication::processEvents();
    }
    FractalWindow& fractal() { return *frame->fractalWindow(); }
    PictureWidget& picture() { return *fractal().picture(); }
    double side() const { return frame->state().wb.Window.xmax - frame->state().wb.Window.xmin; }
    int paintedPixels() {
        const RasterSurface& p = frame->state().pics.picfractal;
        int n = 0;
        for (int r = 0; r < p.height(); ++r)
            for (int c = 0; c < p.width(); ++c) n += p.pixel(c, r) != White;
        return n;
    }
    // Draws a fixed number of points through the menu command path.
    void drawPoints(int32_t n) {
        frame->state().pics.LastFixedCount = n;
        QTest::keyClick(&picture(), Qt::Key_D, Qt::ControlModifier | Qt::AltModifier);
    }
};

TEST_F(FractalWindowTest, ThePictureIsASquareShownFromTheSurfaceItself) {
    const RasterSurface& p = frame->state().pics.picfractal;
    EXPECT_GT(p.width(), 50);
    EXPECT_EQ(p.width(), p.height());
    EXPECT_EQ(picture().surface(), &p);
    EXPECT_EQ(picture().size(), QSize(p.width(), p.height()));
    EXPECT_EQ(frame->toolbar()->txtFractalSize()->text(), QString("%1 x %2").arg(p.width()).arg(p.height()));
}

TEST_F(FractalWindowTest, DrawRunsUntilQStopsItAtAYield) {
    int yields = 0;
    host.onYield = [&](int) {
        if (wb().PointCount == 0) return;  // the yield before the drawing begins
        ++yields;
        fractal().refresh();  // what the program's host does at a yield
        EXPECT_EQ(fractal().windowTitle().toStdString(), "Press Q to quit");
        if (yields == 20) QTest::keyClick(&picture(), Qt::Key_Q);
    };
    frame->runCommand("mnuRun");
    EXPECT_EQ(yields, 20);
    EXPECT_FALSE(wb().DrawingActive);
    EXPECT_EQ(wb().PointCount, 1950);
    EXPECT_EQ(fractal().windowTitle().toStdString(), "Fractal (Random)");
    EXPECT_EQ(fractal().findChild<QLabel*>("picCount")->text().toStdString(), "1900");
    EXPECT_GT(paintedPixels(), 50);
}

TEST_F(FractalWindowTest, StopFromTheMenuAndDrawAgainContinues) {
    host.onYield = [&](int) {
        if (wb().PointCount % 500 == 450) frame->runCommand("mnuStop");
    };
    frame->runCommand("mnuRun");
    EXPECT_EQ(wb().PointCount, 450);
    frame->runCommand("mnuRun");
    EXPECT_EQ(wb().PointCount, 950);
    EXPECT_TRUE(wb().DrawingStarted);
    frame->runCommand("mnuClear");
    EXPECT_EQ(paintedPixels(), 0);
    EXPECT_FALSE(wb().DrawingStarted);
    EXPECT_EQ(fractal().findChild<QLabel*>("picCount")->text().toStdString(), "");
}

TEST_F(FractalWindowTest, TheFrameButtonsSwapDrawAndStopForTheRunOnly) {
    FrameToolbar* bar = frame->toolbar();
    EXPECT_TRUE(bar->button("draw")->isEnabled());
    EXPECT_FALSE(bar->button("stop")->isEnabled());
    bool drawDuring = true, stopDuring = false;
    host.onYield = [&](int) {
        drawDuring = bar->button("draw")->isEnabled();
        stopDuring = bar->button("stop")->isEnabled();
    };
    drawPoints(2000);
    EXPECT_FALSE(drawDuring);
    EXPECT_TRUE(stopDuring);
    EXPECT_TRUE(bar->button("draw")->isEnabled());
    EXPECT_FALSE(bar->button("stop")->isEnabled());
}

TEST_F(FractalWindowTest, PageDownZoomsOutPageUpZoomsInAndUndoGoesBackOneStep) {
    drawPoints(2000);
    // A zoom redraws a started drawing until it is stopped: stop each redraw at once.
    host.onYield = [&](int) { wb().DrawingActive = false; };
    const double start = side();
    // The window goes through the three-decimal boxes of the table, so sides agree to 1e-3.
    QTest::keyClick(&picture(), Qt::Key_PageDown);
    EXPECT_NEAR(side(), start * 1.05, 2e-3);
    QTest::keyClick(&picture(), Qt::Key_PageDown);
    EXPECT_NEAR(side(), start * 1.05 * 1.05, 2e-3);
    EXPECT_EQ(item("mnuUndo")->text().toStdString(), "&Undo Zoom");
    EXPECT_TRUE(item("mnuUndo")->isEnabled());
    item("mnuUndo")->trigger();
    EXPECT_NEAR(side(), start * 1.05, 2e-3);
    EXPECT_FALSE(item("mnuUndo")->isEnabled());
    QTest::keyClick(&picture(), Qt::Key_PageUp);
    EXPECT_NEAR(side(), start * 1.05 * 0.95, 2e-3);
    // Home samples the attractor afresh: the window fits it again, up to the tenths it is rounded to.
    QTest::keyClick(&picture(), Qt::Key_Home);
    EXPECT_NEAR(side(), start, 0.11);
    EXPECT_LT(wb().Window.xmin, 0.0f);
    EXPECT_GT(wb().Window.xmax, 1.0f);
}

// The four boxes always show the window the next Draw uses, after every view command and table change.
TEST_F(FractalWindowTest, TheWindowBoxesFollowEveryViewCommandAndTableChange) {
    auto boxesAgree = [this](const char* step) {
        const WorldWindow& w = wb().Window;
        const std::array<float, 4> bounds{w.ymax, w.ymin, w.xmin, w.xmax};
        for (int k = 0; k < 4; ++k) {
            const auto* box = frame->functionsWindow()->txtWin(k);
            EXPECT_EQ(box->text().toStdString(), Format(bounds[static_cast<size_t>(k)], "0.000")) << step << " box " << k;
        }
        // Draw paints with the picture's mapping: it must be that window.
        drawPoints(50);
        const RasterSurface& p = frame->state().pics.picfractal;
        EXPECT_FLOAT_EQ(static_cast<float>(p.scaleLeft()), w.xmin) << step;
        EXPECT_FLOAT_EQ(static_cast<float>(p.scaleRight()), w.xmax) << step;
        EXPECT_FLOAT_EQ(static_cast<float>(p.scaleTop()), w.ymax) << step;
        EXPECT_FLOAT_EQ(static_cast<float>(p.scaleBottom()), w.ymin) << step;
    };
    host.onYield = [&](int) { wb().DrawingActive = false; };
    boxesAgree("start");
    const double start = side();
    for (int press = 1; press <= 10; ++press) {
        QTest::keyClick(&picture(), Qt::Key_PageUp);
        boxesAgree("Page Up");
    }
    EXPECT_NEAR(side(), start * std::pow(0.95, 10), 0.011);
    item("mnuZoom")->trigger();
    boxesAgree("Zoom In");
    item("mnuUndo")->trigger();
    boxesAgree("Undo Zoom");
    item("mnuDrawRestore")->trigger();
    boxesAgree("Restore");
    QTest::keyClick(&picture(), Qt::Key_PageUp);
    item("mnuDrawRestore")->trigger();
    item("mnuUndo")->trigger();
    boxesAgree("Undo Zoom after Restore");
    QTest::keyClick(&picture(), Qt::Key_PageDown);
    boxesAgree("Page Down");
    QLineEdit* maps = frame->functionsWindow()->txtMaps();
    maps->setFocus();
    maps->selectAll();
    QTest::keyClicks(maps, "3");
    QTest::keyClick(maps, Qt::Key_Return);
    QApplication::processEvents();
    boxesAgree("txtMaps");
    item("mnuCalcScale")->trigger();
    boxesAgree("Scale to Fit");
}

TEST_F(FractalWindowTest, OverlayColourItemsAndScaleToDesignAreConnectedWithTheirRules) {
    EXPECT_TRUE(item("mnuDrawScaleDesign")->isEnabled());
    EXPECT_FALSE(item("mnuDrawOverlay")->isEnabled());
    EXPECT_FALSE(item("mnuDrawDetColors")->isEnabled());
    item("mnuDrawType(1)")->trigger();
    EXPECT_TRUE(item("mnuDrawDetColors")->isEnabled());
    ASSERT_TRUE(item("mnuDrawOverlay")->isEnabled());
    item("mnuDrawOverlay")->trigger();
    EXPECT_TRUE(wb().menu("mnuDrawOverlay").checked);
    EXPECT_TRUE(item("mnuDrawOverlay")->isChecked());
    ASSERT_TRUE(item("mnuDrawDetColorItems(1)")->isEnabled());
    item("mnuDrawDetColorItems(1)")->trigger();
    EXPECT_TRUE(wb().menu("mnuDrawDetColorItems(1)").checked);
    EXPECT_FALSE(wb().menu("mnuDrawDetColorItems(0)").checked);
    wb().DesignWindow = {0, 2, 0, 2};
    wb().txtDesign = {"2.000", "0.000", "0.000", "2.000"};
    item("mnuDrawScaleDesign")->trigger();
    EXPECT_EQ(wb().Window, (WorldWindow{0, 2, 0, 2}));
    EXPECT_EQ(frame->functionsWindow()->txtWin(3)->text().toStdString(), "2.000");
    item("mnuDrawFreezeScale")->trigger();
    EXPECT_FALSE(item("mnuDrawScaleDesign")->isEnabled());
}

TEST_F(FractalWindowTest, ArrowsShiftTheViewByOnePercent) {
    const WorldWindow before = wb().Window;
    QTest::keyClick(&picture(), Qt::Key_Right);
    EXPECT_NEAR(wb().Window.xmin - before.xmin, 0.01 * (before.xmax - before.xmin), 1e-3);
    EXPECT_GT(wb().Window.xmin, before.xmin);
    EXPECT_EQ(frame->functionsWindow()->findChild<QLineEdit*>("txtWin(2)")->text().toStdString(),
              wb().txtWin[2]);
}

TEST_F(FractalWindowTest, ADragSelectsAndZoomInTakesTheRectangle) {
    const QSize s = picture().size();
    const QPoint from(s.width() / 4, s.height() / 4), to(s.width() / 2, s.height() / 2);
    QTest::mousePress(&picture(), Qt::LeftButton, Qt::NoModifier, from);
    QMouseEvent move(QEvent::MouseMove, QPointF(to), picture().mapToGlobal(QPointF(to)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&picture(), &move);
    QTest::mouseRelease(&picture(), Qt::LeftButton, Qt::NoModifier, to);
    EXPECT_TRUE(frame->state().pics.Selection.SelectionActive);
    EXPECT_EQ(item("mnuZoom")->text().toStdString(), "Zoom Selection\tPage Up");
    const WorldPoint a = picture().worldAt(from), b = picture().worldAt(to);
    host.onYield = [&](int) { wb().DrawingActive = false; };
    QTest::keyClick(&picture(), Qt::Key_PageUp);
    EXPECT_NEAR(wb().Window.xmin, std::min(a.x, b.x), 1e-5);
    EXPECT_NEAR(wb().Window.ymax, std::max(a.y, b.y), 1e-5);
    EXPECT_FALSE(frame->state().pics.Selection.SelectionActive);
}

TEST_F(FractalWindowTest, TheMouseShowsClampedCoordinates) {
    QMouseEvent move(QEvent::MouseMove, QPointF(0, 0), picture().mapToGlobal(QPointF(0, 0)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&picture(), &move);
    const QString text = fractal().findChild<QLabel*>("picCoord")->text();
    EXPECT_TRUE(text.startsWith("(")) << text.toStdString();
    EXPECT_EQ(text.toStdString(), CoordinateText(wb().Window, picture().worldAt(QPoint(0, 0)).x,
                                                 picture().worldAt(QPoint(0, 0)).y));
}

TEST_F(FractalWindowTest, FreezeScaleDisablesTheViewCommandsAndKeysSayWhy) {
    item("mnuDrawFreezeScale")->trigger();
    EXPECT_TRUE(item("mnuDrawFreezeScale")->isChecked());
    for (const char* key : {"mnuCalcScale", "mnuDrawShift", "mnuDrawZoom", "mnuZoom", "mnuDrawRestore"})
        EXPECT_FALSE(item(key)->isEnabled()) << key;
    const WorldWindow before = wb().Window;
    QTest::keyClick(&picture(), Qt::Key_PageDown);
    EXPECT_EQ(wb().Window, before);
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().title, "Not permitted");
    EXPECT_EQ(host.shown().back().text, "Scale is frozen");
}

TEST_F(FractalWindowTest, TakingAListEntryShowsItInTheTable) {
    item(EntryKey(2))->trigger();
    EXPECT_EQ(frame->functionsWindow()->windowTitle().toStdString(), "IFS [Other]");
    EXPECT_EQ(frame->functionsWindow()->row(0)[0]->text().toStdString(), "0.250");
    EXPECT_TRUE(item(EntryKey(2))->isChecked());
}

TEST_F(FractalWindowTest, TheFunctionTableShowsTheRowsSwatchesAndWindow) {
    FunctionsWindow& table = *frame->functionsWindow();
    EXPECT_EQ(table.windowTitle().toStdString(), "IFS [First]");
    EXPECT_EQ(table.findChild<QLineEdit*>("txtMaps")->text().toStdString(), "2");
    const std::array<QString, 7> row1 = {"0.500", "0.000", "0.000", "0.500", "0.500", "0.000", "0.500"};
    for (int k = 0; k < 7; ++k) EXPECT_EQ(table.row(1)[k]->text(), row1[k]) << k;
    EXPECT_TRUE(table.row(1)[0]->isVisibleTo(&table));
    EXPECT_FALSE(table.row(1)[7]->isVisibleTo(&table));  // fixed points only in the fixed point form
    EXPECT_EQ(table.findChild<QLabel*>("lblProbSum")->text().toStdString(), "1.000");
    EXPECT_TRUE(table.picColor(0)->styleSheet().contains("rgb(255,0,0)"));
    // The start fits the design window to the entry and its polygon (no longer the default 1.100).
    EXPECT_EQ(table.findChild<QLineEdit*>("txtDesign(0)")->text().toStdString(), "1.050");
    EXPECT_EQ(table.findChild<QLineEdit*>("txtDesign(0)")->text().toStdString(), wb().txtDesign[0]);
    EXPECT_EQ(table.findChild<QLineEdit*>("txtWin(3)")->text().toStdString(), wb().txtWin[3]);
}

}  // namespace
}  // namespace quillane::testing

#include <QClipboard>
#include <QDialog>
#include <QGuiApplication>
#include <QTimer>

namespace quillane::testing {
namespace {

TEST_F(FractalWindowTest, CopyPutsThePictureOnTheClipboard) {
    drawPoints(5000);
    item("mnuEditCopy")->trigger();
    const QImage image = QGuiApplication::clipboard()->image();
    const RasterSurface& p = frame->state().pics.picfractal;
    ASSERT_EQ(image.width(), p.width());
    ASSERT_EQ(image.height(), p.height());
    int differ = 0;
    for (int r = 0; r < p.height(); ++r)
        for (int c = 0; c < p.width(); ++c) {
            const QRgb q = image.pixel(c, r);
            differ += RGB(qRed(q), qGreen(q), qBlue(q)) != p.pixel(c, r);
        }
    EXPECT_EQ(differ, 0);
    EXPECT_GT(paintedPixels(), 50);
}

TEST_F(FractalWindowTest, SaveFractalPictureWritesTheChosenFormat) {
    drawPoints(2000);
    host.fileNames.push_back(dir.path("shot"));
    host.filters.push_back(2);
    item("mnuSaveFractal")->trigger();
    EXPECT_TRUE(std::filesystem::exists(dir.path("shot.png")));
    EXPECT_TRUE(host.shown().empty());
}

}  // namespace
}  // namespace quillane::testing

namespace quillane::testing {
namespace {

TEST_F(FractalWindowTest, DeterministicLevelsFromAFilledTriangleKeepHalfAPerLevel) {
    item("mnuDrawType(1)")->trigger();
    EXPECT_EQ(fractal().windowTitle().toStdString(), "Fractal (Deterministic)");
    EXPECT_TRUE(item("mnuDrawAddFigure(3)")->isEnabled());
    // A filled triangle as the initial set, through its dialog's defaults.
    int dialogs = 0;
    QTimer::singleShot(0, [&] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (w->objectName() == "frmTriangle" && w->isVisible()) {
                ++dialogs;
                static_cast<QDialog*>(w)->accept();
            }
    });
    item("mnuDrawAddFigure(3)")->trigger();
    EXPECT_EQ(dialogs, 1);
    EXPECT_EQ(wb().DetFigure, 3);
    const int start = paintedPixels();
    ASSERT_GT(start, 100);
    frame->runCommand("mnuRun");
    frame->runCommand("mnuRun");
    EXPECT_EQ(wb().IterationNumber, 2);
    // Two half-size maps keep about half of the pixels per level: a quarter after two levels.
    const int two = paintedPixels();
    EXPECT_GT(two, start / 5);
    EXPECT_LT(two, start * 32 / 100);
    // The middle of the triangle (width 1 from the origin) is empty after a level.
    const RasterSurface& p = frame->state().pics.picfractal;
    EXPECT_EQ(p.point(0.5, 0.25), White);
    EXPECT_NE(p.point(0.05, 0.02), White);
    item("mnuDrawType(0)")->trigger();
    EXPECT_EQ(fractal().windowTitle().toStdString(), "Fractal (Random)");
}

}  // namespace
}  // namespace quillane::testing

namespace quillane::testing {
namespace {

TEST(FractalKeys, ModifierKeysAloneAreNoneOfTheWindowsKeys) {
    // Qt's codes for the modifiers end in bytes that would read as Page Up (Ctrl) and Page Down (Alt).
    EXPECT_EQ(FractalKeyCode(Qt::Key_Control), 0);
    EXPECT_EQ(FractalKeyCode(Qt::Key_Shift), 0);
    EXPECT_EQ(FractalKeyCode(Qt::Key_Alt), 0);
    EXPECT_EQ(FractalKeyCode(Qt::Key_Meta), 0);
    EXPECT_EQ(FractalKeyCode(Qt::Key_PageUp), KeyPageUp);
    EXPECT_EQ(FractalKeyCode(Qt::Key_Q), KeyQ);
    EXPECT_EQ(FractalKeyCode(Qt::Key_3), '3');
}

TEST_F(FractalWindowTest, PressingCtrlAloneLeavesTheViewAsItIs) {
    const WorldWindow before = wb().Window;
    QTest::keyPress(&picture(), Qt::Key_Control, Qt::ControlModifier);
    QTest::keyRelease(&picture(), Qt::Key_Control);
    EXPECT_EQ(wb().Window, before);
}

}  // namespace
}  // namespace quillane::testing
