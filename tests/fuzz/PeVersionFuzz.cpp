// libFuzzer entry point for the version-resource parser: any input must return without a
// crash, a hang or a read outside the buffer.
#include "PeVersionParser.h"
#include "cFileVersionInfo.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const qs::PeVersionBlock block = qs::PeVersionParser::Parse(data, size);
    const qs::cFileVersionInfo info = qs::cFileVersionInfo::FromBlock(block);
    // Touch what the parser handed back, so a bad string reaches the sanitizer.
    std::size_t total = 0;
    for (int i = 0; i < qs::cFileVersionInfo::kEntryCount; ++i)
        total += std::size_t(info.EntryValue(i).size());
    return total == std::size_t(-1) ? 1 : 0;
}
