#pragma once
// The block grammar shared by the .ifs and .chg readers: named blocks in braces, comment lines,
// one row per function. Entry n is read over what list slot n holds, so that what a block does not
// set (steps beyond its letters, HasChaosGame of an .ifs block) stays as the slot held it.
#include <string>
#include <string_view>

namespace quillane {

class Workbench;

enum class RowKind { IFS, Chaos };

// What stopped a read: a slot index out of range, a missing file, a fault of the format or of
// the block being read, or a file that could not be opened or read for another reason.
enum class ReadFault { None, Subscript, NotFound, Format, Open };

struct ListReadOptions {
    RowKind rows = RowKind::IFS;
    // A row without p sets p to 0; the start routine's reader leaves p as it stood.
    bool missingPIsZero = true;
    // Blocks without any p get 1/n each; the chaos game menu reader skips this.
    bool equalProbabilities = true;
    // Each block's recipe is turned into coefficients and proportional probabilities.
    bool chaosEntries = false;
};

struct ListReadResult {
    ReadFault fault = ReadFault::None;
    int n = 0;                // the running entry number where reading stopped
    int Loaded = 0;           // valid blocks, entries Start + 1 to Start + Loaded
    bool inBlock = false;     // the fault happened inside a block
    std::string faultName;    // the trimmed name of that block
    bool moreBlocks = false;  // the list was full and the file holds another block
};

inline constexpr int CommentCut = 89;

// Reads the blocks of text as entries Start + 1 on. Only the Loaded entries read whole change the
// list; a block at fault leaves its slot as it was.
ListReadResult ReadListText(Workbench& wb, std::string_view text, int Start, const ListReadOptions& options);

// Opens FileName whole (8-bit text) and reads it as above.
ListReadResult ReadListFile(Workbench& wb, const std::string& FileName, int Start,
                            const ListReadOptions& options);

}  // namespace quillane
