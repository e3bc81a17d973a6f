// The entry point every fuzz target defines. Built with clang and libFuzzer it is driven by the
// fuzzer; built without, `replay_main.cpp` feeds it the files of the seed corpus and of the
// reproducers, so the normal test run keeps every input ever found passing.
#pragma once

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
