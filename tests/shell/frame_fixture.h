#pragma once
// A frame on a scratch program folder, talking through a scripted host.
#include <gtest/gtest.h>

#include <memory>

#include "shell/main_window.h"
#include "tests/core/list_file_fixture.h"

namespace quillane::testing {

inline const std::string GoodBlock = "First {\n0.5 0 0 0.5 0 0 0.5\n0.5 0 0 0.5 0.5 0 0.5\n}\n\n";
inline const std::string OtherBlock = "Other {\n0.25 0 0 0.25 0 0 0.5\n0.25 0 0 0.25 0.5 0 0.5\n}\n";
inline const std::string DamagedBlock = "Second {\n0.5 0 0\n}\n";

class FrameTest : public ::testing::Test {
  protected:
    // Builds the frame, shows it and runs the start.
    MainWindow& open(const std::string& commandLine = "", const std::string& locale = "1.2",
                     const std::string& settings = "") {
        frame = std::make_unique<MainWindow>(host, FrameStart{commandLine, dir.path(""), locale, settings});
        frame->show();
        frame->start();
        return *frame;
    }
    Workbench& wb() { return frame->state().wb; }
    QAction* item(const std::string& key) {
        QAction* action = frame->menuAction(key);
        EXPECT_NE(action, nullptr) << key;
        return action;
    }
    // The captions of the list entries in the Fractals menu.
    std::vector<std::string> listedFractals() {
        std::vector<std::string> names;
        for (QAction* action : frame->menu("mnuFractals")->actions()) {
            const std::string key = action->objectName().toStdString();
            if (key.rfind("mnuNames(", 0) == 0 && std::stoi(key.substr(9)) >= 5)
                names.push_back(action->text().toStdString());
        }
        return names;
    }

    TempDir dir;
    ScriptedHost host;
    std::unique_ptr<MainWindow> frame;
};

}  // namespace quillane::testing
