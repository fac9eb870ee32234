#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace kalvo::online {

/// One place found by the place search. Its identity in lists is the label.
struct MeteoblueSearchResult {
    std::string name;
    std::string country;  // empty when the site gives none
    double lat;           // degrees north
    double lon;           // degrees east
    std::string slug;     // the site's path fragment for the place
    std::string iso2;     // two-letter country code; empty when the site gives none
    std::string label;    // name, country and coordinates, for display

    friend bool operator==(const MeteoblueSearchResult&, const MeteoblueSearchResult&) = default;
};

}  // namespace kalvo::online

/// Covers all seven fields; 0.0 and -0.0 hash alike because they compare equal.
template <>
struct std::hash<kalvo::online::MeteoblueSearchResult> {
    std::size_t operator()(const kalvo::online::MeteoblueSearchResult& result) const noexcept;
};
