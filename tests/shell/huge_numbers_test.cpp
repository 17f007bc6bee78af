// Numbers far beyond any picture, typed or read from a file, must neither end nor hang the program.
#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "app/window_commands.h"
#include "shell/functions_window.h"
#include "tests/shell/frame_fixture.h"

namespace quillane::testing {
namespace {

const std::string TwoMaps = "Two {\n0.5 0 0 0.5 0 0 0.5\n0.5 0 0 0.5 0.5 0 0.5\n}\n\n";
const std::vector<QString> HugeValues = {"1000000000", "1e30", "3e38", "-3e38"};

class HugeNumbers : public FrameTest {
  protected:
    void typeAndEnter(QLineEdit* b, const QString& keys) {
        b->setFocus();
        QApplication::processEvents();
        b->selectAll();
        QTest::keyClicks(b, keys);
        QTest::keyClick(b, Qt::Key_Return);
        QApplication::processEvents();
    }
    FunctionsWindow& table() { return *frame->functionsWindow(); }
};

TEST_F(HugeNumbers, EveryCoefficientOfEveryFormTakesThemAndTheProgramGoesOn) {
    dir.write("default.ifs", TwoMaps + OtherBlock);
    open();
    QApplication::processEvents();
    for (const char* form : {"mnuMatrix", "mnuRotation", "mnuCodeMatrixFormat"}) {
        item(form)->trigger();
        for (int column = 1; column <= 6; ++column) {
            for (const QString& value : HugeValues) {
                QLineEdit* box = table().row(0)[static_cast<size_t>(column - 1)];
                typeAndEnter(box, value);
                // The design, fitted to the far map, is redrawn too.
                frame->runCommand("mnuDesignFitWin");
                QApplication::processEvents();
                ASSERT_EQ(wb().CurrentIFS.nMaps, 2) << form << " column " << column;
                item("mnuUndo")->trigger();
            }
        }
    }
    EXPECT_EQ(listedFractals(), (std::vector<std::string>{"Two", "Other"}));
}

TEST_F(HugeNumbers, TheWindowBoxesTakeThemToo) {
    dir.write("default.ifs", TwoMaps);
    open();
    QApplication::processEvents();
    for (int k = 0; k < 4; ++k) {
        for (const QString& value : HugeValues) {
            typeAndEnter(table().txtWin(k), value);
            typeAndEnter(table().txtDesign(k), value);
        }
    }
    EXPECT_EQ(listedFractals(), (std::vector<std::string>{"Two"}));
}

TEST_F(HugeNumbers, AListWithAFarMapOpensAtStartAndThroughOpen) {
    for (const QString& value : HugeValues) {
        const std::string far = "Far {\n0.5 0 0 0.5 " + value.toStdString() + " 0 0.5\n0.5 0 0 0.5 0 0 0.5\n}\n\n";
        dir.write("far.ifs", far + TwoMaps);
        open(dir.path("far.ifs"));
        QApplication::processEvents();
        EXPECT_EQ(listedFractals(), (std::vector<std::string>{"Far", "Two"})) << value.toStdString();
        host.fileNames.push_back(dir.path("far.ifs"));
        frame->runCommand("mnuOpen");
        QApplication::processEvents();
        EXPECT_EQ(listedFractals(), (std::vector<std::string>{"Far", "Two"})) << value.toStdString();
        frame.reset();
    }
}

}  // namespace
}  // namespace quillane::testing
