#include "shell/generator_commands.h"

#include "app/binary_tree_drawing.h"
#include "app/generator_run.h"
#include "app/pythagorean_drawing.h"
#include "shell/binary_tree_window.h"
#include "shell/box_fractal_window.h"
#include "shell/complex_base_window.h"
#include "shell/generator_window.h"
#include "shell/main_window.h"
#include "shell/pythagorean_window.h"
#include "shell/koch_window.h"
#include "shell/line_fractal_window.h"
#include "shell/sierpinski_window.h"
#include "shell/symmetric_window.h"
#include "shell/tiling_settings_window.h"
#include "shell/tiling_window.h"
#include "shell/triangle_fractal_window.h"

namespace quillane {

void RegisterGeneratorCommands(MainWindow& frame) {
    RegisterGenerator(frame, LineFractalsExample, [](MainWindow& f) { return new LineFractalWindow(f); });
    RegisterGenerator(frame, BoxFractalsExample, [](MainWindow& f) { return new BoxFractalWindow(f); });
    RegisterGenerator(frame, TriangleFractalsExample,
                      [](MainWindow& f) { return new TriangleFractalWindow(f); });
    RegisterGenerator(frame, SierpinskiTrianglesExample,
                      [](MainWindow& f) { return new SierpinskiWindow(f); });
    RegisterGenerator(frame, ComplexBasesExample, [](MainWindow& f) { return new ComplexBaseWindow(f); });
    RegisterGenerator(frame, SymmetricFractalsExample, [](MainWindow& f) { return new SymmetricWindow(f); });
    RegisterGenerator(frame, TilingsExample, [](MainWindow& f) { return new TilingWindow(f); });
    RegisterTilingSettings(frame);
    auto trees = InstallBinaryTreeDrawing(frame.state().pics);
    InstallPythagoreanDrawing(frame.state().pics);
    RegisterGenerator(frame, BinaryTreesExample,
                      [trees](MainWindow& f) { return new BinaryTreeWindow(f, trees); });
    RegisterGenerator(frame, PythagoreanTreesExample, [](MainWindow& f) { return new PythagoreanWindow(f); });
    RegisterGenerator(frame, KochCurvesExample, [](MainWindow& f) { return new KochWindow(f); });
}

}  // namespace quillane
