#include "fuzz/RunTarget.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    // Not a copy, which would have a null character behind its end.
    Fuzz::runTarget(
        VRN_FUZZ_TARGET,
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    return 0;
}
