#include "app/complex_base_commands.h"

#include "app/deterministic_commands.h"
#include "core/fractal_list.h"
#include "core/numbers.h"
#include "render/deterministic.h"
#include "render/play_game.h"
#include "tests/app/complex_base_fixture.h"

namespace quillane::testing {
namespace {

TEST_F(ComplexBaseTest, TheFirstExamplePressGivesTheSecondExample) {
    ComplexForm f;
    EXPECT_EQ(f.txta, "0.65");
    EXPECT_EQ(f.txtb, "-0.3");
    EXPECT_FALSE(f.polar);
    ComplexNextExample(f);
    EXPECT_EQ(f.ExampleIndex, 1);
    EXPECT_EQ(f.txta, "0.80");
    EXPECT_EQ(f.txtb, "0.20");
    ComplexNextExample(f);
    EXPECT_TRUE(f.polar);
    EXPECT_EQ(f.txta, "-0.697");
    EXPECT_EQ(f.txtb, "2*pi/5");
    for (int k = 0; k < 4; ++k) ComplexNextExample(f);
    EXPECT_EQ(f.ExampleIndex, 0);
    EXPECT_FALSE(f.polar);
    EXPECT_EQ(f.txta, "0.65");
    EXPECT_EQ(f.txtb, "-0.30");
}

TEST_F(ComplexBaseTest, AnExampleBuildsNothing) {
    const IFSEntry before = s.wb.CurrentIFS;
    ComplexNextExample(form);
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(ComplexBaseTest, HalfPlusHalfIBuildsTheTwoMaps) {
    EXPECT_EQ(create("0.5", "0.5"), ComplexFocus::None);
    EXPECT_TRUE(host.shown().empty());
    const IFSEntry& ifs = s.wb.CurrentIFS;
    EXPECT_EQ(ifs.nMaps, 2);
    EXPECT_EQ(s.wb.txtMaps, "2");
    EXPECT_EQ(ifs.nComments, 0);
    EXPECT_EQ(s.wb.lblComment, "");
    for (int i = 0; i < 2; ++i) {
        EXPECT_FLOAT_EQ(ifs.a[i], 0.5f);
        EXPECT_FLOAT_EQ(ifs.b[i], -0.5f);
        EXPECT_FLOAT_EQ(ifs.c[i], 0.5f);
        EXPECT_FLOAT_EQ(ifs.d[i], 0.5f);
        EXPECT_FLOAT_EQ(ifs.p[i], 0.5f);
    }
    EXPECT_EQ(ifs.e[0], 0);
    EXPECT_EQ(ifs.f[0], 0);
    EXPECT_FLOAT_EQ(ifs.e[1], 0.5f);
    EXPECT_FLOAT_EQ(ifs.f[1], 0.5f);
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [Untitled]");
    EXPECT_TRUE(s.wb.IFSModified);
    EXPECT_EQ(s.wb.ChangeCount, 0);
    EXPECT_TRUE(s.wb.menu("mnuRun").enabled);
    EXPECT_TRUE(s.wb.menu("mnuTrace").enabled);
    EXPECT_EQ(s.wb.SelectedIFS, 0);
    EXPECT_TRUE(s.Generator.SetupDone);
    EXPECT_EQ(s.wb.FitWindow, s.wb.Window);
}

TEST_F(ComplexBaseTest, MinusHalfMinusHalfIBuildsTheTwinDragon) {
    EXPECT_EQ(create("-0.5", "-0.5"), ComplexFocus::None);
    const IFSEntry& ifs = s.wb.CurrentIFS;
    EXPECT_FLOAT_EQ(ifs.a[0], -0.5f);
    EXPECT_FLOAT_EQ(ifs.b[0], 0.5f);
    EXPECT_FLOAT_EQ(ifs.c[0], -0.5f);
    EXPECT_FLOAT_EQ(ifs.d[0], -0.5f);
    EXPECT_FLOAT_EQ(ifs.e[1], -0.5f);
    EXPECT_FLOAT_EQ(ifs.f[1], -0.5f);
}

TEST_F(ComplexBaseTest, ANegativeRadiusIsEvaluatedAndTurnsThePointOver) {
    EXPECT_EQ(create("-0.697", "2*pi/5", true), ComplexFocus::None);
    EXPECT_TRUE(host.shown().empty());
    const IFSEntry& ifs = s.wb.CurrentIFS;
    const float A = static_cast<float>(2 * EvaluatorPi / 5);
    EXPECT_NEAR(ifs.a[0], -0.697f * std::cos(A), 1e-6);
    EXPECT_NEAR(ifs.c[0], -0.697f * std::sin(A), 1e-6);
    EXPECT_LT(ifs.e[1], 0);
    EXPECT_LT(ifs.f[1], 0);
    EXPECT_TRUE(s.Complex.Polar);
    EXPECT_FLOAT_EQ(s.Complex.BaseA, -0.697f);
}

TEST_F(ComplexBaseTest, AZeroBasePassesAndCollapsesBothMaps) {
    EXPECT_EQ(create("0", "0"), ComplexFocus::None);
    EXPECT_TRUE(host.shown().empty());
    for (int i = 0; i < 2; ++i) {
        EXPECT_EQ(s.wb.CurrentIFS.a[i], 0);
        EXPECT_EQ(s.wb.CurrentIFS.d[i], 0);
        EXPECT_EQ(s.wb.CurrentIFS.e[i], 0);
    }
}

TEST_F(ComplexBaseTest, AModulusOfExactlyOneIsRefused) {
    const IFSEntry before = s.wb.CurrentIFS;
    EXPECT_EQ(create("1", "0"), ComplexFocus::A);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text,
              "The complex base must have modulus less than 1.  \nYour modulus is 1.0000");
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(ComplexBaseTest, TheModulusIsShownWithFourDecimals) {
    EXPECT_EQ(create("0.8", "0.7"), ComplexFocus::A);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text,
              "The complex base must have modulus less than 1.  \nYour modulus is 1.0630");
}

TEST_F(ComplexBaseTest, APolarRadiusOfOneIsRefusedWhateverTheAngle) {
    EXPECT_EQ(create("-1", "pi/3", true), ComplexFocus::A);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].text,
              "The complex base must have modulus less than 1.  \nYour modulus is 1.0000");
}

TEST_F(ComplexBaseTest, AnUnreadableBoxIsNamed) {
    EXPECT_EQ(create("((", "0"), ComplexFocus::A);
    EXPECT_EQ(create("0.5", "0.5+"), ComplexFocus::B);
    ASSERT_EQ(host.shown().size(), 2u);
    EXPECT_EQ(host.shown()[0].title, "Error");
    EXPECT_EQ(host.shown()[0].text, "Cannot evaluate expression for a  ");
    EXPECT_EQ(host.shown()[1].text, "Cannot evaluate expression for b  ");
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(ComplexBaseTest, AHugeBaseIsRefusedNotOverflowed) {
    EXPECT_EQ(create("10^20", "10^20"), ComplexFocus::A);
    ASSERT_EQ(host.shown().size(), 1u);
    const std::string lead = "The complex base must have modulus less than 1.  \nYour modulus is ";
    EXPECT_EQ(host.shown()[0].text.substr(0, lead.size()), lead) << host.shown()[0].text;
    EXPECT_FALSE(s.Generator.SetupDone);
}

TEST_F(ComplexBaseTest, TheColourOptionsFollowTheMethod) {
    const ComplexColorOptions base = ComplexColorOptionsFor(true);
    EXPECT_TRUE(base.pixelColorVisible);
    EXPECT_EQ(base.ifsColorCaption, "Use IFS(1) color");
    EXPECT_TRUE(base.warningVisible);
    const ComplexColorOptions regular = ComplexColorOptionsFor(false);
    EXPECT_FALSE(regular.pixelColorVisible);
    EXPECT_EQ(regular.ifsColorCaption, "Use IFS colors");
    EXPECT_FALSE(regular.warningVisible);
}

TEST_F(ComplexBaseTest, TheBaseMethodLocksTheDrawingTypeToRandom) {
    mnuDrawType_Click(s.wb, s.pics, host, 1);
    ASSERT_FALSE(s.wb.RandomMode);
    EXPECT_EQ(create("0.65", "-0.3", false, true), ComplexFocus::None);
    EXPECT_TRUE(s.wb.RandomMode);
    EXPECT_FALSE(s.wb.menu("mnuDrawType(0)").enabled);
    EXPECT_FALSE(s.wb.menu("mnuDrawType(1)").enabled);
    EXPECT_EQ(s.wb.FractalCaption, "Fractal");
    EXPECT_TRUE(ComplexBaseSource(s));
    EXPECT_TRUE(static_cast<bool>(s.pics.PlotSource));
}

TEST_F(ComplexBaseTest, TheRegularMethodGivesTheDrawingTypeBack) {
    create("0.65", "-0.3", false, true);
    ComplexChooseMethod(s, host, false);
    EXPECT_TRUE(s.wb.menu("mnuDrawType(0)").enabled);
    EXPECT_TRUE(s.wb.menu("mnuDrawType(1)").enabled);
    EXPECT_EQ(s.wb.FractalCaption, "Fractal (Random)");
    EXPECT_FALSE(ComplexBaseSource(s));
    EXPECT_FALSE(static_cast<bool>(s.pics.PlotSource));
    ComplexChooseMethod(s, host, true);
    EXPECT_TRUE(ComplexBaseSource(s));
    EXPECT_EQ(s.wb.FractalCaption, "Fractal");
}

TEST_F(ComplexBaseTest, ChoosingAMethodBeforeABuildChangesNothing) {
    ComplexChooseMethod(s, host, true);
    EXPECT_FALSE(ComplexBaseSource(s));
    EXPECT_TRUE(s.wb.menu("mnuDrawType(1)").enabled);
}

TEST_F(ComplexBaseTest, CloseKeepsTheIFSAndReleasesTheLoop) {
    create("0.5", "0.5", false, true);
    const IFSEntry built = s.wb.CurrentIFS;
    ComplexRelease(s);
    GeneratorClose(s.wb, s.Generator);
    EXPECT_EQ(s.wb.CurrentIFS, built);
    EXPECT_FALSE(static_cast<bool>(s.pics.PlotSource));
    EXPECT_TRUE(s.wb.menu("mnuDrawType(1)").enabled);
    EXPECT_EQ(s.wb.FractalCaption, "Fractal (Random)");
    EXPECT_FALSE(s.wb.menu("mnuWin(8)").visible);
    EXPECT_TRUE(s.wb.menu("mnuDesignExample(5)").enabled);
}

TEST_F(ComplexBaseTest, CancelRestoresTheIFS) {
    const IFSEntry before = s.wb.CurrentIFS;
    create("0.5", "0.5", false, true);
    ComplexRelease(s);
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS, before);
    EXPECT_EQ(s.wb.txtMaps, "3");
    EXPECT_FALSE(static_cast<bool>(s.pics.PlotSource));
}

TEST_F(ComplexBaseTest, CancelKeepsABuildStoredInTheList) {
    create("0.5", "0.5");
    const IFSEntry built = s.wb.CurrentIFS;
    KeepGeneratorBuild(s.Generator);
    EXPECT_TRUE(s.Generator.KeepBuilt);
    ComplexRelease(s);
    GeneratorCancel(s.wb, s.Generator, host, s.pics, s.design);
    EXPECT_EQ(s.wb.CurrentIFS, built);
}

}  // namespace
}  // namespace quillane::testing
