// The .gon polygon reader.
#include "fuzz/fuzz_contract.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quillane;
    fuzz::require(contracts::checkPolygonRead(fuzz::bytes(data, size)));
    return 0;
}
