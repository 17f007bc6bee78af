#include "app/comment_commands.h"

#include <gtest/gtest.h>

#include "core/ifs_file_writer.h"
#include "tests/core/list_file_fixture.h"

namespace quillane {
namespace {

using testing::numberedEntry;
using testing::setList;
using Lines = std::vector<std::string>;

// A fixed-width font: every character one unit wide.
const TextWidth OnePerChar = [](const std::string& s) { return static_cast<double>(s.size()); };

Lines storedComments(const IFSEntry& ifs) {
    Lines lines;
    for (int k = 1; k <= ifs.nComments; ++k) lines.push_back(ifs.Comment[static_cast<size_t>(k)]);
    return lines;
}

class Comments : public ::testing::Test {
  protected:
    Comments() {
        setList(wb, {numberedEntry("Fern", 2)});
        TakeListEntry(wb, 1);
    }
    Workbench wb;
};

TEST(CommentEditorText, DropsEverythingUpToTheFirstSemicolonAndTrims) {
    IFSEntry ifs = numberedEntry("X", 1);
    ifs.nComments = 3;
    ifs.Comment[1] = "from the head line";
    ifs.Comment[2] = "  ;  second; with a semicolon  ";
    ifs.Comment[3] = ";;third";
    EXPECT_EQ(CommentEditorText(ifs), "from the head line\nsecond; with a semicolon\n;third");
}

TEST(WrapCommentLine, BreaksAtTheLastBlankThatFits) {
    EXPECT_EQ(WrapCommentLine("the quick brown fox jumps", OnePerChar, 10),
              (Lines{"the quick", "brown fox", "jumps"}));
    EXPECT_EQ(WrapCommentLine("short", OnePerChar, 10), Lines{"short"});
    EXPECT_EQ(WrapCommentLine("exactly 10", OnePerChar, 10), Lines{"exactly 10"});
}

TEST(WrapCommentLine, AWordWiderThanTheLabelStandsAlone) {
    EXPECT_EQ(WrapCommentLine("a incomprehensibilities b", OnePerChar, 10),
              (Lines{"a", "incomprehensibilities", "b"}));
    EXPECT_EQ(WrapCommentLine("incomprehensibilities", OnePerChar, 10), Lines{"incomprehensibilities"});
}

TEST_F(Comments, OKStoresWrappedLinesWithThePrefixAndCountsOneEdit) {
    EXPECT_TRUE(ApplyCommentText(wb, "A fern drawn\r\nwith four maps of the plane", OnePerChar, 10));
    EXPECT_EQ(storedComments(wb.CurrentIFS),
              (Lines{"; A fern", "; drawn", "; with four", "; maps of", "; the plane"}));
    EXPECT_EQ(wb.CurrentIFS.nComments, 5);
    EXPECT_EQ(wb.ChangeCount, 1);
    EXPECT_TRUE(wb.IFSModified);
    EXPECT_EQ(wb.FunctionsCaption, "IFS [Fern*]");
    EXPECT_EQ(wb.lblComment, "; A fern");
    EXPECT_EQ(CommentEditorText(wb.CurrentIFS), "A fern\ndrawn\nwith four\nmaps of\nthe plane");
}

TEST_F(Comments, TwentyLinesAreKeptAndTheRestDropped) {
    std::string text;
    for (int k = 1; k <= 25; ++k) text += "line " + std::to_string(k) + "\n";
    EXPECT_TRUE(ApplyCommentText(wb, text, OnePerChar, 40));
    EXPECT_EQ(wb.CurrentIFS.nComments, 20);
    EXPECT_EQ(wb.CurrentIFS.Comment[20], "; line 20");
    EXPECT_EQ(wb.ChangeCount, 1);
}

TEST_F(Comments, WrappedPiecesCountTowardsTheTwentyLines) {
    std::string text;
    for (int k = 1; k <= 15; ++k) text += "first" + std::to_string(k) + " second" + std::to_string(k) + "\n";
    EXPECT_TRUE(ApplyCommentText(wb, text, OnePerChar, 9));
    EXPECT_EQ(wb.CurrentIFS.nComments, 20);
    EXPECT_EQ(wb.CurrentIFS.Comment[19], "; first10");
    EXPECT_EQ(wb.CurrentIFS.Comment[20], "; second10");
}

TEST_F(Comments, TextOfNothingButLineEndsClearsTheComments) {
    ASSERT_TRUE(ApplyCommentText(wb, "something", OnePerChar, 40));
    EXPECT_TRUE(ApplyCommentText(wb, "\r\n\n", OnePerChar, 40));
    EXPECT_EQ(wb.CurrentIFS.nComments, 0);
    EXPECT_EQ(wb.CurrentIFS.Comment[1], "");
    EXPECT_EQ(wb.lblComment, "");
    EXPECT_EQ(wb.ChangeCount, 2);
}

TEST_F(Comments, TheSameTextAgainIsNoEdit) {
    wb.CurrentIFS.nComments = 1;
    wb.CurrentIFS.Comment[1] = "; kept as it is";
    EXPECT_FALSE(ApplyCommentText(wb, "kept as it is", OnePerChar, 5));
    EXPECT_EQ(wb.CurrentIFS.Comment[1], "; kept as it is");
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_FALSE(wb.IFSModified);
}

TEST_F(Comments, TheCommandShowsTheTextAndCancelChangesNothing) {
    wb.CurrentIFS.nComments = 1;
    wb.CurrentIFS.Comment[1] = "; old";
    std::string shown;
    EXPECT_FALSE(mnuCodeComment_Click(
        wb,
        [&](const std::string& text) {
            shown = text;
            return std::optional<std::string>();
        },
        OnePerChar, 40));
    EXPECT_EQ(shown, "old");
    EXPECT_EQ(wb.ChangeCount, 0);
    EXPECT_TRUE(mnuCodeComment_Click(
        wb, [](const std::string&) { return std::optional<std::string>("new"); }, OnePerChar, 40));
    EXPECT_EQ(storedComments(wb.CurrentIFS), Lines{"; new"});
}

TEST_F(Comments, StoredCommentsAreWrittenAsTheFileKeepsThem) {
    ASSERT_TRUE(ApplyCommentText(wb, "one two three", OnePerChar, 8));
    EXPECT_EQ(IFSBlockText(wb.CurrentIFS, 0, "  "), "Fern {; one two\n; three\n}\n\n");
}

}  // namespace
}  // namespace quillane
