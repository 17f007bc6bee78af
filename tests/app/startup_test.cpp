#include "app/startup.h"

#include "app/file_commands.h"

#include <gtest/gtest.h>

#include "core/numbers.h"
#include "core/recent_files.h"
#include "core/settings_file.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::menuNames;
using testing::Messages;
using testing::TempDir;
using Names = std::vector<std::string>;

const std::string Good = "First {\n0.5 0 0 0.5 0 0 0.5\n0.5 0 0 0.5 0.5 0 0.5\n}\n\n";
const std::string Other = "Other {\n0.25 0 0 0.25 0 0 0.5\n0.25 0 0 0.25 0.5 0 0.5\n}\n";
const std::string Chaos = "Pair {\nS 0.5 0 0.5 0 0\nS 0.5 0 0.5 1 0\n}\n";

const std::string RegionalText =
    "It appears that your regional setting for numbers uses\n"
    "a comma as a decimal separator rather than a period.\n"
    "\n"
    "For the program to work correctly you should change the\n"
    "option in the Regional and Language Options Control Panel   \n"
    "so that the period is the decimal symbol.";

const std::string SecondBlockMessage =
    "There was a problem reading the code for the IFS     \n"
    "with name \"Second\" in the default file.   \n"
    "That IFS and the rest of the file were ignored.";

class Start : public ::testing::Test {
  protected:
    StartFlags start(const std::string& commandLine = "", const std::string& locale = "1.2") {
        return StartProgram(wb, host, commandLine, dir.path(""), locale, hooks);
    }
    Workbench wb;
    ScriptedHost host;
    TempDir dir;
    StartHooks hooks;
};

TEST(StripQuotes, RemovesOneQuoteAtEitherEnd) {
    EXPECT_EQ(stripQuotes("\"C:\\My Fractals\\a.ifs\""), "C:\\My Fractals\\a.ifs");
    EXPECT_EQ(stripQuotes("plain.ifs"), "plain.ifs");
    EXPECT_EQ(stripQuotes("\"open.ifs"), "open.ifs");
    EXPECT_EQ(stripQuotes("close.ifs\""), "close.ifs");
    EXPECT_EQ(stripQuotes("\"\"twice\"\""), "\"twice\"");
    EXPECT_EQ(stripQuotes("\""), "");
    EXPECT_EQ(stripQuotes(""), "");
}

TEST(RegionalSetting, APeriodNeedsNoWarning) {
    EXPECT_EQ(RegionalSettingWarning("1.2"), std::nullopt);
}

TEST(RegionalSetting, ACommaGivesTheSixLineWarning) {
    EXPECT_EQ(RegionalSettingWarning("1,2"), RegionalText);
}

TEST_F(Start, NoDefaultFileAndNoSettingsStartUntitledWithoutABoxAndWriteTheSettingsAtExit) {
    int written = 0;
    hooks.settings.WriteSettings = [&](const Workbench&) { ++written; };
    StartFlags flags = start();
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
    EXPECT_EQ(wb.CurrentIFS.Name, "Untitled");
    EXPECT_EQ(wb.CurrentIFS.nMaps, 1);
    EXPECT_EQ(wb.FrameCaption, "Quillane");
    EXPECT_EQ(wb.ListCount(), 0);
    EXPECT_FALSE(flags.SettingsRead);
    EXPECT_TRUE(flags.SettingsInvalid);
    EXPECT_TRUE(mnuExit_Click(wb, host, flags, hooks.settings));
    EXPECT_EQ(written, 1);
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(Start, TheDefaultListIsReadAndItsFirstEntryTaken) {
    dir.write("default.ifs", Good + Other);
    start();
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(menuNames(wb), (Names{"First", "Other"}));
    EXPECT_EQ(wb.CurrentIFS.Name, "First");
    EXPECT_EQ(wb.SelectedIFS, 1);
    EXPECT_TRUE(wb.menu("mnuNames(5)").checked);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [First]");
    EXPECT_EQ(wb.FrameCaption, "Quillane - default.ifs");
    EXPECT_EQ(wb.CodeForm, 0);
    EXPECT_TRUE(wb.menu("mnuMatrix").checked);
}

TEST_F(Start, ADamagedSecondBlockListsEntryOneAndNamesBlockTwo) {
    dir.write("default.ifs", Good + "Second {\n0.5 0 0\n}\n" + Other);
    start();
    EXPECT_EQ(menuNames(wb), Names{"First"});
    EXPECT_EQ(wb.CurrentIFS.Name, "First");
    EXPECT_EQ(host.shown(), (Messages{{"File Error", SecondBlockMessage}}));
    EXPECT_EQ(host.shown()[0].icon, MessageIcon::Warning);
    EXPECT_EQ(host.shown()[0].buttons, MessageButtons::OK);
}

TEST_F(Start, ADefaultFileWithoutBlocksReportsAFormatProblemAndStartsUntitled) {
    dir.write("default.ifs", "nothing to see\n");
    start();
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Untitled]");
    EXPECT_EQ(host.shown(), (Messages{{"File Error",
                                       "There was a problem with the ifs or chg file.\n"
                                       "Check that the file format is correct.   \n(See help file.)"}}));
}

TEST_F(Start, TheChaosDefaultIsReadWhenTheIFSDefaultIsMissing) {
    dir.write("default.chg", Chaos);
    start();
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_EQ(menuNames(wb), Names{"Pair"});
    EXPECT_EQ(wb.CurrentIFS.Name, "Pair");
    EXPECT_EQ(wb.CodeForm, 2);
    EXPECT_EQ(wb.DesignMode, 1);
    EXPECT_TRUE(wb.menu("mnuCodeFP").checked);
    EXPECT_FALSE(wb.menu("mnuMatrix").checked);
    EXPECT_EQ(wb.FrameCaption, "Quillane - default.chg");
    // The table's rows are in the fixed point form: steps, scale, angle, p, x, y.
    EXPECT_EQ(wb.Table.text(1, 0), "S");
    EXPECT_EQ(wb.Table.text(5, 0), "0.500");
    EXPECT_EQ(wb.Table.text(8, 1), "1.000");
}

TEST_F(Start, ACommandLineChaosGameListStartsInChaosGameModeWithItsRowsInTheFixedPointForm) {
    dir.write("default.ifs", Good);
    const std::string mine = dir.write("two.chg", Chaos + "\n" + "Trio {\nS 0.5 0 0.3 0 0\nS 0.5 0 0.3 1 0\nS 0.5 0 0.4 0 1\n}\n");
    start(mine);
    EXPECT_EQ(menuNames(wb), (Names{"Pair", "Trio"}));
    EXPECT_EQ(wb.DesignMode, 1);
    EXPECT_EQ(wb.CodeForm, 2);
    EXPECT_TRUE(wb.menu("mnuCodeFP").checked);
    EXPECT_EQ(wb.menu("mnuOpen").caption, "&Open Chaos Game File...");
    EXPECT_EQ(wb.Table.text(1, 0), "S");
    EXPECT_EQ(wb.Table.text(5, 1), "0.500");
    EXPECT_EQ(wb.Table.text(8, 1), "1.000");
    EXPECT_EQ(wb.Table.text(9, 1), "0.000");
    EXPECT_EQ(wb.SelectedIFS, 1);
}

TEST_F(Start, TheIFSDefaultWinsOverTheChaosDefault) {
    dir.write("default.ifs", Good);
    dir.write("default.chg", Chaos);
    start();
    EXPECT_EQ(menuNames(wb), Names{"First"});
    EXPECT_EQ(wb.DesignMode, 0);
}

TEST_F(Start, AnUnquotedCommandLineFileIsOpenedInsteadOfTheDefault) {
    dir.write("default.ifs", Good);
    const std::string mine = dir.write("mine.ifs", Other);
    start(mine);
    EXPECT_EQ(menuNames(wb), Names{"Other"});
    EXPECT_EQ(wb.FrameCaption, "Quillane - mine.ifs");
    EXPECT_EQ(wb.RecentFiles[0], mine);
    EXPECT_TRUE(wb.SettingsChanged);
}

TEST_F(Start, AQuotedCommandLineFileWithBlanksIsOpenedInsteadOfTheDefault) {
    dir.write("default.ifs", Good);
    const std::string mine = dir.write("my list.ifs", Other);
    start("\"" + mine + "\"");
    EXPECT_EQ(menuNames(wb), Names{"Other"});
    EXPECT_EQ(wb.FrameCaption, "Quillane - my list.ifs");
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(Start, ADamagedCommandLineFileIsNotReported) {
    const std::string mine = dir.write("mine.ifs", Good + "Second {\n0.5 0 0\n}\n");
    start(mine);
    EXPECT_EQ(menuNames(wb), Names{"First"});
    EXPECT_EQ(host.shown(), Messages{});
}

TEST_F(Start, TheRegionalCommaWarningIsShownOnceAtEachStart) {
    start("", "1,2");
    EXPECT_EQ(host.shown(), (Messages{{"Warning", RegionalText}}));
    Workbench again;
    ScriptedHost secondHost;
    StartProgram(again, secondHost, "", dir.path(""), "1,2", hooks);
    EXPECT_EQ(secondHost.shown(), (Messages{{"Warning", RegionalText}}));
}

TEST_F(Start, TheRegionalWarningComesBeforeTheFileError) {
    dir.write("default.ifs", Good + "Second {\n0.5 0 0\n}\n");
    start("", "1,2");
    EXPECT_EQ(host.shown(), (Messages{{"Warning", RegionalText}, {"File Error", SecondBlockMessage}}));
}

TEST_F(Start, AnInvalidSettingsFileIsReportedUnderTheFileMessageInOneBox) {
    dir.write("default.ifs", Good + "Second {\n0.5 0 0\n}\n");
    hooks.settings.ReadSettings = [](Workbench&, StartFlags& f) {
        f.SettingsRead = true;
        f.SettingsInvalid = true;
    };
    start();
    EXPECT_EQ(host.shown(),
              (Messages{{"File Error", SecondBlockMessage + "\n\n" +
                                           "Invalid ini file.\nDefault settings will be used.   "}}));
}

TEST_F(Start, AnInvalidSettingsFileAloneHasTheBoxToItself) {
    hooks.settings.ReadSettings = [](Workbench&, StartFlags& f) {
        f.SettingsRead = true;
        f.SettingsInvalid = true;
    };
    start();
    EXPECT_EQ(host.shown(),
              (Messages{{"File Error", "Invalid ini file.\nDefault settings will be used.   "}}));
}

TEST_F(Start, TheScaleIsComputedAfterTheListAndTheWindowIsReadBackFromItsText) {
    dir.write("default.ifs", Good);
    std::string scaledWith;
    hooks.setscale = [&] {
        scaledWith = wb.CurrentIFS.Name;
        wb.txtWin = {"2.0004", "-1.000", "-0.500", "1.500"};
    };
    start();
    EXPECT_EQ(scaledWith, "First");
    EXPECT_EQ(wb.Window, (WorldWindow{-0.5f, 1.5f, -1.0f, 2.0004f}));
}

TEST_F(Start, TheWindowsAreShownAfterTheScaleAndBeforeAnyBox) {
    dir.write("default.ifs", Good + "Second {\n0.5 0 0\n}\n");
    std::vector<std::string> order;
    hooks.setscale = [&] { order.push_back("scale"); };
    hooks.showWindows = [&] {
        order.push_back("show after " + std::to_string(host.shown().size()) + " boxes");
    };
    start("", "1,2");
    EXPECT_EQ(order, (std::vector<std::string>{"scale", "show after 0 boxes"}));
    EXPECT_EQ(host.shown().size(), 2u);
}

TEST_F(Start, TheStartSetsTheMenusAndTheFractalCaption) {
    wb.FractalWindowCaption = "Press Q to stop";
    start();
    EXPECT_EQ(wb.FractalWindowCaption, "Fractal (Random)");
    EXPECT_EQ(wb.menu("mnuOpen").caption, "&Open IFS File...");
    EXPECT_FALSE(wb.menu("mnuUndo").enabled);
    EXPECT_EQ(wb.DetFigure, -1);
}

class Exit : public ::testing::Test {
  protected:
    void SetUp() override {
        dir.write("default.ifs", Good + Other);
        flags = StartProgram(wb, host, "", dir.path(""), "1.2");
        host.clear();
        hooks.WriteSettings = [this](const Workbench&) { ++written; };
    }
    Workbench wb;
    ScriptedHost host;
    TempDir dir;
    StartFlags flags;
    SettingsHooks hooks;
    int written = 0;
};

const std::string Tail = "\n\nClick Cancel to return and save.\nClick Ok to continue without saving.";

TEST_F(Exit, ANamedUnchangedIFSAndAnUnchangedListAskNothing) {
    EXPECT_FALSE(ExitNeedsSave(wb));
    EXPECT_TRUE(mnuExit_Click(wb, host, flags, hooks));
    EXPECT_EQ(host.shown(), Messages{});
    EXPECT_TRUE(flags.Exiting);
}

TEST_F(Exit, AnEditedIFSAsksAndCancelKeepsTheProgram) {
    CountEdit(wb);
    host.answers = {Answer::Cancel};
    EXPECT_FALSE(mnuExit_Click(wb, host, flags, hooks));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "Continue without saving?");
    EXPECT_EQ(host.shown()[0].icon, MessageIcon::Question);
    EXPECT_EQ(host.shown()[0].buttons, MessageButtons::OKCancel);
    EXPECT_FALSE(flags.Exiting);
    EXPECT_FALSE(flags.Finished);
    EXPECT_EQ(written, 0);
}

TEST_F(Exit, OKGoesOnAndFinishes) {
    CountEdit(wb);
    wb.DrawingActive = true;
    EXPECT_TRUE(mnuExit_Click(wb, host, flags, hooks));
    EXPECT_TRUE(flags.Exiting);
    EXPECT_TRUE(flags.Finished);
    EXPECT_FALSE(wb.DrawingActive);
}

TEST_F(Exit, AnEditUndoneToNoChangesAsksNothing) {
    wb.IFSModified = true;
    wb.ChangeCount = 0;
    EXPECT_FALSE(ExitNeedsSave(wb));
}

TEST_F(Exit, AnUntitledIFSWithTwoFunctionsNeedsSaving) {
    wb.CurrentIFS = DefaultIFS();
    wb.CurrentIFS.nMaps = 2;
    wb.IFSModified = true;
    EXPECT_TRUE(ExitNeedsSave(wb));
    wb.CurrentIFS.nMaps = 1;
    EXPECT_FALSE(ExitNeedsSave(wb));
}

TEST_F(Exit, TheQuestionForAnUnsavedIFSOnly) {
    CountEdit(wb);
    EXPECT_EQ(CheckSaveQuestion(wb), "The current IFS code has not been saved.   " + Tail);
}

TEST_F(Exit, TheQuestionForAModifiedListOnly) {
    wb.ListModified = true;
    EXPECT_TRUE(ExitNeedsSave(wb));
    EXPECT_EQ(CheckSaveQuestion(wb), "The fractals list has been modified." + Tail);
}

TEST_F(Exit, TheQuestionForBoth) {
    CountEdit(wb);
    wb.ListModified = true;
    EXPECT_EQ(CheckSaveQuestion(wb),
              "The current IFS code has not been saved.   \nThe fractals list has been modified." + Tail);
    host.answers = {Answer::OK};
    EXPECT_TRUE(CheckSave(wb, host));
    EXPECT_EQ(host.shown(), (Messages{{"Continue without saving?",
                                       "The current IFS code has not been saved.   \n"
                                       "The fractals list has been modified." +
                                           Tail}}));
}

// Open asks for a modified IFS even when the save test would not (no counted edit): the question
// still says so.
TEST_F(Exit, OpenWithAModifiedIFSThatTheSaveTestPassesStillStatesIt) {
    wb.IFSModified = true;
    wb.ChangeCount = 0;
    EXPECT_FALSE(NeedsSave(wb));
    EXPECT_EQ(CheckSaveQuestion(wb), "The current IFS code has not been saved.   " + Tail);
    wb.ListModified = true;
    EXPECT_EQ(CheckSaveQuestion(wb),
              "The current IFS code has not been saved.   \nThe fractals list has been modified." + Tail);
    host.answers = {Answer::Cancel};
    EXPECT_FALSE(mnuOpen_Click(wb, host));
    EXPECT_EQ(host.shown(), (Messages{{"Continue without saving?",
                                       "The current IFS code has not been saved.   \n"
                                       "The fractals list has been modified." +
                                           Tail}}));
}

// A list modified with an IFS whose edits were all undone: the list line alone.
TEST_F(Exit, AListModificationAloneGivesItsLineAloneAtEveryCaller) {
    wb.ListModified = true;
    wb.IFSModified = false;
    host.answers = {Answer::Cancel, Answer::Cancel, Answer::Cancel};
    EXPECT_FALSE(mnuOpen_Click(wb, host));
    EXPECT_FALSE(mnuExit_Click(wb, host, flags, hooks));
    EXPECT_FALSE(QueryUnload(wb, host, flags, hooks));
    const ShownMessage listOnly{"Continue without saving?", "The fractals list has been modified." + Tail};
    EXPECT_EQ(host.shown(), (Messages{listOnly, listOnly, listOnly}));
}

TEST_F(Exit, TheCloseBoxAsksTheSameAndCancelCancelsTheClose) {
    wb.ListModified = true;
    host.answers = {Answer::Cancel};
    EXPECT_FALSE(QueryUnload(wb, host, flags, hooks));
    EXPECT_EQ(host.shown().size(), 1u);
    EXPECT_FALSE(flags.Finished);
    EXPECT_TRUE(QueryUnload(wb, host, flags, hooks));
    EXPECT_TRUE(flags.Finished);
}

TEST_F(Exit, TheCloseAfterExitAsksNoMoreAndFinishesOnce) {
    wb.ListModified = true;
    ASSERT_TRUE(mnuExit_Click(wb, host, flags, hooks));
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_TRUE(QueryUnload(wb, host, flags, hooks));
    EXPECT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(written, 1);
}

TEST_F(Exit, UnchangedValidSettingsAreNotWritten) {
    flags.SettingsInvalid = false;
    wb.SettingsChanged = false;
    EXPECT_FALSE(Finish(wb, flags, hooks));
    EXPECT_EQ(written, 0);
}

TEST_F(Exit, ChangedSettingsAreWritten) {
    flags.SettingsInvalid = false;
    wb.SettingsChanged = true;
    EXPECT_TRUE(Finish(wb, flags, hooks));
    EXPECT_EQ(written, 1);
}

TEST_F(Exit, AWindowMovedWithoutAnyCommandIsWritten) {
    flags.SettingsInvalid = false;
    wb.SettingsChanged = false;
    hooks.TakeLiveSettings = [](Workbench& w) {
        WindowPlace moved = w.Windows.fractal;
        moved.top += 300;
        TakeLiveWindows(w, w.Windows.functions, moved, w.Windows.design, w.MainWindowHidden);
    };
    EXPECT_TRUE(Finish(wb, flags, hooks));
    EXPECT_EQ(written, 1);
}

TEST_F(Start, TheSettingsComeAfterTheMenusFirstState) {
    hooks.settings.ReadSettings = [](Workbench& w, StartFlags&) {
        w.Menu.setChecked("mnuEditToolTips", false);
        AddRecentFile(w, "/lists/one.ifs");
    };
    start();
    EXPECT_FALSE(wb.menu("mnuEditToolTips").checked);
    EXPECT_TRUE(wb.menu("mnuMRU(0)").visible);
    EXPECT_EQ(wb.menu("mnuMRU(0)").caption, "/lists/one.ifs");
}

}  // namespace
}  // namespace quillane
