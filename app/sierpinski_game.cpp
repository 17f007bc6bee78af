#include "app/sierpinski_game.h"

#include <algorithm>
#include <cmath>

#include "core/numbers.h"

namespace quillane {

namespace {

constexpr int LargestDotSize = 32767;  // a 16-bit radius

std::vector<WorldPoint> worldPoints(const GamePiece& piece) {
    std::vector<WorldPoint> points;
    for (int i = 0; i < piece.count; ++i) {
        const GamePoint p = piece.vertex(i);
        points.push_back({static_cast<double>(p.x), static_cast<double>(p.y)});
    }
    return points;
}

void drawDot(SierpinskiGame& g, float x, float y) {
    g.picCanvas.circle(x, y, g.DotSize, GameBlue, true);
}

// Puts the figure back where the dot was: the shadow holds the canvas without it.
void eraseDot(SierpinskiGame& g) {
    const int r = g.DotSize + 2;
    for (int row = g.Dot.y - r; row <= g.Dot.y + r; ++row)
        for (int column = g.Dot.x - r; column <= g.Dot.x + r; ++column)
            if (g.picCanvas.inside(column, row) && g.Shadow.inside(column, row))
                g.picCanvas.setPixel(column, row, g.Shadow.pixel(column, row));
}

void drawFigure(SierpinskiGame& g, const GameFigure& figure) {
    RasterSurface& c = g.picCanvas;
    c.setBackColor(White);
    c.clear();
    std::vector<WorldPoint> outline;
    for (const GamePoint& p : figure.outline) outline.push_back({double(p.x), double(p.y)});
    c.polygon(outline, GameGray, false);
    for (const GamePiece& piece : g.Pieces) c.polygon(worldPoints(piece), GameGray, true);
    const int target = g.TargetPiece[static_cast<size_t>(g.RotationKind)];
    if (target >= 1 && target <= static_cast<int>(g.Pieces.size())) {
        const std::vector<WorldPoint> leaf = worldPoints(g.Pieces[static_cast<size_t>(target - 1)]);
        c.polygon(leaf, GameRed, true);
        c.polygon(leaf, GameGray, false);
    }
    const int half = 7 - g.GameLevel;
    for (int k = 0; k < 3; ++k) {
        const bool turns = g.RotationKind == 2 || (g.RotationKind == 1 && k == 2);
        if (!turns) continue;
        const GamePoint p = g.RotationCentre[static_cast<size_t>(k)];
        c.box(p.x - half, p.y - half, p.x + half, p.y + half, GameGreen, true);
    }
}

void setMovesLabel(SierpinskiGame& g) {
    g.lblMoves = "Moves: " + Str(static_cast<float>(g.Moves));
}

}  // namespace

std::string GameLevelCaption(int index) {
    return "Level " + std::to_string(index + 1) + "\tCtrl+" + std::to_string(index + 1);
}

std::string RotationCaption(int index) {
    static const char* const names[] = {"None", "One", "Three"};
    return std::string(names[std::clamp(index, 0, 2)]) + "\tShift+" + std::to_string(index + 1);
}

std::string RotationLabel(int kind) {
    static const char* const names[] = {"Rotations: None", "Rotations: One", "Rotations: Three"};
    return names[std::clamp(kind, 0, 2)];
}

void ResizeGameCanvas(SierpinskiGame& g, int width, int height) {
    // Below this the figure would turn inside out around the buttons' margin.
    const int smallest = std::max(120, 2 * (g.ButtonHeight + 30) + 20);
    width = std::clamp(width, smallest, 16384);
    height = std::clamp(height, smallest, 16384);
    g.picCanvas.resize(width, height);
    if (g.Moves < 0)
        NewSierpinskiGame(g, true);
    else
        ReplayGame(g);
}

void NewSierpinskiGame(SierpinskiGame& g, bool newPuzzle) {
    const size_t kind = static_cast<size_t>(g.RotationKind);
    const int L = g.GameLevel;
    g.Moves = 0;
    g.Pieces.clear();
    g.Rng.Randomize();
    const int pieceCount = static_cast<int>(std::lround(std::pow(3.0, L + 1)));
    if (newPuzzle) {
        g.TargetPiece[kind] = static_cast<int16_t>(static_cast<int>(pieceCount * g.Rng.Rnd()) + 1);
        g.StartCorner[kind] = static_cast<int16_t>(static_cast<int>(3 * g.Rng.Rnd()) + 1);
    }
    const GameFigure figure =
        BuildGameFigure(g.RotationKind, L, g.picCanvas.width(), g.picCanvas.height(), g.ButtonHeight);
    g.Pieces = figure.pieces;
    g.Corner = figure.corners;
    g.RotationCentre = figure.centres;
    drawFigure(g, figure);
    g.Shadow.takeImage(g.picCanvas);
    const GamePoint start = g.Corner[static_cast<size_t>(std::clamp<int>(g.StartCorner[kind], 1, 3) - 1)];
    drawDot(g, static_cast<float>(start.x), static_cast<float>(start.y));
    g.Dot = g.StartDot = g.PreviousDot = start;
    g.Goal = static_cast<int16_t>(L + 3);
    if (g.RotationKind == 1 && g.StartCorner[kind] >= 3) g.Goal = static_cast<int16_t>(L + 2);
    g.lblGoal = "Goal: " + Str(g.Goal);
    setMovesLabel(g);
    g.TxtMoves.clear();
    g.TxtDone.clear();
    g.TxtDoneWon = false;
    g.GameOver = false;
    g.UndoEnabled = false;
}

void cmdCorner_Click(SierpinskiGame& g, int k) {
    if (g.GameOver || g.Moves < 0 || k < 1 || k > 3) return;
    g.TxtMoves += ' ';
    g.TxtMoves += static_cast<char>('0' + k);
    ++g.Moves;
    setMovesLabel(g);
    g.UndoEnabled = true;
    if (g.Moves >= LosingMoves) {
        g.TxtDone = LostText;
        g.TxtDoneWon = false;
        return;
    }
    g.PreviousDot = g.Dot;
    eraseDot(g);
    float x = 0, y = 0;
    MoveGamePoint(g, k, static_cast<float>(g.Dot.x), static_cast<float>(g.Dot.y), x, y);
    const Color c = g.picCanvas.point(x, y);
    if ((c == GameRed || c == GameGreen) && g.Moves >= g.Goal) {
        if (g.Moves == g.Goal) {
            g.TxtDone = WonText;
            g.TxtDoneWon = true;
            g.GameOver = true;
        } else {
            const int excess = g.Moves - g.Goal;
            g.TxtDone = std::string(TooLongText) + Str(static_cast<float>(excess)) +
                        (excess == 1 ? " fewer move?" : " fewer moves?");
            g.TxtDoneWon = false;
        }
    }
    drawDot(g, x, y);
    g.Dot = {CInt(x), CInt(y)};
}

void ReplayGame(SierpinskiGame& g) {
    if (g.Moves < 0) return;
    const std::string moves = g.TxtMoves;
    NewSierpinskiGame(g, false);
    for (size_t i = 1; i < moves.size(); i += 2) cmdCorner_Click(g, moves[i] - '0');
}

void mnuGameAction_Click(SierpinskiGame& g, int index) {
    if (index == 0) NewSierpinskiGame(g, true);
    if (index == 1 && g.Moves >= 0) NewSierpinskiGame(g, false);
}

void mnuGameLevel_Click(SierpinskiGame& g, int index) {
    if (index < 0 || index >= GameLevels) return;
    g.GameLevel = index;
    g.lbllevel = "Level:" + Str(static_cast<float>(index + 1));
    NewSierpinskiGame(g, true);
}

void mnuRotations_Click(SierpinskiGame& g, int index) {
    if (index < 0 || index >= RotationKinds) return;
    g.RotationKind = index;
    g.lblRotation = RotationLabel(index);
    NewSierpinskiGame(g, true);
}

void mnuEditUndo_Click(SierpinskiGame& g) {
    if (g.Moves <= 0 || g.TxtMoves.size() < 2) return;
    g.TxtMoves.resize(g.TxtMoves.size() - 2);
    ReplayGame(g);
}

void mnuEditDotSize_Click(SierpinskiGame& g, int index) {
    if (index == 0) g.DotSize = std::min(g.DotSize + 1, LargestDotSize);
    if (index == 1) g.DotSize = std::max(g.DotSize - 1, SmallestDotSize);
    ReplayGame(g);
}

}  // namespace quillane
