#pragma once
// The texts of the function table's boxes. The table window shows these and writes what is typed
// back here; the logic reads and writes them as the window's boxes. Columns are numbered 1 to 9:
// 1 txta, 2 txtb, 3 txtC, 4 txtD, 5 txtE, 6 txtF, 7 txtProb, 8 txtFPx, 9 txtFPy; rows 0 to 99.
#include <array>
#include <string>

#include "core/ifs_entry.h"

namespace quillane {

inline constexpr int TableColumnCount = 9;

using ColumnTexts = std::array<std::string, MaxMaps>;

struct FunctionTableText {
    std::array<ColumnTexts, TableColumnCount + 1> Text;     // [column][row], column 0 unused
    std::array<ColumnTexts, TableColumnCount + 1> OldText;  // the last committed text of each box
    int LastMaps = 1;                                       // the last committed count of txtMaps
    bool Locked = false;                                    // LockFunctions: columns 1 to 6 read-only
    bool AllLocked = false;                                 // LockDesign: every box read-only

    std::string& text(int column, int row) { return Text[static_cast<size_t>(column)][static_cast<size_t>(row)]; }
    const std::string& text(int column, int row) const {
        return Text[static_cast<size_t>(column)][static_cast<size_t>(row)];
    }
    std::string& old(int column, int row) { return OldText[static_cast<size_t>(column)][static_cast<size_t>(row)]; }
};

}  // namespace quillane
