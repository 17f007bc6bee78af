#include "core/menu_tree.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace quillane {
namespace {

void CollectNodes(const std::vector<MenuNode>& nodes, std::vector<const MenuNode*>& out) {
    for (const MenuNode& node : nodes) {
        out.push_back(&node);
        CollectNodes(node.children, out);
    }
}

std::vector<const MenuNode*> AllNodes() {
    std::vector<const MenuNode*> all;
    CollectNodes(MainMenuTree(), all);
    CollectNodes(PopupMenus(), all);
    return all;
}

std::vector<int> IndexesOf(const std::string& name) {
    std::vector<int> indexes;
    for (const MenuNode* node : AllNodes())
        if (node->name == name) indexes.push_back(node->index);
    return indexes;
}

std::vector<std::string> ChildKeys(const std::string& parent) {
    std::vector<std::string> keys;
    const MenuNode* node = FindMenuNode(parent);
    if (node)
        for (const MenuNode& child : node->children) keys.push_back(child.key());
    return keys;
}

TEST(MenuTree, EveryKeyIsUniqueAcrossBothTrees) {
    std::set<std::string> seen;
    for (const MenuNode* node : AllNodes()) EXPECT_TRUE(seen.insert(node->key()).second) << node->key();
    EXPECT_GT(seen.size(), 200u);
}

TEST(MenuTree, KeyAddsTheIndexOfArrayItemsOnly) {
    MenuNode plain;
    plain.name = "mnuOpen";
    EXPECT_EQ(plain.key(), "mnuOpen");
    MenuNode indexed;
    indexed.name = "mnuColors";
    indexed.index = 2;
    EXPECT_EQ(indexed.key(), "mnuColors(2)");
}

TEST(MenuTree, TheMenuBarRunsInOrder) {
    std::vector<std::string> names;
    for (const MenuNode& menu : MainMenuTree()) names.push_back(menu.name);
    EXPECT_EQ(names, (std::vector<std::string>{"mnuFile", "mnuEdit", "mnuCode", "mnuDesign", "mnuDraw",
                                               "mnuFractals", "mnuWindow", "mnuHelpMenu"}));
    std::vector<std::string> captions;
    for (const MenuNode& menu : MainMenuTree()) captions.push_back(menu.caption);
    EXPECT_EQ(captions, (std::vector<std::string>{"&File", "&Edit", "&Code", "&Design", "D&raw", "Fr&actals",
                                                  "&Window", "&Help"}));
}

struct Expected {
    const char* key;
    const char* caption;
    const char* shortcut;
};

TEST(MenuTree, CaptionsAndShortcutsAreExact) {
    const std::vector<Expected> expected = {
        {"mnuNewIFS", "&IFS", "F5"},
        {"mnuNewChaosGame", "&Chaos Game", "F6"},
        {"mnuNewSTG", "&Sierpinski Triangle Game", "F9"},
        {"mnuFileNewMovie", "&Fractal Tranformation Movie", "F11"},
        {"mnuFileSaveAnimGif", "&Deterministic Fractal Movie", "F12"},
        {"mnuOpen", "&Open IFS File...", "Ctrl+O"},
        {"mnuFileAppend", "Appen&d IFS File...", ""},
        {"mnuFileOpenMovie", "Open Fractal &Movie...", ""},
        {"mnuRecent", "Open &Recent", ""},
        {"mnuFileClearMRU", "&Clear List", ""},
        {"mnuSaveIFSas", "Save IFS Fractals List &As...", ""},
        {"mnuSaveCurrent", "Save &Current IFS to File...", ""},
        {"mnuFileSavePolygon", "Save &Initial Polygon", ""},
        {"mnuFilePrint", "&Print...", ""},
        {"mnuExit", "&Exit", ""},
        {"mnuUndo", "&Undo", "Ctrl+Z"},
        {"mnuEditCopy", "&Copy", "Ctrl+C"},
        {"mnuEditPaste", "&Paste", "Ctrl+V"},
        {"mnuEditPasteBackground", "Paste Fractal &Background", "Ctrl+B"},
        {"mnuEditToolTips", "&Show Tool Tips", ""},
        {"mnuMatrix", "Matrix &Compact Form", ""},
        {"mnuRotation", "Scale/&Rotation Form", ""},
        {"mnuProbCalc", "&Proportional Probabilities", ""},
        {"mnuColors(2)", "Use Color Stealing", ""},
        {"mnuSameColor", "Set IFS Colors to Function 1", ""},
        {"mnuCodeLoadPalette", "Load IFS Palette", ""},
        {"mnuCodeArrangeFP", "Arrange Fi&xed Points", ""},
        {"mnuCodeRename", "Re&name IFS", ""},
        {"mnuDesignExample(5)", "&Fractals derived from Complex Bases", ""},
        {"mnuDesignExample(9)", "&Symmetric Fractals", ""},
        {"mnuDesignNew", "&New Transformation", "Ctrl+N"},
        {"mnuDesignDuplicate", "&Duplicate Transformation", "Ctrl+U"},
        {"mnuDesignClear", "&Clear Transformation", "Shift+Del"},
        {"mnuDesignScale", "&Scale...", "Ctrl+S"},
        {"mnuDesignRotate", "&Rotate...", "Ctrl+R"},
        {"mnuDesignStretch", "&Stretch/Shear...", "Ctrl+E"},
        {"mnuDesignFlipHor", "&Horizontal Reflection", "Ctrl+H"},
        {"mnuDesignFlipVert", "&Vertical Reflection", "Ctrl+L"},
        {"mnupoly(11)", "Octogon", ""},
        {"mnupoly(13)", "User Defined", ""},
        {"mnuDesignLine(1)", "Medium", ""},
        {"mnuDesignColorsAxes", "Axes", ""},
        {"mnuDesignPreview", "&Show Preview", "Ctrl+P"},
        {"mnuDesignMatch", "&Scale to Fractal Window", ""},
        {"MnuDesignShiftDir(2)", "Shift Down", ""},
        {"mnuDesignZoomIn", "&Zoom In", ""},
        {"mnuDrawType(1)", "&Deterministic", ""},
        {"mnuRun", "&Draw", "Ctrl+D"},
        {"mnuStop", "&Stop", ""},
        {"mnuDrawFixedNumber", "Draw This Many...", "Ctrl+I"},
        {"mnuCalcScale", "&Scale to Fit", "Ctrl+W"},
        {"mnuDrawZoom", "&Zoom Out", ""},
        {"mnuDrawZoomOut(0)", "Zoom Out by 105%", ""},
        {"mnuDrawZoomOut(3)", "Zoom Out by 200%", ""},
        {"mnuDrawZoomOut(5)", "Restore", ""},
        {"mnuZoom", "&Zoom In", ""},
        {"mnuClear", "&Clear", "Del"},
        {"mnuDrawAddFigureItems", "&Add Picture (Initial Set)", ""},
        {"mnuDrawAddFigure(0)", "Design Polygon (outline) ...", ""},
        {"mnuDrawAddFigure(8)", "From Clipboard", ""},
        {"mnuDrawDetColorItems(1)", "Use Image Colors", ""},
        {"mnuTrace", "&Turn Trace On", "Ctrl+T"},
        {"mnuDrawTraceDotSize", "&Dot Size...", ""},
        {"mnuBlackFP", "&Black Dots", ""},
        {"mnudrawFractalGrid", "&Show Grid", ""},
        {"mnudrawWindowSize", "&Fractal Image Size", ""},
        {"mnuDrawImageSize", "Unfreeze Image Size", ""},
        {"mnuDrawClearBGPic", "Clear Background Picture", "Ctrl+X"},
        {"mnuNames(0)", "&Save Current IFS to List", ""},
        {"mnuNames(1)", "&Add Current IFS to List As...", ""},
        {"mnuNames(3)", "&Clear List", ""},
        {"mnuWin(0)", "&IFS", ""},
        {"mnuWin(10)", "Sierpinski Triangle Game", ""},
        {"mnuWin(17)", "Line Fractal Design", ""},
        {"mnuWin(21)", "Symmetric Fractals", ""},
        {"mnuWinAction(1)", "&Minimize", ""},
        {"mnuWinAction(3)", "&Restore", ""},
        {"mnuHelp", "&Help", "F1"},
        {"mnuHelpBug", "Send &Bug Report", ""},
        {"mnuHelpVisitClassic", "&Visit Classic IFS Website", ""},
        {"mnuWindowAbout", "&About Quillane...", ""},
        {"mnuPopupSave", "Save image to file", ""},
        {"mnuPopUpClear", "Cancel", ""},
        {"mnuPicPastePopUpFinish", "Finalize position", "Esc"},
        {"mnuPicPastePopUpSet", "Set position and size...", "Ctrl+Alt+P"},
        {"mnuPicPastePopUpResize", "Resize", "Ctrl+Alt+R"},
    };
    for (const Expected& e : expected) {
        const MenuNode* node = FindMenuNode(e.key);
        ASSERT_NE(node, nullptr) << e.key;
        EXPECT_EQ(node->caption, e.caption) << e.key;
        EXPECT_EQ(node->shortcut, e.shortcut) << e.key;
    }
}

TEST(MenuTree, ArraysHaveTheirItemsAndIndexes) {
    auto zeroTo = [](int last) {
        std::vector<int> v;
        for (int i = 0; i <= last; ++i) v.push_back(i);
        return v;
    };
    EXPECT_EQ(IndexesOf("mnuDesignExample"), zeroTo(9));
    EXPECT_EQ(IndexesOf("mnupoly"), zeroTo(13));
    EXPECT_EQ(IndexesOf("mnuWin"), zeroTo(21));
    EXPECT_EQ(IndexesOf("mnuDrawAddFigure"), zeroTo(8));
    EXPECT_EQ(IndexesOf("mnuMRU"), zeroTo(5));
    EXPECT_EQ(IndexesOf("mnuColors"), zeroTo(2));
    EXPECT_EQ(IndexesOf("mnuNames"), zeroTo(3));
    EXPECT_EQ(IndexesOf("mnuDesignLine"), zeroTo(2));
    EXPECT_EQ(IndexesOf("MnuDesignShiftDir"), zeroTo(3));
    EXPECT_EQ(IndexesOf("mnuDrawShiftDir"), zeroTo(3));
    // The separators hold an index of their own in these two arrays.
    EXPECT_EQ(IndexesOf("mnuDrawZoomOut"), (std::vector<int>{0, 1, 2, 3, 5}));
    EXPECT_EQ(IndexesOf("mnuWinAction"), (std::vector<int>{1, 2, 3}));
}

TEST(MenuTree, SubmenusHoldTheirItems) {
    EXPECT_EQ(ChildKeys("mnuNew"), (std::vector<std::string>{"mnuNewIFS", "mnuNewChaosGame", "mnuNewSTG",
                                                             "mnuFileNewMovie", "mnuFileSaveAnimGif"}));
    EXPECT_EQ(ChildKeys("mnuRecent"),
              (std::vector<std::string>{"mnuMRU(0)", "mnuMRU(1)", "mnuMRU(2)", "mnuMRU(3)", "mnuMRU(4)",
                                        "mnuMRU(5)", "mnuFileClearMRU"}));
    EXPECT_EQ(ChildKeys("mnuFractals"),
              (std::vector<std::string>{"mnuNames(0)", "mnuNames(1)", "mnuNames(2)", "mnuNames(3)"}));
    EXPECT_EQ(ChildKeys("mnuFP"), (std::vector<std::string>{"mnuFixedPoints", "mnuColorFP", "mnuBlackFP"}));
    EXPECT_EQ(ChildKeys("mnuPicPastePopUpMenu"),
              (std::vector<std::string>{"mnuPicPastePopUpFinish", "mnuPicPastePopUpSet",
                                        "mnuPicPastePopUpResize", "mnuPicPastePopUpCancel"}));
    EXPECT_EQ(ChildKeys("mnuPopup"),
              (std::vector<std::string>{"mnuPopupCopy", "mnuPopupSave", "mnuPopUpClear"}));

    // Items after a submenu in the text belong to the menu around it.
    std::vector<std::string> draw = ChildKeys("mnuDraw");
    for (const char* key : {"mnuDrawOverlay", "mnuAxes", "mnuDrawTiling", "mnuDrawClearBGPic", "mnuZoom"})
        EXPECT_NE(std::find(draw.begin(), draw.end(), key), draw.end()) << key;
    EXPECT_EQ(draw.front(), "mnuDrawType(0)");
    EXPECT_EQ(draw.back(), "mnuDrawClearBGPic");
    std::vector<std::string> code = ChildKeys("mnuCode");
    EXPECT_EQ(code.front(), "mnuMatrix");
    EXPECT_EQ(code.back(), "mnuCodeRename");
    EXPECT_EQ(ChildKeys("mnuColorChoice").size(), 10u);
}

TEST(MenuTree, RecentFileItemsStartHiddenAndEmpty) {
    for (int i = 0; i < 6; ++i) {
        const MenuNode* node = FindMenuNode(MenuTable::key("mnuMRU", i));
        ASSERT_NE(node, nullptr);
        EXPECT_TRUE(node->caption.empty());
        EXPECT_FALSE(node->visible);
    }
    EXPECT_TRUE(FindMenuNode("mnuFileClearMRU")->visible);
}

TEST(MenuTree, OnlyRecentFileItemsAndPopupMenusHaveNoCaption) {
    for (const MenuNode* node : AllNodes()) {
        if (node->name == "mnuMRU" || node->name == "mnuPopup" || node->name == "mnuPicPastePopUpMenu")
            continue;
        EXPECT_FALSE(node->caption.empty()) << node->key();
    }
}

TEST(MenuTree, NoShortcutIsGivenTwice) {
    std::map<std::string, std::string> owner;
    for (const MenuNode* node : AllNodes()) {
        if (node->shortcut.empty()) continue;
        auto [it, fresh] = owner.emplace(node->shortcut, node->key());
        EXPECT_TRUE(fresh) << node->shortcut << " on " << it->second << " and " << node->key();
    }
}

TEST(MenuTree, SeparatorsMarkTheGroups) {
    for (const char* key : {"mnuOpen", "mnuSaveIFS", "mnuExit", "mnuRun", "mnuDrawZoomOut(5)",
                            "mnuWinAction(1)", "mnuWindowAbout"})
        EXPECT_TRUE(FindMenuNode(key)->separatorBefore) << key;
    for (const char* key : {"mnuNew", "mnuNewIFS", "mnuFileAppend", "mnuRecent", "mnuMatrix", "mnuRotation",
                            "mnuWinAction(2)", "mnuDrawZoomOut(1)"})
        EXPECT_FALSE(FindMenuNode(key)->separatorBefore) << key;
}

TEST(MenuTree, CheckMarksAndRadioGroups) {
    for (const char* key :
         {"mnuEditToolTips", "mnuDesignPoly", "mnuDesignFP", "mnuDesignAxes", "mnuDesignGrid",
          "mnuDesignPreview", "mnuDrawFreezeScale", "mnuDrawOverlay", "mnuFixedPoints", "mnuAxes",
          "mnudrawFractalGrid", "mnuColorTrace", "mnuBlackFP", "mnuPicPastePopUpResize"})
        EXPECT_TRUE(FindMenuNode(key)->checkable) << key;
    for (const char* key : {"mnuRun", "mnuTrace", "mnuOpen", "mnuProb"}) {
        EXPECT_FALSE(FindMenuNode(key)->checkable) << key;
        EXPECT_TRUE(RadioGroupKeys(key).empty()) << key;
    }
    const std::vector<std::string> forms = {"mnuMatrix", "mnuCodeMatrixFormat", "mnuRotation", "mnuCodeFP"};
    EXPECT_EQ(RadioGroupKeys("mnuRotation"), forms);
    EXPECT_EQ(RadioGroupKeys("mnuMatrix"), forms);
    EXPECT_EQ(RadioGroupKeys("mnuColors(1)"),
              (std::vector<std::string>{"mnuColors(0)", "mnuColors(1)", "mnuColors(2)"}));
    EXPECT_EQ(RadioGroupKeys("mnuDrawType(1)"),
              (std::vector<std::string>{"mnuDrawType(0)", "mnuDrawType(1)"}));
    EXPECT_EQ(RadioGroupKeys("mnuBlackTrace"), (std::vector<std::string>{"mnuColorTrace", "mnuBlackTrace"}));
    EXPECT_EQ(RadioGroupKeys("mnuColorFP"), (std::vector<std::string>{"mnuColorFP", "mnuBlackFP"}));
    EXPECT_EQ(RadioGroupKeys("mnupoly(7)").size(), 14u);
    EXPECT_EQ(RadioGroupKeys("mnuDesignLine(2)").size(), 3u);
    EXPECT_EQ(RadioGroupKeys("mnuDrawDetColorItems(0)").size(), 2u);
    EXPECT_EQ(RadioGroupKeys("mnuDrawAddFigure(3)").size(), 9u);
    EXPECT_TRUE(RadioGroupKeys("mnuNothing").empty());
}

TEST(MenuTree, FindMenuNodeSearchesBothTreesAtAnyDepth) {
    const MenuNode* restore = FindMenuNode("mnuDrawZoomOut(5)");
    ASSERT_NE(restore, nullptr);
    EXPECT_EQ(restore->name, "mnuDrawZoomOut");
    EXPECT_EQ(restore->index, 5);
    ASSERT_NE(FindMenuNode("mnuDesignExample(4)"), nullptr);
    EXPECT_EQ(FindMenuNode("mnuDesignExample(4)")->caption, "&Koch Curves with n-gons");
    ASSERT_NE(FindMenuNode("mnuPicPastePopUpCancel"), nullptr);
    EXPECT_EQ(FindMenuNode("mnuPicPastePopUpCancel")->caption, "Cancel");
    EXPECT_EQ(FindMenuNode("mnuFile"), &MainMenuTree().front());

    EXPECT_EQ(FindMenuNode("mnuNothing"), nullptr);
    EXPECT_EQ(FindMenuNode("mnuColors"), nullptr);
    EXPECT_EQ(FindMenuNode("mnuColors(3)"), nullptr);
    EXPECT_EQ(FindMenuNode("mnuDrawZoomOut(4)"), nullptr);
    EXPECT_EQ(FindMenuNode("mnuNames(5)"), nullptr);
    EXPECT_EQ(FindMenuNode(""), nullptr);
}

TEST(Toolbar, ButtonsRunInOrderWithTheirTips) {
    std::vector<std::string> keys;
    for (const ToolbarButton& button : MainToolbarButtons()) {
        keys.push_back(button.key);
        EXPECT_FALSE(button.toolTip.empty()) << button.key;
    }
    EXPECT_EQ(keys, (std::vector<std::string>{"new", "open", "save", "print", "copy", "paste", "undo",
                                              "matrix", "rotation", "fixed point", "draw", "stop", "help"}));
    EXPECT_EQ(MainToolbarButtons()[7].toolTip, "Matrix Compact Form");
    // The numbers the program's commands use: undo 8, the forms 10 to 12, draw 14 and stop 15.
    std::vector<int> numbers;
    for (const ToolbarButton& button : MainToolbarButtons()) numbers.push_back(button.number);
    EXPECT_EQ(numbers, (std::vector<int>{1, 2, 3, 5, 6, 7, 8, 10, 11, 12, 14, 15, 17}));
}

TEST(InitialMenuState, EveryItemIsWrittenWithItsCaption) {
    MenuTable table;
    InitializeMenuState(table);
    for (const MenuNode* node : AllNodes()) {
        ASSERT_TRUE(table.contains(node->key())) << node->key();
        EXPECT_EQ(table(node->key()).caption, node->caption) << node->key();
    }
    // and one entry per frame toolbar button, its tool tip as the caption
    EXPECT_EQ(table.items().size(), AllNodes().size() + MainToolbarButtons().size());
    EXPECT_EQ(table("mnuOpen"), (MenuItemState{"&Open IFS File...", false, true, true}));
    EXPECT_EQ(table("tbrMain(1)").caption, "New IFS");
    EXPECT_EQ(table("tbrMain(2)").caption, "Open IFS File");
    EXPECT_EQ(table("tbrMain(8)").caption, "Undo");
    EXPECT_EQ(table("tbrMain(12)").caption, "Fixed Point Form");
    EXPECT_FALSE(table("tbrMain(12)").enabled) << "the fixed point form belongs to chaos game mode";
    EXPECT_FALSE(table("tbrMain(15)").enabled) << "Stop waits for a drawing";
    EXPECT_TRUE(table("tbrMain(14)").enabled);
    EXPECT_TRUE(table("tbrMain(11)").enabled);
}

TEST(InitialMenuState, StartsWithTheProgramsChecks) {
    MenuTable table;
    InitializeMenuState(table);
    for (const char* key : {"mnuMatrix", "mnuColors(0)", "mnuDrawType(0)", "mnuEditToolTips", "mnuDesignPoly",
                            "mnuDesignAxes", "mnupoly(0)", "mnuDesignLine(0)", "mnuDrawDetColorItems(0)",
                            "mnuColorTrace", "mnuColorFP", "mnuDrawAddFigure(0)"})
        EXPECT_TRUE(table(key).checked) << key;
    for (const char* key :
         {"mnuCodeMatrixFormat", "mnuRotation", "mnuCodeFP", "mnuColors(1)", "mnuColors(2)", "mnuDrawType(1)",
          "mnuDesignFP", "mnuDesignGrid", "mnuDesignPreview", "mnupoly(1)", "mnuDesignLine(1)",
          "mnuDrawDetColorItems(1)", "mnuBlackTrace", "mnuBlackFP", "mnuFixedPoints", "mnuAxes",
          "mnudrawFractalGrid", "mnuDrawFreezeScale", "mnuWin(0)"})
        EXPECT_FALSE(table(key).checked) << key;
}

TEST(InitialMenuState, StartsWithTheProgramsEnabledItems) {
    MenuTable table;
    InitializeMenuState(table);
    for (const char* key :
         {"mnuStop", "mnuDrawImageSize", "mnuUndo", "mnuNames(0)", "mnuNames(2)", "mnuNames(3)",
          "mnuFileSaveAnimGif", "mnuDrawAddFigureItems", "mnuDrawDetColors", "mnuDrawOverlay"})
        EXPECT_FALSE(table(key).enabled) << key;
    for (const char* key :
         {"mnuNames(1)", "mnuRun", "mnuOpen", "mnuDrawSetImageSize", "mnuEditCopy", "mnuTracing"})
        EXPECT_TRUE(table(key).enabled) << key;
    EXPECT_EQ(table("mnuDrawType(0)").caption, "&Random");
}

TEST(InitialMenuState, OnlyTheMainWindowsAndNoRecentFilesAreListed) {
    MenuTable table;
    InitializeMenuState(table);
    for (int i = 0; i < 22; ++i) EXPECT_EQ(table(MenuTable::key("mnuWin", i)).visible, i <= 2) << i;
    for (int i = 0; i < 6; ++i) EXPECT_FALSE(table(MenuTable::key("mnuMRU", i)).visible) << i;
    for (int i = 1; i <= 3; ++i) EXPECT_TRUE(table(MenuTable::key("mnuWinAction", i)).visible) << i;
    EXPECT_TRUE(table("mnuFileClearMRU").visible);
    EXPECT_FALSE(table("mnuDesignCGMoves").visible) << "a chaos game command";
    EXPECT_TRUE(table("mnuDesignScale").visible);
}

TEST(InitialMenuState, ReportsEveryWriteToTheObserver) {
    MenuTable table;
    std::set<std::string> heard;
    table.observer = [&heard](const std::string& key) { heard.insert(key); };
    InitializeMenuState(table);
    EXPECT_EQ(heard.size(), AllNodes().size() + MainToolbarButtons().size());
    EXPECT_TRUE(heard.count("mnuStop"));
    EXPECT_TRUE(heard.count("tbrMain(12)"));
}

}  // namespace
}  // namespace quillane
