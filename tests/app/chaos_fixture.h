#pragma once
// A new chaos game on a 240 x 240 design window over -0.1 .. 1.1: 200 pixels a unit.
#include <gtest/gtest.h>

#include "core/scripted_host.h"
#include "app/chaos_design.h"
#include "design/chaos_drawing.h"
#include "tests/app/design_fixture.h"

namespace quillane::testing {

class ChaosTest : public DesignTest {
  protected:
    void SetUp() override {
        DesignTest::SetUp();
        ASSERT_TRUE(mnuNewChaosGame_Click(wb, host));
    }
    // Function i with fixed point (x, y) and the recipe `steps` (up to four letters).
    void setPoint(int i, float x, float y, const std::string& steps, float scale = 0.5f, float angle = 0) {
        IFSEntry& s = wb.CurrentIFS;
        if (s.nMaps <= i) s.nMaps = static_cast<int16_t>(i + 1);
        for (int k = 1; k <= 4; ++k)
            s.Step[k][i] = k <= static_cast<int>(steps.size()) ? steps.substr(k - 1, 1) : "";
        s.Scale[i] = scale;
        s.Angle[i] = angle;
        s.FPx[i] = x;
        s.FPy[i] = y;
        wb.txtMaps = std::to_string(s.nMaps);
    }
    std::string steps(int i) const {
        std::string s;
        for (int k = 1; k <= 4; ++k) s += wb.CurrentIFS.Step[k][i].empty() ? "." : wb.CurrentIFS.Step[k][i];
        return s;
    }
    Color cg(double x, double y) const { return d.picCGDesign.point(x, y); }
    Color colour(int i) const { return wb.FunctionColor[static_cast<size_t>(i)]; }

    ScriptedHost host;
};

}  // namespace quillane::testing
