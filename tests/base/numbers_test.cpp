#include "base/numbers.h"

#include <clocale>
#include <cmath>
#include <cstdlib>
#include <sstream>

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace kalvo::base {
namespace {

TEST(ParseDoubleTest, ReadsAndRoundsAsTheCLibraryDoes) {
    std::istringstream texts(
        "0 7. .7 +5 -.5e1 0x1p4 inf infinity 0.1 45.46030 11.32639 0.00000000000001 "
        "99999999999.999 123456789012345 999999999999999 9007199254740993 0.3000000000000000166 "
        "1e400 -1e-400 5e-324");
    for (std::string text; texts >> text;) {
        EXPECT_EQ(parseDouble(text), std::strtod(text.c_str(), nullptr)) << text;
    }
}

TEST(ParseDoubleTest, RefusesAnythingRoundTheNumber) {
    for (const char* text : {"\t1", "1,5", "--1", "1e", ".", "1.2.3"}) {
        EXPECT_EQ(parseDouble(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseDouble(std::string_view("1\0002", 3)), std::nullopt);
    EXPECT_TRUE(std::isnan(parseDouble("nan").value()));
}

TEST(ParseDoubleTest, KeepsThePointWhereTheUserWritesAComma) {
    const tests::TemporaryFolder folder;
    const auto definition = folder.write("comma",
                                         "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \".\"\n"
                                         "grouping 3;3\nEND LC_NUMERIC\n");
    const std::string command = "localedef --quiet --force -f UTF-8 -i " + definition.string() +
                                " " + (folder.path() / "xx_XX").string() + " 2>&1";
    [[maybe_unused]] const int warnings = std::system(command.c_str());
    setenv("LOCPATH", folder.path().c_str(), 1);
    ASSERT_NE(std::setlocale(LC_NUMERIC, "xx_XX"), nullptr);
    EXPECT_EQ(std::strtod("-1.5", nullptr), -1) << "the locale must be in force";
    EXPECT_EQ(parseDouble("-1.5"), -1.5);
    EXPECT_EQ(parseDouble("-1,5"), std::nullopt);
    EXPECT_EQ(shortestDecimal(1234.5), "1234.5");
    std::setlocale(LC_NUMERIC, "C");
}

TEST(ShortestDecimalTest, AlwaysShowsThatItIsADouble) {
    for (const char* text : {"45.0", "-33.925", "0.0001", "1e-05", "1000000000000000.0", "1e+21",
                             "0.30000000000000004"}) {
        EXPECT_EQ(shortestDecimal(std::strtod(text, nullptr)), text);
    }
}

}  // namespace
}  // namespace kalvo::base
