// The GIF block reader, the LZW decoder and the frame composer of the movie viewer.
#include "fuzz/fuzz_contract.h"
#include "fuzz/gif_contract.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    using namespace quillane;
    fuzz::require(contracts::checkGifRead(fuzz::bytes(data, size)));
    return 0;
}
