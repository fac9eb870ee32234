#include "base/json.h"

#include <cmath>
#include <cstdlib>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace kalvo::base {
namespace {

TEST(JsonDocumentTest, ReadsEveryNumberAsTheDoubleNextToIt) {
    std::istringstream list(
        "0.1 9007199254740993.0 9007199254740995 2.2250738585072011e-308 18446744073709551616 "
        "0.500000000000000166533453693773481063544750213623046875 -9223372036854775809 "
        "-123456789012345678901234567890 0 -0 -0.0");
    const std::vector<std::string> texts{std::istream_iterator<std::string>(list), {}};
    // Beside nothing, and beside what makes the text be read once more, and strings like numbers.
    const std::string key = R"(\"-0 1234567890123456789012 \\)";
    for (const std::string& other : {std::string("{"), "{\"" + key + "\":1E+2,\"a\":1e999,"}) {
        for (const std::string& text : texts) {
            const double value = std::strtod(text.c_str(), nullptr);
            const auto document =
                JsonDocument::parse(other + "\"n\":" + text + "}", JsonDocument::Nesting::kLimited);
            ASSERT_TRUE(document) << text;
            const double number = document->root()["n"].get_double().value();
            EXPECT_EQ(number, value) << text;
            EXPECT_EQ(std::signbit(number), std::signbit(value)) << text;
            if (other.size() == 1) continue;
            EXPECT_EQ(document->root()["\"-0 1234567890123456789012 \\"].get_double().value(), 100);
            EXPECT_TRUE(document->root()["a"].is_null());
        }
    }
}

TEST(JsonDocumentTest, RefusesWhatIsNoNumber) {
    for (const char* number :
         {"01", "01e999", "-", "-a", "1.", "1.e5", "1e", "1e+", "1.5.2", "1-", "00e9999", "-00"}) {
        for (const char* other : {"2", "1e999", "-0"}) {
            const std::string text = std::string("[") + other + "," + number + "]";
            EXPECT_FALSE(JsonDocument::parse(text, JsonDocument::Nesting::kAny)) << text;
        }
    }
}

}  // namespace
}  // namespace kalvo::base
