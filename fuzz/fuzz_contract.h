#pragma once
// A broken promise aborts, which libFuzzer reports as a finding with the input that caused it.
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "fuzz/reader_contracts.h"

namespace quillane::fuzz {

inline void require(const char* broken) {
    if (!broken) return;
    std::fprintf(stderr, "contract broken: %s\n", broken);
    std::abort();
}

inline std::string bytes(const uint8_t* data, size_t size) {
    return std::string(reinterpret_cast<const char*>(data), size);
}

}  // namespace quillane::fuzz
