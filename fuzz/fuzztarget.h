#pragma once

#include <cstddef>
#include <cstdint>

// What a fuzzer, or the replay, calls: once at start, then once for every input.
extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);
