#pragma once
// The program-wide state, under the system's own names. There are no globals:
// each window, command and test works on one Workbench.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/colors.h"
#include "core/design_polygon.h"
#include "core/gradient_colors.h"
#include "core/ifs_entry.h"
#include "core/menu_state.h"
#include "core/random.h"
#include "core/table_text.h"
#include "core/window_positions.h"

namespace quillane {

struct WorldWindow {
    float xmin = 0, xmax = 0, ymin = 0, ymax = 0;
    bool operator==(const WorldWindow&) const = default;
};

inline constexpr int RecentFileSlots = 6;

class Workbench {
  public:
    Workbench();

    // The model.
    IFSEntry CurrentIFS;
    IFSEntry SavedIFS;
    std::vector<IFSEntry> FractalList;  // entries 1..30; slot 0 unused
    int16_t SelectedIFS = 0;
    int16_t SelectedMap = 0;
    bool MapSelected = false;
    bool CGMapSelected = false;
    bool IFSModified = false;
    int16_t ChangeCount = 0;
    bool ListModified = false;
    int16_t DesignMode = 0;          // 0 IFS, 1 chaos game
    int16_t CodeForm = 0;            // 0 matrix, 1 scale and rotation, 2 fixed point
    int16_t MatrixFunctionForm = 0;  // within CodeForm 0: 0 compact, 1 function form

    // Colours.
    FunctionColors FunctionColor{};
    FunctionColors FileColors{};
    FunctionColors FunctionColorDefaults{};
    TilingColors TilingColor{};
    TilingColors TilingFileColors{};
    TilingColors TilingColorDefaults{};
    Color FractalBackColor = White;
    Color DesignBackColor = White;
    Color FractalAxisColor = Black;
    Color DesignAxisColor = Black;

    // Drawing state that outlives a run.
    bool DrawingActive = false;
    bool DrawingStarted = false;
    bool RandomMode = true;
    int32_t PointCount = 0;
    float PlotX = 0, PlotY = 0;
    int32_t IterationNumber = 0;
    int16_t DetFigure = 0;
    std::array<bool, 4> RecursionOff{};
    // Koch curves: the window's "Use recursion", whether the initial figure lets the curve be drawn by
    // its recursion (the horizontal unit line in outline), and the ratio that limits the recursion.
    bool UseKochRecursion = false;
    bool KochRecursionAllowed = false;
    float KochRatio = 0;
    std::string FractalCaption = "Fractal (Random)";
    // The gradient of the gradient colour modes, and the visit counts of mode 6: 1000 x 1000 16-bit
    // counters, cell (i, j) at i + 1000 j, allocated on first use.
    GradientColors Gradient = DefaultGradient();
    std::vector<int16_t> HitCount;

    // Trace: a walk of the random iteration by hand, one map per key.
    bool TraceEnabled = false;
    bool TracePointSet = false;
    float TraceX = 0, TraceY = 0;        // the initial point
    float TraceCurX = 0, TraceCurY = 0;  // the walk's present point
    int16_t TraceDotSize = 2;            // the dot's radius in pixels
    bool TraceDigitPending = false;      // Shift and a first digit wait for the second
    int16_t TraceTensDigit = 0;
    float TraceColorX = 0, TraceColorY = 0;  // the colouring orbit a trace advances when colours are stolen
    bool KeyHandled = false;

    // Overlays of the fractal window.
    int16_t AxisThickness = 1;
    float GridSpacingX = 0.1f, GridSpacingY = 0.1f;

    // View.
    WorldWindow Window;  // the fractal window's WorldWindow
    float AttractorXMin = 0, AttractorXMax = 0, AttractorYMin = 0, AttractorYMax = 0;
    WorldWindow UndoWindow;
    int16_t ZoomUndoSource = 0;  // which window "&Undo Zoom" belongs to: 0 design, 1 fractal
    WorldWindow FitWindow;

    // Texts that logic reads and writes in windows: the function table, the frame, the fractal window.
    std::string FunctionsCaption = "IFS [Untitled]";  // frmfunctions caption
    std::string txtMaps = "1";
    std::array<std::string, 4> txtWin;  // ymax, ymin, xmin, xmax, "0.000"
    std::array<std::string, 4> txtDesign{"1.100", "-0.100", "-0.100",
                                         "1.100"};  // the design window, same order
    std::string lblProbSum = "1.000";
    std::string lblComment;  // the first comment line of CurrentIFS; the label is hidden while empty
    std::string FrameCaption = "Quillane";
    std::string FractalWindowCaption = "Fractal (Random)";
    // The five flags of the function table that remember a recursive generator drew the IFS.
    std::array<bool, 5> TableRecursionFlags{};
    // The boxes of the function table's rows.
    FunctionTableText Table;
    // a, b, c, d of the row whose box was entered last, as they stood then (EnterBox).
    int16_t EnteredRow = -1;
    std::array<float, 4> EnteredCoefficients{};
    // The undo stores: the selected map before a change (SaveOriginalIFS), and the box of a text entry.
    IFSFunction OriginalMap;
    bool GestureSaved = false;
    int16_t TextUndoField = 0;
    float TextUndoValue = 0;
    // The design window: its WorldWindow (mirrored by txtDesign) and captions.
    WorldWindow DesignWindow{-0.1f, 1.1f, -0.1f, 1.1f};
    std::string DesignCaption = "Design (IFS)";
    std::string ScaleCGCaption = "Chaos Game Design";  // frmScaleCG
    // The polygon every function is an image of, and the one the person drew or loaded.
    DesignPolygon InitialPolygon;
    DesignPolygon UserPolygon;
    // The design grid; equal unless the grid dialog separates them.
    float GridX = 0.1f, GridY = 0.1f;
    int16_t LineThickness = 0;  // 0, 2 or 4: twice the index of the checked mnuDesignLine item

    // Files and settings.
    std::string IFSFileName;  // the list's file, empty when none is loaded
    int SavePictureFilter = 1;  // the picture save dialog's last filter, kept until the program ends
    std::array<std::string, RecentFileSlots> RecentFiles;
    int RecentFileCount = 0;
    bool SettingsChanged = false;
    // Window places and switches the settings file keeps, as last read or written.
    WindowPositions Windows = SetDefaultWindowPositions(0);
    std::array<bool, 3> MainWindowHidden{};  // function table, fractal, design
    bool ColorStealingTraceFolded = false;  // its window then stands 2130 narrower than it is kept

    // Number of mnuNames items loaded: 4 for an empty list, 5 + n for n entries.
    int NamesItemCount = 4;
    int ListCount() const { return NamesItemCount >= 5 ? NamesItemCount - 5 : 0; }

    MenuTable Menu;
    const MenuItemState& menu(const std::string& key) const { return Menu(key); }

    Random Rng;

    // Design commands and undo: what a change keeps for its redo and undo besides OriginalMap.
    IFSFunction ResultMap;            // a..f of the selected map after the change
    int16_t ClearedMap = -1;          // the function Clear took out, for Undo Clear
    int16_t ReflectionDirection = 0;  // -1 horizontal, +1 vertical: the last reflection

    // The count of functions as the table's box says (how every drawing loop reads it).
    int mapsFromText() const;

    // Chaos game design. The paths start from one reference point; gestures and recipe changes keep
    // what undo needs here, and the commands refresh the "Chaos Game Moves" window through ScaleCG.
    struct RefPoint {
        float x = 0, y = 0;
        int16_t shown = 0;  // 16-bit flag, copied with the point as one block
        bool operator==(const RefPoint&) const = default;
    };
    struct CGPoint {
        float x = 0, y = 0;
        bool operator==(const CGPoint&) const = default;
    };
    RefPoint ReferencePoint, OldReferencePoint, NewReferencePoint;
    CGPoint OriginalFP, ResultFP;
    std::array<std::string, 5> OriginalSteps, ResultSteps;  // 1..4
    bool CGBusy = false;
    bool MoveRefPending = false;
    bool CGDragging = false;   // a fixed point follows the mouse
    bool FPMoved = false;      // and has moved during this drag
    bool CGKeyMoving = false;  // arrow keys move the selected fixed point; OriginalFP is kept
    struct ScaleCGControls {
        bool Loaded = false, Showing = false;
        int cmbFP = 0;
        std::array<bool, 5> chkStep{};          // 1..4: S, R, H, V
        std::array<std::string, 5> txtStep;    // 1..4
        int BoldStep = 0;                       // the box marked for a swap, 0 when none
        int sliScale = 0, sliRotate = 0;
        std::string txtS, txtRotate;
        bool ScaleEnabled = false, RotateEnabled = false;
        bool Changed = false;
        bool RotateFocus = false;
        // StatusFrmScaleCGControls: off while a chaos game is locked.
        bool ControlsEnabled = true;
    } ScaleCG;
    // LockDesign: the chaos game shown as an IFS cannot be edited; Undo is parked until unlocked.
    struct DesignLockState {
        bool Locked = false;
        bool UndoEnabled = false;
        std::string UndoCaption;
    } DesignLock;
};

// The save test of every command that replaces CurrentIFS.
bool NeedsSave(const Workbench& wb);
// Marks or unmarks the table caption with "*" after ChangeCount.
void AddAsterickToName(Workbench& wb);
// One counted edit of CurrentIFS: ChangeCount + 1, IFSModified, asterisk.
void CountEdit(Workbench& wb);
// The window boxes txtWin from the WorldWindow.
void WriteWindowText(Workbench& wb);

}  // namespace quillane
