// The .ifs reader; the first byte also picks the entry the read starts after.
#include "fuzz/fuzz_contract.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quillane;
    fuzz::require(contracts::checkListRead(fuzz::bytes(data, size), false,
                                           size > 0 ? data[0] % (MaxFractals + 2) - 1 : 0));
    return 0;
}
