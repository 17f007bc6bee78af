#pragma once
// The run every generator window shares. Design > Examples opens one generator at a time; it builds
// into CurrentIFS. Close keeps what it built; Cancel brings back what stood when it opened, unless
// the person stored the build in the fractal list meanwhile (KeepBuilt).
#include <array>

#include "app/undo.h"
#include "core/host.h"
#include "core/ifs_entry.h"
#include "core/workbench.h"
#include "design/design_pictures.h"
#include "render/fractal_pictures.h"

namespace quillane {

// mnuDesignExample(index), in the order of the Examples menu.
enum GeneratorIndex {
    LineFractalsExample,
    BoxFractalsExample,
    TriangleFractalsExample,
    SierpinskiTrianglesExample,
    KochCurvesExample,
    ComplexBasesExample,
    TilingsExample,
    BinaryTreesExample,
    PythagoreanTreesExample,
    SymmetricFractalsExample,
};
inline constexpr int GeneratorCount = 10;
// The mnuWin item that lists each generator's window while it is open.
inline constexpr std::array<int, GeneratorCount> GeneratorWindowItem{17, 4, 5, 12, 16, 8, 6, 9, 15, 21};

struct GeneratorRun {
    int Index = -1;          // the example that is open, -1 none
    bool SetupDone = false;  // an IFS was built since it opened (IFSBuilt of some windows)
    bool KeepBuilt = false;  // the build was stored in the fractal list: Cancel keeps it
    bool DrawTypeLocked = false;
    // What Cancel restores, taken when the generator opened.
    IFSEntry SavedIFS;
    DesignPolygon SavedPolygon;
    int SavedPolyItem = -1;  // the ticked mnupoly item, -1 none
    bool SavedModified = false;
    int16_t SavedChangeCount = 0;
    int16_t SavedDetFigure = 0;
    bool SavedRandomMode = true;
    int SavedColorItem = 0;  // which mnuDrawDetColorItems item was ticked
    bool SavedMapSelected = false;
    int16_t SavedSelectedMap = 0;
};

// mnuDesignExample(index): asks to save an unsaved IFS (Cancel stops: false), closes another open
// generator, disables every example item, takes what Cancel will restore and clears the recursion
// flags. LockDrawType disables both Draw type items while the generator is open.
bool mnuDesignExample_Click(Workbench& wb, GeneratorRun& run, Host& host, int index,
                            bool LockDrawType = false);
// Closes the open generator without restoring anything (another is about to open).
void ResetDesignExamples(Workbench& wb, GeneratorRun& run);
// The generator built an IFS into CurrentIFS.
void GeneratorBuilt(GeneratorRun& run);
// cmdClose and the close box: the IFS stays; the window's item is hidden and the examples enabled.
void GeneratorClose(Workbench& wb, GeneratorRun& run);
// cmdCancel: when an IFS was built and not kept, the IFS, its table, the initial figure and its item,
// the drawing type and the edit state come back as they were at the opening; then as Close.
void GeneratorCancel(Workbench& wb, GeneratorRun& run, Host& host, FractalPictures& pics,
                     DesignPictures& design);
// The Window menu item of the open generator is ticked alone (its window was activated).
void CheckGeneratorWindowItem(Workbench& wb, const GeneratorRun& run);
// Storing the working IFS into the list while a generator is open keeps the build.
void KeepGeneratorBuild(GeneratorRun& run);

}  // namespace quillane
