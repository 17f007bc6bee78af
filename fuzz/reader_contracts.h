#pragma once
// What every reader of outside input promises for any bytes: it returns (a list, a value or
// nothing), and it leaves alone what it did not read whole. Each check feeds the bytes to one reader
// and names the promise it broke, or gives nullptr. The fuzz targets abort on a broken promise; the
// core tests replay kept findings and mangled files through the same checks.
#include <sstream>
#include <string>
#include <vector>

#include "core/evaluator.h"
#include "core/gradient_colors.h"
#include "core/ifs_entry.h"
#include "core/ifs_list_reading.h"
#include "core/initial_polygons.h"
#include "core/palette_files.h"
#include "core/sample_systems.h"
#include "core/settings_file.h"
#include "core/workbench.h"

namespace quillane::contracts {

// The .ifs (Chaos false) or .chg reader, into a list with a known entry in every slot, starting
// after entry `start` as Add and Open do.
inline const char* checkListRead(const std::string& text, bool chaos, int start) {
    ListReadOptions options;
    if (chaos) {
        options.rows = RowKind::Chaos;
        options.chaosEntries = true;
    }
    Workbench wb;
    for (size_t i = 1; i < wb.FractalList.size(); ++i) wb.FractalList[i] = SierpinskiTriangleIFS();
    const std::vector<IFSEntry> before = wb.FractalList;
    const ListReadResult r = ReadListText(wb, text, start, options);
    if (r.Loaded < 0 || r.Loaded > MaxFractals) return "the count of entries read is within the list";
    if (wb.FractalList.size() != before.size()) return "the list keeps its size";
    for (int i = 1; i < static_cast<int>(before.size()); ++i) {
        const IFSEntry& e = wb.FractalList[static_cast<size_t>(i)];
        if (i <= start || i > start + r.Loaded) {
            if (!(e == before[static_cast<size_t>(i)])) return "an entry not read whole is left as it was";
        } else {
            if (e.nMaps < 0 || e.nMaps > MaxMaps) return "an entry read holds at most 100 maps";
            if (e.nComments < 0 || e.nComments > MaxComments)
                return "an entry read holds at most 20 comments";
        }
    }
    return nullptr;
}

inline const char* checkPolygonRead(const std::string& text) {
    DesignPolygon polygon = BuiltInPolygon(2);
    const int16_t kind = polygon.Kind;
    ReadPolygonText(text, polygon);
    if (polygon.Kind != kind) return "the polygon keeps its kind";
    if (polygon.nPoints < 0 || polygon.nPoints > MaxPolygonPoints)
        return "a polygon holds at most 110 entries";
    return nullptr;
}

inline const char* checkPaletteRead(const std::string& text, bool ifp) {
    const auto colors = ifp ? ReadIfpPalette(text) : ReadMapPalette(text);
    if (colors)
        for (const Color c : *colors)
            if (c > 0xFFFFFFu) return "palette colours are 24-bit";
    return nullptr;
}

inline const char* checkGradientRead(const std::string& text) {
    const auto gradient = ReadGradientFile(text);
    if (gradient) GradientStrips(*gradient);  // what the window then draws from it
    return nullptr;
}

inline const char* checkSettingsRead(const std::string& text) {
    Workbench wb;
    std::istringstream in(text);
    ReadSettingsText(in, wb, WindowPlace{0, 0, 15000, 11000});
    if (wb.FractalList.size() != static_cast<size_t>(MaxFractals + 1))
        return "the settings leave the list alone";
    return nullptr;
}

inline const char* checkEvaluation(const std::string& text) {
    EvaluateText(text);
    return nullptr;
}

}  // namespace quillane::contracts
