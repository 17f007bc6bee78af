// The colour stealing window driven by real clicks, offscreen, through the frame's menus.
#include "shell/color_stealing_window.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QPushButton>
#include <QStackedWidget>
#include <QTest>
#include <filesystem>

#include "core/menu_tree.h"
#include "core/settings_file.h"
#include "core/window_positions.h"
#include "shell/picture_widget.h"
#include "shell/pixel_coloring_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

const std::string ThreeMaps =
    "Gasket {\n0.5 0 0 0.5 0 0 0.33\n0.5 0 0 0.5 0.5 0 0.33\n0.5 0 0 0.5 0.25 0.5 0.34\n}\n";

class ColorStealingTest : public FrameTest {
  protected:
    // A frame on a list of a two-map and a three-map IFS, the default picture beside the program.
    void openOnList() {
        std::filesystem::copy_file(std::string(QUILLANE_DATA_DIR) + "/default.png", dir.path("default.png"));
        open(dir.write("two.ifs", GoodBlock + ThreeMaps));
    }
    ColorStealingWindow& openWindow() {
        item("mnuCodeColorStealingOptions")->trigger();
        auto* w = frame->findChild<ColorStealingWindow*>("frmColorStealing");
        EXPECT_NE(w, nullptr);
        return *w;
    }
    ColorStealingState& cs() { return frame->state().pics.Stealing; }
    // A click on a check box's square.
    void tick(QCheckBox* box) { QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2)); }
    std::vector<std::string> listed(const ColorStealingWindow& w) {
        std::vector<std::string> titles;
        for (int k = 0; k < w.listColoringIFS()->count(); ++k)
            titles.push_back(w.listColoringIFS()->itemText(k).toStdString());
        return titles;
    }
    // A drawing in colour stealing that stops after some 2,000 points.
    void drawBriefly() {
        item("mnuColors(2)")->trigger();
        host.onYield = [&](int) {
            if (wb().PointCount > 2000) wb().DrawingActive = false;
        };
        frame->runCommand("mnuRun");
    }
};

TEST_F(ColorStealingTest, TheMenuItemOpensTheWindowOnTheDefaultPicture) {
    openOnList();
    EXPECT_FALSE(wb().menu("mnuWin(14)").visible);
    ColorStealingWindow& w = openWindow();
    EXPECT_TRUE(w.isVisible());
    EXPECT_EQ(w.windowTitle(), "Color Stealing Options");
    EXPECT_TRUE(wb().menu("mnuWin(14)").visible);
    EXPECT_TRUE(wb().menu("mnuWin(14)").checked);
    EXPECT_TRUE(cs().Visible);
    EXPECT_EQ(listed(w), (std::vector<std::string>{"Unit Square  ", "First"}));
    EXPECT_EQ(w.listColoringIFS()->currentIndex(), 0);
    // The default picture, fitted into the picture area and shown there.
    EXPECT_EQ(w.form().picHidden.width(), 480);
    EXPECT_EQ(cs().picImage.width(), ColorStealingWindow::PictureAreaWidth);
    EXPECT_EQ(w.picImage()->surface(), &cs().picImage);
    EXPECT_EQ(w.picImage()->size(), QSize(cs().picImage.width(), cs().picImage.height()));
    w.close();
    EXPECT_FALSE(cs().Visible);
    EXPECT_FALSE(wb().menu("mnuWin(14)").checked);
    item("mnuWin(14)")->trigger();
    EXPECT_TRUE(w.isVisible());
}

TEST_F(ColorStealingTest, TheWindowOpensAtItsKeptPlaceAndKeepsWhereItIsMoved) {
    openOnList();
    const double dpi = frame->logicalDpiX();
    wb().Windows.colorStealing.left = PixelsToTwips(40, dpi);
    wb().Windows.colorStealing.top = PixelsToTwips(30, dpi);
    ColorStealingWindow& w = openWindow();
    const QPoint corner = frame->frameGeometry().topLeft();
    EXPECT_EQ(w.frameGeometry().topLeft() - corner, QPoint(40, 30));
    wb().SettingsChanged = false;
    w.move(w.pos() + QPoint(100, 60));
    QApplication::processEvents();
    EXPECT_EQ(wb().Windows.colorStealing.left, PixelsToTwips(140, dpi));
    EXPECT_EQ(wb().Windows.colorStealing.top, PixelsToTwips(90, dpi));
    EXPECT_EQ(wb().Windows.colorStealing.width, PixelsToTwips(w.frameGeometry().width(), dpi));
    EXPECT_TRUE(wb().SettingsChanged);
    // The settings file written at exit holds the new place.
    const std::string text = SettingsText(wb());
    const std::string place =
        std::to_string(PixelsToTwips(140, dpi)) + "\n" + std::to_string(PixelsToTwips(90, dpi));
    EXPECT_NE(text.find("[Color Stealing Window Position]\n" + place), std::string::npos) << text;
}

TEST_F(ColorStealingTest, AVisibleWindowStopsAMismatchedDrawingWithTheMessage) {
    openOnList();
    ColorStealingWindow& w = openWindow();
    frame->runCommand("mnuNames(6)");  // three maps now; the list still holds two-map lines
    ASSERT_EQ(wb().CurrentIFS.nMaps, 3);
    host.clear();
    drawBriefly();
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text,
              "The coloring IFS and drawing IFS do not\nhave the same number of functions.\n\n"
              "Refresh the list and select a new coloring IFS.");
    EXPECT_EQ(wb().PointCount, 0);
    // Refresh List offers the three-map lines, and the drawing runs.
    QTest::mouseClick(w.cmdRefresh(), Qt::LeftButton);
    EXPECT_EQ(listed(w), (std::vector<std::string>{"Unit Square  ", "Gasket"}));
    EXPECT_EQ(cs().ColoringIFS.nMaps, 3);
    host.clear();
    drawBriefly();
    EXPECT_TRUE(host.shown().empty());
    EXPECT_GT(wb().PointCount, 2000);
}

TEST_F(ColorStealingTest, AHiddenWindowRepairsTheListSilently) {
    openOnList();
    ColorStealingWindow& w = openWindow();
    w.close();
    frame->runCommand("mnuNames(6)");
    host.clear();
    drawBriefly();
    EXPECT_TRUE(host.shown().empty());
    EXPECT_GT(wb().PointCount, 2000);
    EXPECT_EQ(cs().ColoringIFS.nMaps, 3);
    EXPECT_EQ(listed(w), (std::vector<std::string>{"Unit Square  ", "Gasket"}));
}

TEST_F(ColorStealingTest, ADrawingBeforeTheWindowOpensStealsFromTheDefaultPicture) {
    openOnList();
    drawBriefly();
    EXPECT_TRUE(host.shown().empty());
    EXPECT_GT(wb().PointCount, 2000);
    auto* w = frame->findChild<ColorStealingWindow*>("frmColorStealing");
    ASSERT_NE(w, nullptr);
    EXPECT_FALSE(w->isVisible());
    EXPECT_EQ(w->form().picHidden.width(), 480);
    // Points took the picture's colours, not the maps' own.
    const RasterSurface& p = frame->state().pics.picfractal;
    int coloured = 0;
    for (int r = 0; r < p.height(); ++r)
        for (int c = 0; c < p.width(); ++c) {
            const Color v = p.pixel(c, r);
            coloured += v != p.backColor() && v != wb().FunctionColor[0] && v != wb().FunctionColor[1];
        }
    EXPECT_GT(coloured, 20);
}

TEST_F(ColorStealingTest, TraceShowsTheTracePictureInPlaceOfTheImage) {
    openOnList();
    ColorStealingWindow& w = openWindow();
    EXPECT_FALSE(w.cmdSave()->isEnabled());
    tick(w.chkTrace());
    EXPECT_TRUE(cs().chkTrace);
    EXPECT_EQ(w.picImage()->surface(), &cs().picTrace);
    EXPECT_TRUE(w.cmdSave()->isEnabled());
    host.colors.push_back(RGB(255, 0, 255));
    QTest::mouseClick(w.picTraceColor(), Qt::LeftButton);
    EXPECT_EQ(cs().picTraceColor, RGB(255, 0, 255));
    EXPECT_EQ(w.picTraceColor()->color(), RGB(255, 0, 255));
    drawBriefly();
    int dots = 0;
    for (int r = 0; r < cs().picTrace.height(); ++r)
        for (int c = 0; c < cs().picTrace.width(); ++c) dots += cs().picTrace.pixel(c, r) == RGB(255, 0, 255);
    EXPECT_GT(dots, 10);
    tick(w.chkTrace());
    EXPECT_FALSE(cs().chkTrace);
    EXPECT_EQ(w.picImage()->surface(), &cs().picImage);
}

TEST_F(ColorStealingTest, ShowAndHideSwapThePictureAndTheControls) {
    openOnList();
    ColorStealingWindow& w = openWindow();
    EXPECT_TRUE(w.listColoringIFS()->isVisible());
    QTest::mouseClick(w.cmdShow(), Qt::LeftButton);
    EXPECT_EQ(w.pages()->currentIndex(), 1);
    EXPECT_TRUE(w.picFull()->isVisible());
    EXPECT_FALSE(w.listColoringIFS()->isVisible());
    EXPECT_EQ(w.picFull()->size(), QSize(480, 360));
    QTest::mouseClick(w.cmdHide(), Qt::LeftButton);
    EXPECT_EQ(w.pages()->currentIndex(), 0);
    EXPECT_TRUE(w.listColoringIFS()->isVisible());
}

TEST_F(ColorStealingTest, AChosenFileAndAPastedPictureReplaceThePicture) {
    openOnList();
    ColorStealingWindow& w = openWindow();
    QImage image(64, 32, QImage::Format_RGB32);
    image.fill(QColor(10, 200, 30));
    const std::string file = dir.path("green.png");
    ASSERT_TRUE(image.save(QString::fromStdString(file)));
    host.fileNames.push_back(file);
    QTest::mouseClick(w.cmdFile(), Qt::LeftButton);
    EXPECT_EQ(host.dialogs().back().title, "Open Image File");
    EXPECT_EQ(w.form().picHidden.width(), 64);
    EXPECT_EQ(cs().picImage.point(0.5, 0.5), RGB(10, 200, 30));

    QImage red(40, 40, QImage::Format_RGB32);
    red.fill(QColor(220, 0, 0));
    QApplication::clipboard()->setImage(red);
    QApplication::setActiveWindow(&w);
    ASSERT_TRUE(w.lastActive());
    item("mnuEditPaste")->trigger();
    EXPECT_EQ(w.form().picHidden.width(), 40);
    EXPECT_EQ(cs().picImage.point(0.5, 0.5), RGB(220, 0, 0));
    // With a child of the frame active, Paste is the frame's again.
    frame->mdiArea()->setActiveSubWindow(frame->childWindow(1));
    EXPECT_FALSE(w.lastActive());
    QApplication::clipboard()->setImage(image);
    item("mnuEditPaste")->trigger();
    EXPECT_EQ(w.form().picHidden.width(), 40);
}

TEST_F(ColorStealingTest, ChoosingAListLineTakesThatColouringIFS) {
    openOnList();
    ColorStealingWindow& w = openWindow();
    w.listColoringIFS()->setCurrentIndex(1);
    EXPECT_EQ(cs().ColoringIFS.Name, wb().FractalList[1].Name);
    EXPECT_EQ(cs().ColoringIFS.nMaps, 2);
    tick(w.chkMethod());
    EXPECT_TRUE(cs().chkMethod);
    const double width = cs().CSWindow.xmax - cs().CSWindow.xmin,
                 height = cs().CSWindow.ymax - cs().CSWindow.ymin;
    EXPECT_NEAR(width / height, static_cast<double>(cs().picImage.width()) / cs().picImage.height(), 1e-3);
}

}  // namespace
}  // namespace quillane::testing
