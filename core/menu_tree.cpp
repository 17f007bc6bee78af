#include "core/menu_tree.h"

#include <cstddef>
#include <initializer_list>
#include <utility>

namespace quillane {

std::string MenuNode::key() const {
    return index < 0 ? name : MenuTable::key(name, index);
}

namespace {

using Nodes = std::vector<MenuNode>;

enum Flags : unsigned { None = 0, Sep = 1, Check = 2, Radio = 4 | Check, Hidden = 8 };

MenuNode Item(std::string name, std::string caption, std::string shortcut = {}, unsigned flags = None) {
    MenuNode node;
    node.name = std::move(name);
    node.caption = std::move(caption);
    node.shortcut = std::move(shortcut);
    node.separatorBefore = (flags & Sep) != 0;
    node.checkable = (flags & Check) != 0;
    node.radio = (flags & Radio) == Radio;
    node.visible = (flags & Hidden) == 0;
    return node;
}

MenuNode Sub(std::string name, std::string caption, Nodes children, unsigned flags = None) {
    MenuNode node = Item(std::move(name), std::move(caption), {}, flags);
    node.children = std::move(children);
    return node;
}

// An array of items under one name; a separator flag applies to the first item only.
Nodes Items(const std::string& name, std::initializer_list<const char*> captions, unsigned flags = None,
            int first = 0) {
    Nodes nodes;
    for (const char* caption : captions) {
        nodes.push_back(Item(name, caption, {}, nodes.empty() ? flags : flags & ~Sep));
        nodes.back().index = first + static_cast<int>(nodes.size()) - 1;
    }
    return nodes;
}

Nodes Flat(std::initializer_list<Nodes> parts) {
    Nodes all;
    for (const Nodes& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

MenuNode FileMenu() {
    Nodes recent = Items("mnuMRU", {"", "", "", "", "", ""}, Hidden);
    recent.push_back(Item("mnuFileClearMRU", "&Clear List"));
    return Sub("mnuFile", "&File",
               {
                   Sub("mnuNew", "&New",
                       {
                           Item("mnuNewIFS", "&IFS", "F5"),
                           Item("mnuNewChaosGame", "&Chaos Game", "F6"),
                           Item("mnuNewSTG", "&Sierpinski Triangle Game", "F9"),
                           Item("mnuFileNewMovie", "&Fractal Tranformation Movie", "F11"),
                           Item("mnuFileSaveAnimGif", "&Deterministic Fractal Movie", "F12"),
                       }),
                   Item("mnuOpen", "&Open IFS File...", "Ctrl+O", Sep),
                   Item("mnuFileAppend", "Appen&d IFS File..."),
                   Item("mnuFileOpenMovie", "Open Fractal &Movie..."),
                   Sub("mnuRecent", "Open &Recent", recent),
                   Item("mnuSaveIFS", "&Save IFS Fractals List", {}, Sep),
                   Item("mnuSaveIFSas", "Save IFS Fractals List &As..."),
                   Item("mnuSaveCurrent", "Save &Current IFS to File..."),
                   Item("mnuSaveFractal", "Save &Fractal Picture", {}, Sep),
                   Item("mnuFileSaveDesign", "Save &Design Picture"),
                   Item("mnuFileSavePolygon", "Save &Initial Polygon"),
                   Item("mnuFilePrint", "&Print...", {}, Sep),
                   Item("mnuExit", "&Exit", {}, Sep),
               });
}

MenuNode EditMenu() {
    return Sub("mnuEdit", "&Edit",
               {
                   Item("mnuUndo", "&Undo", "Ctrl+Z"),
                   Item("mnuEditCopy", "&Copy", "Ctrl+C", Sep),
                   Item("mnuEditPaste", "&Paste", "Ctrl+V"),
                   Item("mnuEditPasteBackground", "Paste Fractal &Background", "Ctrl+B"),
                   Item("mnuEditToolTips", "&Show Tool Tips", {}, Sep | Check),
               });
}

MenuNode CodeMenu() {
    Nodes colorScheme = Flat({
        Items("mnuColors", {"Use IFS Colors", "Use Gradient Colors", "Use Color Stealing"}, Radio),
        {
            Item("mnuSameColor", "Set IFS Colors to Function 1", {}, Sep),
            Item("mnuColorsGradient", "Gradient Color Options"),
            Item("mnuCodeColorStealingOptions", "Color Stealing Options"),
            Item("mnuDefaultColors", "Restore IFS Default Colors"),
            Item("mnuCodeEditPalette", "Edit IFS Palette", {}, Sep),
            Item("mnuCodeSavePalette", "Save IFS Palette"),
            Item("mnuCodeLoadPalette", "Load IFS Palette"),
        },
    });
    return Sub("mnuCode", "&Code",
               {
                   Item("mnuMatrix", "Matrix &Compact Form", {}, Radio),
                   Item("mnuCodeMatrixFormat", "&Matrix Function Form", {}, Radio),
                   Item("mnuRotation", "Scale/&Rotation Form", {}, Radio),
                   Item("mnuCodeFP", "&Fixed Point Form", {}, Radio),
                   Item("mnuProb", "&Equal Probabilities", {}, Sep),
                   Item("mnuProbCalc", "&Proportional Probabilities"),
                   Sub("mnuColorChoice", "&IFS Color Scheme", colorScheme, Sep),
                   Item("mnuCodeArrangeFP", "Arrange Fi&xed Points", {}, Sep),
                   Item("mnuCodeComment", "&Add/Edit Comment"),
                   Item("mnuCodeRename", "Re&name IFS"),
               });
}

MenuNode DesignMenu() {
    Nodes examples =
        Items("mnuDesignExample", {"&Line Fractals", "&Box Fractals", "&Triangle Fractals",
                                   "&Sierpinski Triangles", "&Koch Curves with n-gons",
                                   "&Fractals derived from Complex Bases", "&Tilings with Integer Matrices",
                                   "&Symmetric Binary Trees", "&Pythagorean Trees", "&Symmetric Fractals"});
    Nodes polygons = Items(
        "mnupoly",
        {"Oriented Unit Square", "Oriented Equilateral Triangle", "Oriented Horizontal Unit Line",
         "Oriented Vertical Unit Line", "Horizontal Unit Line", "Vertical Unit Line", "Equilateral Triangle",
         "Unit Square", "Pentagon", "Hexagon", "Heptagon", "Octogon", "Nonagon", "User Defined"},
        Radio);
    return Sub("mnuDesign", "&Design",
               {
                   Sub("mnuDesignExamples", "&Examples", examples),
                   Item("mnuDesignNew", "&New Transformation", "Ctrl+N", Sep),
                   Item("mnuDesignDuplicate", "&Duplicate Transformation", "Ctrl+U"),
                   Item("mnuDesignClear", "&Clear Transformation", "Shift+Del"),
                   Item("mnuDesignSwap", "&Swap Transformations..."),
                   Item("mnuDesignScale", "&Scale...", "Ctrl+S", Sep),
                   Item("mnuDesignRotate", "&Rotate...", "Ctrl+R"),
                   Item("mnuDesignStretch", "&Stretch/Shear...", "Ctrl+E"),
                   Item("mnuDesignFlipHor", "&Horizontal Reflection", "Ctrl+H"),
                   Item("mnuDesignFlipVert", "&Vertical Reflection", "Ctrl+L"),
                   Item("mnuDesignCGMoves", "&Chaos Game Moves..."),
                   Sub("mnuPickPoly", "&Use Initial Polygon", polygons, Sep),
                   Item("mnuDesignLoadPoly", "&Load Initial Polygon..."),
                   Item("mnuDrawPoly", "&Design Initial Polygon"),
                   Sub("mnuDesignLineThickness", "&Line Style",
                       Items("mnuDesignLine", {"Thin", "Medium", "Thick"}, Radio)),
                   Sub("mnuDesignColors", "&Colors",
                       {Item("mnuDesignColorsBack", "Background"), Item("mnuDesignColorsAxes", "Axes")}),
                   Item("mnuDesignPoly", "&Show Initial Polygon", {}, Sep | Check),
                   Item("mnuDesignFP", "&Show Fixed Points", {}, Check),
                   Item("mnuDesignAxes", "&Show Axes", {}, Check),
                   Item("mnuDesignGrid", "&Show Grid", {}, Check),
                   Item("mnuDesignPreview", "&Show Preview", "Ctrl+P", Check),
                   Item("mnuDesignLoadPicture", "&Load Picture", {}, Sep),
                   Item("mnuDesignClearPict", "&Clear Picture"),
                   Item("mnuDesignFitWin", "&Scale to Fit", {}, Sep),
                   Item("mnuDesignMatch", "&Scale to Fractal Window"),
                   Sub("MnuDesignShift", "&Shift",
                       Items("MnuDesignShiftDir", {"Shift Left", "Shift Right", "Shift Down", "Shift Up"})),
                   Item("mnuDesignZoom", "&Zoom Out"),
                   Item("mnuDesignZoomIn", "&Zoom In"),
               });
}

// The view commands. Page Up, Page Down, Home and the arrows belong to the focused picture, so they
// are not menu shortcuts here: the fractal and the design window give them different meanings.
Nodes DrawViewItems() {
    Nodes zoomOut = Items("mnuDrawZoomOut",
                          {"Zoom Out by 105%", "Zoom Out by 125%", "Zoom Out by 150%", "Zoom Out by 200%"});
    // Item 4 of the array is the separator, so "Restore" keeps index 5.
    zoomOut.push_back(Item("mnuDrawZoomOut", "Restore", {}, Sep));
    zoomOut.back().index = 5;
    return {
        Item("mnuCalcScale", "&Scale to Fit", "Ctrl+W", Sep),
        Item("mnuDrawScaleDesign", "&Scale to Design Window"),
        Item("mnuDrawFreezeScale", "&Freeze Scale", {}, Check),
        Sub("mnuDrawShift", "&Shift",
            Items("mnuDrawShiftDir", {"Shift Left", "Shift Right", "Shift Down", "Shift Up"})),
        Sub("mnuDrawZoom", "&Zoom Out", zoomOut),
        Item("mnuZoom", "&Zoom In"),
        Item("mnuDrawRestore", "&Restore"),
        Item("mnuClear", "&Clear", "Del"),
    };
}

Nodes DrawFigureItems() {
    Nodes figures =
        Items("mnuDrawAddFigure",
              {"Design Polygon (outline) ...", "Design Polygon (filled) ...", "Line...", "Triangle...",
               "Rectangle...", "Regular Polygon...", "Circle...", "From File...", "From Clipboard"},
              Radio);
    return {
        Sub("mnuDrawAddFigureItems", "&Add Picture (Initial Set)", figures, Sep),
        Sub("mnuDrawDetColors", "&Deterministic Colors",
            Items("mnuDrawDetColorItems", {"Use IFS Color Scheme", "Use Image Colors"}, Radio)),
        Item("mnuDrawOverlay", "&Overlay Images", {}, Check),
    };
}

Nodes DrawMarkItems() {
    return {
        Sub("mnuTracing", "&Trace",
            {
                Item("mnuTrace", "&Turn Trace On", "Ctrl+T"),
                Item("mnuDrawTraceSetPoint", "&Set Initial Point..."),
                Item("mnuColorTrace", "&Color Dots", {}, Sep | Radio),
                Item("mnuBlackTrace", "&Black Dots", {}, Radio),
                Item("mnuDrawTraceDotSize", "&Dot Size...", {}, Sep),
            },
            Sep),
        Sub("mnuFP", "&Fixed Points",
            {
                Item("mnuFixedPoints", "&Show Fixed Points", {}, Check),
                Item("mnuColorFP", "&Color Dots", {}, Sep | Radio),
                Item("mnuBlackFP", "&Black Dots", {}, Radio),
            }),
        Item("mnuAxes", "&Show Axes", {}, Check),
        Item("mnudrawFractalGrid", "&Show Grid", {}, Check),
    };
}

Nodes DrawPictureItems() {
    return {
        Sub("mnuDrawColors", "&Colors",
            {Item("mnuDrawBackColor", "Background"), Item("mnuDrawAxisColor", "Axes")}, Sep),
        Item("mnuDrawTiling", "&Tiling Options"),
        Sub("mnudrawWindowSize", "&Fractal Image Size",
            {Item("mnuDrawSetImageSize", "Set Image Size"), Item("mnuDrawImageSize", "Unfreeze Image Size")}),
        Item("mnuDrawLoadPicture", "Load Background Picture"),
        Item("mnuDrawClearBGPic", "Clear Background Picture", "Ctrl+X"),
    };
}

MenuNode DrawMenu() {
    Nodes run = Flat({
        Items("mnuDrawType", {"&Random", "&Deterministic"}, Radio),
        {
            Item("mnuRun", "&Draw", "Ctrl+D", Sep),
            Item("mnuStop", "&Stop"),
            Item("mnuDrawFixedNumber", "Draw This Many...", "Ctrl+I"),
        },
    });
    return Sub("mnuDraw", "D&raw",
               Flat({run, DrawViewItems(), DrawFigureItems(), DrawMarkItems(), DrawPictureItems()}));
}

// Only the fixed commands: the separator (index 4) and the list entries (5 and up) are created at run
// time as the fractal list fills.
MenuNode FractalsMenu() {
    return Sub("mnuFractals", "Fr&actals",
               Items("mnuNames", {"&Save Current IFS to List", "&Add Current IFS to List As...",
                                  "&Delete from List...", "&Clear List"}));
}

MenuNode WindowMenu() {
    Nodes windows = Items("mnuWin",
                          {"&IFS",
                           "&Fractal",
                           "&Design",
                           "&Preview",
                           "Box Fractal Design",
                           "Triangle Fractal Design",
                           "Tiling Design",
                           "Tiling Options",
                           "Complex Bases",
                           "Symmetric Binary Tree",
                           "Sierpinski Triangle Game",
                           "Fractal Movie Creator",
                           "Sierpinski Triangles",
                           "Fractal Movie Viewer",
                           "Color Stealing Options",
                           "Pythagorean Tree",
                           "Koch Curves Design",
                           "Line Fractal Design",
                           "Chaos Game Design",
                           "Create Det Movie",
                           "Color Gradient",
                           "Symmetric Fractals"},
                          Check);
    // Only the three main windows are listed from the start; the others appear when they open.
    for (MenuNode& node : windows) node.visible = node.index <= 2;
    // Item 0 of the actions is the separator after the window list.
    Nodes actions = Items("mnuWinAction", {"&Minimize", "&Maximize", "&Restore"}, Sep, 1);
    return Sub("mnuWindow", "&Window", Flat({windows, actions}));
}

MenuNode HelpMenu() {
    return Sub("mnuHelpMenu", "&Help",
               {
                   Item("mnuHelp", "&Help", "F1"),
                   Item("mnuWebHelp", "&Web Based Help"),
                   Item("mnuHelpBug", "Send &Bug Report", {}, Sep),
                   Item("mnuHelpEmail", "Send &Email"),
                   Item("mnuHelpWeb", "&Visit Web Site for Updates", {}, Sep),
                   Item("mnuHelpGallery", "&Visit Web Gallery"),
                   Item("mnuHelpVisitClassic", "&Visit Classic IFS Website"),
                   Item("mnuWindowAbout", "&About Quillane...", {}, Sep),
               });
}

// Searches one level of siblings and below for the list that holds the key.
const Nodes* SiblingsOf(const Nodes& nodes, const std::string& key, std::size_t& at) {
    for (std::size_t i = 0; i < nodes.size(); ++i) {
        if (nodes[i].key() == key) {
            at = i;
            return &nodes;
        }
        if (const Nodes* found = SiblingsOf(nodes[i].children, key, at)) return found;
    }
    return nullptr;
}

const Nodes* SiblingsOf(const std::string& key, std::size_t& at) {
    if (const Nodes* found = SiblingsOf(MainMenuTree(), key, at)) return found;
    return SiblingsOf(PopupMenus(), key, at);
}

void WriteNodes(MenuTable& table, const Nodes& nodes) {
    for (const MenuNode& node : nodes) {
        MenuItemState state;
        state.caption = node.caption;
        state.visible = node.visible;
        table.set(node.key(), state);
        WriteNodes(table, node.children);
    }
}

}  // namespace

const std::vector<MenuNode>& MainMenuTree() {
    static const Nodes tree = {FileMenu(), EditMenu(),     CodeMenu(),   DesignMenu(),
                               DrawMenu(), FractalsMenu(), WindowMenu(), HelpMenu()};
    return tree;
}

const std::vector<MenuNode>& PopupMenus() {
    static const Nodes popups = {
        Sub("mnuPopup", "",
            {
                Item("mnuPopupCopy", "Copy image to clipboard"),
                Item("mnuPopupSave", "Save image to file"),
                Item("mnuPopUpClear", "Cancel", {}, Sep),
            }),
        Sub("mnuPicPastePopUpMenu", "",
            {
                Item("mnuPicPastePopUpFinish", "Finalize position", "Esc"),
                Item("mnuPicPastePopUpSet", "Set position and size...", "Ctrl+Alt+P"),
                Item("mnuPicPastePopUpResize", "Resize", "Ctrl+Alt+R", Check),
                Item("mnuPicPastePopUpCancel", "Cancel", {}, Sep),
            }),
    };
    return popups;
}

const std::vector<ToolbarButton>& MainToolbarButtons() {
    static const std::vector<ToolbarButton> buttons = {
        {"new", "New IFS", 1},
        {"open", "Open IFS File", 2},
        {"save", "Save IFS Fractals List", 3},
        {"print", "Print", 5},
        {"copy", "Copy", 6},
        {"paste", "Paste", 7},
        {"undo", "Undo", 8},
        {"matrix", "Matrix Compact Form", 10},
        {"rotation", "Scale/Rotation Form", 11},
        {"fixed point", "Fixed Point Form", 12},
        {"draw", "Draw", 14},
        {"stop", "Stop", 15},
        {"help", "Help", 17},
    };
    return buttons;
}

std::string FrameButtonKey(int number) {
    return MenuTable::key("tbrMain", number);
}

void InitializeMenuState(MenuTable& table) {
    WriteNodes(table, MainMenuTree());
    WriteNodes(table, PopupMenus());

    for (const char* key : {"mnuMatrix", "mnuColors(0)", "mnuDrawType(0)", "mnuEditToolTips", "mnuDesignPoly",
                            "mnuDesignAxes", "mnupoly(0)", "mnuDesignLine(0)", "mnuDrawDetColorItems(0)",
                            "mnuDrawAddFigure(0)", "mnuColorTrace", "mnuColorFP"})
        table.setChecked(key, true);

    // An empty list: only "add as" can do anything.
    for (const char* key : {"mnuNames(0)", "mnuNames(2)", "mnuNames(3)"}) table.setEnabled(key, false);
    for (const char* key : {"mnuStop", "mnuDrawImageSize", "mnuUndo"}) table.setEnabled(key, false);
    for (const ToolbarButton& b : MainToolbarButtons()) table.setCaption(FrameButtonKey(b.number), b.toolTip);
    // The program starts in IFS mode: the chaos game's moves window is not offered.
    table.setVisible("mnuDesignCGMoves", false);
    // The fixed point form button waits for chaos game mode, Stop for a drawing.
    table.setEnabled(FrameButtonKey(12), false);
    table.setEnabled(FrameButtonKey(15), false);
    // The program starts in Random mode, where these deterministic commands are off.
    for (const char* key :
         {"mnuFileSaveAnimGif", "mnuDrawAddFigureItems", "mnuDrawDetColors", "mnuDrawOverlay"})
        table.setEnabled(key, false);
}

const MenuNode* FindMenuNode(const std::string& key) {
    std::size_t at = 0;
    const Nodes* siblings = SiblingsOf(key, at);
    return siblings ? &(*siblings)[at] : nullptr;
}

std::vector<std::string> RadioGroupKeys(const std::string& key) {
    std::size_t at = 0;
    const Nodes* siblings = SiblingsOf(key, at);
    if (!siblings || !(*siblings)[at].radio) return {};
    const Nodes& nodes = *siblings;
    std::size_t first = at;
    while (first > 0 && !nodes[first].separatorBefore && nodes[first - 1].radio) --first;
    std::vector<std::string> keys;
    for (std::size_t i = first; i < nodes.size() && nodes[i].radio; ++i) {
        if (i > first && nodes[i].separatorBefore) break;
        keys.push_back(nodes[i].key());
    }
    return keys;
}

std::string DesignToolbarKey(int button) {
    return MenuTable::key("DesignToolbar1", button);
}

}  // namespace quillane
