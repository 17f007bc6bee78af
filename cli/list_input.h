#pragma once
// Reading the list a command works on, and taking one of its entries.
#include <string>

#include "cli/cli_host.h"

namespace quillane {
class Workbench;
}

namespace quillane::cli {

// Reads a list as the Open command does: a name ending in "chg" as chaos game definitions.
bool ReadList(Workbench& wb, CliHost& host, const std::string& file);

// Entry `entry` of the list read from `file` as the working IFS; a number beyond the list is
// reported with the list's own range.
bool TakeEntry(Workbench& wb, CliHost& host, const std::string& file, int entry);

}  // namespace quillane::cli
