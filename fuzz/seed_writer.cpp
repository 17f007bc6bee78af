// Writes a first corpus for the targets whose formats have no file in data/: what the program's own
// writers produce, so the seeds follow the formats as they change.
#include <filesystem>
#include <fstream>
#include <string>

#include "core/colors.h"
#include "core/gradient_colors.h"
#include "core/initial_polygons.h"
#include "core/palette_files.h"
#include "core/settings_file.h"
#include "core/workbench.h"

namespace {

void write(const std::filesystem::path& folder, const std::string& name, const std::string& text) {
    std::filesystem::create_directories(folder);
    std::ofstream(folder / name, std::ios::binary) << text;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace quillane;
    if (argc != 2) return 2;
    const std::filesystem::path corpus = argv[1];
    write(corpus / "map_fuzz", "defaults.map", MapPaletteText(FunctionColorDefaults()));
    write(corpus / "ifp_fuzz", "defaults.ifp", IfpPaletteText(FunctionColorDefaults()));
    write(corpus / "gradient_fuzz", "default.txt", GradientFileText(DefaultGradient()));
    for (int i = 0; i < BuiltInPolygonCount; ++i)
        write(corpus / "gon_fuzz", "polygon" + std::to_string(i) + ".gon",
              WritePolygonText(BuiltInPolygon(i)));
    Workbench wb;
    DefaultSettings(wb, 15000);
    write(corpus / "settings_fuzz", "defaults.ini", SettingsText(wb));
    const char* expressions[] = {"1/2", "-sqr(3)/2", "sin(30)+cos(60)*2^3", "1e308*10", "0/0", "((1+2)*3"};
    int n = 0;
    for (const char* e : expressions) write(corpus / "evaluator_fuzz", "e" + std::to_string(n++), e);
    return 0;
}
