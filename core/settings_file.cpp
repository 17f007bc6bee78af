#include "core/settings_file.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>

#include "core/numbers.h"
#include "core/recent_files.h"
#include "core/workbench.h"

namespace quillane {

namespace {

constexpr int ColorStealingFoldedWidth = 2130;
constexpr const char* ToolTipsKey = "mnuEditToolTips";

// The sections in file order; a stop is remembered as the section it happened in.
enum Section {
    IFSColors = 1,
    FunctionPosition,
    FractalPosition,
    DesignPosition,
    FractalBack,
    FractalAxis,
    TilingColorsSection,
    TilingOptionsPosition,
    PreviewPosition,
    HiddenWindows,
    ColorStealingPosition,
    DesignBack,
    DesignAxis,
    ToolTipsSection,
    RecentFilesSection,
    AllRead
};

const char* const Headings[] = {"",
                                "[IFS Colors]",
                                "[Function Window Position]",
                                "[Fractal Window Position]",
                                "[Design Window Position]",
                                "[Fractal Window Background Color]",
                                "[Fractal Window Axis Color]",
                                "[Fractal Tiling Colors]",
                                "[Tiling Options Window Position]",
                                "[Preview Window Position]",
                                "[Whether main windows are hidden]",
                                "[Color Stealing Window Position]",
                                "[Design Window Background Color]",
                                "[Design Window Axis Color]",
                                "[Show Tool Tips]",
                                "[Recent Files]"};

struct Stop {};  // reading ends here; the section reached says what keeps its defaults

class Reader {
  public:
    explicit Reader(std::istream& in) : in_(in) {}

    std::string line() {
        if (pending_) {
            std::string l = *pending_;
            pending_.reset();
            return l;
        }
        std::string l;
        if (!std::getline(in_, l)) throw Stop{};
        if (!l.empty() && l.back() == '\r') l.pop_back();
        return l;
    }
    void giveBack(std::string l) { pending_ = std::move(l); }
    void heading(Section s) {
        if (Trim(line()) != Headings[s]) throw Stop{};
    }
    // A number as Val reads it, rounded to a whole one; too large for the record is a failure.
    int32_t number() {
        const double v = std::nearbyint(Val(line()));
        if (!std::isfinite(v) || std::fabs(v) > 2147483647.0) throw Stop{};
        return static_cast<int32_t>(v);
    }
    int32_t notNegative() {
        const int32_t v = number();
        if (v < 0) throw Stop{};
        return v;
    }
    bool boolean() { return number() != 0; }
    std::string quoted() {
        const std::string l = Trim(line());
        if (l.size() >= 2 && l.front() == '"') {
            const size_t close = l.find('"', 1);
            return close == std::string::npos ? l.substr(1) : l.substr(1, close - 1);
        }
        return l;
    }
    WindowPlace place(bool withSize = true) {
        WindowPlace w;
        w.left = number();
        w.top = number();
        if (withSize) {
            w.width = number();
            w.height = number();
        }
        return w;
    }

  private:
    std::istream& in_;
    std::optional<std::string> pending_;
};

bool beyondWidth(const WindowPlace& w, const WindowPlace& frame) {
    return w.left > frame.left + frame.width;
}
bool beyondHeight(const WindowPlace& w, const WindowPlace& frame) {
    return w.top > frame.top + frame.height;
}

// Brings windows that a larger screen left out of reach back into the frame.
void correctPlaces(Workbench& wb, const WindowPlace& frame) {
    WindowPositions& p = wb.Windows;
    auto fix = [&wb](int& value, int replacement) {
        value = replacement;
        wb.SettingsChanged = true;
    };
    // A size no screen holds (a hand-edited file) would make windows the toolkit cannot allocate:
    // no window is kept larger than the frame, nor of a negative size.
    for (WindowPlace* w : {&p.functions, &p.fractal, &p.design, &p.preview, &p.colorStealing}) {
        if (w->width < 0 || w->width > frame.width) fix(w->width, std::clamp(w->width, 0, frame.width));
        if (w->height < 0 || w->height > frame.height) fix(w->height, std::clamp(w->height, 0, frame.height));
    }
    if (beyondWidth(p.functions, frame)) fix(p.functions.left, 0);
    if (beyondHeight(p.functions, frame)) fix(p.functions.top, 0);
    if (beyondWidth(p.fractal, frame))
        fix(p.fractal.left, (p.functions.width - p.fractal.width) + 800 + p.functions.left);
    if (beyondHeight(p.fractal, frame)) fix(p.fractal.top, 0);
    if (beyondWidth(p.design, frame)) fix(p.design.left, p.fractal.left);
    if (beyondHeight(p.design, frame))
        fix(p.design.top, (p.fractal.height - p.design.height) + 800 + p.fractal.top);
    if (beyondWidth(p.preview, frame)) fix(p.preview.left, frame.width);
    if (beyondHeight(p.preview, frame)) fix(p.preview.top, 0);
    if (beyondWidth(p.colorStealing, frame)) fix(p.colorStealing.left, 100);
    if (beyondHeight(p.colorStealing, frame)) fix(p.colorStealing.top, 100);
}

// Reads sections in order, noting in `reached` the one being read.
void readSections(Reader& r, Workbench& wb, Section& reached) {
    auto enter = [&r, &reached](Section s) {
        reached = s;
        r.heading(s);
    };
    enter(IFSColors);
    for (int i = 0; i < FunctionColorCount; ++i) {
        std::string l = r.line();
        if (!l.empty() && l[0] == '[') {
            for (int k = i; k < FunctionColorCount; ++k) {
                wb.FunctionColor[k] = wb.FunctionColorDefaults[k];
                wb.FileColors[k] = wb.FunctionColorDefaults[k];
            }
            wb.SettingsChanged = true;
            r.giveBack(l);
            break;
        }
        r.giveBack(l);
        const int32_t c = r.notNegative();
        wb.FunctionColor[i] = static_cast<Color>(c);
        wb.FileColors[i] = static_cast<Color>(c);
    }
    WindowPositions& p = wb.Windows;
    enter(FunctionPosition);
    p.functions = r.place();
    enter(FractalPosition);
    p.fractal = r.place();
    enter(DesignPosition);
    p.design = r.place();
    enter(FractalBack);
    wb.FractalBackColor = static_cast<Color>(r.notNegative());
    enter(FractalAxis);
    wb.FractalAxisColor = static_cast<Color>(r.notNegative());
    enter(TilingColorsSection);
    for (size_t k = 0; k < wb.TilingColor.size(); ++k) {
        wb.TilingColor[k] = static_cast<Color>(r.notNegative());
        wb.TilingFileColors[k] = wb.TilingColor[k];
    }
    enter(TilingOptionsPosition);
    p.tilingOptions = r.place(false);
    enter(PreviewPosition);
    p.preview = r.place();
    enter(HiddenWindows);
    for (bool& hidden : wb.MainWindowHidden) hidden = r.boolean();
    enter(ColorStealingPosition);
    p.colorStealing = r.place();
    enter(DesignBack);
    wb.DesignBackColor = static_cast<Color>(r.notNegative());
    enter(DesignAxis);
    wb.DesignAxisColor = static_cast<Color>(r.notNegative());
    enter(ToolTipsSection);
    wb.Menu.setChecked(ToolTipsKey, r.boolean());
    enter(RecentFilesSection);
    std::array<std::string, RecentFileSlots> paths;
    for (std::string& path : paths) path = r.quoted();
    // Free slots in the middle of a hand-edited list close up: the menu shows no gaps.
    ClearRecentFiles(wb);
    for (const std::string& path : paths) {
        if (path.empty()) continue;
        wb.RecentFiles[wb.RecentFileCount] = path;
        wb.Menu.setCaption(MRUKey(wb.RecentFileCount), RecentFileCaption(path));
        wb.Menu.setVisible(MRUKey(wb.RecentFileCount), true);
        ++wb.RecentFileCount;
    }
    reached = AllRead;
}

// The defaults of the sections from `from` on, for a stop in the later sections.
void defaultFrom(Section from, Workbench& wb, int frameWidth, bool& invalid) {
    const WindowPositions defaults = SetDefaultWindowPositions(frameWidth);
    if (from <= PreviewPosition) {
        wb.Windows.preview = defaults.preview;
        invalid = true;
    }
    if (from <= HiddenWindows) {
        wb.MainWindowHidden = {false, false, false};
        invalid = true;
    }
    if (from <= ColorStealingPosition) {
        wb.Windows.colorStealing = defaults.colorStealing;
        invalid = true;
    }
    if (from <= DesignAxis) {
        wb.DesignBackColor = White;
        wb.DesignAxisColor = Black;
        invalid = true;
    }
    if (from <= ToolTipsSection) {
        wb.Menu.setChecked(ToolTipsKey, true);
        invalid = true;
    }
    if (from <= RecentFilesSection) {
        ClearRecentFiles(wb);
        invalid = true;
    }
}

std::string boolText(bool b) {
    return b ? "-1" : "0";
}

void writePlace(std::ostringstream& out, const WindowPlace& w, bool withSize = true) {
    out << w.left << "\n" << w.top << "\n";
    if (withSize) out << w.width << "\n" << w.height << "\n";
}

}  // namespace

void DefaultSettings(Workbench& wb, int frameWidth) {
    wb.FunctionColor = wb.FunctionColorDefaults;
    wb.FileColors = wb.FunctionColorDefaults;
    wb.TilingColor = wb.TilingColorDefaults;
    wb.TilingFileColors = wb.TilingColorDefaults;
    wb.Windows = SetDefaultWindowPositions(frameWidth);
    wb.MainWindowHidden = {false, false, false};
    wb.FractalBackColor = White;
    wb.DesignBackColor = White;
    wb.FractalAxisColor = Black;
    wb.DesignAxisColor = Black;
    wb.Menu.setChecked(ToolTipsKey, true);
    ClearRecentFiles(wb);
}

SettingsReadResult ReadSettingsText(std::istream& in, Workbench& wb, const WindowPlace& frame) {
    SettingsReadResult result;
    result.SettingsRead = true;
    Reader r(in);
    Section reached = IFSColors;
    try {
        readSections(r, wb, reached);
    } catch (const Stop&) {
    }
    if (reached != AllRead) {
        bool invalid = false;
        if (reached >= PreviewPosition) defaultFrom(reached, wb, frame.width, invalid);
        if (!invalid) {
            // The failure came earlier: nothing read is trusted.
            DefaultSettings(wb, frame.width);
            invalid = true;
        }
        result.SettingsInvalid = invalid;
    }
    correctPlaces(wb, frame);
    return result;
}

SettingsReadResult ReadSettingsFile(const std::string& path, Workbench& wb, const WindowPlace& frame) {
    std::ifstream in(path, std::ios::binary);
    if (!in) {
        DefaultSettings(wb, frame.width);
        SettingsReadResult none;
        none.SettingsInvalid = true;
        return none;
    }
    return ReadSettingsText(in, wb, frame);
}

std::string SettingsText(const Workbench& wb) {
    std::ostringstream out;
    out << Headings[IFSColors] << "\n";
    for (int i = 0; i < FunctionColorCount; ++i) out << wb.FunctionColor[i] << "\n";
    const WindowPositions& p = wb.Windows;
    out << Headings[FunctionPosition] << "\n";
    writePlace(out, p.functions);
    out << Headings[FractalPosition] << "\n";
    writePlace(out, p.fractal);
    out << Headings[DesignPosition] << "\n";
    writePlace(out, p.design);
    out << Headings[FractalBack] << "\n" << wb.FractalBackColor << "\n";
    out << Headings[FractalAxis] << "\n" << wb.FractalAxisColor << "\n";
    out << Headings[TilingColorsSection] << "\n";
    for (Color c : wb.TilingColor) out << c << "\n";
    out << Headings[TilingOptionsPosition] << "\n";
    writePlace(out, p.tilingOptions, false);
    out << Headings[PreviewPosition] << "\n";
    writePlace(out, p.preview);
    out << Headings[HiddenWindows] << "\n";
    for (bool hidden : wb.MainWindowHidden) out << boolText(hidden) << "\n";
    out << Headings[ColorStealingPosition] << "\n";
    WindowPlace stealing = p.colorStealing;
    if (wb.ColorStealingTraceFolded) stealing.width += ColorStealingFoldedWidth;
    writePlace(out, stealing);
    out << Headings[DesignBack] << "\n" << wb.DesignBackColor << "\n";
    out << Headings[DesignAxis] << "\n" << wb.DesignAxisColor << "\n";
    out << Headings[ToolTipsSection] << "\n" << boolText(wb.menu(ToolTipsKey).checked) << "\n";
    out << Headings[RecentFilesSection] << "\n";
    for (int i = 0; i < RecentFileSlots; ++i)
        out << "\"" << (i < wb.RecentFileCount ? wb.RecentFiles[i] : std::string()) << "\"\n";
    return out.str();
}

bool WriteSettingsFile(const std::string& path, const Workbench& wb) {
    namespace fs = std::filesystem;
    const std::string text = SettingsText(wb);
    const fs::path target(path);
    const fs::path temporary = target.string() + ".new";
    std::error_code ec;
    if (target.has_parent_path()) fs::create_directories(target.parent_path(), ec);
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out) return false;
        out << text;
        out.flush();
        if (!out) {
            out.close();
            fs::remove(temporary, ec);
            return false;
        }
    }
    fs::rename(temporary, target, ec);
    if (ec) {
        fs::remove(temporary, ec);
        return false;
    }
    return true;
}

void TakeLiveWindows(Workbench& wb, const WindowPlace& functions, const WindowPlace& fractal,
                     const WindowPlace& design, const std::array<bool, 3>& hidden) {
    auto same = [](const WindowPlace& a, const WindowPlace& b) {
        return a.left == b.left && a.top == b.top && a.width == b.width && a.height == b.height;
    };
    WindowPositions& p = wb.Windows;
    if (!same(p.functions, functions) || !same(p.fractal, fractal) || !same(p.design, design) ||
        wb.MainWindowHidden != hidden)
        wb.SettingsChanged = true;
    p.functions = functions;
    p.fractal = fractal;
    p.design = design;
    wb.MainWindowHidden = hidden;
}

}  // namespace quillane
