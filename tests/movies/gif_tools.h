#pragma once
// Helpers of the movie tests: a fresh folder, an independent GIF tool and its answers.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace quillane::testing {

namespace fs = std::filesystem;

inline fs::path freshFolder(const std::string& name) {
    const fs::path dir = fs::temp_directory_path() / ("quillane-movies-" + name);
    fs::remove_all(dir);
    fs::create_directories(dir);
    return dir;
}

// The standard output of a shell command.
inline std::string run(const std::string& command) {
    std::string out;
    FILE* p = popen(command.c_str(), "r");
    if (!p) return out;
    char buf[4096];
    size_t n;
    while ((n = fread(buf, 1, sizeof buf, p)) > 0) out.append(buf, n);
    pclose(p);
    return out;
}

inline std::vector<uint8_t> readBytes(const fs::path& file) {
    std::ifstream in(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline void writeBytes(const fs::path& file, const std::vector<uint8_t>& bytes) {
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

// The per-frame delays in centiseconds as the independent reader sees them, one per line.
inline std::vector<int> identifyDelays(const fs::path& gif) {
    std::vector<int> delays;
    const std::string out = run("identify -format '%T\\n' '" + gif.string() + "' 2>/dev/null");
    size_t start = 0;
    for (size_t end; (end = out.find('\n', start)) != std::string::npos; start = end + 1)
        delays.push_back(std::stoi(out.substr(start, end - start)));
    return delays;
}

// The loop count the independent reader gives the file ("Iterations:"), or -1.
inline int identifyIterations(const fs::path& gif) {
    const std::string out = run("identify -verbose '" + gif.string() + "[0]' 2>/dev/null");
    const size_t at = out.find("Iterations:");
    if (at == std::string::npos) return -1;
    return std::stoi(out.substr(at + 11));
}

}  // namespace quillane::testing
