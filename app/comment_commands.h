#pragma once
// The comment editor of the working IFS: mnuCodeComment opens frmAddComment with the comment lines as
// plain text, and its OK stores the text back as "; " lines wrapped to the width of lblComment.
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/ifs_entry.h"
#include "app/list_commands.h"

namespace quillane {

class Workbench;

inline constexpr const char* CommentLinePrefix = "; ";

// What frmAddComment shows: each comment line without everything up to and including its first ";",
// trimmed, the lines joined by "\n".
std::string CommentEditorText(const IFSEntry& ifs);

// One line cut into pieces that fit maxWidth: each piece the longest prefix that fits and ends at a
// blank (the blank itself starts the next piece and is dropped). A word wider than maxWidth stands
// alone on its piece.
std::vector<std::string> WrapCommentLine(const std::string& line, const TextWidth& width, double maxWidth);

// frmAddComment's OK with the text as edited ("\n" or "\r\n" line ends). Nothing happens when the text
// is what the dialog showed. Text of nothing but line ends clears the comments; otherwise every line is
// wrapped to labelWidth and each piece stored as "; " + piece, up to 20 lines, the rest dropped. Line
// ends at the very end of the text make no empty comment lines. Either change counts as one edit and
// refreshes lblComment. Returns whether the comments changed.
bool ApplyCommentText(Workbench& wb, const std::string& text, const TextWidth& width, double labelWidth);

// mnuCodeComment: frmAddComment is shown with CommentEditorText and returns the edited text, nothing
// for Cancel. width measures a text in lblComment's font; labelWidth is the label's width in that unit.
bool mnuCodeComment_Click(
    Workbench& wb, const std::function<std::optional<std::string>(const std::string& text)>& frmAddComment,
    const TextWidth& width, double labelWidth);

}  // namespace quillane
