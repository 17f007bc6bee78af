#include "app/binary_tree_commands.h"

#include <gtest/gtest.h>

#include "core/initial_polygons.h"
#include "tree_fixture.h"

namespace quillane::testing {
namespace {

class BinaryTreeCommands : public TreeState {
  protected:
    void SetUp() override {
        TreeState::SetUp();
        ASSERT_TRUE(mnuDesignExample_Click(s.wb, s.Generator, host, BinaryTreesExample));
        flags = InstallBinaryTreeDrawing(s.pics);
    }
    // The one message shown since the last call, as "title|text".
    std::string message() {
        if (host.shown().size() != 1) return "messages: " + std::to_string(host.shown().size());
        const std::string m = host.shown()[0].title + "|" + host.shown()[0].text;
        host.clear();
        return m;
    }
    TreeFocus refused(BinaryTreeForm f) {
        const IFSEntry before = s.wb.CurrentIFS;
        const TreeFocus focus = BinaryTreeSetup(s, host, f);
        EXPECT_EQ(s.wb.CurrentIFS, before);
        EXPECT_FALSE(s.Generator.SetupDone);
        return focus;
    }
    BinaryTreeForm form;
    std::shared_ptr<BinaryTreeRecursion> flags;
};

TEST_F(BinaryTreeCommands, EmptyBoxesAreRefusedInOrder) {
    form.txtAngle = "";
    form.txtRatio = "";
    EXPECT_EQ(refused(form), TreeFocus::Angle);
    EXPECT_EQ(message(), "Error|Enter a branching angle");
    form.txtAngle = "60";
    EXPECT_EQ(refused(form), TreeFocus::Ratio);
    EXPECT_EQ(message(), "Error|Enter a scaling ratio");
}

TEST_F(BinaryTreeCommands, AnglesZeroAndOneEightyAreRefused) {
    for (const char* angle : {"0", "180", "-5", "200"}) {
        form.txtAngle = angle;
        EXPECT_EQ(refused(form), TreeFocus::Angle) << angle;
        EXPECT_EQ(message(), "Error|Branching angle must be between 0 and 180 degrees");
    }
    form.txtAngle = "60+";
    EXPECT_EQ(refused(form), TreeFocus::Angle);
    EXPECT_EQ(message(), "Error|Cannot evaluate expression for theta  ");
}

TEST_F(BinaryTreeCommands, RatiosZeroAndOneAreRefused) {
    for (const char* ratio : {"0", "1", "1.5", "-0.5"}) {
        form.txtRatio = ratio;
        EXPECT_EQ(refused(form), TreeFocus::Ratio) << ratio;
        EXPECT_EQ(message(), "Error|Scaling ratio must be between 0 and 1");
    }
    form.txtRatio = "x";
    EXPECT_EQ(refused(form), TreeFocus::Ratio);
    EXPECT_EQ(message(), "Error|Cannot evaluate expression for R  ");
}

TEST_F(BinaryTreeCommands, RightHandBoxesAreCheckedOnlyForTheNonSymmetricTree) {
    form.txtAngleRight = "";
    EXPECT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    EXPECT_TRUE(host.shown().empty());
    s.Generator.SetupDone = false;
    form.chkNonSym = true;
    EXPECT_EQ(refused(form), TreeFocus::AngleRight);
    EXPECT_EQ(message(), "Error|Enter a branching angle");
    form.txtAngleRight = "180";
    EXPECT_EQ(refused(form), TreeFocus::AngleRight);
    EXPECT_EQ(message(), "Error|Branching angle must be between 0 and 180 degrees");
    form.txtAngleRight = "40";
    form.txtRatioRight = "";
    EXPECT_EQ(refused(form), TreeFocus::RatioRight);
    EXPECT_EQ(message(), "Error|Enter a scaling ratio");
    form.txtRatioRight = "ratio";
    EXPECT_EQ(refused(form), TreeFocus::RatioRight);
    EXPECT_EQ(message(), "Error|Cannot evaluate expression for ratio  ");
    form.txtRatioRight = "1";
    EXPECT_EQ(refused(form), TreeFocus::RatioRight);
    EXPECT_EQ(message(), "Error|Scaling ratio must be between 0 and 1");
}

TEST_F(BinaryTreeCommands, ExpressionsAreEvaluated) {
    form.txtAngle = "90/2";
    form.txtRatio = "1/2";
    ASSERT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.Name, "SBT(45\xC2\xB0, 0.5)");
    EXPECT_EQ(s.wb.CurrentIFS.Comment[2], "; Branching angle: 90/2\xC2\xB0");
}

TEST_F(BinaryTreeCommands, TickingTipsSelectsTheRandomMethod) {
    ASSERT_TRUE(form.optDet);
    BinaryTreeTips(form, true);
    EXPECT_FALSE(form.optDet);
    EXPECT_EQ(BinaryTreeMethod(form), TreeMethod::Tips);
    ASSERT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    EXPECT_EQ(s.wb.CurrentIFS.nMaps, 2);
    BinaryTreeTips(form, false);
    EXPECT_FALSE(form.optDet);
    EXPECT_EQ(BinaryTreeMethod(form), TreeMethod::Random);
    // Hidden in the non-symmetric mode, the box counts as unticked.
    BinaryTreeTips(form, true);
    form.chkNonSym = true;
    EXPECT_EQ(BinaryTreeMethod(form), TreeMethod::Random);
}

TEST_F(BinaryTreeCommands, CreateIFSTakesTheVerticalLineAndShowsTheTree) {
    s.wb.Menu.setChecked(MenuTable::key("mnupoly", 7), true);
    ASSERT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    EXPECT_EQ(s.wb.InitialPolygon, BuiltInPolygon(5));
    for (int k = 0; k <= UserPolygonItem; ++k)
        EXPECT_EQ(s.wb.menu(MenuTable::key("mnupoly", k)).checked, k == 5) << k;
    EXPECT_EQ(s.wb.DetFigure, 0);
    EXPECT_EQ(s.wb.FunctionsCaption, "IFS [SBT(60\xC2\xB0, 0.6)]");
    EXPECT_EQ(s.wb.txtMaps, "3");
    EXPECT_EQ(s.wb.lblComment, "; Symmetric Binary Tree");
    EXPECT_TRUE(s.Generator.SetupDone);
    EXPECT_TRUE(s.wb.TableRecursionFlags[BinaryTreeSlot]);
    // The tree stands above the origin, so the fractal window reaches above 1.
    EXPECT_GT(s.wb.Window.ymax, 1.2f);
}

TEST_F(BinaryTreeCommands, SelfContactingRatioNeedsAnAngle) {
    form.txtAngle = "";
    EXPECT_EQ(BinaryTreeSelfContacting(form, host), TreeFocus::Angle);
    EXPECT_EQ(message(), "Error|Enter a branching angle first");
    form.txtAngle = "pi(";
    EXPECT_EQ(BinaryTreeSelfContacting(form, host), TreeFocus::Angle);
    EXPECT_EQ(message(), "Error|Cannot evaluate expression for theta  ");
    form.txtAngle = "180";
    EXPECT_EQ(BinaryTreeSelfContacting(form, host), TreeFocus::Angle);
    EXPECT_EQ(message(), "Error|Branching angle must be between 0 and 180 degrees");
    EXPECT_EQ(form.txtRatio, "0.6");
}

TEST_F(BinaryTreeCommands, SelfContactingRatioAtNinetyIsOneOverRootTwo) {
    form.txtAngle = "90";
    EXPECT_EQ(BinaryTreeSelfContacting(form, host), TreeFocus::None);
    EXPECT_EQ(form.txtRatio, "0.70711");
    form.txtAngle = "135";
    EXPECT_EQ(BinaryTreeSelfContacting(form, host), TreeFocus::None);
    EXPECT_EQ(form.txtRatio, "0.70711");
    form.txtAngle = "150";
    EXPECT_EQ(BinaryTreeSelfContacting(form, host), TreeFocus::None);
    EXPECT_EQ(form.txtRatio, "0.57735");
}

TEST_F(BinaryTreeCommands, RecursionDrawsTheTreeTheDeterministicLevelsDraw) {
    deterministic();
    ASSERT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    for (int k = 0; k < 4; ++k) level();
    const RasterSurface plain = s.pics.picfractal;
    EXPECT_EQ(s.pics.picCount, "4");
    EXPECT_GT(painted(plain), 200);

    flags->UseTreeRecursion = true;
    ResetDeterministic(s.wb, s.pics, host);
    for (int k = 0; k < 4; ++k) level();
    const RasterSurface recursive = s.pics.picfractal;
    EXPECT_EQ(s.pics.picCount, "4 w/Rec");
    EXPECT_GT(coveredBy(recursive, plain, 2), 0.97);
    EXPECT_GT(coveredBy(plain, recursive, 2), 0.97);
}

TEST_F(BinaryTreeCommands, RecursionDrawsTheNonSymmetricTree) {
    deterministic();
    form.chkNonSym = true;
    ASSERT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    flags->UseTreeRecursion = true;
    level();
    // Level 0 draws the trunk and the first two branches: 3 branches counted, the bar full.
    EXPECT_EQ(s.pics.picCount, "1 w/Rec");
    EXPECT_EQ(s.pics.picImage.width(), s.pics.picfractal.width());
    EXPECT_GT(painted(s.pics.picImage), 0);
}

TEST_F(BinaryTreeCommands, AnEditedIFSFallsBackToPlainLevels) {
    deterministic();
    ASSERT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    flags->UseTreeRecursion = true;
    s.wb.CurrentIFS.e[0] = 0.2f;
    RecursionOff(s.wb);
    level();
    EXPECT_EQ(s.pics.picCount, "1");
}

TEST_F(BinaryTreeCommands, OverlayColoursEachGenerationByItsFunction) {
    deterministic();
    ASSERT_EQ(BinaryTreeSetup(s, host, form), TreeFocus::None);
    flags->UseTreeRecursion = true;
    s.wb.FunctionColor[0] = RGB(255, 0, 0);
    s.wb.FunctionColor[1] = RGB(0, 0, 255);
    s.wb.Menu.setChecked("mnuDrawOverlay", true);
    level();
    // The trunk is the first generation, in the colour of function 1; its branches the second.
    int red = 0, blue = 0;
    const RasterSurface& pic = s.pics.picfractal;
    for (int r = 0; r < pic.height(); ++r)
        for (int c = 0; c < pic.width(); ++c) {
            red += (pic.pixel(c, r) & 0xFFFFFF) == RGB(255, 0, 0);
            blue += (pic.pixel(c, r) & 0xFFFFFF) == RGB(0, 0, 255);
        }
    EXPECT_GT(red, 10);
    EXPECT_GT(blue, 10);
}

}  // namespace
}  // namespace quillane::testing
