#include "shell/grid_size_dialog.h"

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "shell/design_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

TEST(GridSizeDialog, TheYBoxShowsOnlyWithItsBox) {
    ScriptedHost host;
    GridSizeDialog dialog(host, 0.1f, 0.1f);
    dialog.show();
    EXPECT_FALSE(dialog.chkScale()->isChecked());
    EXPECT_EQ(dialog.lblxgrid()->text(), "Grid Size");
    EXPECT_FALSE(dialog.txtygrid()->isVisible());
    QTest::mouseClick(dialog.chkScale(), Qt::LeftButton);
    EXPECT_EQ(dialog.lblxgrid()->text(), "x Grid Size");
    EXPECT_TRUE(dialog.txtygrid()->isVisible());
}

TEST(GridSizeDialog, ABadBoxKeepsTheDialogOpenWithItsMessage) {
    ScriptedHost host;
    GridSizeDialog dialog(host, 0.1f, 0.1f);
    dialog.show();
    dialog.txtGrid()->setText("-1");
    dialog.findChild<QPushButton*>("cmdOK")->click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.spacing());
    EXPECT_EQ(host.shown(), (Messages{{"Error", "Grid size must be positive.  "}}));
    dialog.txtGrid()->setText("1/4");
    dialog.findChild<QPushButton*>("cmdOK")->click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    ASSERT_TRUE(dialog.spacing());
    EXPECT_FLOAT_EQ(dialog.spacing()->x, 0.25f);
    EXPECT_FLOAT_EQ(dialog.spacing()->y, 0.25f);
}

class GridSizeKey : public FrameTest {
  protected:
    void SetUp() override {
        open();
        QApplication::processEvents();
    }
    // Ctrl+Alt+G on the design picture, with `act` run on the dialog once it shows.
    void pressWith(std::function<void(GridSizeDialog&)> act) {
        QTimer::singleShot(0, [act] {
            for (QWidget* w : QApplication::topLevelWidgets())
                if (auto* d = qobject_cast<GridSizeDialog*>(w)) act(*d);
        });
        QTest::keyClick(frame->designWindow()->picture(), Qt::Key_G, Qt::ControlModifier | Qt::AltModifier);
    }
};

TEST_F(GridSizeKey, CtrlAltGSetsTheSpacingAndSwitchesTheGridOn) {
    ASSERT_FALSE(wb().menu("mnuDesignGrid").checked);
    pressWith([](GridSizeDialog& d) {
        d.chkScale()->setChecked(true);
        d.txtGrid()->setText("0.2");
        d.txtygrid()->setText("0.5");
        d.findChild<QPushButton*>("cmdOK")->click();
    });
    EXPECT_TRUE(wb().menu("mnuDesignGrid").checked);
    EXPECT_FLOAT_EQ(wb().GridX, 0.2f);
    EXPECT_FLOAT_EQ(wb().GridY, 0.5f);
}

TEST_F(GridSizeKey, CancelLeavesTheGridAsItWas) {
    const float x = wb().GridX, y = wb().GridY;
    pressWith([](GridSizeDialog& d) {
        d.txtGrid()->setText("0.7");
        d.reject();
    });
    EXPECT_FALSE(wb().menu("mnuDesignGrid").checked);
    EXPECT_EQ(wb().GridX, x);
    EXPECT_EQ(wb().GridY, y);
}

}  // namespace
}  // namespace quillane::testing
