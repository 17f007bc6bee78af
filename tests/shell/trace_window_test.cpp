#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <functional>

#include "app/fractal_view.h"
#include "app/overlay_commands.h"
#include "render/fractal_overlays.h"
#include "shell/fractal_window.h"
#include "shell/grid_size_dialog.h"
#include "shell/picture_widget.h"
#include "shell/trace_dialogs.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

// Twelve maps: map k sends the origin to (k / 24, 0).
std::string twelveMapBlock() {
    std::string s = "Twelve {\n";
    for (int k = 1; k <= 12; ++k)
        s += "0.5 0 0 0.5 " + std::to_string(k / 24.0) + " 0 " + (k < 12 ? "0.083" : "0.087") + "\n";
    return s + "}\n";
}

class TraceWindowTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", twelveMapBlock() + GoodBlock);
        open();
        wb().Rng.pin(3);
        QApplication::processEvents();
    }
    FractalWindow& fractal() { return *frame->fractalWindow(); }
    PictureWidget& picture() { return *fractal().picture(); }
    FractalPictures& pics() { return frame->state().pics; }
    QPoint pixelOf(double x, double y) {
        int64_t c = 0, r = 0;
        pics().picfractal.toPixel(x, y, c, r);
        return {static_cast<int>(c), static_cast<int>(r)};
    }
    void traceFromOrigin() {
        frame->runCommand("mnuTrace");
        QTest::mouseClick(&picture(), Qt::RightButton, Qt::ControlModifier, pixelOf(0, 0));
        // The click's pixel is the origin to within a pixel; the walk is checked from this point.
        wb().TraceCurX = wb().TraceCurY = 0;
    }
    void send(QEvent::Type type, int key) {
        QKeyEvent e(type, key, Qt::ShiftModifier);
        QApplication::sendEvent(&picture(), &e);
    }
    QString traceLabel() { return fractal().findChild<QLabel*>("picTrace")->text(); }
    int differing(const RasterSurface& a, const RasterSurface& b) {
        int n = 0;
        for (int r = 0; r < a.height(); ++r)
            for (int c = 0; c < a.width(); ++c) n += a.pixel(c, r) != b.pixel(c, r);
        return n;
    }
    int count(Color color) {
        const RasterSurface& p = pics().picfractal;
        int n = 0;
        for (int r = 0; r < p.height(); ++r)
            for (int c = 0; c < p.width(); ++c) n += p.pixel(c, r) == color;
        return n;
    }
    QAction* button(const char* key) {
        return fractal().findChild<QToolBar*>("Toolbar1")->findChild<QAction*>(key);
    }
};

TEST_F(TraceWindowTest, TheMenuAndTheDisplayFollowTraceOnAndOff) {
    EXPECT_EQ(traceLabel(), " Trace Off");
    EXPECT_EQ(item("mnuTrace")->text().toStdString(), "&Turn Trace On");
    frame->runCommand("mnuTrace");
    EXPECT_EQ(traceLabel(), " Trace On");
    EXPECT_EQ(item("mnuTrace")->text().toStdString(), "&Turn Trace Off");
    EXPECT_TRUE(item("mnuDrawTraceSetPoint")->isEnabled());
    frame->runCommand("mnuTrace");
    EXPECT_EQ(traceLabel(), " Trace Off");
}

TEST_F(TraceWindowTest, CtrlRightClickSetsThePointAndAPlainRightClickOpensTheMenu) {
    bool menuAsked = false;
    fractal().onDrawMenuRequested = [&](QPoint) { menuAsked = true; };
    frame->runCommand("mnuTrace");
    QTest::mouseClick(&picture(), Qt::RightButton, Qt::ControlModifier, pixelOf(0.5, 0.5));
    EXPECT_FALSE(menuAsked);
    EXPECT_TRUE(wb().TracePointSet);
    EXPECT_NEAR(wb().TraceX, 0.5, 0.02);
    EXPECT_EQ(pics().picfractal.point(wb().TraceX, wb().TraceY), Black);
    QTest::mouseClick(&picture(), Qt::RightButton, Qt::NoModifier, pixelOf(0.5, 0.5));
    EXPECT_TRUE(menuAsked);
}

TEST_F(TraceWindowTest, WithTwelveMapsALoneOneTakesMapOneAndShiftOneTwoTakesMapTwelve) {
    traceFromOrigin();
    QTest::keyClick(&picture(), Qt::Key_1);
    EXPECT_NEAR(wb().TraceCurX, 1.0 / 24, 1e-6);
    wb().TraceCurX = 0;
    // Shift held over both digits, as the keys come from a keyboard: the symbols of the digit keys.
    // Raw events: a test key press would press Shift again before each key, which no hand does.
    send(QEvent::KeyPress, Qt::Key_Shift);
    send(QEvent::KeyPress, Qt::Key_Exclam);
    send(QEvent::KeyRelease, Qt::Key_Exclam);
    EXPECT_EQ(wb().TraceCurX, 0);
    send(QEvent::KeyPress, Qt::Key_At);
    send(QEvent::KeyRelease, Qt::Key_At);
    send(QEvent::KeyRelease, Qt::Key_Shift);
    EXPECT_NEAR(wb().TraceCurX, 12.0 / 24, 1e-6);
}

TEST_F(TraceWindowTest, ThousandStepsByTheSpacebarThenTraceOffLeaveTheDrawingAsItWas) {
    wb().Rng.unpin();
    pics().LastFixedCount = -3000;
    QTest::keyClick(&picture(), Qt::Key_D, Qt::ControlModifier | Qt::AltModifier);
    const RasterSurface drawing = pics().picfractal;
    traceFromOrigin();
    for (int k = 0; k < 1000; ++k) QTest::keyClick(&picture(), Qt::Key_Space);
    EXPECT_GT(differing(drawing, pics().picfractal), 20);
    frame->runCommand("mnuTrace");
    EXPECT_EQ(differing(drawing, pics().picfractal), 0);
}

TEST_F(TraceWindowTest, TheToolbarButtonsAndCtrlKeysSwitchTheOverlaysAndShowTheirState) {
    const RasterSurface empty = pics().picfractal;
    button("axes")->trigger();
    EXPECT_TRUE(wb().menu("mnuAxes").checked);
    EXPECT_TRUE(button("axes")->isChecked());
    EXPECT_TRUE(item("mnuAxes")->isChecked());
    EXPECT_EQ(pics().picfractal.point(0.5, 0), Black);
    button("fixed points")->trigger();
    button("grid")->trigger();
    EXPECT_GT(count(FractalGridColor), 0);
    QTest::keyClick(&picture(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&picture(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClick(&picture(), Qt::Key_G, Qt::ControlModifier);
    EXPECT_FALSE(button("axes")->isChecked());
    EXPECT_FALSE(button("grid")->isChecked());
    EXPECT_EQ(differing(empty, pics().picfractal), 0);
}

TEST_F(TraceWindowTest, RemovingAxesByKeyKeepsTheTraceDots) {
    traceFromOrigin();
    for (int k = 0; k < 40; ++k) QTest::keyClick(&picture(), Qt::Key_Space);
    const RasterSurface dots = pics().picfractal;
    QTest::keyClick(&picture(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_GT(differing(dots, pics().picfractal), 0);
    QTest::keyClick(&picture(), Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(differing(dots, pics().picfractal), 0);
}

TEST_F(TraceWindowTest, PlusAndMinusKeysStepTheGridSpacing) {
    QTest::keyClick(&picture(), Qt::Key_G, Qt::ControlModifier);
    QTest::keyClick(&picture(), Qt::Key_Plus, Qt::ShiftModifier);
    EXPECT_EQ(wb().GridSpacingX, 0.125f);
    QTest::keyClick(&picture(), Qt::Key_Plus, Qt::KeypadModifier);
    EXPECT_EQ(wb().GridSpacingX, 0.25f);
    QTest::keyClick(&picture(), Qt::Key_Minus);
    QTest::keyClick(&picture(), Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_EQ(wb().GridSpacingY, 0.1f);
}

TEST_F(TraceWindowTest, CtrlAltGOpensTheGridDialogWhichKeepsItsRange) {
    int shown = 0;
    QTimer::singleShot(0, [&] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<GridSizeDialog*>(w); d && d->isVisible()) {
                ++shown;
                EXPECT_EQ(d->objectName().toStdString(), "frmGridSize");
                d->txtGrid()->setText("5000");
                d->findChild<QPushButton*>("cmdOK")->click();
                EXPECT_TRUE(d->isVisible());  // refused: the dialog stays
                d->txtGrid()->setText("1/4");
                d->findChild<QPushButton*>("cmdOK")->click();
            }
    });
    QTest::keyClick(&picture(), Qt::Key_G, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(shown, 1);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text, GridSizeRangeText);
    EXPECT_TRUE(wb().menu("mnudrawFractalGrid").checked);
    EXPECT_EQ(wb().GridSpacingX, 0.25f);
}

TEST_F(TraceWindowTest, CtrlAltAOpensTheAxisSizeDialog) {
    QTest::keyClick(&picture(), Qt::Key_A, Qt::ControlModifier);
    const int thin = count(Black);
    QTimer::singleShot(0, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<AxisSizeDialog*>(w); d && d->isVisible()) {
                d->cmbThickness()->setCurrentIndex(3);
                d->findChild<QPushButton*>("cmdOK")->click();
            }
    });
    QTest::keyClick(&picture(), Qt::Key_A, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_EQ(wb().AxisThickness, 4);
    EXPECT_GT(count(Black), 2 * thin);
}

TEST_F(TraceWindowTest, CtrlAltPAsksForTheInitialPointWhileTracing) {
    frame->runCommand("mnuTrace");
    QTimer::singleShot(0, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<TracePointDialog*>(w); d && d->isVisible()) {
                d->txtX()->setText("1/4");
                d->txtY()->setText("0.5");
                d->findChild<QPushButton*>("cmdOK")->click();
            }
    });
    QTest::keyClick(&picture(), Qt::Key_P, Qt::ControlModifier | Qt::AltModifier);
    EXPECT_TRUE(wb().TracePointSet);
    EXPECT_FLOAT_EQ(wb().TraceX, 0.25f);
    EXPECT_FLOAT_EQ(wb().TraceY, 0.5f);
}

TEST_F(TraceWindowTest, TheDotSizeDialogStartsAtThePresentSizeAndCancelKeepsIt) {
    wb().TraceDotSize = 4;
    QTimer::singleShot(0, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<TracePointSizeDialog*>(w); d && d->isVisible()) {
                EXPECT_EQ(d->size(), 4);
                EXPECT_NE(d->picDot(), nullptr);
                d->cmbSize()->setCurrentIndex(0);
                d->reject();
            }
    });
    frame->runCommand("mnuDrawTraceDotSize");
    EXPECT_EQ(wb().TraceDotSize, 4);
}

TEST_F(TraceWindowTest, TheMouseCoordinatesNeverLeaveTheWindow) {
    picture().setMouseTracking(true);
    QMouseEvent move(QEvent::MouseMove, QPointF(-3, -3), picture().mapToGlobal(QPointF(-3, -3)), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(&picture(), &move);
    const WorldWindow w = wb().Window;
    const QString text = fractal().findChild<QLabel*>("picCoord")->text();
    EXPECT_EQ(text.toStdString(), CoordinateText(w, w.xmin - 5, w.ymax + 5));
}

}  // namespace
}  // namespace quillane::testing
