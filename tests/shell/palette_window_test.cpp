// The palette editor driven by real clicks and keys, offscreen.
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "core/palette_files.h"
#include "shell/palette_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

FunctionColors ramp() {
    FunctionColors c{};
    for (int i = 0; i < FunctionColorCount; ++i) c[static_cast<size_t>(i)] = RGB(i, 2 * i, 255 - i);
    return c;
}

class PaletteWindowTest : public FrameTest {};

TEST_F(PaletteWindowTest, LoadCopySetIndexRemoveAndAccept) {
    open();
    PaletteWindow w(frame->state(), host, frame.get());
    w.show();
    EXPECT_EQ(w.windowTitle(), "Edit IFS Palette");
    EXPECT_EQ(w.picTarget(4)->color(), wb().FunctionColor[4]);
    dir.write("src.map", MapPaletteText(ramp()));
    host.fileNames = {dir.path("src.map")};
    QTest::mouseClick(w.cmdLoad(), Qt::LeftButton);
    EXPECT_EQ(w.picSource(7)->color(), RGB(7, 14, 248));

    QTest::mouseClick(w.picTarget(2), Qt::LeftButton);
    EXPECT_EQ(w.txtIndex()->text(), "3");
    QTest::mouseClick(w.picSource(7), Qt::LeftButton);
    EXPECT_EQ(w.picTarget(2)->color(), RGB(7, 14, 248));
    QTest::mouseDClick(w.picTarget(5), Qt::LeftButton);
    EXPECT_EQ(w.form().Target[5], RemovedPaletteColor);

    w.txtIndex()->setFocus();
    w.txtIndex()->selectAll();
    QTest::keyClicks(w.txtIndex(), "101");
    QTest::keyClick(w.txtIndex(), Qt::Key_Return);
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().text, "Index must be between 1 and 100");
    EXPECT_EQ(w.form().Index, 3);
    EXPECT_EQ(w.txtIndex()->text(), "3");

    EXPECT_NE(wb().FunctionColor[2], RGB(7, 14, 248));
    QTest::mouseClick(w.cmdAccept(), Qt::LeftButton);
    EXPECT_EQ(wb().FunctionColor[2], RGB(7, 14, 248));
    EXPECT_EQ(wb().FunctionColor[5], RemovedPaletteColor);
}

TEST_F(PaletteWindowTest, TheMenuItemOpensItAndRejectKeepsTheColours) {
    open();
    const FunctionColors before = wb().FunctionColor;
    ASSERT_TRUE(item("mnuCodeEditPalette")->isEnabled());
    bool seen = false;
    QTimer::singleShot(0, [&] {
        auto* w = qobject_cast<PaletteWindow*>(QApplication::activeModalWidget());
        ASSERT_NE(w, nullptr);
        seen = true;
        QTest::mouseDClick(w->picTarget(0), Qt::LeftButton);
        QTest::mouseClick(w->cmdReject(), Qt::LeftButton);
    });
    item("mnuCodeEditPalette")->trigger();
    EXPECT_TRUE(seen);
    EXPECT_EQ(wb().FunctionColor, before);
}

TEST_F(PaletteWindowTest, EveryColourItemButColourStealingOptionsIsEnabled) {
    open();
    for (const char* key : {"mnuColors(0)", "mnuColors(1)", "mnuColors(2)", "mnuSameColor", "mnuColorsGradient",
                            "mnuDefaultColors", "mnuCodeEditPalette", "mnuCodeSavePalette", "mnuCodeLoadPalette"})
        EXPECT_TRUE(item(key)->isEnabled()) << key;
}

}  // namespace
}  // namespace quillane::testing
