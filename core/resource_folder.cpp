#include "core/resource_folder.h"

#include <filesystem>

namespace quillane {

std::string ResourceFolder(const std::string& programDir) {
    namespace fs = std::filesystem;
    std::error_code ec;
    const fs::path beside(programDir);
    if (fs::exists(beside / "default.ifs", ec) || fs::exists(beside / "help", ec)) return programDir;
    const fs::path installed = beside.parent_path() / InstalledShareFolder;
    if (fs::exists(installed / "default.ifs", ec) || fs::exists(installed / "help", ec))
        return installed.string();
    return programDir;
}

}  // namespace quillane
