#include "cli/generate_command.h"

namespace quillane::cli {

const std::vector<GeneratorCli>& CliGenerators() {
    static const std::vector<GeneratorCli> generators{
        BoxGeneratorCli(),
        TriangleGeneratorCli(),
        SymmetricGeneratorCli(),
        SierpinskiGeneratorCli(),
        TilingGeneratorCli(),
        ComplexGeneratorCli(),
        BinaryTreeGeneratorCli(),
        PythagoreanGeneratorCli(),
        KochGeneratorCli(),
        LineGeneratorCli(),
    };
    return generators;
}

}  // namespace quillane::cli
