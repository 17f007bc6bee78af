#include "app/sierpinski_commands.h"

#include <gtest/gtest.h>

#include "app/design_view.h"
#include "core/menu_tree.h"
#include "core/sample_systems.h"
#include "core/scripted_host.h"

namespace quillane::testing {
namespace {

class SierpinskiCommands : public ::testing::Test {
  protected:
    void SetUp() override {
        InitializeMenuState(s.wb.Menu);
        s.wb.Rng.pin(3);
        s.pics.resize(64, White);
        s.design.resize(120, 120, s.wb.DesignBackColor);
        ApplyDesignWindow(s.design, s.wb.DesignWindow);
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, SierpinskiTrianglesExample));
    }
    AppState s;
    ScriptedHost host;
    SierpinskiForm form;
};

TEST_F(SierpinskiCommands, TheDefaultTriangleHasThreeAnglesOfSixty) {
    EXPECT_EQ(form.txtAngle, (std::array<std::string, 3>{"60.000", "60.000", "60.000"}));
    form.PointA = {0.2f, 0.2f};
    ASSERT_TRUE(SierpinskiTriangleFromAngles(form, host));
    EXPECT_NEAR(form.PointA.x, 0.5, 1e-6);
    EXPECT_NEAR(form.PointA.y, 0.8660254, 1e-6);
}

TEST_F(SierpinskiCommands, BadAnglesLeaveTheApexWithTheirMessage) {
    form.txtAngle = {"50", "60", "60"};
    EXPECT_FALSE(SierpinskiTriangleFromAngles(form, host));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text, "Angles must add to 180");
    EXPECT_NEAR(form.PointA.x, 0.5, 1e-6);
}

TEST_F(SierpinskiCommands, TheApexIsKeptAboveTheBase) {
    // y must not be 0: every b divides by it.
    EXPECT_FALSE(CheckPointA(0.5f, 0.0f, host));
    EXPECT_EQ(host.shown().back().text, "y-coordinate for A must be positive");
    EXPECT_FALSE(CheckPointA(-0.1f, 0.5f, host));
    EXPECT_EQ(host.shown().back().text, "x-coordinate for A must be positive");
    EXPECT_FALSE(CheckPointA(1.0f, 0.5f, host));
    EXPECT_EQ(host.shown().back().text, "x-coordinate for A must be less than 1");
    EXPECT_FALSE(CheckPointA(0.5f, 1.5f, host));
    EXPECT_EQ(host.shown().back().text, "y-coordinate for A must be less than 1");
    for (const auto& m : host.shown()) EXPECT_EQ(m.title, "Error");
    EXPECT_TRUE(CheckPointA(0.5f, 0.5f, host));
    form.PointA = {0.5f, 0.0f};
    const IFSEntry before = s.wb.CurrentIFS;
    EXPECT_FALSE(SierpinskiCreate(s, host, form));
    EXPECT_EQ(s.wb.CurrentIFS, before);
}

TEST_F(SierpinskiCommands, FactorsZeroAndOneAreRefusedByTheCheck) {
    const IFSEntry before = s.wb.CurrentIFS;
    for (const char* bad : {"0", "1", "1.2", "-0.1", "x"}) {
        host.clear();
        form.txtPara = {"0.5", bad, "0.5"};
        EXPECT_FALSE(SierpinskiCreate(s, host, form)) << bad;
        ASSERT_EQ(host.shown().size(), 1u) << bad;
        EXPECT_EQ(host.shown()[0].text, "Factors must be between 0 and 1");
        EXPECT_EQ(host.shown()[0].title, "Error");
    }
    EXPECT_EQ(s.wb.CurrentIFS, before);
    form.txtPara = {"0.00001", "0.99999", "0.5"};
    EXPECT_TRUE(SierpinskiCreate(s, host, form));
}

TEST_F(SierpinskiCommands, MethodOneBuildsTheNamedTriangleWithElevenComments) {
    ASSERT_TRUE(SierpinskiCreate(s, host, form));
    const IFSEntry& ifs = s.wb.CurrentIFS;
    EXPECT_EQ(ifs.nMaps, 3);
    EXPECT_EQ(ifs.Name, "Modified Sierpinski Triangle");
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Modified Sierpinski Triangle]");
    ASSERT_EQ(ifs.nComments, 11);
    EXPECT_EQ(ifs.Comment[1], "; Modified Sierpinski Triangle");
    EXPECT_EQ(ifs.Comment[2], "; point A = (.5,.8660254}");
    EXPECT_EQ(ifs.Comment[3], "; point B = (0,0)");
    EXPECT_EQ(ifs.Comment[4], "; point C = (1,0)");
    EXPECT_EQ(ifs.Comment[5], "; angle A = 60.000 degrees");
    EXPECT_EQ(ifs.Comment[7], "; angle C = 60.000 degrees");
    EXPECT_EQ(ifs.Comment[8], "; factor a = 0.50000");
    EXPECT_EQ(ifs.Comment[10], "; factor c = 0.50000");
    EXPECT_EQ(ifs.Comment[11], "; f1(ABC) = cBa, f2(ABC) = baC, f3(ABC) = Acb");
    // Equal areas, equal probabilities.
    EXPECT_NEAR(ifs.p[0], 1.0 / 3, 1e-3);
    EXPECT_NEAR(ifs.e[2], 0.25, 1e-6);
    EXPECT_EQ(s.wb.txtMaps, "3");
    EXPECT_TRUE(s.wb.IFSModified);
    EXPECT_TRUE(s.wb.menu("mnuTrace").enabled);
    EXPECT_EQ(s.wb.InitialPolygon.nPoints, 4);
    for (int k = 0; k <= 13; ++k) EXPECT_FALSE(s.wb.menu(MenuTable::key("mnupoly", k)).checked) << k;
}

TEST_F(SierpinskiCommands, MethodsTwoAndThreeNameTheFactors) {
    form.method = 3;
    form.txtPara = {"0.30000", "0.40000", "0.60000"};
    ASSERT_TRUE(SierpinskiCreate(s, host, form));
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Sierpinski Triangle (0.30000, 0.40000, 0.60000)]");
    EXPECT_EQ(s.wb.CurrentIFS.Comment[11], "; f1(ABC) = caB, f2(ABC) = Cab, f3(ABC) = cAb");
}

TEST_F(SierpinskiCommands, PedalFactorsSelectMethodTwo) {
    SierpinskiPedalFactors(form);
    EXPECT_EQ(form.method, 2);
    EXPECT_EQ(form.txtPara, (std::array<std::string, 3>{"0.50000", "0.50000", "0.50000"}));
}

TEST_F(SierpinskiCommands, RandomFactorsLieBetweenTwoAndEightTenths) {
    for (int run = 0; run < 20; ++run) {
        SierpinskiRandomFactors(form, s.wb);
        for (const std::string& t : form.txtPara) {
            ASSERT_EQ(t.size(), 7u) << t;
            const double v = std::stod(t);
            EXPECT_GE(v, 0.2);
            EXPECT_LE(v, 0.8);
        }
    }
}

}  // namespace
}  // namespace quillane::testing

namespace quillane::testing {
namespace {

class TwistDraw : public ::testing::Test {
  protected:
    void SetUp() override { canvas.setScale(-0.1, 1.1, 1.1, -0.1); }
    RasterSurface canvas{120, 120, White};
    SierpinskiForm form;
    TwistForm twist;
    ScriptedHost host;
};

TEST_F(TwistDraw, RefusesFactorsOutsideTheUnitInterval) {
    canvas.pset(0.5, 0.5, Black);
    form.txtPara[1] = "1";
    EXPECT_FALSE(SierpinskiTwistDraw(form, twist, canvas, host));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text, "Factors must be between 0 and 1");
    EXPECT_EQ(canvas.point(0.5, 0.5), Black);
    form.txtPara[1] = "0";
    EXPECT_FALSE(SierpinskiTwistDraw(form, twist, canvas, host));
    EXPECT_EQ(host.shown().size(), 2u);
}

TEST_F(TwistDraw, FilledPiecesLeaveTheMiddleHoleEmpty) {
    twist.settings.iterations = 1;
    twist.picColor = RGB(0, 0, 160);
    ASSERT_TRUE(SierpinskiTwistDraw(form, twist, canvas, host));
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(canvas.point(0.2, 0.1), RGB(0, 0, 160));  // inside aBc
    EXPECT_EQ(canvas.point(0.5, 0.15), White);          // the middle triangle is cut out
    EXPECT_EQ(canvas.point(0.5, 0.7), RGB(0, 0, 160));  // inside Abc
}

TEST_F(TwistDraw, OutlinesLeaveTheInsidesEmpty) {
    twist.settings.iterations = 1;
    twist.chkFilled = false;
    ASSERT_TRUE(SierpinskiTwistDraw(form, twist, canvas, host));
    EXPECT_EQ(canvas.point(0.2, 0.1), White);
    EXPECT_EQ(canvas.point(0.25, 0.0), twist.picColor);  // on the base
}

TEST_F(TwistDraw, ByCornerEachPieceTakesItsCornersColour) {
    twist.settings.iterations = 1;
    twist.byCorner = true;
    ASSERT_TRUE(SierpinskiTwistDraw(form, twist, canvas, host));
    EXPECT_EQ(canvas.point(0.2, 0.1), TwistCornerColors[0]);
    EXPECT_EQ(canvas.point(0.8, 0.1), TwistCornerColors[1]);
    EXPECT_EQ(canvas.point(0.5, 0.7), TwistCornerColors[2]);
}

}  // namespace
}  // namespace quillane::testing
