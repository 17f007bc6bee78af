#include "app/comment_commands.h"

#include <algorithm>
#include <iterator>

#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

namespace {

std::vector<std::string> splitLines(const std::string& text) {
    std::string plain;
    std::copy_if(text.begin(), text.end(), std::back_inserter(plain), [](char c) { return c != '\r'; });
    std::vector<std::string> lines;
    size_t start = 0;
    for (size_t end = plain.find('\n'); end != std::string::npos; end = plain.find('\n', start)) {
        lines.push_back(plain.substr(start, end - start));
        start = end + 1;
    }
    lines.push_back(plain.substr(start));
    while (!lines.empty() && lines.back().empty()) lines.pop_back();
    return lines;
}

// The longest prefix of line that fits and ends at a blank, as the position of that blank; without
// one that fits, the first blank; npos when there is no blank at all.
size_t breakAt(const std::string& line, const TextWidth& width, double maxWidth) {
    size_t best = std::string::npos;
    size_t first = std::string::npos;
    for (size_t pos = line.find(' ', 1); pos != std::string::npos; pos = line.find(' ', pos + 1)) {
        if (first == std::string::npos) first = pos;
        if (width(line.substr(0, pos)) <= maxWidth) best = pos;
    }
    return best != std::string::npos ? best : first;
}

void clearComments(IFSEntry& ifs) {
    for (std::string& line : ifs.Comment) line.clear();
    ifs.nComments = 0;
}

void storeComments(IFSEntry& ifs, const std::vector<std::string>& lines, const TextWidth& width,
                   double labelWidth) {
    clearComments(ifs);
    int k = 0;
    for (const std::string& line : lines) {
        for (const std::string& piece : WrapCommentLine(line, width, labelWidth)) {
            if (k == MaxComments) break;
            ifs.Comment[static_cast<size_t>(++k)] = (CommentLinePrefix + piece).substr(0, CommentSlotLength);
        }
    }
    ifs.nComments = static_cast<int16_t>(k);
}

}  // namespace

std::string CommentEditorText(const IFSEntry& ifs) {
    std::string text;
    const int last = std::clamp<int>(ifs.nComments, 0, MaxComments);
    for (int k = 1; k <= last; ++k) {
        const std::string& line = ifs.Comment[static_cast<size_t>(k)];
        const size_t mark = line.find(';');
        if (k > 1) text += "\n";
        text += Trim(mark == std::string::npos ? line : line.substr(mark + 1));
    }
    return text;
}

std::vector<std::string> WrapCommentLine(const std::string& line, const TextWidth& width, double maxWidth) {
    std::vector<std::string> pieces;
    std::string rest = RTrim(line);
    while (width(rest) > maxWidth) {
        const size_t at = breakAt(rest, width, maxWidth);
        if (at == std::string::npos) break;
        pieces.push_back(rest.substr(0, at));
        rest = LTrim(rest.substr(at + 1));
    }
    pieces.push_back(rest);
    return pieces;
}

bool ApplyCommentText(Workbench& wb, const std::string& text, const TextWidth& width, double labelWidth) {
    std::string plain = text;
    plain.erase(std::remove(plain.begin(), plain.end(), '\r'), plain.end());
    if (plain == CommentEditorText(wb.CurrentIFS)) return false;
    IFSEntry& ifs = wb.CurrentIFS;
    const bool onlyLineEnds = std::all_of(plain.begin(), plain.end(), [](char c) { return c == '\n'; });
    if (onlyLineEnds)
        clearComments(ifs);
    else
        storeComments(ifs, splitLines(plain), width, labelWidth);
    wb.lblComment = ifs.nComments >= 1 ? RTrim(ifs.Comment[1]) : std::string();
    CountEdit(wb);
    return true;
}

bool mnuCodeComment_Click(
    Workbench& wb, const std::function<std::optional<std::string>(const std::string& text)>& frmAddComment,
    const TextWidth& width, double labelWidth) {
    if (!frmAddComment) return false;
    const auto edited = frmAddComment(CommentEditorText(wb.CurrentIFS));
    return edited && ApplyCommentText(wb, *edited, width, labelWidth);
}

}  // namespace quillane
