#include "shell/generator_commands.h"

#include "app/generator_run.h"
#include "shell/box_fractal_window.h"
#include "shell/generator_window.h"
#include "shell/line_fractal_window.h"
#include "shell/sierpinski_window.h"
#include "shell/symmetric_window.h"
#include "shell/triangle_fractal_window.h"

namespace quillane {

void RegisterGeneratorCommands(MainWindow& frame) {
    RegisterGenerator(frame, LineFractalsExample, [](MainWindow& f) { return new LineFractalWindow(f); });
    RegisterGenerator(frame, BoxFractalsExample, [](MainWindow& f) { return new BoxFractalWindow(f); });
    RegisterGenerator(frame, TriangleFractalsExample,
                      [](MainWindow& f) { return new TriangleFractalWindow(f); });
    RegisterGenerator(frame, SierpinskiTrianglesExample,
                      [](MainWindow& f) { return new SierpinskiWindow(f); });
    RegisterGenerator(frame, SymmetricFractalsExample, [](MainWindow& f) { return new SymmetricWindow(f); });
}

}  // namespace quillane
