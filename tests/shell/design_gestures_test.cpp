// The design window's gestures through real mouse and key events on picdesign, offscreen.
#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "core/numbers.h"
#include "shell/design_window.h"
#include "shell/functions_window.h"
#include "shell/main_window.h"
#include "shell/transform_dialogs_qt.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class DesignGestureTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
        QApplication::processEvents();
        frame->runCommand("mnupoly(7)");  // unit square: the maps are [0, 0.5] x [0, 0.5] and beside it
        QApplication::processEvents();
    }
    DesignForm& form() { return *frame->designWindow(); }
    DesignPictures& design() { return frame->state().design; }
    Workbench& wb() { return frame->state().wb; }
    IFSFunction map(int i) { return wb().CurrentIFS.function(i); }
    std::string caption() { return frame->menuAction("mnuUndo")->text().toStdString(); }
    std::string rowText(int row, int column) {
        return frame->functionsWindow()->row(row)[static_cast<size_t>(column)]->text().toStdString();
    }
    QPoint pixelOf(double x, double y) {
        int64_t col = 0, row = 0;
        EXPECT_TRUE(design().picdesign.toPixel(x, y, col, row));
        return QPoint(static_cast<int>(col), static_cast<int>(row));
    }
    void move(double x, double y, Qt::MouseButtons buttons = Qt::NoButton,
              Qt::KeyboardModifiers m = Qt::NoModifier) {
        const QPointF at = pixelOf(x, y);
        QMouseEvent event(QEvent::MouseMove, at, form().picture()->mapToGlobal(at), Qt::NoButton, buttons, m);
        QApplication::sendEvent(form().picture(), &event);
    }
    void press(double x, double y, Qt::KeyboardModifiers m = Qt::NoModifier) {
        move(x, y, Qt::NoButton, m);
        QTest::mousePress(form().picture(), Qt::LeftButton, m, pixelOf(x, y));
    }
    void drag(double x, double y, Qt::KeyboardModifiers m = Qt::NoModifier) { move(x, y, Qt::LeftButton, m); }
    void release(double x, double y, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::mouseRelease(form().picture(), Qt::LeftButton, m, pixelOf(x, y));
    }
    void click(double x, double y) {
        press(x, y);
        release(x, y);
    }
    void undo() { frame->menuAction("mnuUndo")->trigger(); }
    double pixel() { return design().picdesign.pixelsToWorldX(1); }
};

TEST_F(DesignGestureTest, DragAMapWithTheTableFollowingThenUndoRedoUndoExactly) {
    const IFSFunction before = map(0);
    press(0.25, 0.5);  // top edge of function 1
    EXPECT_TRUE(wb().MapSelected);
    EXPECT_EQ(wb().SelectedMap, 0);
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::SizeAllCursor);
    drag(0.3, 0.55);
    const float eMid = map(0).e;
    EXPECT_NEAR(eMid, 0.05, 2 * pixel());
    EXPECT_EQ(rowText(0, 4), Format(eMid, "0.000"));
    drag(0.35, 0.6);
    EXPECT_NEAR(map(0).e, 0.1, 2 * pixel());
    EXPECT_NEAR(map(0).f, 0.1, 2 * pixel());
    EXPECT_EQ(rowText(0, 4), Format(map(0).e, "0.000"));
    EXPECT_EQ(rowText(0, 5), Format(map(0).f, "0.000"));
    EXPECT_EQ(form().coordBox()->text().toStdString().substr(0, 3), "dx:");
    release(0.35, 0.6);
    EXPECT_EQ(caption(), "&Undo Move");
    EXPECT_TRUE(frame->menuAction("mnuUndo")->isEnabled());
    const IFSFunction after = map(0);
    undo();
    EXPECT_EQ(caption(), "&Redo Move");
    EXPECT_EQ(map(0), before);
    EXPECT_EQ(rowText(0, 4), "0.000");
    undo();
    EXPECT_EQ(caption(), "&Undo Move");
    EXPECT_EQ(map(0), after);
    undo();
    EXPECT_EQ(caption(), "&Redo Move");
    EXPECT_EQ(map(0), before);
}

TEST_F(DesignGestureTest, DragACornerHandleResizes) {
    click(0.25, 0.5);
    press(0.5, 0.5);  // handle 4 of the selected map
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::SizeBDiagCursor);
    drag(0.6, 0.6);
    drag(0.75, 0.75);
    EXPECT_NEAR(map(0).a, 0.75, 2 * pixel());
    EXPECT_NEAR(map(0).d, 0.75, 2 * pixel());
    EXPECT_FLOAT_EQ(map(0).e, 0);
    EXPECT_EQ(form().coordBox()->text().toStdString().substr(0, 3), "sx:");
    release(0.75, 0.75);
    EXPECT_EQ(caption(), "&Undo Resize");
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::CrossCursor);
}

TEST_F(DesignGestureTest, CtrlDragOfACornerRotatesAndTheSecondUndoIsARedo) {
    click(0.25, 0.5);
    const IFSFunction before = map(0);
    press(0.5, 0.5, Qt::ControlModifier);
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::BitmapCursor);
    const double t = 75 * DegToRad;  // the press lies at 45 degrees from the centre (0.25, 0.25)
    drag(0.25 + 0.35 * std::cos(t), 0.25 + 0.35 * std::sin(t), Qt::ControlModifier);
    const std::string shown = form().coordBox()->text().toStdString();
    EXPECT_NEAR(std::stod(shown), 30, 0.6);
    EXPECT_EQ(shown.substr(shown.size() - 3), "\xC2\xB0 ");
    release(0.25 + 0.35 * std::cos(t), 0.25 + 0.35 * std::sin(t), Qt::ControlModifier);
    EXPECT_EQ(caption(), "&Undo Rotation");
    const IFSFunction after = map(0);
    EXPECT_NEAR(after.a, 0.5 * std::cos(std::stod(shown) * DegToRad), 1e-5);
    undo();
    EXPECT_EQ(caption(), "&Redo Rotation");
    EXPECT_EQ(map(0), before);
    undo();
    EXPECT_EQ(caption(), "&Undo Rotation");
    EXPECT_EQ(map(0), after);
}

TEST_F(DesignGestureTest, ShiftArrowsNudgeAndReleasingShiftCommitsOneStep) {
    click(0.25, 0.5);
    const int16_t count = wb().ChangeCount;
    for (int k = 0; k < 3; ++k) QTest::keyPress(form().picture(), Qt::Key_Right, Qt::ShiftModifier);
    EXPECT_NEAR(map(0).e, 3 * pixel(), 1e-6);
    EXPECT_FALSE(frame->menuAction("mnuUndo")->isEnabled());
    QTest::keyRelease(form().picture(), Qt::Key_Shift, Qt::NoModifier);
    EXPECT_EQ(caption(), "&Undo Move");
    EXPECT_TRUE(frame->menuAction("mnuUndo")->isEnabled());
    EXPECT_EQ(wb().ChangeCount, count + 1);
    undo();
    EXPECT_FLOAT_EQ(map(0).e, 0);
}

TEST_F(DesignGestureTest, NewAndDuplicateFromTheMenuWithTheirCaptions) {
    frame->menuAction("mnuDesignNew")->trigger();
    EXPECT_EQ(wb().CurrentIFS.nMaps, 3);
    EXPECT_EQ(wb().SelectedMap, 2);
    EXPECT_EQ(caption(), "&Undo New Transformation");
    EXPECT_TRUE(frame->menuAction("mnuDesignDuplicate")->isEnabled());
    frame->menuAction("mnuDesignDuplicate")->trigger();
    EXPECT_EQ(wb().CurrentIFS.nMaps, 4);
    EXPECT_EQ(caption(), "&Undo Duplicate");
    EXPECT_FLOAT_EQ(map(3).a, map(2).a);
    undo();
    EXPECT_EQ(wb().CurrentIFS.nMaps, 3);
    EXPECT_EQ(caption(), "&Redo Duplicate");
    undo();
    EXPECT_EQ(wb().CurrentIFS.nMaps, 4);
    EXPECT_EQ(caption(), "&Undo Duplicate");
}

TEST_F(DesignGestureTest, ReflectionFromTheMenuAndItsUndo) {
    click(0.25, 0.5);
    const IFSFunction before = map(0);
    frame->menuAction("mnuDesignFlipHor")->trigger();
    EXPECT_EQ(caption(), "&Undo Reflection");
    EXPECT_FLOAT_EQ(map(0).a, -0.5f);
    undo();
    EXPECT_EQ(caption(), "&Redo Reflection");
    EXPECT_NEAR(map(0).a, before.a, 1e-7);
    EXPECT_NEAR(map(0).e, before.e, 1e-6);
}

TEST_F(DesignGestureTest, DesignZoomIsUndoneByTheSharedUndo) {
    const WorldWindow before = wb().DesignWindow;
    frame->runCommand("mnuDesignZoom");
    EXPECT_EQ(caption(), "&Undo Zoom");
    EXPECT_NE(wb().DesignWindow, before);
    undo();
    EXPECT_EQ(wb().DesignWindow, before);
    EXPECT_EQ(caption(), "&Undo");
}

TEST_F(DesignGestureTest, CtrlPressAndReleaseExchangeTheCursorOverAHandle) {
    click(0.25, 0.5);
    move(0.25, 0);  // handle 5, the middle of the bottom edge
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::SizeVerCursor);
    QTest::keyPress(form().picture(), Qt::Key_Control, Qt::ControlModifier);
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::SizeHorCursor);
    QTest::keyRelease(form().picture(), Qt::Key_Control, Qt::NoModifier);
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::SizeVerCursor);
    move(0, 0);  // handle 1
    QTest::keyPress(form().picture(), Qt::Key_Control, Qt::ControlModifier);
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::BitmapCursor);
    QTest::keyRelease(form().picture(), Qt::Key_Control, Qt::NoModifier);
    EXPECT_EQ(form().picture()->cursor().shape(), Qt::SizeBDiagCursor);
}

// Fills the boxes of the open modal dialog and presses OK; `then` runs while the dialog still shows.
void answerDialog(const std::vector<std::pair<const char*, const char*>>& texts, std::function<void()> then) {
    QTimer::singleShot(0, [texts, then] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        for (const auto& [name, text] : texts) dialog->findChild<QLineEdit*>(name)->setText(text);
        dialog->accept();
        then();
    });
}

TEST_F(DesignGestureTest, StretchShearDialogRefusesAShearOfNinetyAndKeepsTheFocusOnTheBox) {
    click(0.25, 0.5);
    answerDialog({{"txtSkewVert", "90"}}, [this] {
        ASSERT_FALSE(host.shown().empty());
        EXPECT_EQ(host.shown().back().title, "Error");
        EXPECT_EQ(host.shown().back().text, "Enter a shear value between -90 and 90");
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);  // still open
        EXPECT_EQ(dialog->findChild<QLineEdit*>("txtSkewVert")->selectedText(), "90");
        dialog->reject();
    });
    const IFSFunction before = map(0);
    frame->menuAction("mnuDesignStretch")->trigger();
    EXPECT_EQ(map(0), before);
}

TEST_F(DesignGestureTest, ScaleDialogOfOneHundredCommitsAnUndoStepWithEqualMaps) {
    click(0.25, 0.5);
    const IFSFunction before = map(0);
    answerDialog({{"txtScale", "100"}}, [] {});
    frame->menuAction("mnuDesignScale")->trigger();
    EXPECT_EQ(map(0), before);
    EXPECT_EQ(caption(), "&Undo resize");
    EXPECT_TRUE(frame->menuAction("mnuUndo")->isEnabled());
    undo();
    EXPECT_EQ(caption(), "&Redo Resize");
    undo();
    EXPECT_EQ(caption(), "&Undo Resize");
}

TEST_F(DesignGestureTest, RotateDialogTurnsTheOtherWayWithTheSecondDirection) {
    click(0.25, 0.5);
    QTimer::singleShot(0, [] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QLineEdit*>("txtRotate")->setText("30+60");
        dialog->findChild<QRadioButton*>("optDirection1")->setChecked(true);
        dialog->accept();
    });
    frame->menuAction("mnuDesignRotate")->trigger();
    EXPECT_EQ(caption(), "&Undo Rotation");
    EXPECT_NEAR(map(0).c, -0.5, 1e-6);  // a quarter turn clockwise
}

}  // namespace
}  // namespace quillane::testing
