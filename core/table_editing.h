#pragma once
// Typing in the function table: which keys a box takes, Escape, fractions, the count box txtMaps,
// the window boxes txtWin and txtDesign, and the lock. The commands that also reach the undo menu
// or the fractal window's scale are in render/table_commands.h.
#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/host.h"
#include "core/workbench.h"

namespace quillane {

inline constexpr char KeyBackspace = 8;
inline constexpr char KeyEnter = 13;
inline constexpr char KeyEscape = 27;

inline constexpr const char* LockedSuffix = " LOCKED";
inline constexpr const char* MapsRangeTitle = "Error";
inline constexpr const char* MapsRangeMessage = "Enter a value between 1 and 100";
inline constexpr const char* InvalidNumberTitle = "Error";
inline constexpr const char* InvalidNumberMessage = "Invalid number";

// A key typed into one of the rows' boxes, with the box as it stands before the key.
struct BoxKeyContext {
    std::string_view text;
    int selStart = 0;   // start of the selection
    int selLength = 0;  // 0 when nothing is selected; a selection counts as replaced by the key
    int caret = 0;      // where the key goes when nothing is selected
    int column = 1;     // 1..9
    bool chaosGame = false;
};

enum class BoxKey {
    Refused,  // swallowed
    Passed,   // goes into the box as `key`
    Escape,   // call EscapeBox, caret to the end
    Enter,    // call HandleTextBoxChange; the key itself is swallowed
};
struct BoxKeyResult {
    BoxKey action = BoxKey::Refused;
    char key = 0;  // the character to insert: step letters come upper-cased
};

// The key rule of the rows' boxes. In chaos game mode columns 1 to 4 take one of the letters S, R, H, V
// (one letter a box), columns 5 and up take "-" anywhere and the rest by the number rule.
BoxKeyResult TableBoxKey(const BoxKeyContext& box, char key);

// The number rule: "0123456789-./" only; "-" only at the start and once; "." once on each side of
// "/"; "/" once and not at the start (only when `fractions`).
bool NumberKeyPasses(const BoxKeyContext& box, char key, bool fractions);
// txtWin and txtDesign: Backspace and the number rule without fractions.
bool WindowBoxKeyPasses(const BoxKeyContext& box, char key);
// txtMaps: digits and Backspace.
bool MapsKeyPasses(char key);

// Escape: the box gets back its last committed text.
void EscapeBox(Workbench& wb, int Column, int Row);

// The value of a box's text: with a "/" the left side over the right side, both through Val, where a
// right side of 0 counts as 1.
double FractionValue(std::string_view text);
// A text that Val reads back to the same 32-bit float as `value`.
std::string FullPrecisionText(double value);

// The display format of a committed number box in the form in use.
const char* BoxFormat(const Workbench& wb, int Column);

// Where Up and Down go from a row box. Down on the last row goes to the top of the next column, and
// from the last column back to the first.
struct BoxAddress {
    int column = 1;
    int row = 0;
    bool operator==(const BoxAddress&) const = default;
};
BoxAddress ArrowTarget(const Workbench& wb, int Column, int Row, bool down);

// Clears the flags that say the current IFS was drawn by a generator with recursive drawing.
void RecursionOff(Workbench& wb);

// Keeps the seven values of SelectedMap in OriginalMap and a..f in the ghost slot 100.
void SaveOriginalIFS(Workbench& wb);

// Columns 1 to 6 of all rows read-only or not; a locked table has " LOCKED" at the end of its caption.
void LockFunctions(Workbench& wb, bool Lock);
// Whether box `Column` of a row is read-only now.
bool BoxLocked(const Workbench& wb, int Column);

// What a commit of txtMaps, txtWin or txtDesign did.
enum class BoxCommit {
    Unchanged,
    Refused,  // a message was shown (or, on focus loss of txtMaps, a beep is due); the text reverted
    Changed,
};

// The four window boxes (ymax, ymin, xmin, xmax) as a window, or nothing when a text is not a number
// or a side would be empty.
std::optional<WorldWindow> WindowFromTexts(const std::array<std::string, 4>& texts);
// The four boxes of a window in "0.000".
std::array<std::string, 4> WindowTexts(const WorldWindow& w);

// Escape in txtWin(Index) or txtDesign(Index): the box shows its window's bound again.
void EscapeWinBox(Workbench& wb, int Index);
void EscapeDesignBox(Workbench& wb, int Index);


}  // namespace quillane
