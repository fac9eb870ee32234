#include "online/json_document.h"

#include <string>

#include <gtest/gtest.h>

namespace kalvo::online {
namespace {

TEST(JsonDocument, TakesAnObjectOnly) {
    EXPECT_TRUE(JsonDocument::parse("{}"));
    EXPECT_TRUE(JsonDocument::parse("\xEF\xBB\xBF {\"a\": []} "));
    const auto array = JsonDocument::parse("[{}]");
    ASSERT_FALSE(array);
    EXPECT_EQ(array.error(), (base::Error{"InvalidJSON", 500, ""}));
}

TEST(JsonDocument, RefusesWhatIsNoJson) {
    const std::string deep = std::string(100'000, '[') + std::string(100'000, ']');
    for (const std::string& body :
         {std::string(), std::string("<html></html>"), std::string("5"), std::string("\"text\""),
          std::string("null"), std::string("{\"a\": 1"), std::string("{\"a\": 1,}"),
          std::string("{\"a\": 007}"), std::string("{\"a\": 00000000000000000000007}"),
          std::string("{\"a\": \"\xFF\"}"), "{\"a\": " + deep + "}"}) {
        const auto document = JsonDocument::parse(body);
        ASSERT_FALSE(document) << body.substr(0, 40);
        EXPECT_EQ(document.error().domain, "JSON") << body.substr(0, 40);
        EXPECT_NE(document.error().message, "") << body.substr(0, 40);
    }
}

TEST(JsonDocument, ReadsNumbersInFullPrecision) {
    const struct {
        const char* text;
        double value;
    } kCases[] = {
        {"0.1", 0.1},
        {"9007199254740993.0", 9007199254740992.0},
        {"9007199254740995", 9007199254740996.0},
        {"2.2250738585072011e-308", 2.2250738585072011e-308},
        {"0.500000000000000166533453693773481063544750213623046875",
         0.500000000000000166533453693773481063544750213623046875},
        {"-9223372036854775809", -9223372036854775808.0},
        {"100000000000000000000", 1e20},
        {"-123456789012345678901234567890", -123456789012345678901234567890.0},
    };
    for (const auto& [text, value] : kCases) {
        const auto document = JsonDocument::parse(
            std::string(R"({"\"1234567890123456789012": 1E+2, "n": )") + text + "}");
        ASSERT_TRUE(document) << text;
        EXPECT_EQ(numberMember(document->root(), "n"), value) << text;
        EXPECT_EQ(numberMember(document->root(), "\"1234567890123456789012"), 100) << text;
    }
}

}  // namespace
}  // namespace kalvo::online
