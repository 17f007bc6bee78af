#include "app/sierpinski_game.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <functional>
#include <string>

#include "core/numbers.h"

namespace quillane::testing {
namespace {

constexpr int CanvasWidth = 720;
constexpr int CanvasHeight = 700;

// A game with a pinned seed, a canvas of a fixed size, at the given variant and level.
struct Game {
    SierpinskiGame g;
    explicit Game(int kind = 0, int level = 0) {
        g.Rng.pin(7);
        ResizeGameCanvas(g, CanvasWidth, CanvasHeight);
        if (kind != 0) mnuRotations_Click(g, kind);
        if (level != 0) mnuGameLevel_Click(g, level);
    }
    // The same puzzle with the given target and start, as a restart would give it.
    void puzzle(int target, int start) {
        g.TargetPiece[static_cast<size_t>(g.RotationKind)] = static_cast<int16_t>(target);
        g.StartCorner[static_cast<size_t>(g.RotationKind)] = static_cast<int16_t>(start);
        NewSierpinskiGame(g, false);
    }
    void play(const std::string& corners) {
        for (char c : corners) cmdCorner_Click(g, c - '0');
    }
};

// A sequence of exactly `length` corner presses from the start that ends in red or green, found by
// following the game's own moves over the figure without the dot; "" when there is none.
std::string landingSequence(const SierpinskiGame& g, int length) {
    std::string found, path;
    std::function<void(GamePoint, int)> walk = [&](GamePoint p, int left) {
        for (int k = 1; k <= 3 && found.empty(); ++k) {
            float x = 0, y = 0;
            MoveGamePoint(g, k, static_cast<float>(p.x), static_cast<float>(p.y), x, y);
            path.push_back(static_cast<char>('0' + k));
            if (left == 1) {
                const Color c = g.Shadow.point(x, y);
                if (c == GameRed || c == GameGreen) found = path;
            } else {
                walk({CInt(x), CInt(y)}, left - 1);
            }
            path.pop_back();
        }
    };
    walk(g.Dot, length);
    return found;
}

GamePoint centreOf(const GamePiece& piece) {
    double x = 0, y = 0;
    for (int i = 0; i < piece.count; ++i) {
        x += piece.vertex(i).x;
        y += piece.vertex(i).y;
    }
    return {CInt(x / piece.count), CInt(y / piece.count)};
}

// Level 1 splits the figure once: three leaves, each reached in one move and entered in two more.
TEST(SierpinskiGame, LevelOneWithoutRotationsHasAGoalOfThreeAndThreeToTheLevelTargetPieces) {
    Game t;
    EXPECT_EQ(t.g.GameLevel, 0);
    EXPECT_EQ(t.g.Goal, 3);
    EXPECT_EQ(t.g.lblGoal, "Goal:  3");
    EXPECT_EQ(t.g.lblMoves, "Moves:  0");
    EXPECT_EQ(t.g.lbllevel, "Level: 1");
    EXPECT_EQ(t.g.lblRotation, "Rotations: None");
    ASSERT_EQ(t.g.Pieces.size(), 3u);
    for (const GamePiece& p : t.g.Pieces) EXPECT_EQ(p.count, 3);
    EXPECT_GE(t.g.TargetPiece[0], 1);
    EXPECT_LE(t.g.TargetPiece[0], 3);
    mnuGameLevel_Click(t.g, 1);
    EXPECT_EQ(t.g.Pieces.size(), 9u);
    EXPECT_EQ(t.g.Goal, 4);
}

TEST(SierpinskiGame, EveryLevelAndVariantHasThreeToTheLevelPlusOnePieces) {
    const int vertices[] = {3, 4, 6};
    for (int kind = 0; kind < RotationKinds; ++kind)
        for (int level = 0; level < GameLevels; ++level) {
            Game t(kind, level);
            EXPECT_EQ(t.g.Pieces.size(), static_cast<size_t>(std::lround(std::pow(3, level + 1))));
            EXPECT_EQ(t.g.Pieces.front().count, vertices[kind]);
            EXPECT_EQ(t.g.lbllevel, "Level:" + Str(static_cast<float>(level + 1)));
            EXPECT_EQ(t.g.Goal, level + (kind == 1 && t.g.StartCorner[1] >= 3 ? 2 : 3));
        }
}

TEST(SierpinskiGame, TheTargetIsRedTheOtherPiecesGrayAndTheDotBlueOnItsStartCorner) {
    Game t(0, 1);
    t.puzzle(5, 2);
    ASSERT_EQ(t.g.Pieces.size(), 9u);
    const GamePoint in = centreOf(t.g.Pieces[4]);
    EXPECT_EQ(t.g.picCanvas.point(in.x, in.y), GameRed);
    const GamePoint other = centreOf(t.g.Pieces[0]);
    EXPECT_EQ(t.g.picCanvas.point(other.x, other.y), GameGray);
    EXPECT_EQ(t.g.Dot.x, t.g.Corner[1].x);
    EXPECT_EQ(t.g.Dot.y, t.g.Corner[1].y);
    EXPECT_EQ(t.g.picCanvas.point(t.g.Dot.x, t.g.Dot.y), GameBlue);
    EXPECT_EQ(t.g.StartDot.x, t.g.Dot.x);
}

TEST(SierpinskiGame, RotationCentresAreGreenSquaresThatShrinkWithTheLevel) {
    Game one(1, 0);
    const GamePoint c = one.g.RotationCentre[2];
    EXPECT_EQ(one.g.Shadow.point(c.x + 6, c.y), GameGreen);  // half-size 7 at Level 1
    Game three(2, 4);
    for (const GamePoint& p : three.g.RotationCentre) {
        EXPECT_EQ(three.g.Shadow.point(p.x + 2, p.y - 2), GameGreen);  // half-size 3 at Level 5
        EXPECT_NE(three.g.Shadow.point(p.x + 5, p.y), GameGreen);
    }
    Game none(0, 0);
    EXPECT_NE(none.g.Shadow.point(none.g.RotationCentre[0].x + 1, none.g.RotationCentre[0].y), GameGreen);
}

TEST(SierpinskiGame, AMoveGoesHalfwayToTheCornerAndCountsInTheLabelsAndTheRecord) {
    Game t;
    t.puzzle(9, 1);
    const GamePoint from = t.g.Dot, to = t.g.Corner[2];
    cmdCorner_Click(t.g, 3);
    EXPECT_EQ(t.g.Dot.x, CInt((to.x + from.x) / 2.0f));
    EXPECT_EQ(t.g.Dot.y, CInt((to.y + from.y) / 2.0f));
    EXPECT_EQ(t.g.PreviousDot.x, from.x);
    EXPECT_EQ(t.g.Moves, 1);
    EXPECT_EQ(t.g.lblMoves, "Moves:  1");
    EXPECT_EQ(t.g.TxtMoves, " 3");
    // The old dot is gone: the start corner shows the figure again.
    EXPECT_NE(t.g.picCanvas.point(from.x + 1, from.y - 1), GameBlue);
    EXPECT_EQ(t.g.picCanvas.point(t.g.Dot.x, t.g.Dot.y), GameBlue);
    EXPECT_TRUE(t.g.UndoEnabled);
}

TEST(SierpinskiGame, TheRotationRuleTurnsTheHalfwayPointAHalfTurnAboutTheCentre) {
    Game t(2, 0);
    const GamePoint c = t.g.RotationCentre[0];
    float x = 0, y = 0;
    MoveGamePoint(t.g, 1, c.x + 40.0f, c.y + 20.0f, x, y);
    EXPECT_FLOAT_EQ(x, c.x - 20.0f);
    EXPECT_FLOAT_EQ(y, c.y - 10.0f);
    Game one(1, 0);
    MoveGamePoint(one.g, 1, 100, 100, x, y);  // corners 1 and 2 keep the halfway rule
    EXPECT_FLOAT_EQ(x, (one.g.Corner[0].x + 100.0f) / 2);
    const GamePoint c3 = one.g.RotationCentre[2];
    MoveGamePoint(one.g, 3, c3.x - 30.0f, c3.y + 8.0f, x, y);
    EXPECT_FLOAT_EQ(x, c3.x + 15.0f);
    EXPECT_FLOAT_EQ(y, c3.y - 4.0f);
}

TEST(SierpinskiGame, TheOneVariantStartingOnTheThirdCornerHasAGoalOneShorter) {
    Game t(1, 2);
    t.puzzle(1, 3);
    EXPECT_EQ(t.g.Goal, 4);
    t.puzzle(1, 2);
    EXPECT_EQ(t.g.Goal, 5);
}

TEST(SierpinskiGame, EveryPuzzleCanBeWonInExactlyTheGoal) {
    for (int kind = 0; kind < RotationKinds; ++kind)
        for (int level = 0; level < GameLevels; ++level) {
            Game t(kind, level);
            int lost = 0;
            for (int target = 1; target <= static_cast<int>(t.g.Pieces.size()); ++target)
                for (int start = 1; start <= 3; ++start) {
                    t.puzzle(target, start);
                    const std::string win = landingSequence(t.g, t.g.Goal);
                    if (win.empty()) {
                        ++lost;
                        std::printf("kind %d level %d target %d start %d\n", kind, level, target, start);
                        continue;
                    }
                    t.play(win);
                    ASSERT_EQ(t.g.TxtDone, WonText);
                }
            EXPECT_EQ(lost, 0) << "kind " << kind << " level " << level;
        }
}

TEST(SierpinskiGame, HittingTheTargetInTheGoalWinsAndEndsTheGame) {
    Game t(0, 0);
    t.puzzle(2, 1);
    const std::string win = landingSequence(t.g, t.g.Goal);
    ASSERT_EQ(win.size(), 3u);
    t.play(win);
    EXPECT_EQ(t.g.TxtDone, "You won!");
    EXPECT_TRUE(t.g.TxtDoneWon);
    EXPECT_TRUE(t.g.GameOver);
    cmdCorner_Click(t.g, 1);  // a finished game takes no more moves
    EXPECT_EQ(t.g.Moves, 3);
    EXPECT_EQ(t.g.TxtMoves.size(), 6u);
}

TEST(SierpinskiGame, HittingTheTargetLateAsksForFewerMoves) {
    Game t(0, 0);
    t.puzzle(2, 1);
    const std::string one = landingSequence(t.g, t.g.Goal + 1);
    ASSERT_FALSE(one.empty());
    t.play(one);
    EXPECT_EQ(t.g.TxtDone, "You hit the target...\r\nbut can you do it in 1 fewer move?");
    EXPECT_FALSE(t.g.GameOver);
    EXPECT_FALSE(t.g.TxtDoneWon);
    t.puzzle(2, 1);
    const std::string two = landingSequence(t.g, t.g.Goal + 2);
    ASSERT_FALSE(two.empty());
    t.play(two);
    EXPECT_EQ(t.g.TxtDone, "You hit the target...\r\nbut can you do it in 2 fewer moves?");
}

TEST(SierpinskiGame, LandingInTheTargetTooEarlyGivesNoMessageAndTheGameGoesOn) {
    // Level 5: a leaf is reached in five moves, two fewer than the goal.
    Game t(0, 4);
    bool tried = false;
    for (int target = 1; target <= 243 && !tried; ++target) {
        t.puzzle(target, 1);
        const std::string early = landingSequence(t.g, t.g.Goal - 1);
        if (early.empty()) continue;
        tried = true;
        t.play(early);
        float x = 0, y = 0;
        MoveGamePoint(t.g, early.back() - '0', t.g.PreviousDot.x, t.g.PreviousDot.y, x, y);
        EXPECT_EQ(t.g.Shadow.point(x, y), GameRed);
        EXPECT_EQ(t.g.TxtDone, "");
        EXPECT_FALSE(t.g.GameOver);
        cmdCorner_Click(t.g, 2);
        EXPECT_EQ(t.g.Moves, t.g.Goal);
    }
    EXPECT_TRUE(tried);
}

TEST(SierpinskiGame, TheTwentyFifthMoveLosesAndFurtherPressesRepeatItWhileCounting) {
    Game t(0, 0);
    t.puzzle(1, 3);
    // Pressing corner 3 from corner 3 never leaves it: no hit.
    t.play(std::string(24, '3'));
    EXPECT_EQ(t.g.TxtDone, "");
    cmdCorner_Click(t.g, 3);
    EXPECT_EQ(t.g.Moves, 25);
    EXPECT_EQ(t.g.TxtDone, "You lose!\r\nTry again.");
    const GamePoint dot = t.g.Dot;
    cmdCorner_Click(t.g, 1);
    cmdCorner_Click(t.g, 2);
    EXPECT_EQ(t.g.Moves, 27);
    EXPECT_EQ(t.g.lblMoves, "Moves:  27");
    EXPECT_EQ(t.g.TxtDone, "You lose!\r\nTry again.");
    EXPECT_EQ(t.g.Dot.x, dot.x);  // the lost game's dot stays
    EXPECT_EQ(t.g.TxtMoves.size(), 54u);
}

TEST(SierpinskiGame, UndoReplaysTheRecordWithoutItsLastMove) {
    Game t(2, 2);
    t.puzzle(7, 2);
    t.play("123");
    const std::vector<uint32_t> afterTwo = [&] {
        Game u(2, 2);
        u.puzzle(7, 2);
        u.play("12");
        return std::vector<uint32_t>(u.g.picCanvas.data(), u.g.picCanvas.data() + CanvasWidth * CanvasHeight);
    }();
    mnuEditUndo_Click(t.g);
    EXPECT_EQ(t.g.TxtMoves, " 1 2");
    EXPECT_EQ(t.g.Moves, 2);
    EXPECT_EQ(std::vector<uint32_t>(t.g.picCanvas.data(), t.g.picCanvas.data() + CanvasWidth * CanvasHeight),
              afterTwo);
    mnuEditUndo_Click(t.g);
    mnuEditUndo_Click(t.g);
    EXPECT_EQ(t.g.Moves, 0);
    EXPECT_FALSE(t.g.UndoEnabled);
    EXPECT_EQ(t.g.Dot.x, t.g.StartDot.x);
    mnuEditUndo_Click(t.g);  // nothing left to undo
    EXPECT_EQ(t.g.Moves, 0);
}

TEST(SierpinskiGame, UndoAfterAWinTakesTheGameBack) {
    Game t(0, 0);
    t.puzzle(2, 1);
    t.play(landingSequence(t.g, t.g.Goal));
    ASSERT_TRUE(t.g.GameOver);
    mnuEditUndo_Click(t.g);
    EXPECT_FALSE(t.g.GameOver);
    EXPECT_EQ(t.g.TxtDone, "");
    EXPECT_EQ(t.g.Moves, 2);
}

TEST(SierpinskiGame, AResizeReplaysTheMovesOfTheSamePuzzleInTheNewSize) {
    Game t(1, 1);
    t.puzzle(5, 1);
    t.play("1321");
    ResizeGameCanvas(t.g, 700, 600);
    EXPECT_EQ(t.g.TxtMoves, " 1 3 2 1");
    EXPECT_EQ(t.g.Moves, 4);
    EXPECT_EQ(t.g.TargetPiece[1], 5);
    SierpinskiGame fresh;
    fresh.RotationKind = 1;
    fresh.GameLevel = 1;
    fresh.TargetPiece[1] = 5;
    fresh.StartCorner[1] = 1;
    fresh.Moves = 0;
    fresh.picCanvas.resize(700, 600);
    NewSierpinskiGame(fresh, false);
    for (int k : {1, 3, 2, 1}) cmdCorner_Click(fresh, k);
    EXPECT_EQ(t.g.Dot.x, fresh.Dot.x);
    EXPECT_EQ(t.g.Dot.y, fresh.Dot.y);
}

TEST(SierpinskiGame, AResizeWithoutAGameStartsOneAndTheCanvasKeepsAWidthOfAtLeast120) {
    SierpinskiGame g;
    EXPECT_EQ(g.Moves, -1);
    ResizeGameCanvas(g, 10, 400);
    EXPECT_GE(g.picCanvas.width(), 120);
    EXPECT_EQ(g.Moves, 0);
    EXPECT_EQ(g.Pieces.size(), 3u);
}

TEST(SierpinskiGame, TheDotSizeStartsAtFiveAndNeverGoesBelowTwo) {
    Game t;
    EXPECT_EQ(t.g.DotSize, 5);
    t.puzzle(9, 1);
    t.play("2");
    mnuEditDotSize_Click(t.g, 0);
    EXPECT_EQ(t.g.DotSize, 6);
    EXPECT_EQ(t.g.TxtMoves, " 2");
    EXPECT_EQ(t.g.picCanvas.point(t.g.Dot.x + 5, t.g.Dot.y), GameBlue);
    for (int i = 0; i < 10; ++i) mnuEditDotSize_Click(t.g, 1);
    EXPECT_EQ(t.g.DotSize, 2);
    EXPECT_NE(t.g.picCanvas.point(t.g.Dot.x + 4, t.g.Dot.y), GameBlue);
    EXPECT_EQ(t.g.Moves, 1);
}

TEST(SierpinskiGame, TheSamePuzzleAgainKeepsTargetAndStartAndClearsTheMoves) {
    Game t(2, 3);
    const int16_t target = t.g.TargetPiece[2], start = t.g.StartCorner[2];
    t.play("12");
    mnuGameAction_Click(t.g, 1);
    EXPECT_EQ(t.g.Moves, 0);
    EXPECT_EQ(t.g.TxtMoves, "");
    EXPECT_EQ(t.g.TargetPiece[2], target);
    EXPECT_EQ(t.g.StartCorner[2], start);
    SierpinskiGame none;
    mnuGameAction_Click(none, 1);  // no game yet: nothing to repeat
    EXPECT_EQ(none.Moves, -1);
}

TEST(SierpinskiGame, EachVariantKeepsItsOwnPuzzle) {
    Game t(0, 0);
    t.puzzle(6, 2);
    mnuRotations_Click(t.g, 2);
    EXPECT_EQ(t.g.lblRotation, "Rotations: Three");
    EXPECT_EQ(t.g.TargetPiece[0], 6);
    EXPECT_EQ(t.g.StartCorner[0], 2);
    mnuRotations_Click(t.g, 1);
    EXPECT_EQ(t.g.lblRotation, "Rotations: One");
}

TEST(SierpinskiGame, MenuCaptionsCarryTheirShortcutsAfterATab) {
    EXPECT_EQ(GameLevelCaption(0), "Level 1\tCtrl+1");
    EXPECT_EQ(GameLevelCaption(4), "Level 5\tCtrl+5");
    EXPECT_EQ(RotationCaption(0), "None\tShift+1");
    EXPECT_EQ(RotationCaption(1), "One\tShift+2");
    EXPECT_EQ(RotationCaption(2), "Three\tShift+3");
    EXPECT_EQ(std::string(IncreaseDotSizeCaption), "Increase Dot Size\t  +");
}

TEST(SierpinskiGame, CornersOutOfRangeAndLevelsOutOfRangeAreIgnored) {
    Game t;
    cmdCorner_Click(t.g, 0);
    cmdCorner_Click(t.g, 4);
    EXPECT_EQ(t.g.Moves, 0);
    mnuGameLevel_Click(t.g, 5);
    mnuRotations_Click(t.g, -1);
    EXPECT_EQ(t.g.GameLevel, 0);
    EXPECT_EQ(t.g.RotationKind, 0);
}

}  // namespace
}  // namespace quillane::testing
