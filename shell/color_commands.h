#pragma once
// The colour items of the Code menu and the gradient window.
namespace quillane {

class MainWindow;

void RegisterColorCommands(MainWindow& frame);
// Shows the state in the open colour windows.
void RefreshColorWindows(MainWindow& frame);

}  // namespace quillane
