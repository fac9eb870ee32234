#include "online/place_name_decoder.h"

#include <gtest/gtest.h>

namespace kalvo::online {
namespace {

TEST(PlaceNameDecoder, TakesTheMostSpecificSettlement) {
    const struct {
        const char* body;
        std::optional<std::string> name;
    } kCases[] = {
        {R"({"address": {"state": "Lazio", "town": "Tivoli", "country": "Italia"}})", "Tivoli"},
        {R"({"address": {"hamlet": "Case", "village": "Borgo"}})", "Borgo"},
        {R"({"address": {"hamlet": "Case", "state": "Lazio"}})", "Case"},
        {R"({"address": {"state": "Lazio"}})", "Lazio"},
        {R"({"address": {"city": 5, "town": "Tivoli"}})", "Tivoli"},
        {R"({"address": {"city": "", "town": "Tivoli"}})", ""},
        {R"({"address": {"city": "Forl\u00EC"}})", "Forlì"},
        {R"({"address": {"country": "Italia"}})", std::nullopt},
        {R"({"address": ["city"]})", std::nullopt},
        {R"({"error": "Unable to geocode"})", std::nullopt},
        {R"([{"address": {"city": "Roma"}}])", std::nullopt},
        {"<html></html>", std::nullopt},
    };
    for (const auto& [body, name] : kCases) EXPECT_EQ(decodePlaceName(body), name) << body;
}

}  // namespace
}  // namespace kalvo::online
