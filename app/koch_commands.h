#pragma once
// Koch Curves with n-gons: the window's boxes in a KochForm, the checks both Create IFS and the
// preview run, Create IFS into CurrentIFS, the preview in picCanvas and the slider's keys.
#include <optional>
#include <string>

#include "app/app_state.h"
#include "core/host.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr const char* KochCaption = "Koch Curves with n-gons";
inline constexpr const char* KochWindowItemCaption = "Koch Curves Design";
inline constexpr const char* KochHelpTopic = "KochCurves.html";
inline constexpr const char* KochCError = "Cannot evaluate expression for c.  ";
inline constexpr const char* KochTooFewEdges = "The number of edges must be at least 3";
inline constexpr const char* KochTooManyEdges = "The number of edges can be at most 60";
inline constexpr const char* KochEdgeTooLong = "The edge length must be less than 1";
inline constexpr const char* KochWarning =
    "Use design polygon (outline) for initial set, with design polygon being a horizontal line (default "
    "choices).";
inline constexpr const char* KochDefaultN = "4";
inline constexpr const char* KochDefaultC = "1/3";

struct KochForm {
    std::string txtN = KochDefaultN;
    std::string txtC = KochDefaultC;
    int sliC = 333;        // 0..1000, c times 1000
    int PreviewLevel = 1;  // optIter: 1, 2 or 3 levels
    bool chkRecursion = false;
};

// The box a refusal sends the focus back to.
enum class KochFocus { None, C, N };

struct KochValues {
    int n = 3;
    float c = 0;
};

// txtN as the window reads it: Val, rounded half to even into a 16-bit integer.
int KochEdges(const std::string& txtN);
// The check of Create IFS and the preview: c evaluated, then n; the message is shown in a box titled
// "Error" and the box to focus is returned.
std::optional<KochValues> CheckKochForm(const KochForm& form, Host& host, KochFocus* focus = nullptr);

// cmdCreate: the n + 1 maps into CurrentIFS with their name, comments and the horizontal unit line as
// initial set. Returns the box to focus when refused (nothing changed then), None when built.
KochFocus KochCreate(AppState& s, Host& host, const KochForm& form);

// The preview: the generator to PreviewLevel levels in picCanvas, in a fitted view unless `fit` is
// false (the slider's keys keep the view). False after a refusal; picCanvas is then left as it was.
bool KochPreview(const KochForm& form, Host& host, RasterSurface& picCanvas, bool fit = true);

// cmdAvoid: the self-avoiding edge length for the n of txtN into txtC and sliC. An n outside 3 to 60
// leaves c alone, for the preview's check to name.
void KochSelfAvoiding(KochForm& form);
// A slider move: c = value / 1000 into txtC.
void KochSliderMoved(KochForm& form, int value);
// cmdNinc and cmdNdec: n one up or down within 3 to 60; false when already at the end.
bool KochStepEdges(KochForm& form, int step);

// The keys sliC takes before the slider sees them; true when handled (the preview is then redrawn
// without fitting).
enum class KochSliderKey { PageDown, PageUp, Left, Right, Up, Down };
bool KochSliderKeyDown(KochForm& form, KochSliderKey key);

// chkRecursion clicked and activation: UseKochRecursion follows the box; ticked with a built IFS in
// Random mode switches the drawing to Deterministic.
void KochRecursionClicked(AppState& s, Host& host, const KochForm& form);
// The window activated: the Window menu item and UseKochRecursion from the box.
void KochActivated(AppState& s, const KochForm& form);
// cmdClose and cmdCancel: the recursion ends with the window.
void KochClose(AppState& s);

}  // namespace quillane
