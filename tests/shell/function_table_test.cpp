#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QTest>

#include "shell/functions_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

const std::string ThreeMaps =
    "Three {\n0.5 0 0 0.5 0 0 0.333333\n0.5 0 0 0.5 0.5 0 0.333333\n0.5 0 0 0.5 0.25 0.5 0.333334\n}\n\n";

class TableTest : public FrameTest {
  protected:
    void SetUp() override {
        dir.write("default.ifs", ThreeMaps + OtherBlock);
        open();
        QApplication::processEvents();
    }
    FunctionsWindow& table() { return *frame->functionsWindow(); }
    QLineEdit* box(int column, int row) { return table().row(row)[static_cast<size_t>(column - 1)]; }
    // Clicks into a box, selects its text and types over it, as a person does.
    void typeInto(QLineEdit* b, const QString& keys) {
        b->setFocus();
        QApplication::processEvents();
        b->selectAll();
        QTest::keyClicks(b, keys);
    }
    std::string text(QLineEdit* b) { return b->text().toStdString(); }
};

TEST_F(TableTest, AFractionIsStoredInFullAndShownInThreeDecimals) {
    typeInto(box(7, 0), "1/3");
    EXPECT_EQ(text(box(7, 0)), "1/3");
    QTest::keyClick(box(7, 0), Qt::Key_Return);
    EXPECT_EQ(text(box(7, 0)), "0.333");
    EXPECT_EQ(wb().CurrentIFS.p[0], 1.0f / 3.0f);
    EXPECT_EQ(table().findChild<QLabel*>("lblProbSum")->text().toStdString(), "1.000");
    EXPECT_EQ(table().windowTitle().toStdString(), "IFS [Three*]");
    EXPECT_EQ(item("mnuUndo")->text().toStdString(), "&Undo Text Entry");
}

TEST_F(TableTest, ASecondPointIsRefusedAndLettersToo) {
    typeInto(box(1, 1), "0.2.5x");
    EXPECT_EQ(text(box(1, 1)), "0.25");
}

TEST_F(TableTest, EscapeRestoresTheOldTextExactly) {
    typeInto(box(5, 2), "0.9");
    EXPECT_EQ(text(box(5, 2)), "0.9");
    QTest::keyClick(box(5, 2), Qt::Key_Escape);
    EXPECT_EQ(text(box(5, 2)), "0.250");
    EXPECT_EQ(wb().CurrentIFS.e[2], 0.25f);
    EXPECT_EQ(wb().ChangeCount, 0);
}

TEST_F(TableTest, EnterCommitsAndUndoPutsTheValueBack) {
    typeInto(box(1, 0), "0.4");
    QTest::keyClick(box(1, 0), Qt::Key_Return);
    EXPECT_EQ(wb().CurrentIFS.a[0], 0.4f);
    EXPECT_EQ(wb().ChangeCount, 1);
    item("mnuUndo")->trigger();
    EXPECT_EQ(wb().CurrentIFS.a[0], 0.5f);
    EXPECT_EQ(text(box(1, 0)), "0.500");
    EXPECT_EQ(wb().ChangeCount, 0);
    EXPECT_EQ(table().windowTitle().toStdString(), "IFS [Three]");
}

TEST_F(TableTest, ArrowsMoveBetweenRowsAndCommit) {
    typeInto(box(2, 0), "0.1");
    QTest::keyClick(box(2, 0), Qt::Key_Down);
    EXPECT_EQ(wb().CurrentIFS.b[0], 0.1f);
    EXPECT_TRUE(box(2, 1)->hasFocus());
    EXPECT_EQ(box(2, 1)->selectedText().toStdString(), "0.000");
    QTest::keyClick(box(2, 1), Qt::Key_Up);
    EXPECT_TRUE(box(2, 0)->hasFocus());
}

TEST_F(TableTest, MapsFromThreeToFourSelectsTheNewFunction) {
    QLineEdit* maps = table().txtMaps();
    typeInto(maps, "4");
    QTest::keyClick(maps, Qt::Key_Return);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 4);
    EXPECT_TRUE(box(1, 3)->isVisible());
    EXPECT_TRUE(box(1, 3)->hasFocus());
    EXPECT_EQ(wb().SelectedMap, 3);
}

TEST_F(TableTest, MapsFromThreeToSixSelectsNone) {
    QLineEdit* maps = table().txtMaps();
    typeInto(maps, "6");
    QTest::keyClick(maps, Qt::Key_Return);
    EXPECT_EQ(wb().CurrentIFS.nMaps, 6);
    EXPECT_TRUE(box(1, 5)->isVisible());
    for (int r = 0; r < 6; ++r) EXPECT_FALSE(box(1, r)->hasFocus()) << r;
}

TEST_F(TableTest, MapsOutsideTheLimitsIsRefusedWithTheMessage) {
    QLineEdit* maps = table().txtMaps();
    typeInto(maps, "101");
    QTest::keyClick(maps, Qt::Key_Return);
    ASSERT_FALSE(host.shown().empty());
    EXPECT_EQ(host.shown().back().title, "Error");
    EXPECT_EQ(host.shown().back().text, "Enter a value between 1 and 100");
    EXPECT_EQ(text(maps), "3");
    EXPECT_EQ(wb().CurrentIFS.nMaps, 3);
}

TEST_F(TableTest, EachFormRewritesTheTable) {
    item("mnuRotation")->trigger();
    EXPECT_EQ(text(box(1, 0)), "0.500");
    EXPECT_EQ(text(box(3, 0)), "0.00");
    // An IFS list puts the design in IFS mode, where the fixed point form is not offered.
    EXPECT_FALSE(item("mnuCodeFP")->isEnabled());
    item("mnuCodeMatrixFormat")->trigger();
    EXPECT_EQ(wb().MatrixFunctionForm, 1);
    EXPECT_TRUE(table().findChild<QWidget*>("picMatrix(0)")->isVisibleTo(&table()));
    item("mnuMatrix")->trigger();
    EXPECT_FALSE(table().findChild<QWidget*>("picMatrix(0)")->isVisibleTo(&table()));
    EXPECT_EQ(text(box(1, 0)), "0.500");
    // A chaos game shows the fixed point form.
    frame->runCommand("mnuNewChaosGame");
    EXPECT_TRUE(item("mnuCodeFP")->isEnabled());
    EXPECT_EQ(wb().CodeForm, 2);
    EXPECT_TRUE(box(8, 0)->isVisibleTo(&table()));
}

TEST_F(TableTest, TheCountBoxStaysBesideItsLabelWithOrWithoutComments) {
    auto gap = [this] {
        QApplication::processEvents();
        const QLabel* label = nullptr;
        for (const QLabel* l : table().findChildren<QLabel*>())
            if (l->text() == "Number of functions:") label = l;
        const QWidget* maps = table().findChild<QWidget*>("txtMaps");
        if (!label || !maps) return 10000;
        // From the end of the label's text, however wide the label itself is laid out.
        return maps->geometry().left() - (label->geometry().left() + label->sizeHint().width());
    };
    frame->childWindow(0)->resize(900, 500);
    EXPECT_LT(gap(), 20);
    // A new chaos game has no comments: the comment label is hidden.
    frame->runCommand("mnuNewChaosGame");
    ASSERT_FALSE(table().findChild<QWidget*>("lblComment")->isVisible());
    EXPECT_LT(gap(), 20);
}

TEST_F(TableTest, AWholeSessionKeepsTheNumbers) {
    item(EntryKey(2))->trigger();
    EXPECT_EQ(table().windowTitle().toStdString(), "IFS [Other]");
    typeInto(box(1, 0), "0.3");
    QTest::keyClick(box(1, 0), Qt::Key_Return);
    frame->dialogs().list.frmSaveIFSAs = [](const ListNameRequest& r) -> std::optional<std::string> {
        EXPECT_EQ(r.preset, "Other");
        return std::string("Changed");
    };
    item("mnuNames(1)")->trigger();
    EXPECT_EQ(table().windowTitle().toStdString(), "IFS [Changed]");
    const std::string saved = dir.path("saved.ifs");
    host.fileNames.push_back(saved);
    item("mnuSaveIFSas")->trigger();
    ASSERT_TRUE(std::filesystem::exists(saved));
    host.fileNames.push_back(saved);
    item("mnuOpen")->trigger();
    ASSERT_EQ(wb().ListCount(), 3);
    item(EntryKey(3))->trigger();
    EXPECT_EQ(table().windowTitle().toStdString(), "IFS [Changed]");
    EXPECT_EQ(text(box(1, 0)), "0.300");
    EXPECT_EQ(wb().CurrentIFS.a[0], 0.3f);
}

}  // namespace
}  // namespace quillane::testing
