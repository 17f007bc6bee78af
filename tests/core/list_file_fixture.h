#pragma once
// Scratch folders and list files for the file tests, and a workbench with a known list.
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <vector>

#include "core/fractal_list.h"
#include "core/scripted_host.h"
#include "core/workbench.h"

namespace quillane {

inline void PrintTo(const ShownMessage& m, std::ostream* os) {
    *os << "{\"" << m.title << "\", \"" << m.text << "\"}";
}

}  // namespace quillane

namespace quillane::testing {

using Messages = std::vector<ShownMessage>;

// A fresh folder under the system's temporary folder, removed with everything in it at the end.
class TempDir {
  public:
    TempDir() {
        std::string pattern = (std::filesystem::temp_directory_path() / "quillane-test-XXXXXX").string();
        std::vector<char> buf(pattern.begin(), pattern.end());
        buf.push_back('\0');
        const char* made = mkdtemp(buf.data());
        EXPECT_NE(made, nullptr);
        path_ = made ? made : "";
    }
    ~TempDir() {
        std::error_code ec;
        if (!path_.empty()) std::filesystem::remove_all(path_, ec);
    }
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    std::string path(const std::string& name) const { return (std::filesystem::path(path_) / name).string(); }

    // Writes bytes as they are: no line end is translated.
    std::string write(const std::string& name, const std::string& bytes) const {
        const std::string p = path(name);
        std::ofstream out(p, std::ios::binary);
        out << bytes;
        return p;
    }

    static std::string read(const std::string& p) {
        std::ifstream in(p, std::ios::binary);
        return std::string((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    }

  private:
    std::string path_;
};

// An entry with n maps whose coefficients tell the maps apart.
inline IFSEntry numberedEntry(const std::string& name, int n) {
    IFSEntry e = DefaultIFS();
    e.Name = name;
    e.nMaps = static_cast<int16_t>(n);
    e.HasChaosGame = False16;
    for (int i = 0; i < n; ++i) {
        e.a[i] = 0.5f;
        e.b[i] = 0.01f * static_cast<float>(i);
        e.c[i] = -0.02f * static_cast<float>(i);
        e.d[i] = 0.25f;
        e.e[i] = static_cast<float>(i);
        e.f[i] = -static_cast<float>(i);
        e.p[i] = 1.0f / static_cast<float>(n);
    }
    return e;
}

// Puts entries into the list and its menu, as a read would.
inline void setList(Workbench& wb, const std::vector<IFSEntry>& entries) {
    ClearIFSMenu(wb);
    for (size_t k = 0; k < entries.size(); ++k) wb.FractalList[k + 1] = entries[k];
    SetIFSMenu(wb, static_cast<int>(entries.size()), 0);
}

inline std::vector<std::string> listNames(const Workbench& wb) {
    std::vector<std::string> names;
    for (int n = 1; n <= wb.ListCount(); ++n) names.push_back(wb.FractalList[n].Name);
    return names;
}

inline std::vector<std::string> menuNames(const Workbench& wb) {
    std::vector<std::string> names;
    for (int n = 1; n <= wb.ListCount(); ++n) names.push_back(wb.menu(EntryKey(n)).caption);
    return names;
}

}  // namespace quillane::testing
