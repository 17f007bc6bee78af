#include "app/movie_view.h"

#include <algorithm>

#include "core/evaluator.h"
#include "movies/movie_frame.h"

namespace quillane {
namespace {

WorldWindow& activeView(MovieCreator& mc) {
    return mc.ActiveViewFractal ? mc.FractalView : mc.DesignView;
}

// The pictures take their views and the frame shown is drawn again.
void redraw(MovieCreator& mc, AppState& s) {
    ApplyMovieView(mc.picCanvas, mc.FractalView);
    ApplyMovieView(mc.picdesign, mc.DesignView);
    if (mc.MovieExists) DrawMovieFrameInWindow(mc, s, std::max(mc.play.CurrentFrame, 1));
}

WorldWindow scaledAboutMiddle(const WorldWindow& w, double factor) {
    const double cx = (static_cast<double>(w.xmin) + w.xmax) / 2,
                 cy = (static_cast<double>(w.ymin) + w.ymax) / 2;
    const double hx = (static_cast<double>(w.xmax) - w.xmin) / 2 * factor;
    const double hy = (static_cast<double>(w.ymax) - w.ymin) / 2 * factor;
    return {static_cast<float>(cx - hx), static_cast<float>(cx + hx), static_cast<float>(cy - hy),
            static_cast<float>(cy + hy)};
}

}  // namespace

std::array<int, 3> MovieSizeChoices(int screenHeight) {
    const auto size = [&](int divisor) {
        return std::clamp(screenHeight / divisor, MinMovieSize, MaxMovieSize);
    };
    return {size(5), size(3), size(2)};
}

std::string MovieSizeCaption(int index, int pixels) {
    static const char* const heads[] = {"Small (", "Medium (", "Large ("};
    return std::string(heads[std::clamp(index, 0, 2)]) + std::to_string(pixels) + " pixels)";
}

void SetActiveMovieView(MovieCreator& mc, bool fractal) {
    mc.ActiveViewFractal = fractal;
}

void mnuViewZoom_Click(MovieCreator& mc, AppState& s, int index) {
    if (!mc.MovieExists || !mc.play.MovieStopped) return;
    WorldWindow& v = activeView(mc);
    const WorldWindow next = scaledAboutMiddle(v, index == 0 ? 0.8 : 1.25);
    // A view too small or too large for single precision stays as it is.
    if (!(next.xmax > next.xmin && next.ymax > next.ymin) || std::abs(next.xmax - next.xmin) > 1e30f) return;
    v = next;
    redraw(mc, s);
}

void mnuShiftDir_Click(MovieCreator& mc, AppState& s, int dir) {
    if (!mc.MovieExists || !mc.play.MovieStopped || dir < 0 || dir > 3) return;
    WorldWindow& v = activeView(mc);
    const double dx = (static_cast<double>(v.xmax) - v.xmin) / 10,
                 dy = (static_cast<double>(v.ymax) - v.ymin) / 10;
    const double mx = dir == 0 ? -dx : dir == 1 ? dx : 0;
    const double my = dir == 2 ? dy : dir == 3 ? -dy : 0;
    v = {static_cast<float>(v.xmin + mx), static_cast<float>(v.xmax + mx), static_cast<float>(v.ymin + my),
         static_cast<float>(v.ymax + my)};
    redraw(mc, s);
}

void mnuViewRestore_Click(MovieCreator& mc, AppState& s) {
    if (!mc.MovieExists || !mc.play.MovieStopped) return;
    activeView(mc) = mc.ActiveViewFractal ? mc.FittedFractalView : mc.FittedDesignView;
    redraw(mc, s);
}

void mnuOptionsAxes_Click(MovieCreator& mc, AppState& s, bool on) {
    mc.Axes = on;
    if (mc.play.MovieStopped) redraw(mc, s);
}

std::optional<int> MovieSizeFromText(const std::string& text, Host& host) {
    const std::optional<float> v = EvaluateText(text);
    if (!v || !(*v >= MinMovieSize && *v <= MaxMovieSize)) {
        host.warn("Error", MovieSizeLimit);
        return std::nullopt;
    }
    return static_cast<int>(*v);
}

void SetMovieSize(MovieCreator& mc, AppState& s, int pixels) {
    if (!mc.play.MovieStopped) return;
    mc.SizeDim = std::clamp(pixels, MinMovieSize, MaxMovieSize);
    mc.picCanvas.resize(mc.SizeDim, mc.SizeDim);
    mc.picdesign.resize(mc.SizeDim, mc.SizeDim);
    ApplyMovieView(mc.picCanvas, mc.FractalView);
    ApplyMovieView(mc.picdesign, mc.DesignView);
    if (mc.MovieExists) DrawMovieFrameInWindow(mc, s, 1);
}

}  // namespace quillane
