#include "app/grid_size.h"

#include <gtest/gtest.h>

#include "core/scripted_host.h"
#include "tests/app/design_fixture.h"
#include "tests/core/list_file_fixture.h"

namespace quillane::testing {
namespace {

class GridSize : public DesignTest {
  protected:
    std::optional<GridSpacing> ok(const std::string& x, const std::string& y, bool scale) {
        return EvaluateGridSize({x, y, scale}, host);
    }
    ScriptedHost host;
};

TEST_F(GridSize, TheLabelSaysWhetherYGoesApart) {
    EXPECT_STREQ(GridSizeLabel(false), "Grid Size");
    EXPECT_STREQ(GridSizeLabel(true), "x Grid Size");
}

TEST_F(GridSize, ExpressionsAreEvaluatedAndYFollowsXWithoutTheBox) {
    const auto g = ok("1/8", "5", false);
    ASSERT_TRUE(g);
    EXPECT_FLOAT_EQ(g->x, 0.125f);
    EXPECT_FLOAT_EQ(g->y, 0.125f);
    const auto h = ok("0.1", "0.2*2", true);
    ASSERT_TRUE(h);
    EXPECT_FLOAT_EQ(h->x, 0.1f);
    EXPECT_FLOAT_EQ(h->y, 0.4f);
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(GridSize, EachBadBoxHasItsMessage) {
    EXPECT_FALSE(ok("1/", "1", true));
    EXPECT_FALSE(ok("0.1", "x+", true));
    EXPECT_FALSE(ok("0", "1", false));
    EXPECT_FALSE(ok("0.1", "-2", true));
    EXPECT_FALSE(ok("1e39", "1", false));
    EXPECT_EQ(host.shown(), (Messages{{"Error", "Cannot evaluate expression for grid size.  "},
                                      {"Error", "Cannot evaluate expression for y grid size.  "},
                                      {"Error", "Grid size must be positive.  "},
                                      {"Error", "Grid size must be positive.  "},
                                      {"Error", "Cannot evaluate expression for grid size.  "}}));
}

TEST_F(GridSize, AnUncheckedYBoxIsNotRead) {
    EXPECT_TRUE(ok("0.25", "garbage(", false));
}

TEST_F(GridSize, OKSwitchesTheGridOnWithTheNewSpacingWhateverItWas) {
    setMap(0, 0.5f, 0, 0, 0.5f, 0, 0);
    auto inked = [this] {
        int n = 0;
        for (int r = 0; r < d.picdesign.height(); ++r)
            for (int k = 0; k < d.picdesign.width(); ++k) n += d.picdesign.pixel(k, r) != wb.DesignBackColor;
        return n;
    };
    wb.Menu.setChecked("mnuDesignGrid", false);
    RedrawDesignView(wb, d);
    const int withoutGrid = inked();
    for (bool wasOn : {false, true}) {
        wb.Menu.setChecked("mnuDesignGrid", wasOn);
        DesignGridSize(wb, d, {0.2f, 0.5f});
        EXPECT_TRUE(wb.menu("mnuDesignGrid").checked) << wasOn;
        EXPECT_FLOAT_EQ(wb.GridX, 0.2f);
        EXPECT_FLOAT_EQ(wb.GridY, 0.5f);
        EXPECT_GT(inked(), withoutGrid) << wasOn;  // the grid's dots are drawn
    }
}

}  // namespace
}  // namespace quillane::testing
