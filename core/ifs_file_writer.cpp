#include "core/ifs_file_writer.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <optional>

#include "core/fractal_list.h"
#include "core/host.h"
#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane {

namespace {

const char* const SaveIFSTitle = "Save IFS file";
const char* const SaveChaosTitle = "Save Chaos Game file";
const FileFilter IFSFilter{"IFS text files (*.ifs)", "*.ifs"};
const FileFilter ChaosFilter{"Chaos Game text files (*.chg)", "*.chg"};

bool endsWith(const std::string& s, const std::string& tail) {
    return s.size() >= tail.size() && s.compare(s.size() - tail.size(), tail.size(), tail) == 0;
}

std::string bareName(const std::string& path) {
    const size_t slash = path.find_last_of("\\/");
    return slash == std::string::npos ? path : path.substr(slash + 1);
}

// A list written in the other format's name gets this format's last three letters.
std::string swapEnding(const std::string& name, const std::string& from, const std::string& to) {
    return endsWith(name, from) ? name.substr(0, name.size() - from.size()) + to : name;
}

std::string withExtension(const std::string& name, const std::string& extension) {
    return endsWith(ToLower(name), extension) ? name : name + extension;
}

int rowCount(int n) {
    return std::clamp(n, 0, MaxMaps);
}

bool entryEnabled(const Workbench& wb, int n) {
    return wb.menu(EntryKey(n)).enabled;
}

int enabledEntries(const Workbench& wb) {
    int count = 0;
    for (int n = 1; n <= wb.ListCount(); ++n)
        if (entryEnabled(wb, n)) ++count;
    return count;
}

std::string headText(const IFSEntry& ifs) {
    std::string s = Trim(ifs.Name) + " {";
    if (ifs.nComments >= 1) s += RTrim(ifs.Comment[1]);
    s += "\n";
    const int last = std::min<int>(ifs.nComments, MaxComments);
    for (int k = 2; k <= last; ++k) s += RTrim(ifs.Comment[k]) + "\n";
    return s;
}

// The chaos game writers refresh Prob from p before writing.
void copyProbabilities(IFSEntry& ifs, int rows) {
    for (int i = 0; i < rows; ++i) ifs.Prob[i] = ifs.p[i];
}

FileDialogRequest saveRequest(const std::string& title, const FileFilter& filter, const std::string& name) {
    return {title, {filter}, name, title == SaveIFSTitle ? "SaveIFS" : "SaveChaos"};
}

std::optional<std::string> askName(Host& host, const FileDialogRequest& request) {
    auto name = host.saveFileName(request);
    if (!name || name->empty()) return std::nullopt;
    return name;
}

// The checks every list writer makes first; false after telling the person why.
bool listCanBeSaved(const Workbench& wb, Host& host, const std::string& FileName, bool chaosCheck,
                    const std::string& chaosTitle) {
    if (FileName.empty()) {
        host.warn("IFS", "No IFS file loaded");
        return false;
    }
    if (wb.ListCount() == 0) {
        host.warn("Warning", "The fractal list is empty.");
        return false;
    }
    if (chaosCheck && enabledEntries(wb) == 0) {
        host.warn(chaosTitle, "There are no Chaos Game definitions to save.");
        return false;
    }
    return true;
}

std::optional<std::string> writeIFSList(Workbench& wb, Host& host, const std::string& FileName) {
    if (!listCanBeSaved(wb, host, FileName, wb.DesignMode == 1, "Warning")) return std::nullopt;
    const std::string file = swapEnding(FileName, "chg", "ifs");
    if (!WriteTextFileReplacing(file, IFSListText(wb))) return std::nullopt;
    return file;
}

std::optional<std::string> writeChaosList(Workbench& wb, Host& host, const std::string& FileName) {
    if (!listCanBeSaved(wb, host, FileName, true, "Error")) return std::nullopt;
    const std::string file = swapEnding(FileName, "ifs", "chg");
    for (int n = 1; n <= wb.ListCount(); ++n)
        if (entryEnabled(wb, n)) copyProbabilities(wb.FractalList[n], rowCount(wb.FractalList[n].nMaps));
    if (!WriteTextFileReplacing(file, ChaosListText(wb))) return std::nullopt;
    return file;
}

bool saveListAs(Workbench& wb, Host& host, const FileDialogRequest& request, const std::string& extension,
                bool chaos) {
    if (wb.ListCount() == 0) {
        host.warn("Warning", "The fractal list is empty");
        return false;
    }
    auto name = askName(host, request);
    if (!name) return false;
    const std::string file = withExtension(*name, extension);
    auto written = chaos ? writeChaosList(wb, host, file) : writeIFSList(wb, host, file);
    if (!written) return false;
    wb.IFSFileName = *written;
    wb.FrameCaption = "Quillane - " + bareName(*written);
    return true;
}

bool saveCurrent(Workbench& wb, Host& host, bool chaos) {
    const std::string extension = chaos ? ".chg" : ".ifs";
    const std::string preset = Trim(wb.CurrentIFS.Name) + extension;
    auto name = askName(host, chaos ? saveRequest(SaveChaosTitle, ChaosFilter, preset)
                                    : saveRequest(SaveIFSTitle, IFSFilter, preset));
    if (!name) return false;
    // The table's count is what is saved, not nMaps.
    const int rows = rowCount(wb.mapsFromText());
    if (chaos) copyProbabilities(wb.CurrentIFS, rows);
    const std::string text =
        chaos ? ChaosBlockText(wb.CurrentIFS, rows, "") : IFSBlockText(wb.CurrentIFS, rows, "");
    if (!WriteTextFileReplacing(withExtension(*name, extension), text)) return false;
    wb.FunctionsCaption = "IFS [" + Trim(wb.CurrentIFS.Name) + "]";
    return true;
}

}  // namespace

std::string CoefficientText(float v) {
    return v < 0 ? Format(v, "0.000000 ") : Format(v, " 0.000000 ");
}

std::string IFSRowText(const IFSEntry& ifs, int i, const std::string& lead) {
    std::string row = lead;
    for (const MapArray* field : {&ifs.a, &ifs.b, &ifs.c, &ifs.d, &ifs.e, &ifs.f})
        row += CoefficientText((*field)[i]);
    if (ifs.p[i] > 0) row += Format(ifs.p[i], " 0.000000");
    return row;
}

std::string ChaosRowText(const IFSEntry& ifs, int i, const std::string& lead) {
    std::string row = lead;
    for (int k = 1; k <= 4; ++k) row += ifs.Step[k][i];
    row += " ";
    for (const MapArray* field : {&ifs.Scale, &ifs.Angle, &ifs.Prob, &ifs.FPx, &ifs.FPy})
        row += CoefficientText((*field)[i]);
    return row;
}

std::string IFSBlockText(const IFSEntry& ifs, int rows, const std::string& lead) {
    std::string s = headText(ifs);
    for (int i = 0; i < rowCount(rows); ++i) s += IFSRowText(ifs, i, lead) + "\n";
    return s + "}\n\n";
}

std::string ChaosBlockText(const IFSEntry& ifs, int rows, const std::string& lead) {
    std::string s = headText(ifs);
    for (int i = 0; i < rowCount(rows); ++i) s += ChaosRowText(ifs, i, lead) + "\n";
    return s + "}\n\n";
}

std::string IFSListText(const Workbench& wb) {
    std::string s;
    for (int n = 1; n <= wb.ListCount(); ++n)
        s += IFSBlockText(wb.FractalList[n], wb.FractalList[n].nMaps, "  ");
    return s;
}

std::string ChaosListText(const Workbench& wb) {
    std::string s;
    for (int n = 1; n <= wb.ListCount(); ++n)
        if (entryEnabled(wb, n)) s += ChaosBlockText(wb.FractalList[n], wb.FractalList[n].nMaps, "  ");
    return s;
}

bool WriteTextFileReplacing(const std::string& path, const std::string& text) {
    namespace fs = std::filesystem;
    const fs::path target(path);
    if (target.filename().empty()) return false;
    fs::path temp = target.parent_path() / ("." + target.filename().string() + ".tmp");
    std::error_code ec;
    {
        std::ofstream out(temp, std::ios::binary | std::ios::trunc);
        if (!out) return false;
        out.write(text.data(), static_cast<std::streamsize>(text.size()));
        out.close();
        if (!out) {
            fs::remove(temp, ec);
            return false;
        }
    }
    fs::rename(temp, target, ec);
    if (ec) {
        std::error_code ignored;
        fs::remove(temp, ignored);
        return false;
    }
    return true;
}

bool SaveIFSList(Workbench& wb, Host& host, const std::string& FileName) {
    return writeIFSList(wb, host, FileName).has_value();
}

bool SaveChaosList(Workbench& wb, Host& host, const std::string& FileName) {
    return writeChaosList(wb, host, FileName).has_value();
}

bool SaveListAs(Workbench& wb, Host& host) {
    const bool chaos = wb.DesignMode == 1;
    const FileDialogRequest request =
        chaos ? saveRequest(SaveChaosTitle, ChaosFilter, "") : saveRequest(SaveIFSTitle, IFSFilter, "");
    return saveListAs(wb, host, request, chaos ? ".chg" : ".ifs", chaos);
}

// Its dialog filter and extension are those of .ifs, while the chaos writer then turns a final
// "ifs" into "chg".
bool SaveChaosListAs(Workbench& wb, Host& host) {
    return saveListAs(wb, host, saveRequest(SaveChaosTitle, IFSFilter, ""), ".ifs", true);
}

bool SaveCurrentIFSFile(Workbench& wb, Host& host) {
    return saveCurrent(wb, host, false);
}

bool SaveCurrentChaosFile(Workbench& wb, Host& host) {
    return saveCurrent(wb, host, true);
}

}  // namespace quillane
