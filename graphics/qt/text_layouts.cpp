#include "graphics/qt/text_layouts.h"

#include <algorithm>
#include <cstddef>

#include "base/qt/qstring.h"

namespace kalvo::graphics {

const QStaticText& TextLayouts::of(std::string_view text, const QFont& font) {
    constexpr std::size_t kMost = 4;
    const auto known = std::ranges::find_if(
        layouts_, [&](const Layout& layout) { return layout.text == text && layout.font == font; });
    if (known != layouts_.end()) return known->lines;
    if (layouts_.size() == kMost) layouts_.clear();
    Layout& made =
        layouts_.emplace_back(Layout{std::string(text), font, QStaticText(base::toQString(text))});
    made.lines.setTextFormat(Qt::PlainText);
    made.lines.prepare({}, font);
    return made.lines;
}

}  // namespace kalvo::graphics
