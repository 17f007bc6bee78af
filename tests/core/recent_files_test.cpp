#include "core/recent_files.h"

#include <gtest/gtest.h>

#include "core/workbench.h"

namespace quillane {
namespace {

using Paths = std::vector<std::string>;

Paths slots(const Workbench& wb) {
    return Paths(wb.RecentFiles.begin(), wb.RecentFiles.begin() + wb.RecentFileCount);
}

TEST(RecentFileCaption, ShortensAPathWithTwoOrMoreFolders) {
    EXPECT_EQ(RecentFileCaption("C:\\Users\\me\\Fractals\\demo.ifs"), "C:\\...\\Fractals\\demo.ifs");
    EXPECT_EQ(RecentFileCaption("C:\\Data\\Fractals\\demo.ifs"), "C:\\...\\Fractals\\demo.ifs");
    EXPECT_EQ(RecentFileCaption("/home/me/Fractals/demo.ifs"), "/ho.../Fractals/demo.ifs");
}

TEST(RecentFileCaption, ShowsAShorterPathWhole) {
    EXPECT_EQ(RecentFileCaption("C:\\Fractals\\demo.ifs"), "C:\\Fractals\\demo.ifs");
    EXPECT_EQ(RecentFileCaption("demo.ifs"), "demo.ifs");
    EXPECT_EQ(RecentFileCaption(""), "");
}

TEST(AddRecentFile, TheFirstFileTakesSlotZeroAndShowsItsItem) {
    Workbench wb;
    AddRecentFile(wb, "C:\\a\\b\\c\\one.ifs");
    EXPECT_EQ(slots(wb), Paths{"C:\\a\\b\\c\\one.ifs"});
    EXPECT_TRUE(wb.menu("mnuMRU(0)").visible);
    EXPECT_EQ(wb.menu("mnuMRU(0)").caption, "C:\\...\\c\\one.ifs");
}

TEST(AddRecentFile, NewFilesGoOnTopAndTheOldestDropsOffAfterSix) {
    Workbench wb;
    for (int k = 1; k <= 7; ++k) AddRecentFile(wb, "f" + std::to_string(k) + ".ifs");
    EXPECT_EQ(slots(wb), (Paths{"f7.ifs", "f6.ifs", "f5.ifs", "f4.ifs", "f3.ifs", "f2.ifs"}));
    EXPECT_EQ(wb.RecentFileCount, 6);
    for (int i = 0; i < 6; ++i) EXPECT_EQ(wb.menu(MRUKey(i)).caption, wb.RecentFiles[i]) << i;
}

TEST(AddRecentFile, AFileInSlotThreeMovesToTheTopInAnyCase) {
    Workbench wb;
    for (const char* f : {"d.ifs", "c.ifs", "b.ifs", "a.ifs", "z.ifs"}) AddRecentFile(wb, f);
    ASSERT_EQ(slots(wb), (Paths{"z.ifs", "a.ifs", "b.ifs", "c.ifs", "d.ifs"}));
    AddRecentFile(wb, "C.IFS");
    EXPECT_EQ(slots(wb), (Paths{"C.IFS", "z.ifs", "a.ifs", "b.ifs", "d.ifs"}));
    EXPECT_EQ(wb.RecentFileCount, 5);
    EXPECT_EQ(wb.menu("mnuMRU(0)").caption, "C.IFS");
    EXPECT_EQ(wb.menu("mnuMRU(3)").caption, "b.ifs");
    EXPECT_FALSE(wb.Menu.contains("mnuMRU(5)"));
}

TEST(RemoveRecentFile, LaterSlotsMoveUpAndTheLastItemIsHidden) {
    Workbench wb;
    for (const char* p : {"/a/c.ifs", "/a/b.ifs", "/a/a.ifs"}) AddRecentFile(wb, p);
    RemoveRecentFile(wb, 1);
    EXPECT_EQ(slots(wb), (Paths{"/a/a.ifs", "/a/c.ifs"}));
    EXPECT_EQ(wb.menu(MRUKey(1)).caption, "/a/c.ifs");
    EXPECT_TRUE(wb.menu(MRUKey(1)).visible);
    EXPECT_FALSE(wb.menu(MRUKey(2)).visible);
    RemoveRecentFile(wb, 5);  // not a used slot
    EXPECT_EQ(wb.RecentFileCount, 2);
}

}  // namespace
}  // namespace quillane
