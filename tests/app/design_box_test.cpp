#include <gtest/gtest.h>

#include "app/design_view.h"
#include "core/scripted_host.h"

namespace quillane {
namespace {

TEST(txtDesign, ACommitSetsTheDesignWindow) {
    Workbench wb;
    ScriptedHost host;
    EXPECT_EQ(txtDesign_Commit(wb, host), BoxCommit::Unchanged);
    wb.txtDesign = {"2", "-2", "-2", "2"};
    EXPECT_EQ(txtDesign_Commit(wb, host), BoxCommit::Changed);
    EXPECT_EQ(wb.DesignWindow, (WorldWindow{-2, 2, -2, 2}));
    EXPECT_EQ(wb.txtDesign, (std::array<std::string, 4>{"2.000", "-2.000", "-2.000", "2.000"}));
    EXPECT_TRUE(host.shown().empty());
}

TEST(txtDesign, AnInvalidNumberIsRefusedAndTheTextReverts) {
    Workbench wb;
    ScriptedHost host;
    wb.txtDesign[2] = "x";
    EXPECT_EQ(txtDesign_Commit(wb, host), BoxCommit::Refused);
    EXPECT_EQ(host.shown(), (std::vector<ShownMessage>{{"Error", "Invalid number"}}));
    EXPECT_EQ(wb.txtDesign[2], "-0.100");
    EXPECT_EQ(wb.DesignWindow, (WorldWindow{-0.1f, 1.1f, -0.1f, 1.1f}));
}

}  // namespace
}  // namespace quillane
