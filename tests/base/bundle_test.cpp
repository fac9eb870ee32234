#include "base/bundle.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/support/temporary_folder.h"

namespace kalvo::base {
namespace {

TEST(BundleTest, FindsFilesByNameAndTypeAndImagesInTheCatalogueFirst) {
    const tests::TemporaryFolder folder;
    const Bundle bundle(folder.path());
    EXPECT_EQ(bundle.path("places", "csv"), std::nullopt);
    EXPECT_EQ(bundle.image("flag"), std::nullopt);
    folder.write("places.csv", "");
    const auto plain = folder.write("flag.png", "");
    EXPECT_EQ(bundle.path("places", "csv"), folder.path() / "places.csv");
    EXPECT_EQ(bundle.path("places", "json"), std::nullopt);
    EXPECT_EQ(bundle.image("flag"), plain);
    const auto catalogued = folder.write("images/flag.png", "");
    EXPECT_EQ(bundle.image("flag"), catalogued);
}

TEST(ReadFileTest, ReadsEveryByteOrSaysWhyNot) {
    const tests::TemporaryFolder folder;
    const std::string bytes = std::string("a\0\r\n\xFF", 5) + std::string(100'000, 'x');
    EXPECT_EQ(readFile(folder.write("some", bytes)).value(), bytes);
    EXPECT_EQ(readFile(folder.write("empty", "")).value(), "");
    const auto missing = readFile(folder.path() / "missing");
    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error().description(), "No such file or directory");
    EXPECT_FALSE(readFile(folder.path())) << "a folder";
    // A file whose size the system does not tell.
    EXPECT_TRUE(readFile("/proc/self/status").value().starts_with("Name:\t"));
}

}  // namespace
}  // namespace kalvo::base
