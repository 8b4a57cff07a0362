#include "fuzz/targets.h"

#include <cstddef>
#include <cstdint>

// The entry of a fuzzer; KURBO_FUZZED is the target that it drives.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    kurbo::test::KURBO_FUZZED(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)));
    return 0;
}
