#include "app/design_colors.h"

#include <gtest/gtest.h>

#include "core/scripted_host.h"
#include "tests/app/design_fixture.h"

namespace quillane::testing {
namespace {

class DesignColors : public DesignTest {
  protected:
    ScriptedHost host;
    int count(const RasterSurface& s, Color c) const {
        int n = 0;
        for (int r = 0; r < s.height(); ++r)
            for (int k = 0; k < s.width(); ++k) n += s.pixel(k, r) == c;
        return n;
    }
};

TEST_F(DesignColors, TheBackgroundGoesToEveryDesignPictureAndIsKept) {
    setMap(0, 0.5f, 0, 0, 0.5f, 0, 0);
    const Color sand = RGB(230, 210, 150);
    host.colors.push_back(sand);
    wb.SettingsChanged = false;
    ASSERT_TRUE(mnuDesignColorsBack_Click(wb, d, host));
    EXPECT_EQ(wb.DesignBackColor, sand);
    EXPECT_TRUE(wb.SettingsChanged);
    for (const RasterSurface* s : {&d.picdesign, &d.picCGDesign, &d.picImage}) EXPECT_EQ(s->backColor(), sand);
    // Redrawn: most of the picture is the new background.
    EXPECT_GT(count(d.picdesign, sand), d.picdesign.width() * d.picdesign.height() / 2);
}

TEST_F(DesignColors, TheAxesTakeTheirNewColour) {
    wb.Menu.setChecked("mnuDesignAxes", true);
    const Color teal = RGB(0, 128, 128);
    ASSERT_EQ(count(d.picdesign, teal), 0);
    host.colors.push_back(teal);
    ASSERT_TRUE(mnuDesignColorsAxes_Click(wb, d, host));
    EXPECT_EQ(wb.DesignAxisColor, teal);
    EXPECT_GT(count(d.picdesign, teal), 100);  // two lines across the window
}

TEST_F(DesignColors, CancelChangesNothing) {
    host.colors.push_back(std::nullopt);
    host.colors.push_back(std::nullopt);
    wb.SettingsChanged = false;
    EXPECT_FALSE(mnuDesignColorsBack_Click(wb, d, host));
    EXPECT_FALSE(mnuDesignColorsAxes_Click(wb, d, host));
    EXPECT_EQ(wb.DesignBackColor, White);
    EXPECT_EQ(wb.DesignAxisColor, Black);
    EXPECT_FALSE(wb.SettingsChanged);
}

}  // namespace
}  // namespace quillane::testing
