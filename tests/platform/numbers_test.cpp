#include "platform/numbers.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <limits>

#include <gtest/gtest.h>

namespace kalvo::platform {
namespace {

TEST(ParseDouble, ReadsWhatTheCLibraryReads) {
    EXPECT_EQ(parseDouble("1234.5"), 1234.5);
    EXPECT_EQ(parseDouble("+5"), 5.0);
    EXPECT_EQ(parseDouble("-.5e1"), -5.0);
    EXPECT_EQ(parseDouble("0x1p4"), 16.0);
    EXPECT_EQ(parseDouble("inf"), std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(parseDouble("nan").value()));
}

TEST(ParseDouble, RoundsAsTheCLibraryDoes) {
    for (const char* text :
         {"0", "7.", ".7", "0.1", "45.46030", "11.32639", "0.00000000000001", "99999999999.999",
          "123456789012345", "999999999999999", "9007199254740993", "0.3000000000000000166"}) {
        EXPECT_EQ(parseDouble(text), std::strtod(text, nullptr)) << text;
    }
}

TEST(ParseDouble, RefusesAnythingRoundTheNumber) {
    for (const char* text :
         {"", " 1", "\t1", "1 ", "1,5", "12 kWh", "abc", "--1", "1e", ".", "1.2.3"}) {
        EXPECT_EQ(parseDouble(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseDouble(std::string_view("1\0002", 3)), std::nullopt);
}

TEST(ShortestDecimal, AlwaysShowsThatItIsADouble) {
    EXPECT_EQ(shortestDecimal(45), "45.0");
    EXPECT_EQ(shortestDecimal(-33.925), "-33.925");
    EXPECT_EQ(shortestDecimal(0.5), "0.5");
    EXPECT_EQ(shortestDecimal(0.0001), "0.0001");
    EXPECT_EQ(shortestDecimal(0.00001), "1e-05");
    EXPECT_EQ(shortestDecimal(1e21), "1e+21");
    EXPECT_EQ(shortestDecimal(1e15), "1000000000000000.0");
    EXPECT_EQ(shortestDecimal(0.1 + 0.2), "0.30000000000000004");
}

}  // namespace
}  // namespace kalvo::platform
