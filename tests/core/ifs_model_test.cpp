#include <gtest/gtest.h>

#include "core/fractal_list.h"
#include "core/workbench.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::numberedEntry;
using testing::setList;

TEST(IFSModel, AFreshStartShowsUntitledWithoutAnAsteriskUntilTheIFSHasAName) {
    Workbench wb;
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
    for (int k = 0; k < 3; ++k) CountEdit(wb);
    EXPECT_EQ(wb.ChangeCount, 3);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
    wb.CurrentIFS.Name = "Named";
    wb.FunctionsCaption = "IFS [Named]";
    CountEdit(wb);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Named*]");
}

TEST(IFSModel, AnAsteriskWithoutCountedEditsIsRemoved) {
    Workbench wb;
    wb.CurrentIFS.Name = "Fern";
    wb.FunctionsCaption = "IFS [Fern*]";
    wb.ChangeCount = 0;
    AddAsterickToName(wb);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern]");
}

TEST(IFSModel, ColoursStayOnTheirIndicesWhenAnotherEntryIsTaken) {
    Workbench wb;
    ScriptedHost host;
    setList(wb, {numberedEntry("A", 5), numberedEntry("B", 2)});
    wb.FunctionColor[3] = 0x123456;
    const FunctionColors before = wb.FunctionColor;
    ASSERT_TRUE(TakeListEntry(wb, host, 1));
    ASSERT_TRUE(TakeListEntry(wb, host, 2));
    EXPECT_EQ(wb.FunctionColor, before);
}

TEST(IFSModel, AllZeroProbabilitiesAreLegalInMemoryAndRepairedOnTaking) {
    Workbench wb;
    ScriptedHost host;
    IFSEntry zero = numberedEntry("Zero", 2);
    zero.p[0] = zero.p[1] = 0;
    wb.CurrentIFS = zero;
    setList(wb, {zero});
    EXPECT_EQ(wb.FractalList[1].p[0], 0.0f);
    ASSERT_TRUE(TakeListEntry(wb, host, 1));
    EXPECT_EQ(wb.CurrentIFS.p[0], 0.5f);
    EXPECT_EQ(wb.CurrentIFS.p[1], 0.5f);
}

}  // namespace
}  // namespace quillane
