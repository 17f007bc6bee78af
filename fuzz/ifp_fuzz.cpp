// The .ifp palette reader.
#include "fuzz/fuzz_contract.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quillane;
    fuzz::require(contracts::checkPaletteRead(fuzz::bytes(data, size), true));
    return 0;
}
