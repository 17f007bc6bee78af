#pragma once
// The Help menu: the help pages beside the program (GetHelpFile), the web and mail commands and the
// About box. The shell shows the pages and opens the addresses; what is opened, and what is said
// when that fails, is decided here.
#include <functional>
#include <string>

#include "core/host.h"

namespace quillane {

// The help is a folder of HTML pages beside the program.
inline constexpr const char* HelpFolderName = "help";
inline constexpr const char* HelpErrorTitle = "Help Error";

// Topics the program opens by name.
inline constexpr const char* HelpIndexTopic = "index.html";
inline constexpr const char* DesignWindowHelpTopic = "designWindow.html";
inline constexpr const char* FractalWindowHelpTopic = "fractalWindow.html";
inline constexpr const char* SierpinskiGameHelpTopic = "sierpinskiGame.html";
inline constexpr const char* LineFractalHelpTopic = "howtoCreateLineFractalDesign.html";
inline constexpr const char* TilingHelpTopic = "tilings.html";
inline constexpr const char* BinaryTreeHelpTopic = "binaryTrees.html";
inline constexpr const char* PythagoreanTreeHelpTopic = "pythagoreanTrees.html";
inline constexpr const char* SymmetricHelpTopic = "symmetricFractals.html";
inline constexpr const char* SierpinskiTrianglesHelpTopic = "sierpinskiTriangles.html";
inline constexpr const char* KochCurvesHelpTopic = "KochCurves.html";
inline constexpr const char* ComplexBaseHelpTopic = "howtocreatecomplexbasedesign.html";
inline constexpr const char* BoxFractalHelpTopic = "howtoCreateBoxFractalDesign.html";
inline constexpr const char* TriangleFractalHelpTopic = "howtoTriangleFractalDesign.html";
inline constexpr const char* FileFormatsHelpTopic = "fileFormats.html";
inline constexpr const char* GalleryHelpTopic = "gallery.html";
inline constexpr const char* ReportHelpTopic = "contact.html";

// The path of a topic's page for a program in programDir.
std::string HelpTopicPath(const std::string& programDir, const std::string& topic);

// The "Help Error" box's text: what failed and where the help folder belongs.
std::string HelpErrorText(const std::string& programDir);

// Shows the page of Topic through `show` (given the page's path; false when it could not be shown).
// A missing help folder, a missing page or a failed showing end in the "Help Error" box. True when
// the page is shown.
bool GetHelpFile(Host& host, const std::string& programDir, const std::string& topic,
                 const std::function<bool(const std::string& path)>& show);

// Hands a URL (a web page or a "mailto:" address) to the system; false when that failed.
using OpenUrl = std::function<bool(const std::string& url)>;

inline constexpr const char* UrlFailedTitle = "URL Failed";
inline constexpr const char* UrlFailedText = "A problem occurred with the browser";
inline constexpr const char* MailFailedTitle = "Mail Failed";
inline constexpr const char* MailFailedText = "A problem occurred in trying to send email";

// The address a web or mail command opens, or "" for a key that is none of them.
std::string WebCommandAddress(const std::string& programDir, const std::string& key);
// Whether the command sends mail (its failure is "Mail Failed").
bool IsMailCommand(const std::string& key);
// Opens the address of mnuWebHelp, mnuHelpBug, mnuHelpEmail, mnuHelpWeb, mnuHelpGallery or
// mnuHelpVisitClassic; a failure says so in its box. True when the address was opened.
bool RunWebCommand(Host& host, const std::string& programDir, const std::string& key, const OpenUrl& open);

// The Help menu's web and mail items, in menu order.
inline constexpr const char* WebCommandKeys[] = {"mnuWebHelp", "mnuHelpBug",     "mnuHelpEmail",
                                                 "mnuHelpWeb", "mnuHelpGallery", "mnuHelpVisitClassic"};

inline constexpr const char* AboutTitle = "About Quillane";
// The program's name, version and the licences of what it is built with.
std::string AboutText();
// mnuWindowAbout: the About box.
void mnuWindowAbout_Click(Host& host);

}  // namespace quillane
