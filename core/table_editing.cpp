#include "core/table_editing.h"

#include <algorithm>

#include "core/numbers.h"

namespace quillane {

namespace {

bool isDigit(char ch) {
    return ch >= '0' && ch <= '9';
}

// The box text with the selection taken out, and where the key lands in it.
struct KeyPlace {
    std::string rest;
    size_t at = 0;
};

KeyPlace placeOf(const BoxKeyContext& box) {
    KeyPlace p;
    p.rest = std::string(box.text);
    const auto size = static_cast<int>(p.rest.size());
    if (box.selLength > 0) {
        const int start = std::clamp(box.selStart, 0, size);
        const int length = std::min(box.selLength, size - start);
        p.rest.erase(static_cast<size_t>(start), static_cast<size_t>(length));
        p.at = static_cast<size_t>(start);
    } else {
        p.at = static_cast<size_t>(std::clamp(box.caret, 0, size));
    }
    return p;
}

// No "." yet in the part of the number, before or after "/", that the key goes into.
bool pointFree(const KeyPlace& p) {
    const size_t slash = p.rest.find('/');
    size_t from = 0, to = p.rest.size();
    if (slash != std::string::npos) {
        if (p.at <= slash)
            to = slash;
        else
            from = slash + 1;
    }
    return p.rest.substr(from, to - from).find('.') == std::string::npos;
}

bool isStepLetter(char upper) {
    return upper == 'S' || upper == 'R' || upper == 'H' || upper == 'V';
}

BoxKeyResult stepLetter(const BoxKeyContext& box, char key) {
    const char upper = ToUpper(std::string(1, key))[0];
    // A step is one letter, so a box that holds one takes no second.
    if (!isStepLetter(upper) || !placeOf(box).rest.empty()) return {};
    return {BoxKey::Passed, upper};
}

// Reads a plain decimal number and nothing else: optional "-", digits with at most one ".".
std::optional<float> plainNumber(const std::string& text) {
    const std::string t = Trim(text);
    size_t i = (!t.empty() && t[0] == '-') ? 1 : 0;
    bool digit = false, point = false;
    for (; i < t.size(); ++i) {
        if (isDigit(t[i])) {
            digit = true;
        } else if (t[i] == '.' && !point) {
            point = true;
        } else {
            return std::nullopt;
        }
    }
    if (!digit) return std::nullopt;
    return static_cast<float>(Val(t));
}

}  // namespace

bool NumberKeyPasses(const BoxKeyContext& box, char key, bool fractions) {
    if (isDigit(key)) return true;
    const KeyPlace p = placeOf(box);
    switch (key) {
        case '-':
            return p.at == 0 && p.rest.find('-') == std::string::npos;
        case '.':
            return pointFree(p);
        case '/':
            return fractions && p.at > 0 && p.rest.find('/') == std::string::npos;
        default:
            return false;
    }
}

BoxKeyResult TableBoxKey(const BoxKeyContext& box, char key) {
    if (key == KeyEscape) return {BoxKey::Escape, key};
    if (key == KeyEnter) return {BoxKey::Enter, key};
    if (key == KeyBackspace) return {BoxKey::Passed, key};
    if (box.chaosGame && box.column <= 4) return stepLetter(box, key);
    if (box.chaosGame && key == '-') return {BoxKey::Passed, key};
    if (NumberKeyPasses(box, key, true)) return {BoxKey::Passed, key};
    return {};
}

bool WindowBoxKeyPasses(const BoxKeyContext& box, char key) {
    return key == KeyBackspace || NumberKeyPasses(box, key, false);
}

bool MapsKeyPasses(char key) {
    return key == KeyBackspace || isDigit(key);
}

void EscapeBox(Workbench& wb, int Column, int Row) {
    wb.Table.text(Column, Row) = wb.Table.old(Column, Row);
}

double FractionValue(std::string_view text) {
    const size_t slash = text.find('/');
    if (slash == std::string_view::npos) return Val(text);
    double right = Val(text.substr(slash + 1));
    if (right == 0) right = 1;
    return Val(text.substr(0, slash)) / right;
}

std::string FullPrecisionText(double value) {
    return Trim(StrD(value));
}

const char* BoxFormat(const Workbench& wb, int Column) {
    const bool angle =
        (wb.CodeForm == 1 && (Column == 3 || Column == 4)) || (wb.CodeForm == 2 && Column == 6);
    return angle ? "0.00" : "0.000";
}

BoxAddress ArrowTarget(const Workbench& wb, int Column, int Row, bool down) {
    const int rows = std::max<int>(wb.CurrentIFS.nMaps, 1);
    const int columns = wb.CodeForm == 2 ? 9 : 7;
    if (!down) return {Column, Row > 0 ? Row - 1 : Row};
    if (Row + 1 < rows) return {Column, Row + 1};
    return {Column < columns ? Column + 1 : 1, 0};
}

void RecursionOff(Workbench& wb) {
    wb.TableRecursionFlags.fill(false);
}

void SaveOriginalIFS(Workbench& wb) {
    IFSEntry& ifs = wb.CurrentIFS;
    const int i = wb.SelectedMap;
    wb.OriginalMap = ifs.function(i);
    constexpr int Ghost = MapSlots - 1;
    ifs.a[Ghost] = ifs.a[i];
    ifs.b[Ghost] = ifs.b[i];
    ifs.c[Ghost] = ifs.c[i];
    ifs.d[Ghost] = ifs.d[i];
    ifs.e[Ghost] = ifs.e[i];
    ifs.f[Ghost] = ifs.f[i];
    wb.GestureSaved = true;
}

void LockFunctions(Workbench& wb, bool Lock) {
    wb.Table.Locked = Lock;
    std::string& caption = wb.FunctionsCaption;
    const std::string suffix = LockedSuffix;
    const bool marked = caption.size() >= suffix.size() &&
                        caption.compare(caption.size() - suffix.size(), suffix.size(), suffix) == 0;
    if (Lock && !marked) caption += suffix;
    if (!Lock && marked) caption.erase(caption.size() - suffix.size());
}

bool BoxLocked(const Workbench& wb, int Column) {
    return (wb.Table.Locked && Column >= 1 && Column <= 6) || (wb.Table.AllLocked && Column >= 1);
}

std::optional<WorldWindow> WindowFromTexts(const std::array<std::string, 4>& texts) {
    std::array<float, 4> v{};
    for (size_t k = 0; k < 4; ++k) {
        const std::optional<float> x = plainNumber(texts[k]);
        if (!x) return std::nullopt;
        v[k] = *x;
    }
    const WorldWindow w{v[2], v[3], v[1], v[0]};
    if (!(w.xmin < w.xmax) || !(w.ymin < w.ymax)) return std::nullopt;
    return w;
}

std::array<std::string, 4> WindowTexts(const WorldWindow& w) {
    return {Format(w.ymax, "0.000"), Format(w.ymin, "0.000"), Format(w.xmin, "0.000"),
            Format(w.xmax, "0.000")};
}

void EscapeWinBox(Workbench& wb, int Index) {
    wb.txtWin[static_cast<size_t>(Index)] = WindowTexts(wb.Window)[static_cast<size_t>(Index)];
}

void EscapeDesignBox(Workbench& wb, int Index) {
    wb.txtDesign[static_cast<size_t>(Index)] = WindowTexts(wb.DesignWindow)[static_cast<size_t>(Index)];
}

}  // namespace quillane
