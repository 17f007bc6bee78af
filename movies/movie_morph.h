#pragma once
// The model of the transformation movie: two IFS of the list, their forms tables and the maps of
// any frame between them, by averaged scalings and rotations, averaged matrices, or a rotation.
#include <array>
#include <vector>

#include "core/ifs_entry.h"
#include "render/draw_surface.h"

namespace quillane {

// Rows 1..6: scale r, scale s, angle theta, angle phi (degrees), e, f; columns are the maps.
using FormsTable = std::array<MapArray, 7>;

enum class MorphMethod { AverageMatrices = 0, AverageScalings = 1 };

struct MovieMorph {
    IFSEntry InitialIFS, FinalIFS;
    int MovieMaps = 0;
    FormsTable InitialForms{}, FinalForms{};
    IFSEntry FrameIFS;
    int nTransitions = 10;
    bool SameIFS = false;         // List1 and List2 at the same position: the rotation movie
    bool AnglesPositive = false;  // mnuOptionsAngles
    MorphMethod Method = MorphMethod::AverageScalings;
    int RotateMap = 0;  // cmbRotate's list index: maps count from 0 as in the IFS
    int RotDir = 1;     // 1 counterclockwise, -1 clockwise
    // The current initial figure: the triangle preset's three vertices when it is in use.
    bool TriangleFigure = false;
    std::array<WorldPoint, 3> Triangle{};
};

// Copies both IFS, pads the shorter with zero maps up to the larger count and fills the tables.
void InitialSetup(MovieMorph& m, const IFSEntry& initial, const IFSEntry& final, bool sameIFS);
// Fills one forms table from the coefficients of an IFS, by the angle rules.
void FillForms(FormsTable& forms, const IFSEntry& ifs, int maps, bool anglesPositive);
// Rebuilds both tables, as a toggle of mnuOptionsAngles does.
void RebuildForms(MovieMorph& m);
// t of a frame, from 0 at frame 1 to 1 at frame nTransitions + 1.
float FrameParameter(int frame, int nTransitions);
// FrameIFS for parameter t, by the path the settings choose.
void ComputeFrameIFS(MovieMorph& m, float t);
// The maps of frame `frame` (1 .. nTransitions + 1).
void ComputeFrame(MovieMorph& m, int frame);
// The centre map k turns about in the rotation movie.
WorldPoint RotationCentre(const MovieMorph& m, int k);

}  // namespace quillane
