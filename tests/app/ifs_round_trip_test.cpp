#include <gtest/gtest.h>

#include <random>

#include "core/chaos_game.h"
#include "app/ifs_file_reader.h"
#include "core/ifs_file_writer.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::Messages;
using testing::setList;
using testing::TempDir;

// Six decimals on the way out: a value read back is within half a unit of the sixth decimal,
// plus the float's own step.
constexpr double SixDecimals = 5e-7 + 2e-7;

IFSEntry randomEntry(std::mt19937& gen, const std::string& name, int n) {
    std::uniform_real_distribution<float> coefficient(-2.0f, 2.0f);
    IFSEntry e = DefaultIFS();
    e.Name = name;
    e.nMaps = static_cast<int16_t>(n);
    e.HasChaosGame = False16;
    for (int i = 0; i < n; ++i) {
        for (MapArray* field : {&e.a, &e.b, &e.c, &e.d, &e.e, &e.f}) (*field)[i] = coefficient(gen);
        e.p[i] = 1.0f / static_cast<float>(n);
    }
    return e;
}

void expectSameRows(const IFSEntry& got, const IFSEntry& want) {
    ASSERT_EQ(got.nMaps, want.nMaps) << want.Name;
    for (int i = 0; i < want.nMaps; ++i) {
        EXPECT_NEAR(got.a[i], want.a[i], SixDecimals) << want.Name << " " << i;
        EXPECT_NEAR(got.b[i], want.b[i], SixDecimals) << want.Name << " " << i;
        EXPECT_NEAR(got.c[i], want.c[i], SixDecimals) << want.Name << " " << i;
        EXPECT_NEAR(got.d[i], want.d[i], SixDecimals) << want.Name << " " << i;
        EXPECT_NEAR(got.e[i], want.e[i], SixDecimals) << want.Name << " " << i;
        EXPECT_NEAR(got.f[i], want.f[i], SixDecimals) << want.Name << " " << i;
        EXPECT_NEAR(got.p[i], want.p[i], SixDecimals) << want.Name << " " << i;
    }
}

class RoundTrip : public ::testing::Test {
  protected:
    // Writes the list of `wb` and reads it into `back`.
    void writeAndRead(bool chaos = false) {
        const std::string file = dir.path(chaos ? "trip.chg" : "trip.ifs");
        ASSERT_TRUE(chaos ? SaveChaosList(wb, host, file) : SaveIFSList(wb, host, file));
        ASSERT_TRUE(chaos ? OpenChaosFile(back, host, 0, file) : OpenIFSFile(back, host, 0, file));
        EXPECT_EQ(host.shown(), Messages{});
    }
    Workbench wb, back;
    ScriptedHost host;
    TempDir dir;
};

TEST_F(RoundTrip, AWrittenListReadsBackWithItsNamesCommentsAndCoefficients) {
    std::mt19937 gen(7);
    IFSEntry first = randomEntry(gen, "Leaf with blanks", 4);
    first.nComments = 3;
    first.Comment[1] = "on the head line";
    first.Comment[2] = "; a comment line";
    first.Comment[3] = "   ; indented";
    IFSEntry second = randomEntry(gen, "Many", 100);
    setList(wb, {first, second, randomEntry(gen, "One", 1)});
    writeAndRead();
    ASSERT_EQ(back.ListCount(), 3);
    for (int n = 1; n <= 3; ++n) {
        EXPECT_EQ(back.FractalList[n].Name, wb.FractalList[n].Name);
        expectSameRows(back.FractalList[n], wb.FractalList[n]);
    }
    EXPECT_EQ(back.FractalList[1].nComments, 3);
    for (int k = 1; k <= 3; ++k) EXPECT_EQ(back.FractalList[1].Comment[k], first.Comment[k]) << k;
}

TEST_F(RoundTrip, AListWithoutProbabilitiesReadsBackWithEqualShares) {
    IFSEntry e = DefaultIFS();
    e.Name = "Zero";
    e.nMaps = 3;
    for (int i = 0; i < 3; ++i) e.p[i] = 0;
    setList(wb, {e});
    writeAndRead();
    for (int i = 0; i < 3; ++i) EXPECT_EQ(back.FractalList[1].p[i], 0.333333f) << i;
}

TEST_F(RoundTrip, ANegativePIsLeftOutAndReadsBackAsZero) {
    std::mt19937 gen(3);
    IFSEntry e = randomEntry(gen, "Negative", 2);
    e.p[0] = 0.7f;
    e.p[1] = -0.2f;
    setList(wb, {e});
    writeAndRead();
    EXPECT_NEAR(back.FractalList[1].p[0], 0.7f, SixDecimals);
    EXPECT_EQ(back.FractalList[1].p[1], 0.0f);
}

TEST_F(RoundTrip, TextAfterTheBraceIsWrittenBackDirectlyAfterTheBrace) {
    const std::string file = dir.write("in.ifs", "A {  first words\n; second\n0.5 0 0 0.5 0 0 1\n}\n");
    ASSERT_TRUE(OpenIFSFile(wb, host, 0, file));
    const std::string out = dir.path("out.ifs");
    ASSERT_TRUE(SaveIFSList(wb, host, out));
    EXPECT_EQ(TempDir::read(out).substr(0, 25), "A {first words\n; second\n ");
    ASSERT_TRUE(OpenIFSFile(back, host, 0, out));
    EXPECT_EQ(back.FractalList[1].Comment[1], "first words");
    EXPECT_EQ(back.FractalList[1].Comment[2], "; second");
}

TEST_F(RoundTrip, AChaosListReadsBackWithItsRecipes) {
    const std::string file = dir.write("in.chg",
                                       "Mix { turns\nSR 0.5 30 0.4 1 2\nSRVH 0.25 -45 0.3 0 0\n"
                                       "SH 0.3333333 0 0.3 -1 0.5\n}\n");
    ASSERT_TRUE(OpenChaosFile(wb, host, 0, file));
    writeAndRead(true);
    const IFSEntry& got = back.FractalList[1];
    const IFSEntry& want = wb.FractalList[1];
    for (int i = 0; i < 3; ++i) {
        for (int k = 1; k <= 4; ++k) EXPECT_EQ(got.Step[k][i], want.Step[k][i]) << i << " " << k;
        EXPECT_NEAR(got.Scale[i], want.Scale[i], SixDecimals) << i;
        EXPECT_NEAR(got.Angle[i], want.Angle[i], SixDecimals) << i;
        EXPECT_NEAR(got.FPx[i], want.FPx[i], SixDecimals) << i;
        EXPECT_NEAR(got.FPy[i], want.FPy[i], SixDecimals) << i;
        EXPECT_NEAR(got.Prob[i], want.p[i], SixDecimals) << i;
    }
    expectSameRows(got, want);
}

}  // namespace
}  // namespace quillane
