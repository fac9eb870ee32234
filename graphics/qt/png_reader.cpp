#include "graphics/qt/png_reader.h"

#include <png.h>

namespace kalvo::graphics {

QImage readPng(std::string_view bytes) {
    constexpr png_uint_32 kMostPixels = 4096;  // a side
    png_image png{};
    png.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&png, bytes.data(), bytes.size()) == 0) return {};
    png.format = PNG_FORMAT_RGBA;
    QImage image;
    if (png.width <= kMostPixels && png.height <= kMostPixels) {
        image = QImage(static_cast<int>(png.width), static_cast<int>(png.height),
                       QImage::Format_RGBA8888);
    }
    if (image.isNull() ||
        png_image_finish_read(&png, nullptr, image.bits(),
                              static_cast<png_int_32>(image.bytesPerLine()), nullptr) == 0) {
        png_image_free(&png);
        return {};
    }
    return image;
}

}  // namespace kalvo::graphics
