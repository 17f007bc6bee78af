#pragma once
// Where the default lists and the help stand: beside the program (a build folder, or a folder the
// program was copied into), else in the share folder of an installation, next to its bin folder.
#include <string>

namespace quillane {

inline constexpr const char* InstalledShareFolder = "share/quillane";

// The folder of the default lists and of the help folder for a program in programDir.
std::string ResourceFolder(const std::string& programDir);

}  // namespace quillane
