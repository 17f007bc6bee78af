// The generator run through real windows: a stand-in generator opened from Design > Examples, built,
// then closed or cancelled with real clicks.
#include "shell/generator_window.h"

#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include "core/function_table.h"
#include "core/sample_systems.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

class StandInGenerator : public GeneratorWindow {
  public:
    explicit StandInGenerator(MainWindow& frame) : GeneratorWindow(frame, 2, "Stand-in Generator") {
        auto* create = new QPushButton("Create IFS", body());
        create->setObjectName("cmdCreate");
        (new QVBoxLayout(body()))->addWidget(create);
        connect(create, &QPushButton::clicked, this, [this] {
            state().wb.CurrentIFS = GridIFS(9);
            state().wb.CurrentIFS.Name = "Grid";
            state().wb.txtMaps = "9";
            state().wb.IFSModified = true;
            WriteTableRows(state().wb);
            ++creates;
            built();
        });
    }
    int closings = 0;
    int creates = 0;

  protected:
    void closing() override { ++closings; }
};

class GeneratorWindowTest : public FrameTest {
  protected:
    StandInGenerator* openStandIn() {
        open();
        RegisterGenerator(*frame, 2, [this](MainWindow& f) {
            made = new StandInGenerator(f);
            return made;
        });
        item("mnuDesignExample(2)")->trigger();
        return made;
    }
    void click(const char* name) {
        auto* button = made->findChild<QPushButton*>(name);
        ASSERT_NE(button, nullptr) << name;
        QTest::mouseClick(button, Qt::LeftButton);
    }
    StandInGenerator* made = nullptr;
};

TEST_F(GeneratorWindowTest, OnlyRegisteredExamplesAreOffered) {
    open();
    // The stand-in's example has no window of its own yet.
    EXPECT_FALSE(item("mnuDesignExample(2)")->isEnabled());
    RegisterGenerator(*frame, 2, [](MainWindow& f) { return new StandInGenerator(f); });
    EXPECT_TRUE(item("mnuDesignExample(2)")->isEnabled());
    EXPECT_FALSE(item("mnuDesignExample(1)")->isEnabled());
}

TEST_F(GeneratorWindowTest, OpeningShowsTheWindowAndDisablesTheExamples) {
    ASSERT_NE(openStandIn(), nullptr);
    EXPECT_TRUE(made->isVisible());
    EXPECT_EQ(made->windowTitle(), "Stand-in Generator");
    EXPECT_FALSE(item("mnuDesignExample(2)")->isEnabled());
    EXPECT_TRUE(item("mnuWin(5)")->isVisible());
}

TEST_F(GeneratorWindowTest, CancelByClickRestoresTheIFS) {
    ASSERT_NE(openStandIn(), nullptr);
    const IFSEntry before = wb().CurrentIFS;
    click("cmdCreate");
    ASSERT_EQ(made->creates, 1);
    ASSERT_EQ(wb().CurrentIFS.nMaps, 9);
    click("cmdCancel");
    EXPECT_EQ(wb().CurrentIFS, before);
    EXPECT_FALSE(made->isVisible());
    EXPECT_EQ(made->closings, 1);
    EXPECT_TRUE(item("mnuDesignExample(2)")->isEnabled());
    EXPECT_FALSE(item("mnuWin(5)")->isVisible());
}

TEST_F(GeneratorWindowTest, CloseByClickKeepsTheBuild) {
    ASSERT_NE(openStandIn(), nullptr);
    click("cmdCreate");
    click("cmdClose");
    EXPECT_EQ(wb().CurrentIFS.nMaps, 9);
    EXPECT_EQ(wb().CurrentIFS.Name, "Grid");
    EXPECT_FALSE(made->isVisible());
    EXPECT_TRUE(item("mnuDesignExample(2)")->isEnabled());
}

TEST_F(GeneratorWindowTest, TheCloseBoxActsAsClose) {
    ASSERT_NE(openStandIn(), nullptr);
    click("cmdCreate");
    made->close();
    EXPECT_FALSE(made->isVisible());
    EXPECT_EQ(wb().CurrentIFS.nMaps, 9);
    EXPECT_EQ(wb().menu("mnuDesignExample(2)").enabled, true);
    // Opened again, the same window comes back.
    StandInGenerator* first = made;
    item("mnuDesignExample(2)")->trigger();
    EXPECT_EQ(made, first);
    EXPECT_TRUE(first->isVisible());
}

}  // namespace
}  // namespace quillane::testing
