#pragma once
// Design > Examples: the generator windows, one registration each.
namespace quillane {

class MainWindow;

void RegisterGeneratorCommands(MainWindow& frame);

}  // namespace quillane
