// The three figures of the game and their leaves. Each split gives the images of the piece under
// the three maps of the variant, vertices in the same order, so the same split serves every depth.
#include <cmath>

#include "app/sierpinski_game.h"
#include "core/numbers.h"

namespace quillane {

namespace {

struct FPoint {
    float x = 0, y = 0;
};
using FPiece = std::vector<FPoint>;

std::array<FPiece, 3> splitTriangle(const FPiece& p) {
    const float x1 = p[0].x, y1 = p[0].y, x2 = p[1].x, y2 = p[1].y, x3 = p[2].x, y3 = p[2].y;
    const float fy = (y1 + y2) / 2;
    const float q1 = (3 * x1 + x3) / 4, mid = (x1 + x3) / 2, q3 = (3 * x3 + x1) / 4;
    // Each half-size triangle is listed left, top, right like its parent, so it splits the same way.
    return {FPiece{{x1, y1}, {q1, fy}, {mid, y1}}, FPiece{{mid, y1}, {q3, fy}, {x3, y3}},
            FPiece{{q1, fy}, {x2, y2}, {q3, fy}}};
}

std::array<FPiece, 3> splitQuadrilateral(const FPiece& p) {
    const float x1 = p[0].x, y1 = p[0].y, x2 = p[1].x, x3 = p[2].x, x4 = p[3].x, y4 = p[3].y;
    const float ym = (y1 + y4) / 2, m = (x1 + x2) / 2, l = (x1 + x4) / 2, r = (x2 + x3) / 2;
    const float a = (m + x4) / 2, b = (m + x3) / 2;
    return {FPiece{p[0], {m, y1}, {a, ym}, {l, ym}}, FPiece{{m, y1}, p[1], {r, ym}, {b, ym}},
            FPiece{p[2], p[3], {a, ym}, {b, ym}}};
}

std::array<FPiece, 3> splitHexagon(const FPiece& p) {
    const float x1 = p[0].x, y1 = p[0].y, x2 = p[1].x, x3 = p[2].x, y3 = p[2].y, x4 = p[3].x;
    const float x5 = p[4].x, y5 = p[4].y, x6 = p[5].x, y6 = p[5].y;
    const float A = x1 + (x2 - x1) / 4, B = x2 - (x2 - x1) / 4, C = (x1 + x2) / 2;
    const float D = x6 + (x5 - x6) / 4, E = D + (x2 - x1) / 2, F = x5 - (x5 - x6) / 4;
    const float G = x3 - (x5 - x6) / 4, Hh = G - (x2 - x1) / 2, I = x4 + (x5 - x6) / 4;
    const float ym = (y1 + y5) / 2, yq = y5 + (y6 - y5) / 4;
    return {FPiece{{E, ym}, {D, ym}, p[5], p[0], {A, y1}, {C, y3}},
            FPiece{{G, ym}, {Hh, ym}, {C, y3}, {B, y1}, p[1], p[2]},
            FPiece{p[3], p[4], {F, yq}, {E, ym}, {Hh, ym}, {I, yq}}};
}

std::array<FPiece, 3> split(int kind, const FPiece& p) {
    if (kind == 1) return splitQuadrilateral(p);
    if (kind == 2) return splitHexagon(p);
    return splitTriangle(p);
}

GamePoint rounded(FPoint p) {
    return {CInt(p.x), CInt(p.y)};
}

void addLeaves(int kind, const FPiece& piece, int depth, std::vector<GamePiece>& leaves) {
    if (depth == 0) {
        GamePiece leaf;
        leaf.count = static_cast<int>(piece.size());
        for (int i = 0; i < leaf.count; ++i) {
            const GamePoint v = rounded(piece[static_cast<size_t>(i)]);
            leaf.v[static_cast<size_t>(2 * i)] = v.x;
            leaf.v[static_cast<size_t>(2 * i + 1)] = v.y;
        }
        leaves.push_back(leaf);
        return;
    }
    for (const FPiece& child : split(kind, piece)) addLeaves(kind, child, depth - 1, leaves);
}

}  // namespace

GameFigure BuildGameFigure(int kind, int level, int width, int height, int buttonHeight) {
    const float M = static_cast<float>(buttonHeight + 30);
    const float W = static_cast<float>(width - buttonHeight - 30);
    const float H = static_cast<float>(height - buttonHeight - 30);
    FPiece whole;
    std::array<FPoint, 3> corners{}, centres{};
    if (kind == 1) {
        whole = {{M, H}, {W, H}, {(W - M) * 3 / 4 + M, M}, {(W - M) / 4 + M, M}};
        // The third map turns about a point inside the figure, the dot's third start.
        centres[2] = {(M + W) / 2, M + (H - M) / 3};
        corners = {whole[0], whole[1], centres[2]};
        centres[0] = corners[0];
        centres[1] = corners[1];
    } else if (kind == 2) {
        const float xa = (5 * M + W) / 6, xb = (5 * W + M) / 6, yt = H - (H - M) / 3;
        whole = {{xa, H}, {xb, H}, {W, yt}, {xb - (xb - xa) / 4, M}, {(xb - xa) / 4 + xa, M}, {M, yt}};
        // The third centre lies on the figure's axis, as high above the top as the others below it.
        centres = {FPoint{(xb - xa) / 4 + xa, yt}, FPoint{3 * (xb - xa) / 4 + xa, yt},
                   FPoint{(xa + xb) / 2, M + (H - M) / 3}};
        corners = {whole[5], whole[2], FPoint{(xa + xb) / 2, M}};
    } else {
        // The apex stands over the middle of the base, where the split's quarter points expect it,
        // so that the leaves are exactly where the halfway moves lead.
        whole = {{M, H}, {(M + W) / 2, M}, {W, H}};
        corners = {whole[0], whole[1], whole[2]};
        centres = corners;
    }
    GameFigure figure;
    for (const FPiece& piece : split(kind, whole)) addLeaves(kind, piece, level, figure.pieces);
    for (const FPoint& p : whole) figure.outline.push_back(rounded(p));
    for (size_t i = 0; i < 3; ++i) {
        figure.corners[i] = rounded(corners[i]);
        figure.centres[i] = rounded(centres[i]);
    }
    return figure;
}

void MoveGamePoint(const SierpinskiGame& g, int k, float x, float y, float& nx, float& ny) {
    const size_t i = static_cast<size_t>(k - 1);
    const bool rotate = g.RotationKind == 2 || (g.RotationKind == 1 && k == 3);
    if (!rotate) {
        nx = (static_cast<float>(g.Corner[i].x) + x) / 2;
        ny = (static_cast<float>(g.Corner[i].y) + y) / 2;
        return;
    }
    // Halfway to the centre, then a half turn about it.
    const float cx = static_cast<float>(g.RotationCentre[i].x);
    const float cy = static_cast<float>(g.RotationCentre[i].y);
    const float t = (cy + y) / 2;
    nx = cx - ((cx + x) / 2 - cx);
    ny = cy - (t - cy);
}

}  // namespace quillane
