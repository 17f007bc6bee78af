#pragma once
// The generator windows of symmetric fractals, modified Sierpinski triangles and complex bases.
namespace quillane {

class MainWindow;

void RegisterMoreGenerators(MainWindow& frame);

}  // namespace quillane
