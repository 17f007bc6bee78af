// The box and triangle windows driven by clicks, from Design > Examples to Create IFS.
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <cmath>

#include "app/generator_run.h"
#include "core/initial_polygons.h"
#include "shell/box_fractal_window.h"
#include "shell/picture_widget.h"
#include "shell/triangle_fractal_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class GridGeneratorWindowsTest : public FrameTest {
  protected:
    template <typename W>
    W* openExample(int index) {
        open();
        item(MenuTable::key("mnuDesignExample", index))->trigger();
        W* w = frame->findChild<W*>();
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
};

TEST_F(GridGeneratorWindowsTest, TheBoxWindowMakesTheCarpet) {
    auto* w = openExample<BoxFractalWindow>(BoxFractalsExample);
    ASSERT_NE(w, nullptr);
    EXPECT_TRUE(w->isVisible());
    EXPECT_EQ(w->windowTitle(), "Box Fractal Design");
    EXPECT_EQ(child<QLabel>(w, "picInst")->text(), "Click on the boxes\nyou want to remove");
    EXPECT_EQ(w->model().BoxCount, 4);  // n = 2 on load
    QTest::mouseClick(child<QRadioButton>(w, "optsize(3)"), Qt::LeftButton);
    EXPECT_EQ(w->model().BoxCount, 9);
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 1500, 1500));
    EXPECT_EQ(w->model().BoxCount, 8);
    QTest::mouseClick(child<QPushButton>(w, "cmdSetup"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 8);
    EXPECT_EQ(wb().txtMaps, "8");
    EXPECT_TRUE(wb().menu("mnupoly(0)").checked);
    EXPECT_EQ(wb().FunctionsCaption, "IFS [Untitled]");
    QTest::mouseClick(child<QPushButton>(w, "cmdClose"), Qt::LeftButton);
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(wb().CurrentIFS.nMaps, 8);
}

TEST_F(GridGeneratorWindowsTest, RemovingEveryBoxShowsTheMessage) {
    auto* w = openExample<BoxFractalWindow>(BoxFractalsExample);
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    for (double x : {700.0, 2200.0})
        for (double y : {700.0, 2200.0})
            QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), x, y));
    ASSERT_EQ(w->model().BoxCount, 0);
    QTest::mouseClick(child<QPushButton>(w, "cmdSetup"), Qt::LeftButton);
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "You cannot remove all the boxes");
    EXPECT_EQ(host.shown().back().title, "Error");
    EXPECT_EQ(wb().CurrentIFS, before);
}

TEST_F(GridGeneratorWindowsTest, TheTriangleWindowMakesTheSierpinskiTriangleAndCancelUndoesIt) {
    auto* w = openExample<TriangleFractalWindow>(TriangleFractalsExample);
    ASSERT_NE(w, nullptr);
    const IFSEntry before = wb().CurrentIFS;
    EXPECT_EQ(w->windowTitle(), "Triangle Fractal Design");
    EXPECT_EQ(child<QLabel>(w, "picInst")->text(),
              "Click on the triangles\nyou want to remove\nfrom the design.");
    const double h = std::sqrt(3.0) / 2;
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 0.5, h / 3));
    EXPECT_EQ(w->model().TriangleCount, 3);
    // A click on the middle grid line changes nothing.
    QTest::mouseClick(w->picture(), Qt::LeftButton, Qt::NoModifier, pixelOf(w->picture(), 0.3, h / 2));
    EXPECT_EQ(w->model().TriangleCount, 3);
    QTest::mouseClick(child<QPushButton>(w, "cmdCreate"), Qt::LeftButton);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 3);
    EXPECT_TRUE(wb().menu("mnupoly(1)").checked);
    EXPECT_TRUE(wb().menu("mnuWin(5)").visible);
    QTest::mouseClick(child<QPushButton>(w, "cmdCancel"), Qt::LeftButton);
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(wb().CurrentIFS, before);
    EXPECT_FALSE(wb().menu("mnuWin(5)").visible);
}

}  // namespace
}  // namespace quillane::testing
