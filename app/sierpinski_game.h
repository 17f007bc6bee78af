#pragma once
// frmSierpG, the Sierpinski Triangle Game: the puzzle, its figures, the moves and their messages,
// over a canvas of our own pixels. The Qt window only shows the canvas and the texts and forwards
// the buttons, menus and keys here.
#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "core/random.h"
#include "render/raster_surface.h"

namespace quillane {

inline constexpr const char* SierpinskiGameCaption = "Sierpinski Triangle Game";
inline constexpr int GameLevels = 5;
inline constexpr int RotationKinds = 3;
inline constexpr int LosingMoves = 25;
inline constexpr int DotSizeAtLoad = 5;
inline constexpr int SmallestDotSize = 2;

inline constexpr Color GameGray = 8421504;
inline constexpr Color GameRed = 255;
inline constexpr Color GameGreen = 65280;
inline constexpr Color GameBlue = 16711680;

inline constexpr const char* WonText = "You won!";
inline constexpr const char* LostText = "You lose!\r\nTry again.";
inline constexpr const char* TooLongText = "You hit the target...\r\nbut can you do it in";

struct GamePoint {
    int32_t x = 0, y = 0;
};

// A leaf of the figure: up to six vertices (x, y), as many as the figure of the variant has.
struct GamePiece {
    std::array<int32_t, 12> v{};
    int count = 0;
    GamePoint vertex(int i) const { return {v[2 * i], v[2 * i + 1]}; }
};

struct SierpinskiGame {
    int GameLevel = 0;     // 0..4: "Level 1" to "Level 5"
    int RotationKind = 0;  // 0 "None", 1 "One", 2 "Three"
    int DotSize = DotSizeAtLoad;
    std::array<GamePoint, 3> Corner{};
    std::array<GamePoint, 3> RotationCentre{};
    GamePoint Dot, PreviousDot, StartDot;
    std::vector<GamePiece> Pieces;
    std::array<int16_t, 3> TargetPiece{1, 1, 1};  // one per RotationKind, kept between games
    std::array<int16_t, 3> StartCorner{1, 1, 1};
    int Moves = -1;  // -1 until the first game
    int16_t Goal = 0;
    bool GameOver = false;
    std::string TxtMoves;
    std::string TxtDone;
    bool TxtDoneWon = false;  // the won text is shown large, bold and red
    std::string lblGoal, lblMoves, lbllevel = "Level: 1", lblRotation = "Rotations: None";
    bool UndoEnabled = false;

    RasterSurface picCanvas{120, 120};
    RasterSurface Shadow;  // the figure without the dot, for erasing it
    int ButtonHeight = 23;
    Random Rng;
};

// The menu captions, shortcuts after a tab, as the window sets them at load.
std::string GameLevelCaption(int index);
std::string RotationCaption(int index);
std::string RotationLabel(int kind);
inline constexpr const char* IncreaseDotSizeCaption = "Increase Dot Size\t  +";
inline constexpr const char* DecreaseDotSizeCaption = "Decrease Dot Size\t  -";

// Sizes the canvas: width at least 120; the game is then rebuilt (resize rule).
void ResizeGameCanvas(SierpinskiGame& g, int width, int height);

// A new game at the level in force; a new random puzzle when newPuzzle, else the same one.
void NewSierpinskiGame(SierpinskiGame& g, bool newPuzzle);

// cmdCorner(k), k 1..3.
void cmdCorner_Click(SierpinskiGame& g, int k);

// The same puzzle again with the moves of TxtMoves replayed: what undo, dot size and resize do.
void ReplayGame(SierpinskiGame& g);

void mnuGameAction_Click(SierpinskiGame& g, int index);
void mnuGameLevel_Click(SierpinskiGame& g, int index);
void mnuRotations_Click(SierpinskiGame& g, int index);
void mnuEditUndo_Click(SierpinskiGame& g);
void mnuEditDotSize_Click(SierpinskiGame& g, int index);

// The figure of a variant in a canvas of the given size: its leaves at the given level, the
// outline polygon, the corners and rotation centres.
struct GameFigure {
    std::vector<GamePiece> pieces;
    std::vector<GamePoint> outline;
    std::array<GamePoint, 3> corners{};
    std::array<GamePoint, 3> centres{};
};
GameFigure BuildGameFigure(int kind, int level, int width, int height, int buttonHeight);

// Where cmdCorner(k) sends a point in the variant.
void MoveGamePoint(const SierpinskiGame& g, int k, float x, float y, float& nx, float& ny);

}  // namespace quillane
