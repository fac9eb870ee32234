#include "app/qt/application_icon.h"

#include <string_view>

#include "graphics/qt/png_reader.h"

namespace kalvo::app {

namespace {

std::size_t bigEndian32(std::string_view bytes) {
    std::size_t value = 0;
    for (const char byte : bytes.substr(0, 4)) {
        value = value << 8 | static_cast<unsigned char>(byte);
    }
    return value;
}

/// The largest picture in an Apple icon file that is stored as PNG, as all from 128 pixels up
/// are. The file is "icns", its length, then entries of a type, their length with this head of
/// eight bytes, and a picture. Qt itself reads such files only with a plugin.
QImage largestPicture(std::string_view file) {
    constexpr std::string_view kPngSignature = "\x89PNG\r\n\x1a\n";
    constexpr std::size_t kHead = 8;
    QImage largest;
    if (!file.starts_with("icns")) return largest;
    std::size_t at = kHead;
    while (at + kHead <= file.size()) {
        const std::size_t length = bigEndian32(file.substr(at + 4));
        if (length < kHead || length > file.size() - at) break;
        const std::string_view picture = file.substr(at + kHead, length - kHead);
        if (picture.starts_with(kPngSignature)) {
            const QImage image = graphics::readPng(picture);
            if (image.width() > largest.width()) largest = image;
        }
        at += length;
    }
    return largest;
}

}  // namespace

QImage loadApplicationIcon(const base::Bundle& bundle) {
    if (const auto png = bundle.path("logo_rounded", "png")) {
        return graphics::readPng(base::readFile(*png).value_or(""));
    }
    if (const auto icns = bundle.path("AppIcon", "icns")) {
        if (const auto file = base::readFile(*icns)) return largestPicture(*file);
    }
    return {};
}

}  // namespace kalvo::app
