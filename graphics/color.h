#pragma once

#include <string_view>

namespace kalvo::graphics {

/// An sRGB color; every component is a double from 0 to 1.
struct Color {
    double red;
    double green;
    double blue;
    double opacity;

    /// Returns the color that a hexadecimal text names: "#rgb", "#rrggbb" or "#aarrggbb", the
    /// leading
    /// "#" (like any other sign or blank round the text) left out or not. Never fails: a text of
    /// another length gives the almost black, almost transparent (1, 1, 0, 1) / 255, and digits
    /// are read up to the first character that is none.
    [[nodiscard]] static Color hex(std::string_view text);

    /// Returns the same color at another opacity (0 to 1).
    [[nodiscard]] Color withOpacity(double newOpacity) const {
        return {red, green, blue, newOpacity};
    }

    friend bool operator==(const Color&, const Color&) = default;
};

/// The named colors of the toolkit, fixed so that a picture looks the same everywhere.
inline constexpr Color kGray{142 / 255.0, 142 / 255.0, 147 / 255.0, 1};
inline constexpr Color kWhite{1, 1, 1, 1};
inline constexpr Color kBlack{0, 0, 0, 1};
inline constexpr Color kRed{1, 59 / 255.0, 48 / 255.0, 1};
inline constexpr Color kOrange{1, 149 / 255.0, 0, 1};
inline constexpr Color kYellow{1, 204 / 255.0, 0, 1};
inline constexpr Color kGreen{52 / 255.0, 199 / 255.0, 89 / 255.0, 1};

}  // namespace kalvo::graphics
