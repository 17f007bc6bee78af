#pragma once
// A workbench with a design window of a given pixel size on the default window -0.1 .. 1.1.
#include <gtest/gtest.h>

#include "core/menu_tree.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "app/design_view.h"

namespace quillane::testing {

inline constexpr Color Red = RGB(255, 0, 0);
inline constexpr Color Green = RGB(0, 128, 0);
inline constexpr Color Blue = RGB(0, 0, 255);

class DesignTest : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(wb.Menu);
        size(240, 240);
    }
    void size(int w, int h) {
        d.resize(w, h, wb.DesignBackColor);
        ApplyDesignWindow(d, wb.DesignWindow);
    }
    // Function i: (a b / c dd) + (e, f).
    void setMap(int i, float a, float b, float c, float dd, float e, float f) {
        IFSEntry& s = wb.CurrentIFS;
        s.a[i] = a, s.b[i] = b, s.c[i] = c, s.d[i] = dd, s.e[i] = e, s.f[i] = f, s.p[i] = 0.5f;
        if (s.nMaps <= i) s.nMaps = static_cast<int16_t>(i + 1);
    }
    Color at(double x, double y) const { return d.picdesign.point(x, y); }
    int countColour(Color c) const {
        int n = 0;
        for (int r = 0; r < d.picdesign.height(); ++r)
            for (int k = 0; k < d.picdesign.width(); ++k) n += d.picdesign.pixel(k, r) == c;
        return n;
    }

    Workbench wb;
    DesignPictures d;
};

}  // namespace quillane::testing
