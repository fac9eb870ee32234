#pragma once

#include <array>
#include <string_view>

namespace kalvo::app {

/// The entry of `ContentView::countries` under which any place of the world is found online.
inline constexpr std::string_view kOnlineCountry = "Altre località online";

/// A country whose places are in the catalogue, and where its files are.
struct Country {
    std::string_view name;              // entry of `ContentView::countries`
    std::string_view region;            // of its places in the catalogue; Italy has every other one
    std::string_view regionOutlines;    // GeoJSON resource
    std::string_view provinceOutlines;  // GeoJSON resource
    std::string_view flag;              // image resource
};

inline constexpr std::array<Country, 3> kCountries{{
    {.name = "Italia",
     .region = "",
     .regionOutlines = "regioni.json",
     .provinceOutlines = "province.json",
     .flag = "flag_it"},
    {.name = "San Marino",
     .region = "San Marino",
     .regionOutlines = "san_marino_regioni.json",
     .provinceOutlines = "san_marino_province.json",
     .flag = "flag_sm"},
    {.name = "Città del Vaticano",
     .region = "Vaticano",
     .regionOutlines = "vatican_regioni.json",
     .provinceOutlines = "vatican_province.json",
     .flag = "flag_vc"},
}};

/// Returns the country of this name, or null (the online entry among others).
[[nodiscard]] const Country* findCountry(std::string_view name);

/// Returns the country that a catalogue place with this region belongs to.
[[nodiscard]] const Country& countryOfRegion(std::string_view region);

}  // namespace kalvo::app
