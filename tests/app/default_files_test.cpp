#include <gtest/gtest.h>

#include <cmath>
#include <utility>

#include "app/ifs_file_reader.h"
#include "core/numbers.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::Messages;
using Contents = std::vector<std::pair<std::string, int>>;

const std::string DataDir = QUILLANE_DATA_DIR;

Contents contents(const Workbench& wb) {
    Contents c;
    for (int n = 1; n <= wb.ListCount(); ++n) c.emplace_back(wb.FractalList[n].Name, wb.FractalList[n].nMaps);
    return c;
}

// Each entry can be drawn as it stands: probabilities that add to 1 and contracting maps.
void expectDrawable(const Workbench& wb) {
    for (int n = 1; n <= wb.ListCount(); ++n) {
        const IFSEntry& e = wb.FractalList[n];
        double sum = 0;
        for (int i = 0; i < e.nMaps; ++i) {
            EXPECT_GT(e.p[i], 0.0f) << e.Name << " " << i;
            sum += e.p[i];
            EXPECT_LT(std::fabs(e.a[i] * e.d[i] - e.b[i] * e.c[i]), 1.0f) << e.Name << " " << i;
            EXPECT_LT(std::hypot(e.a[i], e.c[i]), 1.0f) << e.Name << " " << i;
            EXPECT_LT(std::hypot(e.b[i], e.d[i]), 1.0f) << e.Name << " " << i;
        }
        EXPECT_NEAR(sum, 1.0, 0.0005) << e.Name;
        EXPECT_EQ(Format(sum, "0.000"), "1.000") << e.Name;
        EXPECT_GE(e.nComments, 1) << e.Name;
    }
}

TEST(DefaultFiles, TheIFSListReadsWithoutAWord) {
    Workbench wb;
    ScriptedHost host;
    ASSERT_TRUE(OpenIFSFile(wb, host, 0, DataDir + "/default.ifs"));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(contents(wb), (Contents{{"Sierpinski triangle", 3},
                                      {"Sierpinski carpet", 8},
                                      {"Barnsley fern", 4},
                                      {"Koch curve", 4},
                                      {"Heighway dragon", 2},
                                      {"Twin dragon", 2},
                                      {"Levy C curve", 2},
                                      {"Tree", 4},
                                      {"Spiral", 2},
                                      {"Pentagon flake", 6},
                                      {"Crystal", 5}}));
    expectDrawable(wb);
}

TEST(DefaultFiles, TheChaosListReadsWithoutAWord) {
    Workbench wb;
    ScriptedHost host;
    ASSERT_TRUE(OpenChaosFile(wb, host, 0, DataDir + "/default.chg"));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(contents(wb), (Contents{{"Sierpinski triangle", 3},
                                      {"Sierpinski carpet", 8},
                                      {"Pentagon flake", 6},
                                      {"Twisted triangle", 3},
                                      {"Heighway dragon", 2}}));
    expectDrawable(wb);
    for (int n = 1; n <= wb.ListCount(); ++n) {
        const IFSEntry& e = wb.FractalList[n];
        EXPECT_EQ(e.HasChaosGame, True16) << e.Name;
        for (int i = 0; i < e.nMaps; ++i) {
            EXPECT_NEAR(e.a[i] * e.FPx[i] + e.b[i] * e.FPy[i] + e.e[i], e.FPx[i], 1e-5) << e.Name << i;
            EXPECT_NEAR(e.c[i] * e.FPx[i] + e.d[i] * e.FPy[i] + e.f[i], e.FPy[i], 1e-5) << e.Name << i;
        }
    }
}

TEST(DefaultFiles, BothDragonsAreTheSameMaps) {
    Workbench ifs, chg;
    ScriptedHost host;
    ASSERT_TRUE(OpenIFSFile(ifs, host, 0, DataDir + "/default.ifs"));
    ASSERT_TRUE(OpenChaosFile(chg, host, 0, DataDir + "/default.chg"));
    const IFSEntry& a = ifs.FractalList[5];
    const IFSEntry& b = chg.FractalList[5];
    ASSERT_EQ(a.Name, "Heighway dragon");
    ASSERT_EQ(b.Name, "Heighway dragon");
    for (int i = 0; i < 2; ++i) {
        for (auto field :
             {&IFSEntry::a, &IFSEntry::b, &IFSEntry::c, &IFSEntry::d, &IFSEntry::e, &IFSEntry::f})
            EXPECT_NEAR((a.*field)[i], (b.*field)[i], 2e-6) << i;
    }
}

TEST(DefaultFiles, TheStartReaderTakesTheDefaultListQuietly) {
    Workbench wb;
    const FileOpenResult r = FileOpen(wb, "ifs", DataDir + "/default.ifs", false);
    EXPECT_TRUE(r.ListLoaded);
    EXPECT_FALSE(r.Failed);
    EXPECT_EQ(wb.CurrentIFS.Name, "Sierpinski triangle");
    EXPECT_EQ(wb.FrameCaption, "Quillane - default.ifs");
}

}  // namespace
}  // namespace quillane
