#include "shell/generator_commands_b.h"

#include "shell/sierpinski_window.h"
#include "shell/symmetric_window.h"

namespace quillane {

void RegisterMoreGenerators(MainWindow& frame) {
    RegisterGenerator(frame, SierpinskiTrianglesExample,
                      [](MainWindow& f) { return new SierpinskiWindow(f); });
    RegisterGenerator(frame, SymmetricFractalsExample, [](MainWindow& f) { return new SymmetricWindow(f); });
}

}  // namespace quillane
