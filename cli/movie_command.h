#pragma once
// quillane-cli movie and gif-info: the transformation and deterministic movies as animated GIFs, and
// the frame table of any GIF as the player reads it.
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillane::cli {

struct MovieOptions {
    // The morph: FILE[:N] twice; the same entry twice turns map --rotate through a full circle.
    std::string initialFile, finalFile;
    int initialEntry = 1, finalEntry = 1;
    int frames = 50;  // nTransitions + 1
    int points = 50000;
    int size = 400;
    int delay = 100;  // milliseconds a frame
    int loop = 0;     // 0 repeats indefinitely
    int method = 1;   // 1 scalings/rotations, 2 matrices, 3 scalings/rotations with all angles positive
    int rotate = 1;   // the map the rotation movie turns, from 1
    bool clockwise = false;
    bool cycle = false;
    std::optional<uint64_t> seed;
    // --deterministic FILE[:N]: one page for the figure and one per level.
    bool deterministic = false;
    int levels = 5;
    std::string figure = "polygon";
    std::string output;
};

// The options after "movie", or the reason they are bad usage.
std::optional<std::string> ParseMovieOptions(const std::vector<std::string>& args, MovieOptions& m);
int RunMovie(const MovieOptions& m);
int RunGifInfo(const std::string& file);

}  // namespace quillane::cli
