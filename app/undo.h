#pragma once
// One level of undo with redo. There is no stack: the caption of mnuUndo is the state. A change keeps
// OriginalMap (and ResultMap, SavedIFS, ClearedMap, the reflection's direction) and sets the caption;
// mnuUndo_Click matches the caption without regard to case, restores, and sets the opposite caption.
#include <functional>
#include <optional>
#include <string>

#include "core/host.h"
#include "core/table_editing.h"
#include "core/workbench.h"
#include "render/fractal_pictures.h"

namespace quillane {

inline constexpr const char* UndoResizeCaption = "&Undo Resize";
inline constexpr const char* UndoResizeCommandCaption = "&Undo resize";  // the Scale command's
inline constexpr const char* RedoResizeCaption = "&Redo Resize";
inline constexpr const char* UndoMoveCaption = "&Undo Move";
inline constexpr const char* RedoMoveCaption = "&Redo Move";
inline constexpr const char* UndoReflectionCaption = "&Undo Reflection";
inline constexpr const char* RedoReflectionCaption = "&Redo Reflection";
inline constexpr const char* UndoRotationCaption = "&Undo Rotation";
inline constexpr const char* RedoRotationCaption = "&Redo Rotation";
inline constexpr const char* UndoScaleCaption = "&Undo Scale";
inline constexpr const char* RedoScaleCaption = "&Redo Scale";
inline constexpr const char* UndoStretchShearCaption = "&Undo Stretch/Shear";
inline constexpr const char* RedoStretchShearCaption = "&Redo Stretch/Shear";
inline constexpr const char* UndoShearCaption = "&Undo Shear";
inline constexpr const char* RedoShearCaption = "&Redo Shear";
inline constexpr const char* UndoNewCaption = "&Undo New Transformation";
inline constexpr const char* RedoNewCaption = "&Redo New Transformation";
inline constexpr const char* UndoDuplicateCaption = "&Undo Duplicate";
inline constexpr const char* RedoDuplicateCaption = "&Redo Duplicate";
inline constexpr const char* UndoClearCaption = "&Undo Clear";
// Recognised by Undo, though no change sets them: a text entry keeps no result to put back, and a
// zoom is undone only once.
inline constexpr const char* RedoTextEntryCaption = "&redo text entry";
inline constexpr const char* RedoZoomCaption = "&redo zoom";

// The images of the main toolbar's undo button.
inline constexpr int UndoButtonImageUndo = 19;
inline constexpr int UndoButtonImageRedo = 18;

// What Undo needs from the design window, which owns these routines. The window sets them; an empty
// one is skipped. Redrawing is the caller's business after every command.
struct DesignHooks {
    std::function<void()> DesignScale;     // scale to fit
    std::function<void()> UndoDesignZoom;  // DesignWindow back from before the zoom, rescaled
    std::function<void()> ZoomDesignOut;   // DesignWinZoom(1)
};

// The caption the next change will be undone by, set while a gesture runs; undo stays as it is.
void SetUndoCaption(Workbench& wb, const std::string& caption);
// Undo enabled, with its tool button.
void OfferUndo(Workbench& wb);
// The end of a change: undo enabled, ChangeCount + 1, IFSModified, AddAsterickToName.
void CommitUndo(Workbench& wb);
// The end of a design command: the caption, the commit, then RecursionOff of the table.
void CommitCommand(Workbench& wb, const std::string& caption);
// Image of the undo button: 18 while the caption offers a redo, else 19.
int UndoButtonImage(const Workbench& wb);

// What the window does after mnuUndo_Click.
enum class UndoKind {
    None,       // no known caption, or a drawing runs
    Map,        // the selected map changed: table row rewritten, redraw with the selection
    TextEntry,  // the table box in `box` shows the restored text, selected
    Zoom,       // a window's view went back
    Functions,  // functions were added or removed: full redraw
};
struct UndoResult {
    UndoKind kind = UndoKind::None;
    std::optional<BoxAddress> box;
};

// The Undo command of IFS mode. The chaos game rows attach in undoChaosGame (undo.cpp).
UndoResult mnuUndo_Click(Workbench& wb, Host& host, FractalPictures& pics, const DesignHooks& hooks);

// Undo Clear. k = -1 from the menu; a function index from the generators, which also rotates the
// colours back. Refits both windows.
void UndoClear(Workbench& wb, Host& host, FractalPictures& pics, const DesignHooks& hooks, int k);

}  // namespace quillane
