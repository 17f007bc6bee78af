#include <QApplication>
#include <QDir>
#include <QStandardPaths>
#include <QMdiArea>
#include <QMdiSubWindow>

#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/recent_files.h"
#include "core/settings_file.h"
#include "core/window_positions.h"
#include "shell/settings_location.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class SettingsRestart : public FrameTest {
  protected:
    std::string ini() { return dir.path(SettingsFileName); }
    void exitProgram() {
        item("mnuExit")->trigger();
        QApplication::processEvents();
        frame.reset();
    }
    // The list file, given on the command line so that it becomes a recent file.
    std::string list() { return dir.write("lists.ifs", GoodBlock); }
};

TEST_F(SettingsRestart, AFirstRunWithoutAFileWritesOneAtExitAndSaysNothing) {
    open("", "1.2", ini());
    EXPECT_TRUE(host.shown().empty());
    exitProgram();
    ASSERT_TRUE(std::filesystem::exists(ini()));
    Workbench wb;
    std::ifstream in(ini());
    EXPECT_FALSE(ReadSettingsText(in, wb, {0, 0, 30000, 20000}).SettingsInvalid);
}

TEST_F(SettingsRestart, PlacesToolTipsColoursAndRecentFilesSurviveARestart) {
    open(list(), "1.2", ini());
    QApplication::processEvents();
    const double dpi = frame->logicalDpiX();
    frame->childWindow(2)->move(40, 30);
    frame->childWindow(0)->resize(500, 380);
    frame->childWindow(1)->close();  // hidden, not gone
    item("mnuEditToolTips")->trigger();
    wb().FractalBackColor = 0x00FFEEDD;
    wb().FunctionColor[4] = 12345;
    host.colors.push_back(RGB(230, 210, 150));
    item("mnuDesignColorsBack")->trigger();
    exitProgram();

    open("", "1.2", ini());
    QApplication::processEvents();
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(frame->childWindow(2)->pos(), QPoint(40, 30));
    EXPECT_EQ(frame->childWindow(0)->size(), QSize(500, 380));
    EXPECT_FALSE(frame->childWindow(1)->isVisible());
    EXPECT_TRUE(frame->childWindow(0)->isVisible());
    EXPECT_FALSE(wb().menu("mnuEditToolTips").checked);
    EXPECT_FALSE(item("mnuEditToolTips")->isChecked());
    EXPECT_EQ(wb().FractalBackColor, 0x00FFEEDDu);
    EXPECT_EQ(wb().FunctionColor[4], 12345u);
    // The design window comes back on its background.
    EXPECT_EQ(wb().DesignBackColor, RGB(230, 210, 150));
    const RasterSurface& design = frame->state().design.picdesign;
    EXPECT_EQ(design.pixel(design.width() - 2, 1), RGB(230, 210, 150));
    ASSERT_EQ(wb().RecentFileCount, 1);
    EXPECT_EQ(wb().RecentFiles[0], list());
    EXPECT_TRUE(item("mnuMRU(0)")->isVisible());
    EXPECT_EQ(item("mnuMRU(0)")->text().toStdString(), RecentFileCaption(list()));
    // Kept in twips: the same places at this screen's density.
    EXPECT_EQ(wb().Windows.design.left, PixelsToTwips(40, dpi));
}

TEST_F(SettingsRestart, AMovedWindowIsSavedWithoutAnyCommand) {
    open("", "1.2", ini());
    exitProgram();
    open("", "1.2", ini());
    QApplication::processEvents();
    const double dpi = frame->logicalDpiX();
    frame->childWindow(1)->move(frame->childWindow(1)->pos() + QPoint(0, 20));
    exitProgram();
    Workbench wb;
    std::ifstream in(ini());
    ReadSettingsText(in, wb, {0, 0, 30000, 20000});
    EXPECT_EQ(wb.Windows.fractal.top, PixelsToTwips(20, dpi));
}

TEST_F(SettingsRestart, AnUnchangedRunDoesNotRewriteTheFile) {
    open("", "1.2", ini());
    exitProgram();
    const std::string first = [&] {
        std::ifstream in(ini());
        std::stringstream t;
        t << in.rdbuf();
        return t.str();
    }();
    // Mark the file so that a rewrite would show.
    {
        std::ofstream out(ini(), std::ios::app);
        out << "\n";
    }
    open("", "1.2", ini());
    QApplication::processEvents();
    exitProgram();
    std::ifstream in(ini());
    std::stringstream t;
    t << in.rdbuf();
    EXPECT_EQ(t.str(), first + "\n");
}

TEST_F(SettingsRestart, AWindowKeptOnALargerScreenComesBackIntoTheFrame) {
    Workbench kept;
    kept.Windows.design = {200000, 150000, 5955, 6000};
    ASSERT_TRUE(WriteSettingsFile(ini(), kept));
    open("", "1.2", ini());
    QApplication::processEvents();
    const QRect area = frame->mdiArea()->viewport()->rect();
    EXPECT_TRUE(area.intersects(frame->childWindow(2)->geometry()));
    EXPECT_LT(frame->childWindow(2)->x(), area.width());
    EXPECT_LT(frame->childWindow(2)->y(), area.height());
}

TEST_F(SettingsRestart, ABrokenFileIsReportedAndDefaultsAreUsed) {
    dir.write(SettingsFileName, "[IFS Colors]\n255\n[Wrong]\n");
    open("", "1.2", ini());
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "File Error");
    EXPECT_EQ(host.shown()[0].text, "Invalid ini file.\nDefault settings will be used.   ");
    EXPECT_EQ(wb().FunctionColor[0], wb().FunctionColorDefaults[0]);
    // The unusable file is replaced at exit.
    exitProgram();
    Workbench wb;
    std::ifstream in(ini());
    EXPECT_FALSE(ReadSettingsText(in, wb, {0, 0, 30000, 20000}).SettingsInvalid);
}

TEST_F(SettingsRestart, ARecentFileThatIsGoneIsOfferedForRemoval) {
    Workbench kept;
    AddRecentFile(kept, dir.path("gone.ifs"));
    AddRecentFile(kept, list());
    ASSERT_TRUE(WriteSettingsFile(ini(), kept));
    open("", "1.2", ini());
    frame->setStatusText(0, "something");
    host.answers.push_back(Answer::Yes);
    item("mnuMRU(1)")->trigger();
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "File Not Found");
    EXPECT_EQ(host.shown()[0].text,
              "    " + dir.path("gone.ifs") + "\n\nThis file cannot be found. Remove from list?   ");
    EXPECT_EQ(wb().RecentFileCount, 1);
    EXPECT_FALSE(item("mnuMRU(1)")->isVisible());
    EXPECT_TRUE(frame->statusText(0).isEmpty());
}

TEST_F(SettingsRestart, ARecentFileOpensItsList) {
    Workbench kept;
    AddRecentFile(kept, list());
    ASSERT_TRUE(WriteSettingsFile(ini(), kept));
    open("", "1.2", ini());
    item("mnuMRU(0)")->trigger();
    EXPECT_EQ(wb().IFSFileName, list());
    EXPECT_EQ(wb().CurrentIFS.Name, "First");
    EXPECT_EQ(wb().ListCount(), 1);
    item("mnuFileClearMRU")->trigger();
    EXPECT_EQ(wb().RecentFileCount, 0);
    EXPECT_FALSE(item("mnuMRU(0)")->isVisible());
}

TEST(SettingsLocation, TheEnvironmentThenTheProgramFolderThenTheUsersConfiguration) {
    const QByteArray kept = qgetenv("QUILLANE_SETTINGS");
    qputenv("QUILLANE_SETTINGS", "/somewhere/mine.ini");
    EXPECT_EQ(SettingsFilePath("/usr/bin"), "/somewhere/mine.ini");
    qunsetenv("QUILLANE_SETTINGS");
    TempDir dir;
    EXPECT_EQ(SettingsFilePath(QString::fromStdString(dir.path(""))),
              (std::filesystem::path(dir.path("")) / "Quillane.ini").string());
    // A folder the program may not write to: the user's configuration folder.
    const std::string elsewhere = SettingsFilePath("/proc");
    EXPECT_EQ(QString::fromStdString(elsewhere),
              QDir(QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)).filePath("Quillane.ini"));
    qputenv("QUILLANE_SETTINGS", kept);
}

}  // namespace
}  // namespace quillane::testing
