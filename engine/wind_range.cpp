#include "engine/wind_range.h"

namespace kalvo::engine {

using graphics::Color;

const std::array<std::string_view, WindRange::kCount> WindRange::labels{
    "< 2 km/h", "2-5 km/h", "5-10 km/h", "10-20 km/h", "20-30 km/h", "30-40 km/h", "40-50 km/h"};

const std::array<Color, WindRange::kCount> WindRange::colors{
    Color::hex("#cbd5e1"), Color::hex("#d1f7ec"), Color::hex("#a3f7bf"), Color::hex("#2ed158"),
    Color::hex("#008d5e"), Color::hex("#a4c639"), Color::hex("#ffd600")};

}  // namespace kalvo::engine
