#include "shell/generator_commands.h"

#include "app/generator_run.h"
#include "shell/box_fractal_window.h"
#include "shell/generator_window.h"
#include "shell/triangle_fractal_window.h"

namespace quillane {

void RegisterGeneratorCommands(MainWindow& frame) {
    RegisterGenerator(frame, BoxFractalsExample, [](MainWindow& f) { return new BoxFractalWindow(f); });
    RegisterGenerator(frame, TriangleFractalsExample,
                      [](MainWindow& f) { return new TriangleFractalWindow(f); });
}

}  // namespace quillane
