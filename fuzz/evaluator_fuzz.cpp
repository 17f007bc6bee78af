// The expression evaluator behind every numeric text box.
#include "fuzz/fuzz_contract.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quillane;
    fuzz::require(contracts::checkEvaluation(fuzz::bytes(data, size)));
    return 0;
}
