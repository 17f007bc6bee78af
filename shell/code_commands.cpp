#include "shell/code_commands.h"

#include <QFontMetrics>
#include <QLabel>

#include "app/code_commands.h"
#include "app/comment_commands.h"
#include "app/design_view.h"
#include "app/file_commands.h"
#include "app/list_commands.h"
#include "app/list_entry_commands.h"
#include "app/lock_design.h"
#include "app/table_commands.h"
#include "app/window_commands.h"
#include "core/function_forms.h"
#include "core/palette_files.h"
#include "shell/functions_window.h"
#include "shell/main_window.h"

namespace quillane {

void RegisterCodeCommands(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    frame.setCommand("mnuMatrix",
                     [&s] { ChangeFunctionForm(s.wb, s.design, [&s] { mnuMatrix_Click(s.wb); }); });
    frame.setCommand("mnuCodeMatrixFormat", [&s, &host] {
        ChangeFunctionForm(s.wb, s.design, [&s, &host] { mnuCodeMatrixFormat_Click(s.wb, host); });
    });
    frame.setCommand("mnuRotation",
                     [&s] { ChangeFunctionForm(s.wb, s.design, [&s] { mnuRotation_Click(s.wb); }); });
    frame.setCommand("mnuCodeFP",
                     [&s] { ChangeFunctionForm(s.wb, s.design, [&s] { mnuCodeFP_Click(s.wb); }); });
    frame.setCommand("mnuProb", [&s, &host] { mnuProb_Click(s.wb, host); });
    frame.setCommand("mnuProbCalc", [&s, &host] { mnuProbCalc_Click(s.wb, host); });
    // The points move far: the design window fits them again.
    frame.setCommand("mnuCodeArrangeFP", [&s] { mnuCodeArrangeFP_Click(s); });
    frame.setCommand("mnuCodeLoadPalette", [&s, &host] { mnuCodeLoadPalette_Click(s, host); });
    frame.setCommand("mnuCodeSavePalette", [&s, &host] { mnuCodeSavePalette_Click(s.wb, host); });
    frame.setCommand("mnuSameColor", [&s] { mnuSameColor_Click(s); });
    frame.setCommand("mnuDefaultColors", [&s] { mnuDefaultColors_Click(s); });
    frame.setCommand("mnuCodeRename",
                     [&frame, &s] { mnuCodeRename_Click(s.wb, frame.dialogs().frmIFSName); });
    frame.setCommand("mnuCodeComment", [&frame, &s] {
        QLabel* label = frame.functionsWindow()->findChild<QLabel*>("lblComment");
        const QFontMetrics metrics(label->font());
        const TextWidth width = [metrics](const std::string& t) {
            return static_cast<double>(metrics.horizontalAdvance(QString::fromStdString(t)));
        };
        const double labelWidth = std::max(label->width(), 300);
        mnuCodeComment_Click(s.wb, frame.dialogs().frmAddComment, width, labelWidth);
    });
}

void RegisterListAndFileCommands(MainWindow& frame) {
    AppState& s = frame.state();
    Host& host = frame.host();
    // The entries take the IFS (with its view); the items above the separator edit the list.
    frame.setArrayCommand(
        "mnuNames", [&frame, &s, &host](int index) { mnuNames_Click(s, host, frame.dialogs().list, index); });
    frame.setCommand("mnuNewIFS", [&s, &host] { mnuNewIFS_Click(s.wb, s.pics, host); });
    frame.setCommand("mnuOpen", [&s, &host] { mnuOpen_Click(s, host); });
    frame.setCommand("mnuFileAppend", [&s, &host] { mnuFileAppend_Click(s.wb, host); });
    frame.setCommand("mnuSaveIFS", [&s, &host] { mnuSaveIFS_Click(s.wb, host); });
    frame.setCommand("mnuSaveIFSas", [&s, &host] { mnuSaveIFSas_Click(s.wb, host); });
    frame.setCommand("mnuSaveCurrent", [&s, &host] { mnuSaveCurrent_Click(s.wb, host); });
    frame.setArrayCommand("mnuMRU", [&frame, &s, &host](int index) {
        const RecentOpen r = mnuMRU_Click(s, host, index);
        if (r == RecentOpen::Removed || r == RecentOpen::Kept) frame.setStatusText(0, {});
    });
    frame.setCommand("mnuFileClearMRU", [&s] { mnuFileClearMRU_Click(s.wb); });
}

}  // namespace quillane
