#include "online/json_document.h"

#include <string>

#include <gtest/gtest.h>

namespace kalvo::online {
namespace {

TEST(JsonDocumentTest, RefusesWhatIsNoJson) {
    const std::string deep = std::string(100'000, '[') + std::string(100'000, ']');
    for (const std::string& body :
         {std::string(), std::string("<html></html>"), std::string("5"), std::string("\"text\""),
          std::string("null"), std::string("{\"a\": 1"), std::string("{\"a\": 1,}"),
          std::string("{\"a\": \"\xFF\"}"), "{\"a\": " + deep + "}"}) {
        const auto document = JsonDocument::parse(body);
        ASSERT_FALSE(document) << body.substr(0, 40);
        EXPECT_EQ(document.error().domain, "JSON") << body.substr(0, 40);
        EXPECT_NE(document.error().message, "") << body.substr(0, 40);
    }
}

}  // namespace
}  // namespace kalvo::online
