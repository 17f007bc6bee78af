// The Line Fractal Design window driven by clicks, keys and drags, from Design > Examples to Close.
#include "shell/line_fractal_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include "app/generator_run.h"
#include "shell/picture_widget.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class LineFractalWindowTest : public FrameTest {
  protected:
    LineFractalWindow* openWindow() {
        open();
        item(MenuTable::key("mnuDesignExample", LineFractalsExample))->trigger();
        auto* w = frame->findChild<LineFractalWindow*>();
        EXPECT_NE(w, nullptr);
        return w;
    }
    template <typename T>
    T* child(QWidget* w, const char* name) {
        T* c = w->findChild<T*>(name);
        EXPECT_NE(c, nullptr) << name;
        return c;
    }
    static QPoint pixelOf(const PictureWidget* p, double x, double y) {
        int64_t col = 0, row = 0;
        EXPECT_TRUE(p->surface()->toPixel(x, y, col, row));
        return QPoint(static_cast<int>(col), static_cast<int>(row));
    }
    static void key(QWidget* w, int k, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::keyPress(w, static_cast<Qt::Key>(k), m);
        QTest::keyRelease(w, static_cast<Qt::Key>(k), m);
    }
};

TEST_F(LineFractalWindowTest, DragCreateAndClose) {
    auto* w = openWindow();
    ASSERT_NE(w, nullptr);
    EXPECT_EQ(w->windowTitle(), "Line Fractal Design");
    EXPECT_TRUE(wb().menu("mnuWin(17)").visible);
    EXPECT_EQ(child<QLabel>(w, "lblOrient(3)")->text(), "A = Back, Right");
    EXPECT_EQ(child<QLabel>(w, "lblScale(0)")->text(), "0.00");
    EXPECT_EQ(child<QLabel>(w, "lblScale(3)")->text(), "0.50");
    PictureWidget* canvas = w->picCanvas();
    child<QCheckBox>(w, "chkPreview")->setChecked(true);
    QTest::mousePress(canvas, Qt::LeftButton, Qt::NoModifier, pixelOf(canvas, 0.5, 0));
    QTest::mouseMove(canvas, pixelOf(canvas, 0.5, 0.4));
    QTest::mouseRelease(canvas, Qt::LeftButton, Qt::NoModifier, pixelOf(canvas, 0.5, 0.4));
    EXPECT_EQ(w->view().SelectedPoint, 1);
    EXPECT_NEAR(w->model().GeneratorPoints[1].y, 0.4, 0.01);
    EXPECT_EQ(w->PreviewDepth, 7);
    EXPECT_TRUE(child<QLabel>(w, "lblCoord")->text().startsWith("(0.5"));
    EXPECT_EQ(w->canvas().point(0.25, 0.2), Black);
    // The preview shows the curve at depth 7: its first line starts at the origin.
    int set = 0;
    for (int r = 0; r < w->preview().height(); ++r)
        for (int c = 0; c < w->preview().width(); ++c) set += w->preview().pixel(c, r) != White;
    EXPECT_GT(set, 100);
    QTest::mouseClick(child<QPushButton>(w, "cmdSetup"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 2);
    EXPECT_EQ(wb().FunctionsCaption, "IFS [Line Fractal (2 segments)]");
    QTest::mouseClick(child<QPushButton>(w, "cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(w->isVisible());
    EXPECT_FALSE(wb().menu("mnuWin(17)").visible);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 2);
    EXPECT_FALSE(frame->state().Line.UseLineRecursion);
}

TEST_F(LineFractalWindowTest, CancelBringsTheOldIFSBack) {
    auto* w = openWindow();
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    QTest::mouseClick(child<QPushButton>(w, "cmdSetup"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.Name, "Line Fractal (2 segments)");
    QTest::mouseClick(child<QPushButton>(w, "cmdCancel"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.Name, before.Name);
    EXPECT_EQ(wb().CurrentIFS.nMaps, before.nMaps);
}

TEST_F(LineFractalWindowTest, EdgesResetAndDirection) {
    auto* w = openWindow();
    ASSERT_NE(w, nullptr);
    child<QComboBox>(w, "cmbEdges")->setCurrentIndex(2);
    EXPECT_EQ(w->model().nSegments, 4);
    EXPECT_EQ(w->model().GeneratorPoints[1], (GeneratorPoint{0.25f, 0}));
    QTest::mouseClick(child<QPushButton>(w, "cmdEdgeChange(0)"), Qt::LeftButton);
    EXPECT_EQ(w->model().nSegments, 5);
    EXPECT_EQ(child<QComboBox>(w, "cmbEdges")->currentText(), "5");
    EXPECT_EQ(w->view().SelectedPoint, 4);
    EXPECT_EQ(w->model().GeneratorPoints[4], (GeneratorPoint{0.875f, 0}));  // no reset by the combo
    QTest::mouseClick(child<QPushButton>(w, "cmdEdgeChange(1)"), Qt::LeftButton);
    EXPECT_EQ(w->model().nSegments, 4);
    EXPECT_EQ(w->view().SelectedPoint, -1);
    QTest::mouseClick(child<QRadioButton>(w, "optDirection(1)"), Qt::LeftButton);
    EXPECT_EQ(w->model().SegmentDirection, 1);
    EXPECT_EQ(w->model().GeneratorPoints[4], (GeneratorPoint{0, 1}));
    EXPECT_EQ(child<QLabel>(w, "lblScale(0)")->text(), "-0.50");
}

TEST_F(LineFractalWindowTest, ViewKeysGridAndTheLatch) {
    auto* w = openWindow();
    ASSERT_NE(w, nullptr);
    QWidget* focus = child<QComboBox>(w, "cmbEdges");
    QTest::keyPress(focus, Qt::Key_PageDown);
    QTest::keyPress(focus, Qt::Key_PageDown);  // held: the latch keeps it to one step
    QTest::keyRelease(focus, Qt::Key_PageDown);
    EXPECT_FLOAT_EQ(w->view().xmin, -0.07f);
    key(focus, Qt::Key_Right);
    EXPECT_FLOAT_EQ(w->view().xmin, -0.02f);
    EXPECT_EQ(child<QLabel>(w, "lblStatus")->text().toStdString(), ViewKeysStatus);
    key(focus, Qt::Key_Home);
    EXPECT_FLOAT_EQ(w->view().xmax, 1.02f);
    EXPECT_FALSE(child<QPushButton>(w, "cmdSnap")->isEnabled());
    key(focus, Qt::Key_G, Qt::ControlModifier);
    EXPECT_TRUE(child<QCheckBox>(w, "chkGrid")->isChecked());
    EXPECT_TRUE(child<QPushButton>(w, "cmdSnap")->isEnabled());
    EXPECT_EQ(w->canvas().point(0.25, 0.3), GridGrey);
}

TEST_F(LineFractalWindowTest, OrientationPutsTheBoxesAside) {
    auto* w = openWindow();
    ASSERT_NE(w, nullptr);
    auto* recursion = child<QCheckBox>(w, "chkRecursion");
    auto* preview = child<QCheckBox>(w, "chkPreview");
    recursion->click();
    preview->setChecked(true);
    child<QCheckBox>(w, "chkOrient")->click();
    EXPECT_FALSE(recursion->isChecked());
    EXPECT_FALSE(recursion->isEnabled());
    EXPECT_FALSE(preview->isChecked());
    EXPECT_TRUE(child<QLineEdit>(w, "txtOrient")->isEnabled());
    EXPECT_TRUE(child<QLabel>(w, "lblOrient(0)")->isVisibleTo(w));
    auto* text = child<QLineEdit>(w, "txtOrient");
    text->clear();
    QTest::keyClicks(text, "bxa");
    EXPECT_EQ(text->text(), "BA");
    EXPECT_EQ(w->model().txtOrient, "BA");
    EXPECT_EQ(w->canvas().point(0.25, 0), SegmentBack);
    child<QCheckBox>(w, "chkOrient")->click();
    EXPECT_TRUE(recursion->isChecked());
    EXPECT_TRUE(preview->isChecked());
    EXPECT_EQ(w->canvas().point(0.25, 0), Black);
}

TEST_F(LineFractalWindowTest, ARightClickSetsTheVertex) {
    auto* w = openWindow();
    ASSERT_NE(w, nullptr);
    QString shown;
    QTimer::singleShot(0, [&] {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        shown = dialog->findChild<QLineEdit*>("txtX")->text();
        dialog->findChild<QLineEdit*>("txtX")->setText("0.4");
        dialog->findChild<QLineEdit*>("txtY")->setText("-0.25");
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    PictureWidget* canvas = w->picCanvas();
    QTest::mousePress(canvas, Qt::RightButton, Qt::NoModifier, pixelOf(canvas, 0.5, 0));
    QTest::mouseRelease(canvas, Qt::RightButton, Qt::NoModifier, pixelOf(canvas, 0.5, 0));
    EXPECT_EQ(shown, "0.5000000");
    EXPECT_EQ(w->model().GeneratorPoints[1], (GeneratorPoint{0.4f, -0.25f}));
}

}  // namespace
}  // namespace quillane::testing
