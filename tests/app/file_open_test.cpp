#include <gtest/gtest.h>

#include <filesystem>

#include "app/ifs_file_reader.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::menuNames;
using testing::TempDir;
using Names = std::vector<std::string>;

const std::string Good = "First {\n0.5 0 0 0.5 0 0 0.5\n0.5 0 0 0.5 0.5 0 0.5\n}\n\n";

class StartReading : public ::testing::Test {
  protected:
    FileOpenResult read(const std::string& name, const std::string& text, bool commandLine = false) {
        path = dir.write(name, text);
        return FileOpen(wb, name.substr(name.size() - 3), path, commandLine);
    }
    Workbench wb;
    TempDir dir;
    std::string path;
};

TEST_F(StartReading, TheDefaultFileIsReadQuietlyAndStaysOutOfTheRecentFiles) {
    wb.ListModified = true;
    const FileOpenResult r = read("default.ifs", Good);
    EXPECT_TRUE(r.ListLoaded);
    EXPECT_FALSE(r.Failed);
    EXPECT_EQ(r.Code, -1);
    EXPECT_EQ(menuNames(wb), Names{"First"});
    EXPECT_EQ(wb.SelectedIFS, 1);
    EXPECT_TRUE(wb.menu("mnuNames(5)").checked);
    EXPECT_EQ(wb.CurrentIFS.Name, "First");
    EXPECT_EQ(wb.FrameCaption, "Quillane - default.ifs");
    EXPECT_FALSE(wb.ListModified);
    EXPECT_EQ(wb.RecentFileCount, 0);
    EXPECT_FALSE(wb.SettingsChanged);
}

TEST_F(StartReading, ACommandLineFileEntersTheRecentFiles) {
    const FileOpenResult r = read("mine.ifs", Good, true);
    EXPECT_TRUE(r.ListLoaded);
    EXPECT_FALSE(r.Failed);
    EXPECT_EQ(wb.RecentFiles[0], path);
    EXPECT_TRUE(wb.SettingsChanged);
}

TEST_F(StartReading, AMissingDefaultFileIsNoFailure) {
    const FileOpenResult r = FileOpen(wb, "ifs", dir.path("default.ifs"), false);
    EXPECT_FALSE(r.ListLoaded);
    EXPECT_FALSE(r.Failed);
    EXPECT_EQ(r.Code, -1);
    EXPECT_EQ(wb.ListCount(), 0);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
}

TEST_F(StartReading, AMissingCommandLineFileFailsQuietly) {
    const FileOpenResult r = FileOpen(wb, "ifs", dir.path("gone.ifs"), true);
    EXPECT_FALSE(r.ListLoaded);
    EXPECT_TRUE(r.Failed);
    EXPECT_EQ(r.Code, -1);
}

TEST_F(StartReading, ADefaultFileWhoseSecondBlockIsDamagedListsTheFirstAndNamesTheSecond) {
    const FileOpenResult r = read("default.ifs", Good + "Second {\n0.5 0 0\n}\n" + Good);
    EXPECT_TRUE(r.ListLoaded);
    EXPECT_TRUE(r.Failed);
    EXPECT_EQ(r.Code, 1);
    EXPECT_EQ(r.Name, "Second");
    EXPECT_EQ(menuNames(wb), Names{"First"});
    EXPECT_EQ(wb.CurrentIFS.Name, "First");
    EXPECT_EQ(FileOpenMessage(r),
              "There was a problem reading the code for the IFS     \n"
              "with name \"Second\" in the default file.   \n"
              "That IFS and the rest of the file were ignored.");
}

TEST_F(StartReading, ADamagedCommandLineFileFailsQuietly) {
    const FileOpenResult r = read("mine.ifs", Good + "Second {\n0.5 0 0\n}\n", true);
    EXPECT_TRUE(r.ListLoaded);
    EXPECT_TRUE(r.Failed);
    EXPECT_EQ(r.Code, -1);
}

TEST_F(StartReading, ADefaultFileWithoutBlocksHasAFormatProblem) {
    const FileOpenResult r = read("default.ifs", "nothing to see\n");
    EXPECT_FALSE(r.ListLoaded);
    EXPECT_TRUE(r.Failed);
    EXPECT_EQ(r.Code, 2);
    EXPECT_EQ(FileOpenMessage(r),
              "There was a problem with the ifs or chg file.\n"
              "Check that the file format is correct.   \n(See help file.)");
}

TEST_F(StartReading, AFifthLetterInTheDefaultChaosFileIsTooManyEntries) {
    const FileOpenResult r = read("default.chg", "A {\nSRVHS 0.5 0 1 0 0\n}\n");
    EXPECT_FALSE(r.ListLoaded);
    EXPECT_TRUE(r.Failed);
    EXPECT_EQ(r.Code, 0);
    EXPECT_EQ(FileOpenMessage(r), "Too many IFS entries (max 30)   ");
}

TEST_F(StartReading, ARowWithoutPLeavesPAsItStood) {
    wb.FractalList[1].p[0] = 0.7f;
    wb.FractalList[1].p[1] = 0.3f;
    ASSERT_TRUE(read("default.ifs", "A {\n0.5 0 0 0.5 0 0\n0.5 0 0 0.5 0.5 0\n}\n").ListLoaded);
    EXPECT_EQ(wb.FractalList[1].p[0], 0.7f);
    EXPECT_EQ(wb.FractalList[1].p[1], 0.3f);
}

TEST_F(StartReading, AllRowsWithoutPAtAFreshStartGetEqualShares) {
    ASSERT_TRUE(read("default.ifs", "A {\n0.5 0 0 0.5 0 0\n0.5 0 0 0.5 0.5 0\n}\n").ListLoaded);
    EXPECT_EQ(wb.FractalList[1].p[0], 0.5f);
    EXPECT_EQ(wb.FractalList[1].p[1], 0.5f);
}

TEST_F(StartReading, TheDefaultChaosFileMakesChaosGameEntries) {
    const FileOpenResult r = read("default.chg", "A {\nS 0.5 0 0.3 1 1\nS 0.5 0 0.7 0 0\n}\n");
    ASSERT_TRUE(r.ListLoaded);
    EXPECT_EQ(wb.FractalList[1].e[0], 0.5f);
    EXPECT_EQ(wb.FractalList[1].f[0], 0.5f);
    EXPECT_NEAR(wb.FractalList[1].p[0], 0.5, 1e-6);
    EXPECT_EQ(wb.CodeForm, 2);
    EXPECT_EQ(wb.DesignMode, 1);
}

TEST_F(StartReading, ANameEndingInNeitherReadsChaosRowsWithoutMakingEntries) {
    wb.FractalList[1].a[0] = 0.125f;
    const FileOpenResult r = read("list.txt", "A {\nS 0.5 0 0.3 1 1\n}\n", true);
    ASSERT_TRUE(r.ListLoaded);
    EXPECT_EQ(wb.FractalList[1].Step[1][0], "S");
    EXPECT_EQ(wb.FractalList[1].a[0], 0.125f);
    EXPECT_EQ(wb.FractalList[1].p[0], 0.3f);
    EXPECT_EQ(wb.CodeForm, 0);
    EXPECT_EQ(wb.DesignMode, 0);
}

TEST_F(StartReading, TheEndingIsComparedInLowerCase) {
    ASSERT_TRUE(read("LIST.IFS", Good, true).ListLoaded);
    EXPECT_EQ(wb.FractalList[1].e[1], 0.5f);
}

TEST_F(StartReading, WithoutANameTheDefaultFileOfTheKindIsRead) {
    dir.write("default.chg", "Here {\nS 0.5 0 1 0 0\n}\n");
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(dir.path(""));
    const FileOpenResult r = FileOpen(wb, "chg", "", false);
    std::filesystem::current_path(before);
    EXPECT_TRUE(r.ListLoaded);
    EXPECT_EQ(menuNames(wb), Names{"Here"});
}

}  // namespace
}  // namespace quillane
