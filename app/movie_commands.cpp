#include "app/movie_commands.h"

#include <algorithm>
#include <filesystem>

#include "app/design_view.h"
#include "core/function_forms.h"
#include "core/numbers.h"
#include "design/design_drawing.h"
#include "movies/animated_gif_writer.h"
#include "movies/morph_movie.h"
#include "movies/movie_frame.h"
#include "movies/movie_options.h"
#include "render/fractal_overlays.h"
#include "render/image_file.h"
#include "render/scale.h"

namespace quillane {
namespace {

namespace fs = std::filesystem;

FileDialogRequest gifRequest(const char* title, const char* key) {
    FileDialogRequest r;
    r.title = title;
    r.filters = {{AnimatedGifFilter, "*.gif"}};
    r.folderKey = key;
    return r;
}

// The vertices of the current initial figure, the unit square when there is none.
std::vector<WorldPoint> figureVertices(const Workbench& wb) {
    std::vector<WorldPoint> v;
    const DesignPolygon& p = wb.InitialPolygon;
    for (int i = 1; i <= p.nPoints && i <= MaxPolygonPoints; ++i)
        if (!p.isPenLift(i)) v.push_back({p.x[i], p.y[i]});
    if (v.empty()) v = {{0, 0}, {1, 0}, {1, 1}, {0, 1}};
    return v;
}

int movieTransitions(const MovieCreator& mc) {
    return std::clamp(CInt(Val(mc.txtSteps)), 1, 10000);
}

// The design of a frame: the images of the initial figure under its maps, in the map colours.
void drawFrameDesign(MovieCreator& mc, const Workbench& wb) {
    RasterSurface& d = mc.picdesign;
    d.clear();
    const std::vector<WorldPoint> fig = figureVertices(wb);
    const IFSEntry& f = mc.morph.FrameIFS;
    for (int i = 0; i < mc.morph.MovieMaps; ++i) {
        std::vector<WorldPoint> image;
        for (const WorldPoint& v : fig)
            image.push_back({f.a[i] * v.x + f.b[i] * v.y + f.e[i], f.c[i] * v.x + f.d[i] * v.y + f.f[i]});
        try {
            d.polygon(image, wb.FunctionColor[static_cast<size_t>(i) % wb.FunctionColor.size()], false);
        } catch (const SurfaceOverflow&) {
            // A map that throws the figure far out of view has nothing to show.
        }
    }
}

}  // namespace

std::string ViewerCaptionFor(const std::string& file) {
    return std::string(MovieViewerCaption) + " [" + fs::path(file).filename().string() + "]";
}

std::string DetViewerCaptionFor(const std::string& file) {
    const std::string name = fs::path(file).filename().string();
    return std::string(MovieViewerCaption) + " [" + name.substr(0, name.size() >= 4 ? name.size() - 4 : 0) +
           "]";
}

std::string DesignMovieName(const std::string& file) {
    const fs::path p(file);
    return (p.parent_path() / (p.stem().string() + "-design.gif")).string();
}

std::string FrameFileName(const std::string& base, int counter, int frames, const std::string& extension) {
    const std::string digits = std::to_string(std::max(frames, 1));
    std::string n = std::to_string(counter);
    if (n.size() < digits.size()) n.insert(0, digits.size() - n.size(), '0');
    return base + "-" + n + "." + extension;
}

std::vector<std::string> MovieListNames(const Workbench& wb) {
    std::vector<std::string> names;
    for (int n = 1; n <= wb.ListCount(); ++n)
        names.push_back(Trim(wb.FractalList[static_cast<size_t>(n)].Name));
    return names;
}

void DrawMovieFrameInWindow(MovieCreator& mc, AppState& s, int frame) {
    ComputeFrame(mc.morph, frame);
    DrawMovieFrame(mc.picCanvas, mc.morph.FrameIFS, mc.morph.InitialIFS, mc.morph.MovieMaps,
                   CLng(Val(mc.txtIterations)), s.wb.FunctionColor, s.wb.Rng);
    if (mc.ShowDesigns) drawFrameDesign(mc, s.wb);
    if (mc.Axes) {
        DrawFractalAxes(s.wb, mc.picCanvas);
        if (mc.ShowDesigns) DrawFractalAxes(s.wb, mc.picdesign);
    }
    mc.play.CurrentFrame = frame;
    mc.txtFrame = std::to_string(frame);
    if (mc.FrameShown) mc.FrameShown();
}

void MovieListClick(MovieCreator& mc, AppState& s, Host&) {
    const int count = s.wb.ListCount();
    if (mc.List1 < 0 || mc.List2 < 0 || mc.List1 >= count || mc.List2 >= count) return;
    mc.play.MovieStopped = true;
    const bool same = mc.List1 == mc.List2;
    InitialSetup(mc.morph, s.wb.FractalList[static_cast<size_t>(mc.List1 + 1)],
                 s.wb.FractalList[static_cast<size_t>(mc.List2 + 1)], same);
    const DesignPolygon& p = s.wb.InitialPolygon;
    mc.morph.TriangleFigure = p.Kind == 1 && p.nPoints >= 3;
    if (mc.morph.TriangleFigure)
        for (int k = 0; k < 3; ++k) mc.morph.Triangle[static_cast<size_t>(k)] = {p.x[k + 1], p.y[k + 1]};
    mc.morph.nTransitions = movieTransitions(mc);
    mc.FractalView =
        FitMovieView(mc.morph.InitialIFS, mc.morph.FinalIFS, mc.morph.MovieMaps, figureVertices(s.wb));
    mc.DesignView = mc.FractalView;
    mc.FittedFractalView = mc.FractalView;
    mc.FittedDesignView = mc.DesignView;
    mc.picCanvas.resize(mc.SizeDim, mc.SizeDim);
    mc.picdesign.resize(mc.SizeDim, mc.SizeDim);
    ApplyMovieView(mc.picCanvas, mc.FractalView);
    ApplyMovieView(mc.picdesign, mc.DesignView);
    mc.play.SingleStepTaken = false;
    mc.MovieExists = true;
    DrawMovieFrameInWindow(mc, s, 1);
}

std::string MoviePlayError(const MovieCreator& mc) {
    if (mc.List1 < 0 && mc.List2 < 0) return SelectBothToPlay;
    if (mc.List1 < 0) return SelectInitialToPlay;
    if (mc.List2 < 0) return SelectFinalToPlay;
    return {};
}

std::string MovieSaveError(const MovieCreator& mc) {
    if (mc.List1 < 0 && mc.List2 < 0) return SelectBothToSave;
    if (mc.List1 < 0) return SelectInitialToSave;
    if (mc.List2 < 0) return SelectFinalToSave;
    return {};
}

void PlayMovie(MovieCreator& mc, AppState& s, Host& host, MovieMode mode) {
    if (!mc.play.MovieStopped) return;
    if (const std::string e = MoviePlayError(mc); !e.empty()) {
        host.warn(MovieErrorTitle, e);
        return;
    }
    if (!mc.MovieExists) MovieListClick(mc, s, host);
    mc.morph.nTransitions = movieTransitions(mc);
    MakeMovie(mc.play, mc.morph.nTransitions, mode, host, [&](int frame, int) {
        DrawMovieFrameInWindow(mc, s, frame);
        return true;
    });
}

std::optional<std::string> CreateAnimatedGif(MovieCreator& mc, AppState& s, Host& host,
                                             const AnimatedGifChoices& c) {
    if (const std::string e = MovieSaveError(mc); !e.empty()) {
        host.warn(MovieErrorTitle, e);
        return std::nullopt;
    }
    if (const std::string e = CheckAnimatedGifSize(c.txtTime, c.txtMovieSize); !e.empty()) {
        host.warn(MovieErrorTitle, e);
        return std::nullopt;
    }
    const std::optional<std::string> file = host.saveFileName(gifRequest(SaveMovieTitle, "SaveMovie"));
    if (!file) return std::nullopt;
    if (!mc.MovieExists) MovieListClick(mc, s, host);
    mc.morph.nTransitions = movieTransitions(mc);
    MorphMovieOptions o;
    o.size = std::clamp(CInt(Val(c.txtMovieSize)), 51, 4000);
    o.iterations = CLng(Val(mc.txtIterations));
    o.frameTime = CInt(Val(c.txtTime));
    o.loop = c.optLoop == 0 ? 0 : std::max(CInt(Val(c.txtLoop)), 0);
    o.path = *file;
    o.colors = s.wb.FunctionColor;
    o.view = mc.FractalView;
    // The design movie goes page by page beside the movie, from the window's design picture.
    AnimatedGifWriter design;
    bool designWanted = c.chkDesignMovie;
    if (designWanted && !design.open(DesignMovieName(*file), o.loop, o.frameTime)) designWanted = false;
    mc.lblMsg = RenderingFramesMessage;
    std::string error;
    const MovieEnd end = WriteMorphMovie(mc.morph, mc.play, o, host, s.wb.Rng, error, nullptr,
                                         [&](int frame, const RasterSurface& picture) {
                                             mc.picCanvas.takeImage(picture);
                                             drawFrameDesign(mc, s.wb);
                                             mc.txtFrame = std::to_string(frame);
                                             return !designWanted || design.appendPage(mc.picdesign);
                                         });
    mc.lblMsg = CreatingGifMessage;
    if (end != MovieEnd::Finished) {
        design.abandon();
        mc.lblMsg.clear();
        if (end == MovieEnd::Failed) host.warn(MovieErrorTitle, SavingAnimatedGifFailed);
        return std::nullopt;
    }
    if (c.chkDesignMovie && (!designWanted || !design.close())) host.warn(MovieErrorTitle, DesignMovieFailed);
    mc.lblMsg.clear();
    if (!c.chkMovieviewer) return std::nullopt;
    return file;
}

void SaveMovieFrame(MovieCreator& mc, Host& host) {
    if (const std::string e = MovieSaveError(mc); !e.empty()) {
        host.warn(MovieErrorTitle, e);
        return;
    }
    FileDialogRequest r;
    r.filters = {
        {"Bitmap images (*.bmp)", "*.bmp"}, {"GIF images (*.gif)", "*.gif"}, {"PNG images (*.png)", "*.png"}};
    r.folderKey = "SaveMovieFrames";
    const auto file = host.saveFileName(r);
    if (!file) return;
    std::string error;
    if (!SaveImageFile(mc.picCanvas, *file, error)) host.warn(MovieErrorTitle, SavingImagesFailed);
}

void SaveAllMovieFrames(MovieCreator& mc, AppState& s, Host& host) {
    if (const std::string e = MovieSaveError(mc); !e.empty()) {
        host.warn(MovieErrorTitle, e);
        return;
    }
    int filter = 1;
    FileDialogRequest r;
    r.filters = {
        {"Bitmap images (*.bmp)", "*.bmp"}, {"GIF images (*.gif)", "*.gif"}, {"PNG images (*.png)", "*.png"}};
    r.folderKey = "SaveMovieFrames";
    r.chosenFilter = &filter;
    const auto file = host.saveFileName(r);
    if (!file) return;
    if (!mc.MovieExists) MovieListClick(mc, s, host);
    const char* extensions[] = {"bmp", "gif", "png"};
    const std::string ext = extensions[std::clamp(filter, 1, 3) - 1];
    const fs::path p(*file);
    const std::string base = (p.parent_path() / p.stem()).string();
    mc.morph.nTransitions = movieTransitions(mc);
    const int frames = mc.morph.nTransitions + 1;
    mc.lblMsg = SavingFramesMessage;
    const MovieEnd end =
        MakeMovie(mc.play, mc.morph.nTransitions, MovieMode::Forward, host, [&](int frame, int counter) {
            DrawMovieFrameInWindow(mc, s, frame);
            mc.pgrMakeMovie = 100 * frame / frames;
            std::string error;
            return SaveImageFile(mc.picCanvas, FrameFileName(base, counter, frames, ext), error);
        });
    mc.lblMsg.clear();
    mc.pgrMakeMovie = 0;
    if (end == MovieEnd::Failed) host.warn(MovieErrorTitle, SavingImagesFailed);
}

void SaveFrameIFS(MovieCreator& mc, AppState& s, Host& host) {
    if (!mc.MovieExists) return;
    IFSEntry ifs = mc.morph.FrameIFS;
    ifs.Name = "Untitled";
    ifs.nComments = 0;
    for (std::string& line : ifs.Comment) line.clear();
    s.wb.CurrentIFS = ifs;
    s.wb.FunctionsCaption = "IFS [Untitled]";
    SetUpFunctions(s.wb, host, ifs.nMaps);
    setscale(s.wb, host, true, &s.pics);
    DesignScale(s.wb, s.design);
    ++s.wb.ChangeCount;
    s.wb.IFSModified = true;
    AddAsterickToName(s.wb);
    DrawDesign(s.wb, s.design, false);
}

std::optional<std::string> DetMovieGo(AppState& s, Host& host, const DetMovieChoices& c) {
    if (const std::string e = CheckDetMovieTime(c.txtTime); !e.empty()) {
        host.warn(MovieErrorTitle, e);
        return std::nullopt;
    }
    const std::optional<std::string> file = host.saveFileName(gifRequest(SaveDetMovieTitle, "SaveDetMovie"));
    if (!file) return std::nullopt;
    const int loop = c.optLoop == 0 ? 0 : std::max(CInt(Val(c.txtLoop)), 0);
    const DetMovieResult r = WriteDeterministicMovie(
        s.wb, s.pics, host, std::clamp(c.CmbIterations, 0, 74) + 1, CInt(Val(c.txtTime)), loop, *file);
    if (!r.written) {
        host.warn(MovieErrorTitle, SavingAnimatedGifFailed);
        return std::nullopt;
    }
    if (!c.chkViewer) return std::nullopt;
    return file;
}

}  // namespace quillane
