// The replay runs the entry function without libFuzzer, whose mutator the custom mutator calls;
// a replay never mutates, so this one leaves the input as it is.
#include <cstddef>
#include <cstdint>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t*, std::size_t size, std::size_t) {
    return size;
}
