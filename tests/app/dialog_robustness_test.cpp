// Every dialog's check, given what a person might type by mistake: nothing, words, a number too
// large for any picture, a negative number, and an expression that makes NaN. Each answer is a
// usable value or the dialog's own message, never a crash and never a value that breaks a drawing.
#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>
#include <vector>

#include "app/fractal_view.h"
#include "app/grid_size.h"
#include "app/transform_dialogs.h"
#include "core/scripted_host.h"

namespace quillane::testing {
namespace {

const std::vector<std::string> BadInputs = {"",       "abc", "1e308", "-5",     "0/0",
                                            "-1e308", "1/0", "((",    "9e99999"};
// Inputs that no dialog can turn into a number.
const std::set<std::string> NotNumbers = {"abc", "0/0", "1/0", "((", "9e99999"};

TEST(DialogRobustness, ScaleGivesAPositiveFiniteValueOrItsMessage) {
    for (const std::string& text : BadInputs) {
        const DialogCheck<float> r = CheckScaleDialog(text);
        if (r.value) {
            EXPECT_TRUE(std::isfinite(*r.value) && *r.value > 0) << text;
        } else {
            EXPECT_TRUE(r.message == ScalePercentNotNumber || r.message == PositiveScaleMessage) << text;
        }
        if (NotNumbers.count(text)) {
            EXPECT_FALSE(r.value.has_value()) << text;
        }
    }
    EXPECT_EQ(CheckScaleDialog("-5").message, PositiveScaleMessage);
    EXPECT_EQ(CheckScaleDialog("0/0").message, ScalePercentNotNumber);
}

TEST(DialogRobustness, RotateGivesAFiniteAngleOrItsMessage) {
    for (const std::string& text : BadInputs)
        for (int direction : {0, 1}) {
            const DialogCheck<double> r = CheckRotateDialog(text, direction);
            if (r.value) {
                EXPECT_TRUE(std::isfinite(*r.value)) << text;
            } else {
                EXPECT_EQ(r.message, RotationAngleNotNumber) << text;
            }
            if (NotNumbers.count(text)) {
                EXPECT_FALSE(r.value.has_value()) << text;
            }
        }
}

TEST(DialogRobustness, StretchAndShearNameTheBoxAtFault) {
    const char* notNumber[] = {StretchHoriNotNumber, StretchVertNotNumber, ShearHoriNotNumber,
                               ShearVertNotNumber};
    for (int box = 0; box < 4; ++box)
        for (const std::string& text : BadInputs) {
            SkewDialogText t;
            std::string* boxes[] = {&t.txtStrHori, &t.txtStrVert, &t.txtSkewHori, &t.txtSkewVert};
            *boxes[box] = text;
            const DialogCheck<SkewValues> r = CheckSkewDialog(t);
            if (r.value) {
                const SkewValues& v = *r.value;
                EXPECT_TRUE(std::isfinite(v.StrHori) && std::isfinite(v.StrVert) &&
                            std::isfinite(v.SkewHori) && std::isfinite(v.SkewVert))
                    << box << " " << text;
            } else {
                EXPECT_EQ(r.box, box) << text;
                const char* range = box < 2 ? PositiveScaleMessage : ShearRangeMessage;
                EXPECT_TRUE(r.message == notNumber[box] || r.message == range) << box << " " << text;
            }
            if (NotNumbers.count(text)) {
                EXPECT_FALSE(r.value.has_value()) << box << " " << text;
            }
        }
}

TEST(DialogRobustness, HowManyGivesACountWithinItsLimitOrTheLimitMessage) {
    for (const std::string& text : BadInputs)
        for (bool random : {true, false}) {
            const HowManyCheck r = CheckHowMany(text, random);
            if (r.value) {
                // The box takes digits alone, so a count is never negative there; above, the limit holds.
                EXPECT_LE(*r.value, random ? 1000000000 : 100) << text;
            } else {
                EXPECT_EQ(r.message, random ? HowManyRandomLimitMessage : HowManyDeterministicLimitMessage)
                    << text;
            }
        }
    EXPECT_EQ(CheckHowMany("1e308", true).message, HowManyRandomLimitMessage);
}

TEST(DialogRobustness, ImageSizeStaysWithinTwentyTwoInchesOrSaysWhy) {
    for (const std::string& text : BadInputs)
        for (int unit : {0, 1, 2}) {
            const ImageSizeCheck r = CheckImageSize(text, unit, 96);
            if (r.twips) {
                EXPECT_GT(*r.twips, 0) << text;
                EXPECT_LE(*r.twips, MaxImageSizeTwips) << text;
            } else {
                EXPECT_FALSE(r.message.empty()) << text;
            }
        }
    // The largest picture there is: 22 inches, and not a twip more.
    EXPECT_EQ(CheckImageSize("22", 0, 96).twips, MaxImageSizeTwips);
    for (int unit : {0, 1, 2})
        EXPECT_EQ(CheckImageSize("-5", unit, 96).message, ImageSizeTooSmallMessage) << unit;
    EXPECT_FALSE(CheckImageSize("22.1", 0, 96).twips.has_value());
}

TEST(DialogRobustness, GridSizeGivesAPositiveSpacingOrOneErrorBox) {
    const std::set<std::string> messages = {GridSizeErrorText, YGridSizeErrorText, GridSizePositiveText};
    for (const std::string& text : BadInputs)
        for (bool apart : {false, true})
            for (bool yBox : {false, true}) {
                if (yBox && !apart) continue;
                GridSizeInput in{yBox ? "0.5" : text, yBox ? text : "0.5", apart};
                ScriptedHost host;
                const std::optional<GridSpacing> g = EvaluateGridSize(in, host);
                if (g) {
                    EXPECT_TRUE(std::isfinite(g->x) && g->x > 0 && std::isfinite(g->y) && g->y > 0) << text;
                    EXPECT_TRUE(host.shown().empty()) << text;
                } else {
                    ASSERT_EQ(host.shown().size(), 1u) << text;
                    EXPECT_EQ(host.shown()[0].title, "Error");
                    EXPECT_TRUE(messages.count(host.shown()[0].text)) << text << ": " << host.shown()[0].text;
                }
                if (NotNumbers.count(text)) {
                    EXPECT_FALSE(g.has_value()) << text;
                }
            }
}

}  // namespace
}  // namespace quillane::testing
