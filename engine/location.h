#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kalvo::engine {

/// One place of the catalogue or of an online search. Its identity in lists is the label.
struct Location {
    std::string label;                // "city (province)", then " - station" where there is one
    std::string city;                 // name of the municipality
    std::string province;             // abbreviation ("RM") or name
    std::string region;               // name of the region, or a country code for online places
    std::optional<double> kwh1kw;     // expected kWh per year of a 1 kW turbine
    std::optional<double> kwh2kw;     // of a 2 kW turbine
    std::optional<double> kwh3kw;     // of a 3 kW turbine
    std::optional<double> latitude;   // degrees north
    std::optional<double> longitude;  // degrees east
    std::string station;              // weather station the yields come from; may be empty
    std::string stationOwner;         // its operator; empty for catalogue places
    std::string_view source;          // a constant: "comuni_italia.csv" or "Meteoblue Online"

    friend bool operator==(const Location&, const Location&) = default;
};

}  // namespace kalvo::engine

/// Covers all twelve fields; 0.0 and -0.0 hash alike because they compare equal.
template <>
struct std::hash<kalvo::engine::Location> {
    std::size_t operator()(const kalvo::engine::Location& location) const noexcept;
};
