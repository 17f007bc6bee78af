#include "app/design_mode.h"

#include <utility>

#include "core/function_forms.h"
#include "core/menu_tree.h"

namespace quillane {

void ModeFileCaptions(Workbench& wb, bool chaosGame) {
    static const std::pair<const char*, const char*> items[] = {{"mnuSaveCurrent", SaveCurrentCGCaption},
                                                                {"mnuSaveIFS", SaveIFSCGCaption},
                                                                {"mnuSaveIFSas", SaveIFSasCGCaption},
                                                                {"mnuOpen", OpenCGCaption},
                                                                {"mnuFileAppend", FileAppendCGCaption}};
    for (const auto& [key, caption] : items)
        wb.Menu.setCaption(key, chaosGame ? std::string(caption) : FindMenuNode(key)->caption);
    const auto& buttons = MainToolbarButtons();
    wb.Menu.setCaption(FrameButtonKey(buttons[0].number), chaosGame ? NewChaosGameButton : buttons[0].toolTip);
    wb.Menu.setCaption(FrameButtonKey(buttons[1].number), chaosGame ? OpenChaosGameButton : buttons[1].toolTip);
}

void CGDesignMenus(Workbench& wb, bool Visible) {
    for (const char* key :
         {"mnuDesignScale", "mnuDesignRotate", "mnuDesignFlipHor", "mnuDesignFlipVert", "mnuDesignStretch"})
        wb.Menu.setVisible(key, Visible);
    wb.Menu.setVisible("mnuDesignCGMoves", !Visible);
}

void SetupIFSDesign(Workbench& wb) {
    wb.Menu.setEnabled("mnuCodeFP", false);
    wb.Menu.setChecked("mnuCodeFP", false);
    wb.Menu.setEnabled("mnuRotation", true);
    wb.Menu.setEnabled("mnuDesignNew", true);
    wb.Menu.setEnabled("mnuCodeArrangeFP", false);
    wb.DesignCaption = DesignIFSCaption;
    wb.DesignMode = 0;
    wb.Menu.setEnabled(FrameButtonKey(12), false);
    wb.Menu.setEnabled(DesignToolbarKey(PolygonButton), true);
    wb.Menu.setEnabled(DesignToolbarKey(FixedPointsButton), true);
    CGDesignMenus(wb, true);
    wb.Menu.setEnabled("mnuProbCalc", true);
    wb.IFSModified = false;
    wb.ChangeCount = 0;
    ModeFileCaptions(wb, false);
}

void SetupChaosGameDesign(Workbench& wb) {
    wb.DesignMode = 1;
    wb.CodeForm = 2;
    wb.Menu.setEnabled(FrameButtonKey(12), true);
    wb.Menu.setEnabled(DesignToolbarKey(PolygonButton), false);
    wb.Menu.setEnabled(DesignToolbarKey(FixedPointsButton), false);
    for (const char* key : {"mnuCodeFP", "mnuCodeArrangeFP", "mnuRotation", "mnuDesignSwap"})
        wb.Menu.setEnabled(key, true);
    for (const char* key : {"mnuDesignLoadPicture", "mnuDesignClearPict"}) wb.Menu.setEnabled(key, false);
    CGDesignMenus(wb, false);
    wb.Menu.setEnabled("mnuDesignExamples", false);
    wb.DesignCaption = DesignChaosGameCaption;
    wb.Menu.setChecked("mnuCodeFP", true);
    for (const char* key : {"mnuRotation", "mnuMatrix", "mnuCodeMatrixFormat"}) wb.Menu.setChecked(key, false);
    ModeFileCaptions(wb, true);
}

}  // namespace quillane
