#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <QFont>
#include <QStaticText>

namespace kalvo::graphics {

/// Keeps the layouts of the texts drawn last: shaping a text takes longer than painting it, and the
/// frames of a moving picture write the same few.
class TextLayouts {
 public:
    /// Returns the layout of a line of UTF-8 text, valid until the next call.
    [[nodiscard]] const QStaticText& of(std::string_view text, const QFont& font);

 private:
    struct Layout {
        std::string text;
        QFont font;
        QStaticText lines;
    };
    std::vector<Layout> layouts_;
};

}  // namespace kalvo::graphics
