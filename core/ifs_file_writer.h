#pragma once
// Writing the fractal list and the current IFS as .ifs and .chg text, in the fixed layout of six
// decimals. A write goes to a temporary file beside the target, renamed over it at the end.
#include <string>

#include "core/ifs_entry.h"

namespace quillane {

class Host;
class Workbench;

// " 0.500000 " for values that are not negative, "-0.500000 " for negative ones.
std::string CoefficientText(float v);
// One row; `lead` is "  " for the list writers and empty for Save Current.
std::string IFSRowText(const IFSEntry& ifs, int i, const std::string& lead);
std::string ChaosRowText(const IFSEntry& ifs, int i, const std::string& lead);
// A whole block: head line with Comment(1), comment lines, rows 0 to rows - 1, "}", empty line.
std::string IFSBlockText(const IFSEntry& ifs, int rows, const std::string& lead);
std::string ChaosBlockText(const IFSEntry& ifs, int rows, const std::string& lead);
// All entries of the list; the chaos game list only the entries whose menu item is enabled.
std::string IFSListText(const Workbench& wb);
std::string ChaosListText(const Workbench& wb);

// Writes text to a temporary file beside path and renames it over path. False on any failure,
// which leaves an existing file as it was.
bool WriteTextFileReplacing(const std::string& path, const std::string& text);

bool SaveIFSList(Workbench& wb, Host& host, const std::string& FileName);
bool SaveChaosList(Workbench& wb, Host& host, const std::string& FileName);
bool SaveListAs(Workbench& wb, Host& host);
bool SaveChaosListAs(Workbench& wb, Host& host);
bool SaveCurrentIFSFile(Workbench& wb, Host& host);
bool SaveCurrentChaosFile(Workbench& wb, Host& host);

}  // namespace quillane
