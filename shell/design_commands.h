#pragma once
// The Design menu's commands of the design window's view and of the initial polygon.
namespace quillane {

class MainWindow;

void RegisterDesignCommands(MainWindow& frame);

}  // namespace quillane
