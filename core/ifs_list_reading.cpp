#include "core/ifs_list_reading.h"

#include <cfloat>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <utility>
#include <vector>

#include "core/chaos_game.h"
#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

namespace {

using List = std::vector<IFSEntry>;

// Every failure of the read loop unwinds to one handler, which reports it by kind.
struct ReadError {
    ReadFault fault;
};

[[noreturn]] void fail(ReadFault fault) {
    throw ReadError{fault};
}

// LF, CR LF and a lone CR all end a line. A line end at the very end of the text is not
// followed by another, empty line.
class LineSource {
  public:
    explicit LineSource(std::string_view text) : text_(text) {}
    bool eof() const { return pos_ >= text_.size(); }

    // Reading past the end is a fault, as when the file ends inside a block.
    std::string next() {
        if (eof()) fail(ReadFault::Format);
        const size_t end = text_.find_first_of("\r\n", pos_);
        if (end == std::string_view::npos) {
            std::string line(text_.substr(pos_));
            pos_ = text_.size();
            return line;
        }
        std::string line(text_.substr(pos_, end - pos_));
        pos_ = end + 1;
        if (text_[end] == '\r' && pos_ < text_.size() && text_[pos_] == '\n') ++pos_;
        return line;
    }

  private:
    std::string_view text_;
    size_t pos_ = 0;
};

// A value beyond the range of a 32-bit float cannot be stored: that row is at fault.
float toSingle(double v) {
    if (!(std::fabs(v) <= FLT_MAX)) fail(ReadFault::Format);
    return static_cast<float>(v);
}

// The text before the first blank is the field; what follows, trimmed, is the rest of the row.
float takeField(std::string& line) {
    const size_t blank = line.find(' ');
    if (blank == std::string::npos) fail(ReadFault::Format);
    const float v = toSingle(Val(std::string_view(line).substr(0, blank)));
    line = Trim(std::string_view(line).substr(blank + 1));
    return v;
}

bool holds(const std::string& line, char ch) {
    return line.find(ch) != std::string::npos;
}

void readIFSRow(std::string line, IFSEntry& entry, int i, bool missingPIsZero, double& sum) {
    entry.a[i] = takeField(line);
    entry.b[i] = takeField(line);
    entry.c[i] = takeField(line);
    entry.d[i] = takeField(line);
    entry.e[i] = takeField(line);
    const size_t blank = line.find(' ');
    if (blank == std::string::npos) {
        entry.f[i] = toSingle(Val(line));
        if (missingPIsZero) entry.p[i] = 0;
    } else {
        entry.f[i] = toSingle(Val(std::string_view(line).substr(0, blank)));
        // Further fields run together with p, as Val skips blanks.
        entry.p[i] = toSingle(Val(std::string_view(line).substr(blank + 1)));
    }
    sum += entry.p[i];
}

void readChaosRow(std::string line, IFSEntry& entry, int i, double& sum) {
    const size_t blank = line.find(' ');
    if (blank == std::string::npos) fail(ReadFault::Format);
    const std::string letters = line.substr(0, blank);
    line = Trim(std::string_view(line).substr(blank + 1));
    // Steps beyond the letters keep what the slot held; a fifth letter has no slot.
    for (size_t k = 1; k <= letters.size(); ++k) {
        if (k > 4) fail(ReadFault::Subscript);
        entry.Step[k][i] = letters.substr(k - 1, 1);
    }
    entry.Scale[i] = takeField(line);
    entry.Angle[i] = takeField(line);
    entry.Prob[i] = takeField(line);
    entry.FPx[i] = takeField(line);
    entry.FPy[i] = toSingle(Val(line));
    entry.p[i] = entry.Prob[i];
    sum += entry.p[i];
    entry.HasChaosGame = True16;
}

// Name and Comment(1) from the head line; returns the comment counter.
int readHead(const std::string& line, IFSEntry& entry) {
    const size_t brace = line.find('{');
    entry.nComments = 0;
    entry.Name = Trim(std::string_view(line).substr(0, brace));
    entry.Comment[1] = Trim(std::string_view(line).substr(brace + 1)).substr(0, CommentCut);
    return entry.Comment[1].empty() ? 0 : 1;
}

// Comment lines keep their own ";" and leading blanks; from the 21st on they are dropped.
// Returns the first line that is not a comment.
std::string readComments(LineSource& src, IFSEntry& entry, int counter) {
    std::string line = src.next();
    for (std::string t = Trim(line); t.empty() || t[0] == ';'; t = Trim(line)) {
        if (!t.empty() && counter < MaxComments) entry.Comment[++counter] = line.substr(0, CommentCut);
        line = src.next();
    }
    if (counter > 0) entry.nComments = static_cast<int16_t>(counter);
    return line;
}

// Reads rows up to the line holding "}"; returns the number of rows.
int readRows(LineSource& src, std::string line, IFSEntry& entry, const ListReadOptions& options,
             double& sum) {
    line = Trim(line);
    int row = -1;
    while (!holds(line, '}')) {
        const size_t semicolon = line.find(';');
        if (semicolon != std::string::npos) line.resize(semicolon);
        for (char& ch : line)
            if (ch == '\t' || ch == ',') ch = ' ';
        ++row;
        // The format carries no row count; a block longer than the program's limit is at fault
        // rather than allowed to run past the slots.
        if (row >= MaxMaps) fail(ReadFault::Format);
        if (options.rows == RowKind::IFS)
            readIFSRow(line, entry, row, options.missingPIsZero, sum);
        else
            readChaosRow(line, entry, row, sum);
        line = Trim(src.next());
    }
    return row + 1;
}

// The recipe commands work on CurrentIFS, so the entry goes through it; the working IFS is put
// back afterwards, so that appending a file never replaces what is being edited.
void convertChaosEntry(Workbench& wb, IFSEntry& entry) {
    IFSEntry working = std::move(wb.CurrentIFS);
    const std::string label = wb.lblProbSum;
    wb.CurrentIFS = entry;
    for (int i = 0; i < wb.CurrentIFS.nMaps; ++i) CGMatrix(wb, i);
    entry = std::move(wb.CurrentIFS);
    wb.CurrentIFS = std::move(working);
    wb.lblProbSum = label;
}

void finishEntry(Workbench& wb, IFSEntry& entry, double sum, const ListReadOptions& options) {
    if (options.equalProbabilities && sum == 0) {
        const float q = static_cast<float>(Round(1.0 / entry.nMaps, 6));
        for (int i = 0; i < entry.nMaps; ++i) entry.p[i] = q;
    }
    if (options.chaosEntries) convertChaosEntry(wb, entry);
}

// Skips to the head line of the next block. False when the file ended on the search, even on a
// line holding "{": a block needs at least one line after its head.
bool findHead(LineSource& src, std::string& line) {
    do {
        line = src.next();
    } while (!holds(line, '{') && !src.eof());
    return !src.eof();
}

bool anotherBlock(LineSource& src) {
    while (!src.eof())
        if (holds(src.next(), '{')) return true;
    return false;
}

void readBlocks(Workbench& wb, List& list, LineSource& src, int Start, const ListReadOptions& options,
                ListReadResult& r) {
    if (Start < 0 || Start > MaxFractals) fail(ReadFault::Subscript);
    while (!src.eof() && r.n < MaxFractals) {
        ++r.n;
        std::string line;
        if (!findHead(src, line)) break;
        IFSEntry& entry = list[r.n];
        const int counter = readHead(line, entry);
        r.inBlock = true;
        r.faultName = entry.Name;
        double sum = 0;
        const int rows = readRows(src, readComments(src, entry, counter), entry, options, sum);
        r.inBlock = false;
        if (rows == 0) {
            --r.n;  // an empty block vanishes without a word; the next one takes its number
            continue;
        }
        entry.nMaps = static_cast<int16_t>(rows);
        ++r.Loaded;
        finishEntry(wb, entry, sum, options);
    }
    if (!src.eof() && r.n == MaxFractals) r.moreBlocks = anotherBlock(src);
}

}  // namespace

ListReadResult ReadListText(Workbench& wb, std::string_view text, int Start, const ListReadOptions& options) {
    ListReadResult r;
    r.n = Start;
    LineSource src(text);
    // Blocks are read into a copy, so that a block at fault never leaves its traces in an entry
    // that stays listed; the entries read whole are put into the list at the end.
    List list = wb.FractalList;
    try {
        readBlocks(wb, list, src, Start, options, r);
        r.faultName.clear();
    } catch (const ReadError& e) {
        r.fault = e.fault;
    }
    for (int n = Start + 1; n <= Start + r.Loaded; ++n) wb.FractalList[n] = std::move(list[n]);
    return r;
}

ListReadResult ReadListFile(Workbench& wb, const std::string& FileName, int Start,
                            const ListReadOptions& options) {
    ListReadResult r;
    r.n = Start;
    std::error_code ec;
    const auto status = std::filesystem::status(FileName, ec);
    if (!std::filesystem::exists(status)) {
        r.fault = ReadFault::NotFound;
        return r;
    }
    std::ifstream in(FileName, std::ios::binary);
    if (!std::filesystem::is_regular_file(status) || !in) {
        r.fault = ReadFault::Open;
        return r;
    }
    const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    if (in.bad()) {
        r.fault = ReadFault::Open;
        return r;
    }
    return ReadListText(wb, text, Start, options);
}

}  // namespace quillane
