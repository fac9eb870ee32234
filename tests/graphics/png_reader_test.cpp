#include "graphics/qt/png_reader.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "base/bundle.h"

namespace kalvo::graphics {
namespace {

TEST(PngTest, IsReadAsQtReadsIt) {
    const std::filesystem::path images(KALVO_SOURCE_DIR "/resources/images");
    int read = 0;
    for (const auto& entry : std::filesystem::directory_iterator(images)) {
        if (entry.path().extension() != ".png") continue;
        const QImage expected(QString::fromStdString(entry.path().string()), "PNG");
        EXPECT_EQ(readPng(base::readFile(entry.path()).value()).convertToFormat(expected.format()),
                  expected)
            << entry.path();
        ++read;
    }
    EXPECT_GE(read, 12);
}

TEST(PngTest, ThatIsDamagedIsNoPicture) {
    const std::string logo = base::readFile(KALVO_SOURCE_DIR "/resources/images/logo.png").value();
    EXPECT_TRUE(readPng("").isNull());
    EXPECT_TRUE(readPng("no picture").isNull());
    EXPECT_TRUE(readPng(std::string_view(logo).substr(0, logo.size() / 2)).isNull());

    // The width stands at 16: one that nobody has the memory for.
    std::string vast = logo;
    vast.replace(16, 4, "\x7f\xff\xff\xff");
    EXPECT_TRUE(readPng(vast).isNull());
}

}  // namespace
}  // namespace kalvo::graphics
