#pragma once

#include <string_view>

#include <QImage>

namespace kalvo::graphics {

/// Returns the picture in the bytes of a PNG file, at most 4096 x 4096 pixels; a null image where
/// there is none. QImage's own readers would load every image plugin of Qt first, just to ask it.
[[nodiscard]] QImage readPng(std::string_view bytes);

}  // namespace kalvo::graphics
