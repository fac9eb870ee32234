#include "net/gzip_reader.h"

#include <gtest/gtest.h>

#include "tests/support/gzip.h"

namespace kalvo::net {
namespace {

constexpr std::size_t kLimit = 1000;

struct Outcome {
    GzipReader::Result result;
    bool isComplete;
    std::string text;
    friend bool operator==(const Outcome&, const Outcome&) = default;
};

/// What comes of a stream that arrives in pieces of this size.
Outcome read(std::string_view stream, std::size_t piece) {
    GzipReader reader;
    Outcome outcome{GzipReader::Result::kFine, false, ""};
    while (!stream.empty() && outcome.result == GzipReader::Result::kFine) {
        outcome.result = reader.read(stream.substr(0, piece), outcome.text, kLimit);
        stream.remove_prefix(std::min(piece, stream.size()));
    }
    outcome.isComplete = reader.isComplete();
    return outcome;
}

TEST(GzipReader, UnpacksOneWholeStreamAndNothingElse) {
    using enum GzipReader::Result;
    const std::string text = "one fish, two fish, red fish, blue fish";
    const std::string packed = tests::gzip(text);
    std::string damaged = packed;
    damaged[packed.size() - 8] ^= 1;  // the checksum
    for (const std::size_t piece : {std::size_t{1}, packed.size() + 10}) {
        EXPECT_EQ(read(packed, piece), (Outcome{kFine, true, text}));
        EXPECT_EQ(read(packed.substr(0, packed.size() - 1), piece), (Outcome{kFine, false, text}));
        EXPECT_EQ(read(packed + "x", piece), (Outcome{kCorrupt, true, text}));
        EXPECT_EQ(read(damaged, piece).result, kCorrupt);
        EXPECT_EQ(read("<html></html>", piece), (Outcome{kCorrupt, false, ""}));
    }
}

TEST(GzipReader, StopsAtTheLimit) {
    using enum GzipReader::Result;
    EXPECT_EQ(read(tests::gzip(std::string(kLimit, 'x')), 7).result, kFine);
    EXPECT_EQ(read(tests::gzip(std::string(kLimit + 1, 'x')), 7).result, kTooLong);
    const Outcome bomb = read(tests::gzip(std::string(10'000'000, 'x')), 1'000'000);
    EXPECT_EQ(bomb.result, kTooLong);
    EXPECT_LT(bomb.text.size(), 20 * kLimit);
}

}  // namespace
}  // namespace kalvo::net
