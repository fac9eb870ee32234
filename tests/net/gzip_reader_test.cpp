#include "net/gzip_reader.h"

#include <gtest/gtest.h>

#include "tests/support/gzip.h"

namespace kalvo::net {
namespace {

TEST(GzipReaderTest, StopsAtTheLimit) {
    constexpr std::size_t kLimit = 1000;
    GzipReader reader;
    std::string text;
    EXPECT_EQ(reader.read(tests::gzip(std::string(10'000'000, 'x')), text, kLimit),
              GzipReader::Result::kTooLong);
    EXPECT_LT(text.size(), 20 * kLimit);
}

}  // namespace
}  // namespace kalvo::net
