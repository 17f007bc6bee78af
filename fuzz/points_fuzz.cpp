// The line fractal points file reader.
#include "fuzz/fuzz_contract.h"
#include "fuzz/points_contract.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quillane;
    fuzz::require(contracts::checkPointsRead(fuzz::bytes(data, size)));
    return 0;
}
