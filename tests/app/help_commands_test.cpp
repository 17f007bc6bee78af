#include "app/help_commands.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>

#include "app/startup.h"
#include "core/evaluate_window.h"
#include "core/workbench.h"
#include "tests/core/list_file_fixture.h"

namespace quillane::testing {
namespace {

std::string expectedHelpError(const std::string& programDir) {
    return "The help file could not be loaded.\n\nMake sure that the help folder is in the same\n" +
           programDir;
}

TEST(GetHelpFile, AMissingHelpFolderGivesTheHelpErrorBox) {
    TempDir dir;
    ScriptedHost host;
    int shown = 0;
    EXPECT_FALSE(
        GetHelpFile(host, dir.path("bin"), "index.html", [&](const std::string&) { return ++shown > 0; }));
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(host.shown(), (Messages{{"Help Error", expectedHelpError(dir.path("bin"))}}));
}

TEST(GetHelpFile, AMissingTopicGivesTheHelpErrorBox) {
    TempDir dir;
    std::filesystem::create_directories(dir.path("help"));
    dir.write("help/index.html", "<html></html>");
    ScriptedHost host;
    int shown = 0;
    EXPECT_FALSE(GetHelpFile(host, dir.path(""), "evaluationHelp.html",
                             [&](const std::string&) { return ++shown > 0; }));
    EXPECT_EQ(shown, 0);
    EXPECT_EQ(host.shown(), (Messages{{"Help Error", expectedHelpError(dir.path(""))}}));
}

TEST(GetHelpFile, APresentTopicIsShownByItsPathWithoutABox) {
    TempDir dir;
    std::filesystem::create_directories(dir.path("help"));
    const std::string page = dir.write("help/evaluationHelp.html", "<html></html>");
    ScriptedHost host;
    std::string asked;
    EXPECT_TRUE(GetHelpFile(host, dir.path(""), EvaluateHelpTopic, [&](const std::string& path) {
        asked = path;
        return true;
    }));
    EXPECT_EQ(std::filesystem::path(asked), std::filesystem::path(page));
    EXPECT_TRUE(host.shown().empty());
}

TEST(GetHelpFile, AWindowThatCannotShowThePageGivesTheHelpErrorBox) {
    TempDir dir;
    std::filesystem::create_directories(dir.path("help"));
    dir.write("help/index.html", "<html></html>");
    ScriptedHost host;
    EXPECT_FALSE(GetHelpFile(host, dir.path(""), "index.html", [](const std::string&) { return false; }));
    EXPECT_EQ(host.shown(), (Messages{{"Help Error", expectedHelpError(dir.path(""))}}));
}

// Every ".html" name in the program's code must be a page of help/, with that exact spelling.
std::set<std::string> topicsNamedInTheCode() {
    std::set<std::string> topics;
    const std::regex quoted("\"([A-Za-z0-9_]+\\.html)\"");
    for (const char* folder : {"core", "render", "design", "generators", "movies", "app", "shell"}) {
        for (const auto& entry :
             std::filesystem::directory_iterator(std::filesystem::path(QUILLANE_SOURCE_DIR) / folder)) {
            const std::string text = TempDir::read(entry.path().string());
            for (std::sregex_iterator it(text.begin(), text.end(), quoted), end; it != end; ++it)
                topics.insert((*it)[1].str());
        }
    }
    return topics;
}

TEST(HelpPages, EveryTopicTheCodeNamesIsAPageOfTheHelpFolder) {
    const std::set<std::string> topics = topicsNamedInTheCode();
    // The scan must see the topics of the frame, the design window and the expression box at least.
    EXPECT_TRUE(topics.count("index.html"));
    EXPECT_TRUE(topics.count("designWindow.html"));
    EXPECT_TRUE(topics.count("evaluationHelp.html"));
    for (const std::string& topic : topics)
        EXPECT_TRUE(
            std::filesystem::is_regular_file(std::filesystem::path(QUILLANE_SOURCE_DIR) / "help" / topic))
            << topic;
}

TEST(WebCommands, EachFailureSaysSoInItsOwnBox) {
    const Messages url{{"URL Failed", "A problem occurred with the browser"}};
    const Messages mail{{"Mail Failed", "A problem occurred in trying to send email"}};
    const std::vector<std::pair<std::string, Messages>> expected = {
        {"mnuWebHelp", url}, {"mnuHelpBug", mail},    {"mnuHelpEmail", mail},
        {"mnuHelpWeb", url}, {"mnuHelpGallery", url}, {"mnuHelpVisitClassic", url},
    };
    for (const auto& [key, messages] : expected) {
        ScriptedHost host;
        std::string asked;
        EXPECT_FALSE(RunWebCommand(host, "/opt/quillane/bin", key, [&](const std::string& address) {
            asked = address;
            return false;
        })) << key;
        EXPECT_FALSE(asked.empty()) << key;
        EXPECT_EQ(host.shown(), messages) << key;
    }
}

TEST(WebCommands, ASuccessShowsNoBoxAndOpensTheBundledPage) {
    ScriptedHost host;
    std::vector<std::string> asked;
    for (const char* key : WebCommandKeys)
        EXPECT_TRUE(RunWebCommand(host, "/opt/quillane/bin", key, [&](const std::string& address) {
            asked.push_back(address);
            return true;
        })) << key;
    EXPECT_TRUE(host.shown().empty());
    EXPECT_EQ(
        asked,
        (std::vector<std::string>{
            "file:///opt/quillane/bin/help/index.html", "file:///opt/quillane/bin/help/contact.html",
            "file:///opt/quillane/bin/help/contact.html", "file:///opt/quillane/bin/help/contact.html",
            "file:///opt/quillane/bin/help/gallery.html", "file:///opt/quillane/bin/help/contact.html"}));
}

TEST(WebCommands, BlanksInTheProgramsFolderAreEscaped) {
    EXPECT_EQ(WebCommandAddress("/home/a b", "mnuHelpGallery"), "file:///home/a%20b/help/gallery.html");
    EXPECT_EQ(WebCommandAddress("/home/a b", "mnuRun"), "");
}

TEST(About, TheBoxNamesTheProgramItsVersionAndTheLicences) {
    ScriptedHost host;
    mnuWindowAbout_Click(host);
    ASSERT_EQ(host.shown().size(), 1u);
    EXPECT_EQ(host.shown()[0].title, "About Quillane");
    const std::string& text = host.shown()[0].text;
    EXPECT_EQ(text.rfind(std::string("Quillane ") + QUILLANE_VERSION + "\n", 0), 0u) << text;
    for (const char* licence :
         {"LGPL version 3", "FreeImage Public License", "GoogleTest (BSD 3-Clause License)"})
        EXPECT_NE(text.find(licence), std::string::npos) << licence;
}

TEST(Finish, ClosesTheHelpWhileItIsOpenAndOnlyThen) {
    Workbench wb;
    int closed = 0;
    SettingsHooks hooks;
    hooks.CloseHelp = [&closed] { ++closed; };
    StartFlags shut;
    Finish(wb, shut, hooks);
    EXPECT_EQ(closed, 0);
    StartFlags open;
    open.HelpOpen = true;
    Finish(wb, open, hooks);
    EXPECT_EQ(closed, 1);
    EXPECT_FALSE(open.HelpOpen);
}

}  // namespace
}  // namespace quillane::testing
