#pragma once
// The movie commands: the Fractal Movie Creator (morph and rotation movies), the deterministic movie
// and what they hand to the movie viewer. No windows here: the shell's faces call these.
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/app_state.h"
#include "core/host.h"
#include "movies/det_movie.h"
#include "movies/movie_morph.h"
#include "movies/movie_play.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr const char* MovieCreatorCaption = "Fractal Movie Creator";
inline constexpr const char* MovieViewerCaption = "Fractal Movie Viewer";
inline constexpr const char* DetMovieCaption = "Create Det Movie";
inline constexpr const char* AnimatedGifSizeCaption = "Create Fractal Movie";
inline constexpr const char* SaveDetMovieTitle = "Save as Animated GIF";
inline constexpr const char* SaveMovieTitle = "Save Movie as Animated GIF";
inline constexpr const char* OpenAnimatedTitle = "Open Animated GIF Movie";
inline constexpr const char* OpenMovieTitle = "Open Fractal Movie (Animated GIF)";
inline constexpr const char* SelectBothToPlay = "Please select the initial and final IFS.";
inline constexpr const char* SelectInitialToPlay = "Please select initial IFS.";
inline constexpr const char* SelectFinalToPlay = "Please select final IFS.";
inline constexpr const char* SelectBothToSave = "Select the initial and final IFS.";
inline constexpr const char* SelectInitialToSave = "Select initial IFS.";
inline constexpr const char* SelectFinalToSave = "Select final IFS.";
inline constexpr const char* SavingFramesMessage = "Saving Frames...";
inline constexpr const char* RenderingFramesMessage = "Rendering Frames...";
inline constexpr const char* CreatingGifMessage = "Creating animated gif...";
inline constexpr const char* SavingImagesFailed = "Saving movie images failed";

// "Fractal Movie Viewer [name]": the name of the file, without its folder.
std::string ViewerCaptionFor(const std::string& file);
// The deterministic movie's caption: the name without its last 4 characters.
std::string DetViewerCaptionFor(const std::string& file);
// The design movie beside the movie: the name without its extension and "-design.gif".
std::string DesignMovieName(const std::string& file);
// The file of one frame: base name, "-", the counter padded to the digits of the frame total, extension.
std::string FrameFileName(const std::string& base, int counter, int frames, const std::string& extension);

// frmAnimatedGifSize: what the person chose.
struct AnimatedGifChoices {
    std::string txtMovieSize = "400";
    std::string txtTime = "100";
    int optLoop = 0;  // 0 repeat indefinitely, 1 play txtLoop times
    std::string txtLoop = "1";
    bool chkMovieviewer = true;
    bool chkDesignMovie = false;
};

// frmCombinations' state apart from its widgets.
struct MovieCreator {
    MovieMorph morph;
    MoviePlayState play;
    int List1 = -1, List2 = -1;  // selected list positions, from 0; -1 none
    std::string txtSteps = "20";
    std::string txtIterations = "20000";
    std::string txtFrame;
    std::string lblMsg;
    int pgrMakeMovie = 0;
    WorldWindow FractalView, DesignView;
    WorldWindow FittedFractalView, FittedDesignView;  // as first fitted, for mnuViewRestore
    bool ActiveViewFractal = true;                    // the view in the green box
    bool Axes = false;                                // mnuOptionsAxes
    bool ShowDesigns = true;                          // mnuOptionsShowDesigns
    int SizeDim = 300;                                // picCanvas and picdesign side in pixels
    RasterSurface picCanvas, picdesign;
    bool MovieExists = false;
    // Called after each frame is drawn, so a window shows it before the next yield.
    std::function<void()> FrameShown;
};

// The names the two lists show: the entries of the fractal list.
std::vector<std::string> MovieListNames(const Workbench& wb);
// A click on List1 or List2: both selected runs InitialSetup, fits the views and draws frame 1.
void MovieListClick(MovieCreator& mc, AppState& s, Host& host);
// The message a play must give first, or empty.
std::string MoviePlayError(const MovieCreator& mc);
std::string MovieSaveError(const MovieCreator& mc);
// cmdplay and the keys: MakeMovie in the window. Ignored while a movie plays.
void PlayMovie(MovieCreator& mc, AppState& s, Host& host, MovieMode mode);
// Draws frame `frame` into picCanvas and, when shown, its design into picdesign.
void DrawMovieFrameInWindow(MovieCreator& mc, AppState& s, int frame);
// "Save Movie to Animated Gif...": the file asked for and written. The written file when the viewer
// should open it.
std::optional<std::string> CreateAnimatedGif(MovieCreator& mc, AppState& s, Host& host,
                                             const AnimatedGifChoices& c);
// mnuFileSaveFrame and mnuFileSaveAll.
void SaveMovieFrame(MovieCreator& mc, Host& host);
void SaveAllMovieFrames(MovieCreator& mc, AppState& s, Host& host);
// mnuFileSaveIFS: the frame's IFS becomes the working IFS "Untitled".
void SaveFrameIFS(MovieCreator& mc, AppState& s, Host& host);

// frmAnimDetGif: what the person chose.
struct DetMovieChoices {
    std::string txtTime = "100";
    int CmbIterations = 0;  // list position; the iteration count is this plus 1
    int optLoop = 0;
    std::string txtLoop = "1";
    bool chkViewer = true;
};
// cmdGo: the checks, the file dialog and the movie. The written file when the viewer should open it.
std::optional<std::string> DetMovieGo(AppState& s, Host& host, const DetMovieChoices& c);

}  // namespace quillane
