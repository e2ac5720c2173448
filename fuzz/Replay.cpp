// SPDX-License-Identifier: MIT

#include "Fuzz.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

/// Only some fuzzers define it.
extern "C" [[gnu::weak]] int LLVMFuzzerInitialize(int* argc, char*** argv);

// Runs a fuzzer's function once for every file of a folder:
//   NAME FOLDER
int main(int argc, char** argv) {
    std::error_code error;
    const std::filesystem::directory_iterator files(argc == 2 ? argv[1] : "", error);
    if (LLVMFuzzerInitialize)
        LLVMFuzzerInitialize(&argc, &argv);
    int inputs = 0;
    for (const auto& file : files) {
        std::ifstream stream(file.path(), std::ios::binary);
        const std::vector<char> input{std::istreambuf_iterator<char>(stream), {}};
        if (stream.bad())
            continue;
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.data()), input.size());
        ++inputs;
    }
    if (inputs == 0) {
        std::fprintf(stderr, "usage: %s FOLDER, which holds inputs\n", argv[0]);
        return 1;
    }
    return 0;
}
