#pragma once
// The frame's Code menu commands: the function forms and the probabilities.
namespace quillane {

class MainWindow;

void RegisterCodeCommands(MainWindow& frame);
// The Fractals menu, New IFS and the list's file commands.
void RegisterListAndFileCommands(MainWindow& frame);

}  // namespace quillane
