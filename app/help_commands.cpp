#include "app/help_commands.h"

#include <cstdio>
#include <filesystem>

namespace quillane {

namespace {

// The project has no public home yet: every address is a page of the bundled help, kept here only.
struct WebCommand {
    const char* key;
    const char* topic;
    bool mail;
};
constexpr WebCommand WebCommands[] = {
    {"mnuWebHelp", HelpIndexTopic, false},       {"mnuHelpBug", ReportHelpTopic, true},
    {"mnuHelpEmail", ReportHelpTopic, true},     {"mnuHelpWeb", ReportHelpTopic, false},
    {"mnuHelpGallery", GalleryHelpTopic, false}, {"mnuHelpVisitClassic", ReportHelpTopic, false},
    // The game window's own Help item takes the same road to its page.
    {"mnuHelpHowTo", SierpinskiGameHelpTopic, false},
};

const WebCommand* findWebCommand(const std::string& key) {
    for (const WebCommand& command : WebCommands)
        if (key == command.key) return &command;
    return nullptr;
}

// A file URL for a local path; bytes outside the unreserved set are escaped so that blanks and
// 8-bit names survive the browser.
std::string fileUrl(const std::string& path) {
    std::string url = "file://";
    for (const unsigned char c : std::filesystem::absolute(path).generic_string()) {
        const bool plain = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') ||
                           c == '-' || c == '.' || c == '_' || c == '~' || c == '/';
        if (plain) {
            url += static_cast<char>(c);
        } else {
            char escaped[4];
            std::snprintf(escaped, sizeof escaped, "%%%02X", c);
            url += escaped;
        }
    }
    return url;
}

}  // namespace

std::string HelpTopicPath(const std::string& programDir, const std::string& topic) {
    return (std::filesystem::path(programDir) / HelpFolderName / topic).string();
}

std::string HelpErrorText(const std::string& programDir) {
    return std::string("The help file could not be loaded.\n\nMake sure that the ") + HelpFolderName +
           " folder is in the same\n" + programDir;
}

bool GetHelpFile(Host& host, const std::string& programDir, const std::string& topic,
                 const std::function<bool(const std::string& path)>& show) {
    const std::string path = HelpTopicPath(programDir, topic);
    std::error_code ec;
    if (std::filesystem::is_regular_file(path, ec) && show && show(path)) return true;
    host.warn(HelpErrorTitle, HelpErrorText(programDir));
    return false;
}

std::string WebCommandAddress(const std::string& programDir, const std::string& key) {
    const WebCommand* command = findWebCommand(key);
    return command ? fileUrl(HelpTopicPath(programDir, command->topic)) : std::string();
}

bool IsMailCommand(const std::string& key) {
    const WebCommand* command = findWebCommand(key);
    return command && command->mail;
}

bool RunWebCommand(Host& host, const std::string& programDir, const std::string& key, const OpenUrl& open) {
    const std::string address = WebCommandAddress(programDir, key);
    if (address.empty()) return false;
    if (open && open(address)) return true;
    if (IsMailCommand(key))
        host.warn(MailFailedTitle, MailFailedText);
    else
        host.warn(UrlFailedTitle, UrlFailedText);
    return false;
}

std::string AboutText() {
    return std::string("Quillane ") + QUILLANE_VERSION +
           "\nA workbench for iterated function systems in the plane.\n\n"
           "Built with:\n"
           "Qt 6 (Widgets, PrintSupport), under the GNU LGPL version 3\n"
           "FreeImage, under the FreeImage Public License (FIPL) or the GNU GPL\n\n"
           "Its tests use GoogleTest (BSD 3-Clause License) and its benchmarks\n"
           "Google Benchmark (Apache License 2.0); neither is part of the program.";
}

void mnuWindowAbout_Click(Host& host) {
    host.message(MessageIcon::Information, AboutTitle, AboutText(), MessageButtons::OK);
}

}  // namespace quillane
