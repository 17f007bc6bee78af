#include "app/code_commands.h"

#include <cmath>

#include "core/chaos_game.h"
#include "core/function_table.h"
#include "core/ifs_file_writer.h"
#include "core/numbers.h"
#include "core/menu_tree.h"
#include "core/palette_files.h"

namespace quillane {

void mnuMatrix_Click(Workbench& wb) {
    if (wb.menu(MatrixItem).checked) return;
    UseMatrixForm(wb);
}

void mnuRotation_Click(Workbench& wb) {
    if (wb.menu(RotationItem).checked) return;
    ShowFunctionForm(wb, RotationItem, 1);
}

void mnuCodeFP_Click(Workbench& wb) {
    if (wb.menu(FixedPointItem).checked) return;
    ShowFunctionForm(wb, FixedPointItem, 2);
}

void mnuCodeMatrixFormat_Click(Workbench& wb, Host& host) {
    if (wb.menu(MatrixFunctionItem).checked) return;
    if (wb.CurrentIFS.nMaps > MaxMatrixFunctionForm) {
        host.warn(MatrixFunctionFormTitle, MatrixFunctionFormRefused);
        return;
    }
    wb.MatrixFunctionForm = 1;
    ShowFunctionForm(wb, MatrixFunctionItem, 0);
}

void mnuCodeArrangeFP_Click(Workbench& wb) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int n = ifs.nMaps;
    ifs.FPx[0] = 0;
    ifs.FPy[0] = 0;
    if (n > 1) {
        ifs.FPx[1] = 1;
        ifs.FPy[1] = 0;
    }
    for (int i = 2; i < n; ++i) {
        const double turn = (i - 1) * 6.283185308 / n;
        ifs.FPx[i] = static_cast<float>(ifs.FPx[i - 1] + std::cos(turn));
        ifs.FPy[i] = static_cast<float>(ifs.FPy[i - 1] + std::sin(turn));
    }
    for (int i = 0; i < n; ++i) CGMatrix(wb, i);
    WriteTableRows(wb);
}

bool mnuCodeLoadPalette_Click(Workbench& wb, Host& host) {
    const std::optional<std::string> name = host.openFileName(PaletteFileRequest(OpenPaletteTitle));
    if (!name || name->empty()) return false;
    // A file that cannot be read whole leaves the colours as they were.
    const std::optional<std::string> text = ReadPaletteText(*name);
    if (!text) return false;
    const std::optional<FunctionColors> colors = ReadMapPalette(*text);
    if (!colors) return false;
    wb.FunctionColor = *colors;
    wb.SettingsChanged = true;
    return true;
}

bool mnuCodeSavePalette_Click(Workbench& wb, Host& host) {
    const std::optional<std::string> chosen = host.saveFileName(PaletteFileRequest(SavePaletteTitle));
    if (!chosen) return false;
    std::string name = Trim(*chosen);
    if (name.empty()) return false;
    if (name.size() < 4 || ToLower(name.substr(name.size() - 4)) != ".map") name += ".map";
    return WriteTextFileReplacing(name, MapPaletteText(wb.FunctionColor));
}

}  // namespace quillane
