#include "cli/list_input.h"

#include <iostream>

#include "app/ifs_file_reader.h"
#include "core/fractal_list.h"
#include "core/numbers.h"
#include "core/workbench.h"

namespace quillane::cli {

bool ReadList(Workbench& wb, CliHost& host, const std::string& file) {
    const std::string lower = ToLower(file);
    const bool chaos = lower.size() >= 3 && lower.compare(lower.size() - 3, 3, "chg") == 0;
    const bool loaded = chaos ? OpenChaosFile(wb, host, 0, file) : OpenIFSFile(wb, host, 0, file);
    return loaded && host.warnings == 0;
}

bool TakeEntry(Workbench& wb, CliHost& host, const std::string& file, int entry) {
    if (entry > wb.ListCount()) {
        std::cerr << "--entry must be from 1 to " << wb.ListCount() << ": " << file << " has "
                  << wb.ListCount() << (wb.ListCount() == 1 ? " entry" : " entries") << "\n";
        return false;
    }
    return TakeListEntry(wb, host, entry);
}

}  // namespace quillane::cli
