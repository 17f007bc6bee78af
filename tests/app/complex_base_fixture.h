#pragma once
// An AppState with the complex bases window open, for the tests of its commands and drawing.
#include <gtest/gtest.h>

#include "app/complex_base_commands.h"
#include "app/design_view.h"
#include "app/generator_run.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"
#include "render/scale.h"

namespace quillane::testing {

class ComplexBaseTest : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.wb.Rng.pin(11);
        s.pics.resize(100, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        s.wb.CurrentIFS = SierpinskiTriangleIFS();
        s.wb.CurrentIFS.Name = "Triangle";
        s.wb.txtMaps = "3";
        setscale(s.wb, host, true, &s.pics);
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, ComplexBasesExample));
    }
    ComplexFocus create(const std::string& a, const std::string& b, bool polar = false, bool base = false) {
        form.txta = a;
        form.txtb = b;
        form.polar = polar;
        form.optDrawBase = base;
        return ComplexCreate(s, host, form);
    }
    // The pixel of world point (x, y) in picfractal.
    Color at(double x, double y) const { return s.pics.picfractal.point(x, y); }

    AppState s;
    ScriptedHost host;
    ComplexForm form;
};

}  // namespace quillane::testing
