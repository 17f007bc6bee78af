#include "shell/generator_commands_b.h"

#include "shell/symmetric_window.h"

namespace quillane {

void RegisterMoreGenerators(MainWindow& frame) {
    RegisterGenerator(frame, SymmetricFractalsExample, [](MainWindow& f) { return new SymmetricWindow(f); });
}

}  // namespace quillane
