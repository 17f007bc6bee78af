#pragma once
// One frame of the transformation movie drawn by random iteration, and the view that holds both IFS.
#include <cstdint>
#include <vector>

#include "core/colors.h"
#include "core/ifs_entry.h"
#include "core/random.h"
#include "core/workbench.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr int MovieWarmUpPoints = 100;

// Clears the picture and plots `iterations` points of the frame's maps from (0, 0), the first 100
// unplotted, each in its map's colour. The probabilities are those of `probabilities` (the initial IFS).
void DrawMovieFrame(RasterSurface& picture, const IFSEntry& frame, const IFSEntry& probabilities, int maps,
                    int32_t iterations, const FunctionColors& colors, Random& rng);

// The estimated bounds of one IFS: the images of the figure's vertices under all maps, widened and
// rounded as the movie's view fitting does; points with a coordinate of 1000 or more are skipped.
WorldWindow MovieBounds(const IFSEntry& ifs, int maps, const std::vector<WorldPoint>& figure);
// A window made square about its centre, with a margin of 5% on all sides.
WorldWindow SquareWithMargin(const WorldWindow& w);
// The view of the whole movie: the union of both IFS's fitted views, squared again.
WorldWindow FitMovieView(const IFSEntry& initial, const IFSEntry& final, int maps,
                         const std::vector<WorldPoint>& figure);
// The fitted view of each IFS taken from points of its own attractor instead of a figure's vertices,
// for movies whose attractors reach far beyond the images of the figure.
WorldWindow FitMovieViewToAttractors(const IFSEntry& initial, const IFSEntry& final, int maps, Random& rng);
// Gives a picture the view: left xmin, top ymax, right xmax, bottom ymin.
void ApplyMovieView(RasterSurface& picture, const WorldWindow& view);

}  // namespace quillane
