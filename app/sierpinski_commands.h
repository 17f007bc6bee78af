#pragma once
// Sierpinski Triangles: three maps on the triangle ABC with the apex A where the person puts it and
// the free corners dividing the sides by three factors. Create IFS builds into CurrentIFS.
#include <array>
#include <string>

#include "app/app_state.h"
#include "core/host.h"
#include "generators/sierpinski_maps.h"
#include "generators/twisted_sierpinski.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr const char* SierpinskiCaption = "Sierpinski Triangles";
inline constexpr const char* SierpinskiFactorError = "Factors must be between 0 and 1";
inline constexpr const char* DefaultFactorText = "0.50000";
inline constexpr const char* DefaultAngleText = "60.000";

struct SierpinskiForm {
    TrianglePoint PointA{0.5f, 0.8660254f};
    std::array<std::string, 3> txtPara{DefaultFactorText, DefaultFactorText, DefaultFactorText};
    std::array<std::string, 3> txtAngle{DefaultAngleText, DefaultAngleText, DefaultAngleText};
    int method = 1;  // opt1, opt2, opt3
};

// cmdTriangle: A from the three angles, or a message titled "Error" and A unchanged.
bool SierpinskiTriangleFromAngles(SierpinskiForm& form, Host& host);
// A typed in: x and y must lie in the open unit interval above the base; false after the message.
bool CheckPointA(float x, float y, Host& host);
// cmdRandom: each factor Rnd * 0.6 + 0.2 in the format "0.00000".
void SierpinskiRandomFactors(SierpinskiForm& form, Workbench& wb);
// cmdPedal: the pedal triangle's factors, and method 2.
void SierpinskiPedalFactors(SierpinskiForm& form);
// The factors as numbers, or nothing after "Factors must be between 0 and 1".
std::optional<std::array<float, 3>> SierpinskiFactors(const SierpinskiForm& form, Host& host);
// cmdCreate: false when refused.
bool SierpinskiCreate(AppState& s, Host& host, const SierpinskiForm& form);

// The "Twisted Sierpinski Triangle" panel: the same triangle and factors, turned at each cut.
inline constexpr const char* TwistPanelCaption = "Twisted Sierpinski Triangle";
inline constexpr const char* TwistSliderCaption = "Amount of twist at each iteration";
struct TwistForm {
    TwistSettings settings;
    bool chkFilled = true;
    bool byCorner = false;  // optColor(1): a colour for each corner piece; optColor(0): picColor
    Color picColor = RGB(0, 0, 160);
};
inline constexpr std::array<Color, 3> TwistCornerColors{RGB(200, 0, 0), RGB(0, 150, 0), RGB(0, 0, 200)};
// cmdDraw: the twisted triangle on `canvas` (cleared, its scale kept); false after the factors' message.
bool SierpinskiTwistDraw(const SierpinskiForm& form, const TwistForm& twist, RasterSurface& canvas,
                         Host& host);

}  // namespace quillane
