#include "engine/calculation_engine.h"
#include "engine/folded_region.h"

namespace kalvo::engine {

namespace {

// Days of each month under each sky, January first: typical years of this model for three belts of
// Italy, not measurements. The three skies add up to the month; precipitation is counted apart.

const SolarData& north() {
    static const SolarData sky{
        .sunny = {5, 6, 8, 9, 10, 11, 14, 13, 10, 8, 5, 4},
        .partlyCloudy = {18, 16, 18, 17, 16, 15, 14, 15, 16, 17, 18, 19},
        .overcast = {8, 6, 5, 4, 5, 4, 3, 3, 4, 6, 7, 8},
        .precip = {9, 8, 11, 10, 11, 9, 8, 8, 9, 10, 11, 10},
    };
    return sky;
}

const SolarData& center() {
    static const SolarData sky{
        .sunny = {7, 8, 11, 12, 14, 15, 18, 17, 13, 11, 7, 6},
        .partlyCloudy = {17, 14, 15, 14, 13, 12, 11, 12, 14, 15, 17, 18},
        .overcast = {7, 6, 5, 4, 4, 3, 2, 2, 3, 5, 6, 7},
        .precip = {8, 7, 8, 8, 7, 5, 3, 4, 6, 8, 10, 9},
    };
    return sky;
}

const SolarData& south() {
    static const SolarData sky{
        .sunny = {10, 11, 14, 15, 17, 18, 22, 21, 17, 14, 10, 9},
        .partlyCloudy = {15, 13, 13, 12, 11, 10, 8, 9, 11, 13, 15, 16},
        .overcast = {6, 4, 4, 3, 3, 2, 1, 1, 2, 4, 5, 6},
        .precip = {7, 6, 6, 5, 4, 3, 1, 2, 4, 7, 8, 8},
    };
    return sky;
}

}  // namespace

SolarData CalculationEngine::calculateOfflineSolarData(const PlaceArgs& place) {
    const FoldedRegion region(place.region);
    if (region.contains("sicilia") || region.contains("sardegna")) return south();
    const double degreesSouth = place.lat ? 46 - *place.lat : 4.0;  // of the 46th parallel
    if (degreesSouth > 4.5) return south();
    if (region.contains("lazio") || region.contains("campania")) return center();
    return degreesSouth > 2.5 ? center() : north();
}

}  // namespace kalvo::engine
