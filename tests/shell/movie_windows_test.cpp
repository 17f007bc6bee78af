// The movie windows through the frame's menus, offscreen: the creator plays and writes a movie that
// the viewer then plays; the deterministic movie; the viewer's buttons, keys and status areas.
#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "shell/det_movie_dialog.h"
#include "shell/movie_creator_window.h"
#include "shell/movie_viewer.h"
#include "shell/picture_widget.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class MovieWindowsTest : public FrameTest {
  protected:
    void openWithList() {
        dir.write("default.ifs", GoodBlock + OtherBlock);
        open();
    }
    MovieCreatorWindow& creator() {
        item("mnuFileNewMovie")->trigger();
        auto* w = frame->findChild<MovieCreatorWindow*>("frmCombinations");
        EXPECT_NE(w, nullptr);
        return *w;
    }
    MovieViewerWindow* viewer() { return frame->findChild<MovieViewerWindow*>("frmWeb"); }
};

TEST_F(MovieWindowsTest, TheCreatorListsTheFractalsAndPlaysTheMovie) {
    openWithList();
    MovieCreatorWindow& w = creator();
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(w.windowTitle(), "Fractal Movie Creator");
    EXPECT_TRUE(wb().menu("mnuWin(11)").visible);
    ASSERT_EQ(w.List1()->count(), 2);
    EXPECT_EQ(w.List1()->item(0)->text(), "First");
    QTest::mouseClick(w.cmdplay(1), Qt::LeftButton);
    EXPECT_EQ(host.shown().back().text, "Please select the initial and final IFS.");
    w.txtSteps()->setText("3");
    w.txtIterations()->setText("2000");
    w.List1()->setCurrentRow(0);
    w.List2()->setCurrentRow(1);
    EXPECT_EQ(w.txtFrame()->text(), "1");
    EXPECT_FALSE(w.cmbRotate()->isVisible());
    QTest::mouseClick(w.cmdplay(1), Qt::LeftButton);
    EXPECT_EQ(w.txtFrame()->text(), "4");
    QTest::keyClick(&w, Qt::Key_B);
    EXPECT_EQ(w.txtFrame()->text(), "4");
    QTest::keyClick(&w, Qt::Key_B);
    EXPECT_EQ(w.txtFrame()->text(), "3");
    w.List2()->setCurrentRow(0);
    EXPECT_TRUE(w.cmbRotate()->isVisible());
    EXPECT_EQ(w.cmbRotate()->count(), 2);
}

TEST_F(MovieWindowsTest, TheViewKeysAndMenusActOnTheViewInTheGreenBox) {
    openWithList();
    MovieCreatorWindow& w = creator();
    w.txtSteps()->setText("2");
    w.txtIterations()->setText("1000");
    w.List1()->setCurrentRow(0);
    w.List2()->setCurrentRow(1);
    MovieCreator& mc = w.creator();
    const WorldWindow fitted = mc.FractalView;
    EXPECT_TRUE(mc.ActiveViewFractal);
    w.setFocus();
    QTest::keyClick(&w, Qt::Key_PageUp);
    EXPECT_LT(mc.FractalView.xmax - mc.FractalView.xmin, fitted.xmax - fitted.xmin);
    QTest::keyClick(&w, Qt::Key_Left);
    EXPECT_LT(mc.FractalView.xmin, fitted.xmin + (fitted.xmax - fitted.xmin) * 0.1f);
    w.menuItem("mnuViewRestore")->trigger();
    EXPECT_EQ(mc.FractalView.xmin, fitted.xmin);
    // A click on the design picture moves the green box there.
    auto pictures = w.findChildren<PictureWidget*>();
    ASSERT_EQ(pictures.size(), 2);
    QTest::mouseClick(pictures[1], Qt::LeftButton, {}, QPoint(5, 5));
    EXPECT_FALSE(mc.ActiveViewFractal);
    EXPECT_TRUE(pictures[1]->parentWidget()->styleSheet().contains("#00c000"));
    EXPECT_FALSE(pictures[0]->parentWidget()->styleSheet().contains("#00c000"));
    w.menuItem("mnuViewZoom(1)")->trigger();
    EXPECT_GT(mc.DesignView.xmax - mc.DesignView.xmin, fitted.xmax - fitted.xmin);
    EXPECT_EQ(mc.FractalView.xmin, fitted.xmin);
    ASSERT_NE(w.menuItem("mnuSizeDim(0)"), nullptr);
    EXPECT_TRUE(w.menuItem("mnuSizeDim(0)")->text().startsWith("Small ("));
    w.menuItem("mnuSizeDim(0)")->trigger();
    EXPECT_EQ(mc.picCanvas.width(), mc.SizeDim);
    EXPECT_GE(mc.SizeDim, 50);
    ASSERT_NE(w.menuItem("mnuOptionsAxes"), nullptr);
    w.menuItem("mnuOptionsAxes")->trigger();
    EXPECT_TRUE(mc.Axes);
}

TEST_F(MovieWindowsTest, ASavedMovieOpensInTheViewer) {
    openWithList();
    MovieCreatorWindow& w = creator();
    w.txtSteps()->setText("2");
    w.txtIterations()->setText("1000");
    w.List1()->setCurrentRow(0);
    w.List2()->setCurrentRow(1);
    host.fileNames.push_back(dir.path("m.gif"));
    AnimatedGifChoices c;
    c.txtMovieSize = "64";
    w.saveMovie(c);
    ASSERT_TRUE(std::filesystem::exists(dir.path("m.gif")));
    MovieViewerWindow* v = viewer();
    ASSERT_NE(v, nullptr);
    EXPECT_TRUE(v->isVisible());
    EXPECT_EQ(v->windowTitle(), "Fractal Movie Viewer [m.gif]");
    EXPECT_EQ(v->picFrame(), " Frame 1 of 3");
    EXPECT_EQ(v->picSize(), "64 x 64");
    EXPECT_EQ(v->picRate(), "100 ms/frame");
    EXPECT_EQ(v->picLoop(), " Continuous Loop: Off");
    EXPECT_TRUE(wb().menu("mnuWin(13)").visible);
    v->button("foward")->trigger();
    EXPECT_EQ(v->picFrame(), " Frame 2 of 3");
    QTest::keyClick(v, Qt::Key_B);
    EXPECT_EQ(v->picFrame(), " Frame 1 of 3");
    QTest::keyClick(v, Qt::Key_Space);
    EXPECT_EQ(v->picFrame(), " Frame 2 of 3");
    v->button("loop")->trigger();
    EXPECT_EQ(v->picLoop(), " Continuous Loop: On");
    EXPECT_EQ(v->ucAniGIF()->player().Loops(), 0);
    v->button("slower")->trigger();
    EXPECT_EQ(v->picRate(), "110 ms/frame");
    QTest::keyPress(v, Qt::Key_Control, Qt::ControlModifier);
    QTest::keyRelease(v, Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(v->picRate(), "10 ms/frame");
    QTest::keyRelease(v, Qt::Key_Right);
    QTest::keyRelease(v, Qt::Key_Right);
    EXPECT_EQ(v->picRate(), "10 ms/frame") << "the delay stays at least 1";
    v->button("play")->trigger();
    EXPECT_TRUE(v->ucAniGIF()->timer().isActive());
    QTest::qWait(80);
    v->close();
    EXPECT_FALSE(v->isVisible());
    EXPECT_FALSE(wb().menu("mnuWin(13)").visible);
    const QImage shot = v->ucAniGIF()->grab().toImage();
    EXPECT_FALSE(shot.isNull());
}

TEST_F(MovieWindowsTest, TheDeterministicMovieRefusesAShortTimeAndIsListed) {
    openWithList();
    item("mnuFileSaveAnimGif")->setEnabled(true);
    item("mnuFileSaveAnimGif")->trigger();
    auto* d = frame->findChild<DetMovieDialog*>("frmAnimDetGif");
    ASSERT_NE(d, nullptr);
    EXPECT_EQ(d->windowTitle(), "Create Det Movie");
    EXPECT_EQ(d->CmbIterations()->count(), 75);
    EXPECT_TRUE(wb().menu("mnuWin(19)").visible);
    d->txtTime()->setText("9");
    QTest::mouseClick(d->cmdGo(), Qt::LeftButton);
    EXPECT_EQ(host.shown().back().title, "Error");
    EXPECT_EQ(host.shown().back().text, "Frame rate should be at least 10");
    QTest::mouseClick(d->cmdCancel(), Qt::LeftButton);
    EXPECT_FALSE(d->isVisible());
}

TEST_F(MovieWindowsTest, AFileThatIsNotAGifLeavesTheViewerEmptyWithoutAMessage) {
    openWithList();
    const std::string bad = dir.write("bad.gif", "GIF89a but not really");
    host.fileNames.push_back(bad);
    item("mnuFileOpenMovie")->trigger();
    MovieViewerWindow* v = viewer();
    ASSERT_NE(v, nullptr);
    EXPECT_EQ(v->ucAniGIF()->player().FrameCount(), 0);
    EXPECT_EQ(v->picSize(), "0 x 0");
    EXPECT_TRUE(host.shown().empty());
}

}  // namespace
}  // namespace quillane::testing
