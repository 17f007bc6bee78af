#include "shell/design_window.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMouseEvent>
#include <QTest>
#include <QToolBar>

#include "core/initial_polygons.h"
#include "shell/functions_window.h"
#include "shell/main_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class DesignWindowTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
        QApplication::processEvents();
    }
    DesignForm& form() { return *frame->designWindow(); }
    DesignPictures& design() { return frame->state().design; }
    // The widget position of a world point on picdesign.
    QPoint pixelOf(double x, double y) {
        int64_t col = 0, row = 0;
        EXPECT_TRUE(design().picdesign.toPixel(x, y, col, row));
        return QPoint(static_cast<int>(col), static_cast<int>(row));
    }
    // A move with no button, as the mouse sends it over the picture.
    void move(double x, double y) {
        const QPointF at = pixelOf(x, y);
        QMouseEvent event(QEvent::MouseMove, at, form().picture()->mapToGlobal(at), Qt::NoButton, Qt::NoButton,
                          Qt::NoModifier);
        QApplication::sendEvent(form().picture(), &event);
    }
    void click(double x, double y, Qt::KeyboardModifiers m = Qt::NoModifier) {
        move(x, y);
        QTest::mouseClick(form().picture(), Qt::LeftButton, m, pixelOf(x, y));
    }
};

TEST_F(DesignWindowTest, TheWindowShowsTheFunctionsWithItsTitleAndToolbar) {
    EXPECT_EQ(form().windowTitle().toStdString(), "Design (IFS)");
    EXPECT_EQ(form().toolbar()->actions().size(), 15);
    const RasterSurface& p = design().picdesign;
    EXPECT_GT(p.width(), 50);
    EXPECT_EQ(form().picture()->surface(), &p);
    // The two functions of the list's first entry, each the oriented square at half size, in colour.
    int coloured = 0;
    for (int r = 0; r < p.height(); ++r)
        for (int c = 0; c < p.width(); ++c) coloured += p.pixel(c, r) == frame->state().wb.FunctionColor[1];
    EXPECT_GT(coloured, 50);
}

TEST_F(DesignWindowTest, TheCloseBoxOnlyHidesTheWindow) {
    QMdiSubWindow* sub = frame->childWindow(2);
    ASSERT_NE(sub, nullptr);
    EXPECT_EQ(sub->widget(), &form());
    sub->close();
    EXPECT_FALSE(sub->isVisible());
    frame->runCommand("mnuWin(2)");
    EXPECT_TRUE(sub->isVisible());
}

TEST_F(DesignWindowTest, AResizeKeepsTheWindowAndShowsTheAreaSizeInTheFrame) {
    const WorldWindow before = frame->state().wb.DesignWindow;
    QMdiSubWindow* sub = frame->childWindow(2);
    frame->mdiArea()->setActiveSubWindow(sub);
    sub->resize(sub->width() + 37, sub->height() + 23);
    QApplication::processEvents();
    const RasterSurface& p = design().picdesign;
    EXPECT_EQ(frame->toolbar()->txtFractalSize()->text(), QString("%1 x %2").arg(p.width()).arg(p.height()));
    EXPECT_EQ(form().picture()->size(), QSize(p.width(), p.height()));
    EXPECT_EQ(frame->state().wb.DesignWindow, before);
}

TEST_F(DesignWindowTest, AWindowTypedIntoTheTableIsTheDesignsNewView) {
    const int before = pixelOf(1.0, 0.0).x();
    QLineEdit* xmax = frame->functionsWindow()->txtDesign(3);
    xmax->setFocus();
    xmax->selectAll();
    QTest::keyClicks(xmax, "2");
    QTest::keyClick(xmax, Qt::Key_Return);
    EXPECT_FLOAT_EQ(frame->state().wb.DesignWindow.xmax, 2.0f);
    const int after = pixelOf(1.0, 0.0).x();
    EXPECT_LT(after, before) << "x = 1 moves left when the view widens";
    // The view reaches x = 2 at the right edge.
    EXPECT_NEAR(design().picdesign.pixelsToWorldX(design().picdesign.width()) + design().picdesign.scaleLeft(), 2.0,
                0.01);
}

TEST_F(DesignWindowTest, SetToFunctionOneRecoloursTheDesignAtOnce) {
    Workbench& wb = frame->state().wb;
    const Color second = wb.FunctionColor[1];
    auto count = [this](Color c) {
        int n = 0;
        const RasterSurface& p = design().picdesign;
        for (int r = 0; r < p.height(); ++r)
            for (int col = 0; col < p.width(); ++col) n += p.pixel(col, r) == c;
        return n;
    };
    ASSERT_GT(count(second), 0);
    item("mnuSameColor")->trigger();
    EXPECT_EQ(wb.FunctionColor[1], wb.FunctionColor[0]);
    EXPECT_EQ(count(second), 0);
    item("mnuDefaultColors")->trigger();
    EXPECT_EQ(wb.FunctionColor[1], second);
    EXPECT_GT(count(second), 0);
}

TEST_F(DesignWindowTest, PolygonModeDrivenByRealMouseEventsAndKeys) {
    frame->runCommand("mnuDrawPoly");
    ASSERT_TRUE(design().Poly.PolygonMode);
    EXPECT_FALSE(frame->menuAction("mnuPickPoly")->isEnabled());
    click(0.1, 0.1);
    move(0.8, 0.1);
    const std::string coord = form().coordBox()->text().toStdString();
    ASSERT_EQ(coord.substr(0, 1), "(");
    EXPECT_NEAR(std::stod(coord.substr(1)), 0.8, 0.01);
    EXPECT_EQ(coord.substr(coord.find(')') + 1), design().HintText);
    click(0.8, 0.1);
    click(0.8, 0.8);
    EXPECT_EQ(design().Poly.PolygonPointCount, 3);
    EXPECT_EQ(design().picdesign.point(0.8, 0.45), Black);
    // L lifts the pen, then a second path of two points; D takes its last one back.
    QTest::keyClick(form().picture(), Qt::Key_L);
    click(0.3, 0.5);
    click(0.5, 0.5);
    QTest::keyClick(form().picture(), Qt::Key_D);
    EXPECT_EQ(design().Poly.PolygonPointCount, 5);
    click(0.5, 0.6);
    QTest::keyClick(form().picture(), Qt::Key_Q);
    const Workbench& wb = frame->state().wb;
    EXPECT_FALSE(design().Poly.PolygonMode);
    ASSERT_EQ(wb.InitialPolygon.nPoints, 6);
    EXPECT_TRUE(wb.InitialPolygon.isPenLift(4));
    EXPECT_NEAR(wb.InitialPolygon.x[6], 0.5, 0.02);
    EXPECT_NEAR(wb.InitialPolygon.y[6], 0.6, 0.02);
    EXPECT_TRUE(frame->menuAction("mnupoly(13)")->isChecked());
    EXPECT_TRUE(frame->menuAction("mnuPickPoly")->isEnabled());
}

TEST_F(DesignWindowTest, ADoubleClickFinishesThePolygon) {
    frame->runCommand("mnuDrawPoly");
    click(0.1, 0.1);
    click(0.9, 0.1);
    QTest::mouseDClick(form().picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(0.9, 0.9));
    EXPECT_FALSE(design().Poly.PolygonMode);
    EXPECT_GE(frame->state().wb.InitialPolygon.nPoints, 2);
}

TEST_F(DesignWindowTest, MenuCommandsZoomShiftAndChooseAPolygon) {
    Workbench& wb = frame->state().wb;
    frame->runCommand("mnupoly(7)");
    EXPECT_EQ(wb.InitialPolygon, BuiltInPolygon(7));
    EXPECT_TRUE(frame->menuAction("mnupoly(7)")->isChecked());
    const WorldWindow fitted = wb.DesignWindow;
    frame->runCommand("mnuDesignZoom");
    EXPECT_LT(wb.DesignWindow.xmin, fitted.xmin);
    EXPECT_EQ(frame->menuAction("mnuUndo")->text().toStdString(), "&Undo Zoom");
    frame->runCommand("MnuDesignShiftDir(1)");
    EXPECT_EQ(frame->menuAction("mnuUndo")->text().toStdString(), "&Undo");
    QTest::keyClick(form().picture(), Qt::Key_Home);
    EXPECT_EQ(wb.DesignWindow, fitted);
}

TEST_F(DesignWindowTest, ShiftedDigitsSelectFunctionsAboveNine) {
    EXPECT_EQ(DesignKeyCodeOf(Qt::Key_Exclam, Qt::ShiftModifier), '1');
    EXPECT_EQ(DesignKeyCodeOf(Qt::Key_At, Qt::ShiftModifier), '2');
    EXPECT_EQ(DesignKeyCodeOf(Qt::Key_Plus, Qt::KeypadModifier), 107);
    QTest::keyClick(form().picture(), Qt::Key_2);
    EXPECT_TRUE(frame->state().wb.MapSelected);
    EXPECT_EQ(frame->state().wb.SelectedMap, 1);
    EXPECT_EQ(form().transBox()->text().toStdString(), "Tran.# 2");
}

}  // namespace
}  // namespace quillane::testing
