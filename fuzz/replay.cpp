#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <vector>

#include "base/bundle.h"
#include "fuzz/fuzzing.h"

/// Runs a fuzzer's function over every file of the folders given, without libFuzzer: what the
/// fuzzer was given at the start, and what it found.
int main(int argc, char** argv) {
    int inputs = 0;
    for (int index = 1; index < argc; ++index) {
        for (const auto& entry : std::filesystem::directory_iterator(argv[index])) {
            const auto bytes = kalvo::base::readFile(entry.path());
            if (!bytes) return 1;
            std::printf("%s\n", entry.path().c_str());
            std::fflush(stdout);
            const std::vector<std::uint8_t> input(bytes->begin(), bytes->end());
            LLVMFuzzerTestOneInput(input.data(), input.size());
            ++inputs;
        }
    }
    return inputs > 0 ? 0 : 1;
}
