#include "core/table_editing.h"

#include <gtest/gtest.h>

#include "core/numbers.h"
#include "core/scripted_host.h"
#include "tests/core/table_bench.h"

namespace quillane {
namespace {

// A key at the caret, nothing selected.
BoxKeyContext at(std::string_view text, int caret, int column = 1, bool chaosGame = false) {
    BoxKeyContext box;
    box.text = text;
    box.caret = caret;
    box.column = column;
    box.chaosGame = chaosGame;
    return box;
}

BoxKeyContext selecting(std::string_view text, int start, int length) {
    BoxKeyContext box = at(text, start + length);
    box.selStart = start;
    box.selLength = length;
    return box;
}

BoxKey action(const BoxKeyContext& box, char key) {
    return TableBoxKey(box, key).action;
}

TEST(TableBoxKey, ASecondPointIsRefused) {
    EXPECT_EQ(action(at("0.5", 3), '.'), BoxKey::Refused);
    EXPECT_EQ(action(at("05", 1), '.'), BoxKey::Passed);
    EXPECT_EQ(action(at("1.5/2", 5), '.'), BoxKey::Passed);
    EXPECT_EQ(action(at("1.5/2.", 6), '.'), BoxKey::Refused);
}

TEST(TableBoxKey, ASelectedPointCountsAsReplaced) {
    EXPECT_EQ(action(selecting("0.5", 1, 1), '.'), BoxKey::Passed);
    EXPECT_EQ(action(selecting("0.5", 0, 3), '.'), BoxKey::Passed);
    EXPECT_EQ(action(selecting("0.5", 2, 1), '.'), BoxKey::Refused);
}

TEST(TableBoxKey, MinusOnlyAtTheStartAndOnce) {
    EXPECT_EQ(action(at("5", 0), '-'), BoxKey::Passed);
    EXPECT_EQ(action(at("5", 1), '-'), BoxKey::Refused);
    EXPECT_EQ(action(at("-5", 0), '-'), BoxKey::Refused);
    EXPECT_EQ(action(selecting("-5", 0, 2), '-'), BoxKey::Passed);
}

TEST(TableBoxKey, SlashOnceAndNotAtTheStart) {
    EXPECT_EQ(action(at("1", 1), '/'), BoxKey::Passed);
    EXPECT_EQ(action(at("1", 0), '/'), BoxKey::Refused);
    EXPECT_EQ(action(at("1/3", 3), '/'), BoxKey::Refused);
}

TEST(TableBoxKey, OtherCharactersAreSwallowed) {
    EXPECT_EQ(action(at("1", 1), 'a'), BoxKey::Refused);
    EXPECT_EQ(action(at("1", 1), ' '), BoxKey::Refused);
    EXPECT_EQ(action(at("1", 1), '+'), BoxKey::Refused);
    EXPECT_EQ(action(at("1", 1), '7'), BoxKey::Passed);
}

TEST(TableBoxKey, EscapeEnterAndBackspace) {
    EXPECT_EQ(action(at("1", 1), KeyEscape), BoxKey::Escape);
    EXPECT_EQ(action(at("1", 1), KeyEnter), BoxKey::Enter);
    EXPECT_EQ(action(at("1", 1), KeyBackspace), BoxKey::Passed);
    EXPECT_EQ(action(at("S", 1, 2, true), KeyBackspace), BoxKey::Passed);
}

TEST(TableBoxKey, StepColumnsTakeOneOfFourLettersInUpperCase) {
    const BoxKeyResult s = TableBoxKey(at("", 0, 1, true), 's');
    EXPECT_EQ(s.action, BoxKey::Passed);
    EXPECT_EQ(s.key, 'S');
    for (char k : {'R', 'h', 'v'}) EXPECT_EQ(action(at("", 0, 4, true), k), BoxKey::Passed) << k;
    for (char k : {'x', '1', '-', '.'}) EXPECT_EQ(action(at("", 0, 3, true), k), BoxKey::Refused) << k;
    EXPECT_EQ(action(at("S", 1, 1, true), 'R'), BoxKey::Refused);
    EXPECT_EQ(action(selecting("S", 0, 1), 'R'), BoxKey::Refused);  // not chaos game: a number box
    BoxKeyContext replacing = selecting("S", 0, 1);
    replacing.chaosGame = true;
    EXPECT_EQ(action(replacing, 'R'), BoxKey::Passed);
}

TEST(TableBoxKey, ChaosGameNumberColumnsTakeMinusAnywhere) {
    EXPECT_EQ(action(at("0.5", 3, 5, true), '-'), BoxKey::Passed);
    EXPECT_EQ(action(at("0.5", 3, 5, false), '-'), BoxKey::Refused);
    EXPECT_EQ(action(at("0.5", 3, 8, true), '.'), BoxKey::Refused);
    EXPECT_EQ(action(at("0.5", 3, 9, true), 'S'), BoxKey::Refused);
}

TEST(WindowAndCountBoxes, KeepToTheirCharacters) {
    EXPECT_FALSE(WindowBoxKeyPasses(at("1", 1), '/'));
    EXPECT_TRUE(WindowBoxKeyPasses(at("1", 1), '.'));
    EXPECT_TRUE(WindowBoxKeyPasses(at("1", 0), '-'));
    EXPECT_TRUE(WindowBoxKeyPasses(at("1", 1), KeyBackspace));
    EXPECT_TRUE(MapsKeyPasses('4'));
    EXPECT_TRUE(MapsKeyPasses(KeyBackspace));
    EXPECT_FALSE(MapsKeyPasses('.'));
    EXPECT_FALSE(MapsKeyPasses('-'));
}

TEST(EscapeBox, RestoresTheOldTextExactly) {
    Workbench wb = tableWith(DefaultIFS());
    typeInto(wb, 2, 0, "-0.12");
    EscapeBox(wb, 2, 0);
    EXPECT_EQ(wb.Table.text(2, 0), "0.000");
    wb.Table.old(2, 0) = " 1.5 ";
    EscapeBox(wb, 2, 0);
    EXPECT_EQ(wb.Table.text(2, 0), " 1.5 ");
}

TEST(FractionValue, DividesAndCountsAZeroDenominatorAsOne) {
    EXPECT_DOUBLE_EQ(FractionValue("1/3"), 1.0 / 3.0);
    EXPECT_DOUBLE_EQ(FractionValue("-1/4"), -0.25);
    EXPECT_DOUBLE_EQ(FractionValue("5/0"), 5.0);
    EXPECT_DOUBLE_EQ(FractionValue("5/"), 5.0);
    EXPECT_DOUBLE_EQ(FractionValue("0.75"), 0.75);
    EXPECT_DOUBLE_EQ(FractionValue(""), 0.0);
}

TEST(FullPrecisionText, ReadsBackToTheSameSingle) {
    for (double v : {1.0 / 3.0, -2.0 / 7.0, 1e-7 / 3.0, 12345.678901234}) {
        EXPECT_EQ(static_cast<float>(Val(FullPrecisionText(v))), static_cast<float>(v)) << v;
    }
}

TEST(BoxFormat, AnglesHaveTwoDecimals) {
    Workbench wb = tableWith(DefaultIFS());
    EXPECT_STREQ(BoxFormat(wb, 3), "0.000");
    wb.CodeForm = 1;
    EXPECT_STREQ(BoxFormat(wb, 3), "0.00");
    EXPECT_STREQ(BoxFormat(wb, 4), "0.00");
    EXPECT_STREQ(BoxFormat(wb, 1), "0.000");
    wb.CodeForm = 2;
    EXPECT_STREQ(BoxFormat(wb, 6), "0.00");
    EXPECT_STREQ(BoxFormat(wb, 5), "0.000");
}

TEST(ArrowTarget, UpAndDownWithinTheColumnAndOnFromTheLastRow) {
    Workbench wb = tableWith(copiesOfDefault(3));
    EXPECT_EQ(ArrowTarget(wb, 2, 1, false), (BoxAddress{2, 0}));
    EXPECT_EQ(ArrowTarget(wb, 2, 0, false), (BoxAddress{2, 0}));
    EXPECT_EQ(ArrowTarget(wb, 2, 1, true), (BoxAddress{2, 2}));
    EXPECT_EQ(ArrowTarget(wb, 2, 2, true), (BoxAddress{3, 0}));
    EXPECT_EQ(ArrowTarget(wb, 7, 2, true), (BoxAddress{1, 0}));
    wb.CodeForm = 2;
    EXPECT_EQ(ArrowTarget(wb, 7, 2, true), (BoxAddress{8, 0}));
}

TEST(SaveOriginalIFS, KeepsTheSelectedMapAndItsGhost) {
    Workbench wb = tableWith(copiesOfDefault(2));
    wb.CurrentIFS.e[1] = 0.25f;
    wb.CurrentIFS.p[1] = 0.75f;
    wb.SelectedMap = 1;
    SaveOriginalIFS(wb);
    EXPECT_EQ(wb.OriginalMap.e, 0.25f);
    EXPECT_EQ(wb.OriginalMap.p, 0.75f);
    EXPECT_EQ(wb.CurrentIFS.e[100], 0.25f);
    EXPECT_EQ(wb.CurrentIFS.a[100], 0.5f);
    EXPECT_TRUE(wb.GestureSaved);
}

TEST(RecursionOff, ClearsTheFiveFlags) {
    Workbench wb;
    wb.TableRecursionFlags.fill(true);
    RecursionOff(wb);
    for (bool flag : wb.TableRecursionFlags) EXPECT_FALSE(flag);
}

TEST(WindowFromTexts, RefusesWhatCannotBeAWindow) {
    const auto w = WindowFromTexts({"2", "-1", "-0.5", "1.5"});
    ASSERT_TRUE(w.has_value());
    EXPECT_EQ(*w, (WorldWindow{-0.5f, 1.5f, -1, 2}));
    EXPECT_FALSE(WindowFromTexts({"abc", "-1", "-0.5", "1.5"}));
    EXPECT_FALSE(WindowFromTexts({"", "-1", "-0.5", "1.5"}));
    EXPECT_FALSE(WindowFromTexts({"-", "-1", "-0.5", "1.5"}));
    EXPECT_FALSE(WindowFromTexts({"1.2.3", "-1", "-0.5", "1.5"}));
    EXPECT_FALSE(WindowFromTexts({"2", "-1", "1.5", "1.5"}));   // no width
    EXPECT_FALSE(WindowFromTexts({"-1", "2", "-0.5", "1.5"}));  // upside down
}

TEST(WindowBoxes, EscapeShowsTheWindowsBoundAgain) {
    Workbench wb;
    wb.Window = {-1, 2, -3, 4};
    wb.txtWin[2] = "7";
    EscapeWinBox(wb, 2);
    EXPECT_EQ(wb.txtWin[2], "-1.000");
    wb.txtDesign[0] = "9";
    EscapeDesignBox(wb, 0);
    EXPECT_EQ(wb.txtDesign[0], "1.100");
}

}  // namespace
}  // namespace quillane
