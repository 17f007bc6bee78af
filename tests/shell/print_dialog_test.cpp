#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPrinter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>

#include <cstdlib>

#include "render/image_file.h"
#include "render/raster_surface.h"
#include "shell/print_dialog.h"
#include "shell/qt_page_printer.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

TEST(PrintDialog, TheBoxesGiveTheRequest) {
    PrintRequest last;
    PrintDialog dialog(last, false, nullptr);
    EXPECT_FALSE(dialog.chkText(2)->isEnabled());  // no chaos game rules outside chaos game mode
    QTest::mouseClick(dialog.chkwhat(1), Qt::LeftButton);
    QTest::mouseClick(dialog.chkwhat(2), Qt::LeftButton);
    QTest::mouseClick(dialog.chkText(1), Qt::LeftButton);
    dialog.optImages(1)->setChecked(true);
    dialog.optOrient(1)->setChecked(true);
    QTest::mouseClick(dialog.cmdUp(), Qt::LeftButton);
    QTest::mouseClick(dialog.cmdUp(), Qt::LeftButton);
    QTest::mouseClick(dialog.cmdDown(), Qt::LeftButton);
    const PrintRequest r = dialog.request();
    EXPECT_FALSE(r.fractal);
    EXPECT_TRUE(r.design);
    EXPECT_TRUE(r.text);
    EXPECT_TRUE(r.parts.matrix);
    EXPECT_TRUE(r.parts.rotation);
    EXPECT_FALSE(r.parts.chaosGame);
    EXPECT_TRUE(r.sideBySide);
    EXPECT_TRUE(r.landscape);
    EXPECT_DOUBLE_EQ(r.sideInches, 3.5);
    EXPECT_EQ(dialog.lblSize()->text(), "Pictures fit a square of 3.5 inches");
}

TEST(PrintDialog, TheSizeButtonsStopAtTheirEnds) {
    PrintRequest last;
    last.sideInches = 1;
    PrintDialog dialog(last, true, nullptr);
    EXPECT_FALSE(dialog.cmdDown()->isEnabled());
    EXPECT_TRUE(dialog.chkText(2)->isEnabled());
}

// Through Qt's own PDF output, as when no printer is installed: the picture and the text are on
// the page the system's PDF renderer draws.
TEST(QtPagePrinter, APdfPageShowsThePictureAndTheText) {
    TempDir dir;
    const std::string pdf = dir.path("qt.pdf");
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(pdf));
    printer.setPageSize(QPageSize(QPageSize::Letter));
    QtPagePrinter pages(printer);
    RasterSurface picture(144, 144);
    picture.box(0, 0, 71, 143, RGB(0, 0, 200), true);  // left half blue
    Workbench wb;
    wb.CurrentIFS.nMaps = 1;
    wb.CurrentIFS.a[0] = 0.5f;
    wb.CurrentIFS.d[0] = 0.5f;
    wb.CurrentIFS.p[0] = 1;
    PrintRequest r;
    r.fractal = r.text = true;
    r.sideInches = 2;
    ScriptedHost host;
    ASSERT_TRUE(PrintIFS(wb, picture, picture, r, host, pages, nullptr));
    EXPECT_TRUE(host.shown().empty());
    ASSERT_EQ(std::system(("pdftoppm -r 72 -png -singlefile '" + pdf + "' '" + dir.path("page") + "'").c_str()), 0);
    RasterSurface page(1, 1);
    std::string error;
    ASSERT_TRUE(LoadImageFile(dir.path("page.png"), page, error)) << error;
    EXPECT_EQ(page.width(), 612);
    const Color inBlue = page.pixel(54 + 30, 54 + 70);
    EXPECT_GT(BlueOf(inBlue), 150);
    EXPECT_LT(RedOf(inBlue), 60);
    EXPECT_GT(RedOf(page.pixel(54 + 110, 54 + 70)), 240);
    int dark = 0;
    for (int y = 54 + 144; y < 54 + 144 + 60; ++y)
        for (int x = 54; x < 500; ++x)
            if (GreenOf(page.pixel(x, y)) < 100) ++dark;
    EXPECT_GT(dark, 50);
}

TEST_F(FrameTest, PrintIsOfferedAndNothingChosenIsRefused) {
    open();
    QAction* print = item("mnuFilePrint");
    ASSERT_TRUE(print->isEnabled());
    // Untick everything in the dialog and press OK.
    QTimer::singleShot(0, [] {
        for (QWidget* w : QApplication::topLevelWidgets())
            if (auto* d = qobject_cast<PrintDialog*>(w)) {
                for (int i = 0; i < 3; ++i) d->chkwhat(i)->setChecked(false);
                d->cmdOk()->click();
            }
    });
    print->trigger();
    EXPECT_EQ(host.shown(), (Messages{{"Error", "Choose what to print"}}));
}

}  // namespace
}  // namespace quillane::testing
