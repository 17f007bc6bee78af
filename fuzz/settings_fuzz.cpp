// The settings file reader.
#include "fuzz/fuzz_contract.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quillane;
    fuzz::require(contracts::checkSettingsRead(fuzz::bytes(data, size)));
    return 0;
}
