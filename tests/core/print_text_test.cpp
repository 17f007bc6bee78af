#include "core/print_text.h"

#include <gtest/gtest.h>

#include "core/ifs_entry.h"

namespace quillane {
namespace {

void setMap(IFSEntry& ifs, int i, float a, float b, float c, float d, float e, float f, float p) {
    ifs.a[i] = a;
    ifs.b[i] = b;
    ifs.c[i] = c;
    ifs.d[i] = d;
    ifs.e[i] = e;
    ifs.f[i] = f;
    ifs.p[i] = p;
}

IFSEntry threeMaps() {
    IFSEntry ifs;
    ifs.nMaps = 3;
    setMap(ifs, 0, 0.5f, 0, 0, 0.5f, 0, 0, 0.333333f);
    setMap(ifs, 1, 0.5f, 0, 0, 0.5f, 0.5f, 0, 0.333333f);
    setMap(ifs, 2, 0.5f, 0, 0, 0.5f, 0.25f, 0.5f, 0.333334f);
    return ifs;
}

// Twelve quarter-size maps on a grid; the eleventh has no probability, the twelfth is turned.
IFSEntry twelveMaps() {
    IFSEntry ifs;
    ifs.nMaps = 12;
    for (int i = 0; i < 10; ++i)
        setMap(ifs, i, 0.25f, 0, 0, 0.25f, static_cast<float>(i % 4) * 0.25f, static_cast<float>(i / 4) * 0.25f,
               0.083333f);
    setMap(ifs, 10, -0.25f, 0, 0, 0.25f, 0.5f, 0.5f, 0);
    setMap(ifs, 11, 0, -0.25f, 0.25f, 0, 0.75f, 0.5f, 0.083333f);
    return ifs;
}

TEST(PrintText, TheMatrixFormOfThreeMaps) {
    EXPECT_EQ(TextPrintMatrix(threeMaps()),
              "Matrix Form\n"
              "(1)   0.500000   0.000000   0.000000   0.500000  |  0.000000   0.000000  | 0.333333\n"
              "(2)   0.500000   0.000000   0.000000   0.500000  |  0.500000   0.000000  | 0.333333\n"
              "(3)   0.500000   0.000000   0.000000   0.500000  |  0.250000   0.500000  | 0.333334\n"
              "\n");
}

TEST(PrintText, TheScaleRotationFormOfThreeMaps) {
    EXPECT_EQ(TextPrintRotation(threeMaps()),
              "Scale/Rotation Form\n"
              "(1)   0.500000   0.500000  |    0.00     0.00  |  0.000000   0.000000  | 0.333333\n"
              "(2)   0.500000   0.500000  |    0.00     0.00  |  0.500000   0.000000  | 0.333333\n"
              "(3)   0.500000   0.500000  |    0.00     0.00  |  0.250000   0.500000  | 0.333334\n"
              "\n");
}

TEST(PrintText, TwelveMapsLineUpPastNineAndAMapWithoutProbabilityHasNoLastColumn) {
    const std::string matrix = TextPrintMatrix(twelveMaps());
    EXPECT_EQ(matrix,
              "Matrix Form\n"
              "(1)   0.250000   0.000000   0.000000   0.250000  |  0.000000   0.000000  | 0.083333\n"
              "(2)   0.250000   0.000000   0.000000   0.250000  |  0.250000   0.000000  | 0.083333\n"
              "(3)   0.250000   0.000000   0.000000   0.250000  |  0.500000   0.000000  | 0.083333\n"
              "(4)   0.250000   0.000000   0.000000   0.250000  |  0.750000   0.000000  | 0.083333\n"
              "(5)   0.250000   0.000000   0.000000   0.250000  |  0.000000   0.250000  | 0.083333\n"
              "(6)   0.250000   0.000000   0.000000   0.250000  |  0.250000   0.250000  | 0.083333\n"
              "(7)   0.250000   0.000000   0.000000   0.250000  |  0.500000   0.250000  | 0.083333\n"
              "(8)   0.250000   0.000000   0.000000   0.250000  |  0.750000   0.250000  | 0.083333\n"
              "(9)   0.250000   0.000000   0.000000   0.250000  |  0.000000   0.500000  | 0.083333\n"
              "(10)  0.250000   0.000000   0.000000   0.250000  |  0.250000   0.500000  | 0.083333\n"
              "(11) -0.250000   0.000000   0.000000   0.250000  |  0.500000   0.500000  \n"
              "(12)  0.000000  -0.250000   0.250000   0.000000  |  0.750000   0.500000  | 0.083333\n"
              "\n");
    const std::string rotation = TextPrintRotation(twelveMaps());
    EXPECT_EQ(rotation,
              "Scale/Rotation Form\n"
              "(1)   0.250000   0.250000  |    0.00     0.00  |  0.000000   0.000000  | 0.083333\n"
              "(2)   0.250000   0.250000  |    0.00     0.00  |  0.250000   0.000000  | 0.083333\n"
              "(3)   0.250000   0.250000  |    0.00     0.00  |  0.500000   0.000000  | 0.083333\n"
              "(4)   0.250000   0.250000  |    0.00     0.00  |  0.750000   0.000000  | 0.083333\n"
              "(5)   0.250000   0.250000  |    0.00     0.00  |  0.000000   0.250000  | 0.083333\n"
              "(6)   0.250000   0.250000  |    0.00     0.00  |  0.250000   0.250000  | 0.083333\n"
              "(7)   0.250000   0.250000  |    0.00     0.00  |  0.500000   0.250000  | 0.083333\n"
              "(8)   0.250000   0.250000  |    0.00     0.00  |  0.750000   0.250000  | 0.083333\n"
              "(9)   0.250000   0.250000  |    0.00     0.00  |  0.000000   0.500000  | 0.083333\n"
              "(10) 0.250000   0.250000  |    0.00     0.00  |  0.250000   0.500000  | 0.083333\n"
              "(11) 0.250000   0.250000  |  180.00     0.00  |  0.500000   0.500000  \n"
              "(12) 0.250000   0.250000  |   90.00    90.00  |  0.750000   0.500000  | 0.083333\n"
              "\n");
}

TEST(PrintText, TheChaosGameRulesInWords) {
    IFSEntry ifs;
    ifs.nMaps = 2;
    ifs.Step[1][0] = "S";
    ifs.Step[2][0] = "R";
    ifs.Scale[0] = 0.5f;
    ifs.Angle[0] = 30;
    ifs.Step[1][1] = "H";
    ifs.Step[2][1] = "S";
    ifs.Step[3][1] = "V";
    ifs.Scale[1] = 0.25f;
    ifs.FPx[1] = 1;
    ifs.FPy[1] = -0.5f;
    EXPECT_EQ(TextPrintChaosGame(ifs),
              "Chaos Game Rules\n"
              "scale by 0.5, rotate by 30      fixed point:  (0, 0)\n"
              "horizontal reflection, scale by 0.25, vertical reflection      fixed point:  (1, -0.5)\n"
              "\n");
}

TEST(PrintText, TheChosenSectionsFollowEachOtherInOrder) {
    PrintTextParts parts;
    parts.matrix = false;
    parts.rotation = true;
    parts.chaosGame = false;
    EXPECT_EQ(PrintText(threeMaps(), parts), TextPrintRotation(threeMaps()));
    parts.matrix = true;
    EXPECT_EQ(PrintText(threeMaps(), parts), TextPrintMatrix(threeMaps()) + TextPrintRotation(threeMaps()));
}

TEST(PrintText, RuleNumbersHaveNoLeadingBlankAndAZeroBeforeThePoint) {
    EXPECT_EQ(RuleNumber(0.5f), "0.5");
    EXPECT_EQ(RuleNumber(-0.25f), "-0.25");
    EXPECT_EQ(RuleNumber(120), "120");
    EXPECT_EQ(RuleNumber(0), "0");
}

}  // namespace
}  // namespace quillane
