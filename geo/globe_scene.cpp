#include "geo/globe_scene.h"

#include <algorithm>
#include <vector>

namespace kalvo::geo {

namespace {

using engine::CountryRing;
using engine::LatLon;

/// Coarse outlines for want of better ones.
const std::vector<CountryRing>& continents() {
    static const std::vector<CountryRing> rings{
        // Eurasia
        {{70, 20},
         {75, 60},
         {70, 100},
         {75, 140},
         {60, 170},
         {35, 140},
         {10, 110},
         {10, 80},
         {30, 50},
         {30, 35},
         {45, 30},
         {50, 10},
         {60, -10},
         {50, -10},
         {55, 0},
         {65, 10},
         {70, 20}},
        // Africa
        {{30, 32},
         {30, 15},
         {15, -15},
         {-10, -10},
         {-34, 20},
         {-25, 35},
         {5, 50},
         {15, 40},
         {12, 10},
         {30, 32}},
        // North America
        {{75, -160},
         {70, -100},
         {60, -60},
         {45, -50},
         {25, -80},
         {15, -90},
         {25, -100},
         {35, -120},
         {50, -125},
         {60, -165},
         {75, -160}},
        // South America
        {{12, -72},
         {5, -50},
         {-10, -35},
         {-40, -60},
         {-55, -70},
         {-40, -70},
         {-20, -75},
         {-5, -80},
         {12, -72}},
        // Australia
        {{-15, 120}, {-12, 140}, {-25, 150}, {-38, 145}, {-35, 115}, {-15, 120}},
        // Antarctica
        {{-80, -180},
         {-85, -120},
         {-80, -60},
         {-85, 0},
         {-80, 60},
         {-85, 120},
         {-80, 180},
         {-80, -180}},
    };
    return rings;
}

GlobeLines parallels() {
    GlobeLines lines;
    for (int lat = -60; lat <= 60; lat += 30) {
        CountryRing line;
        for (int lon = -180; lon <= 180; lon += 5) line.push_back(LatLon{double(lat), double(lon)});
        lines.add(line);
    }
    return lines;
}

GlobeLines meridians() {
    GlobeLines lines;
    for (int lon = -180; lon <= 150; lon += 30) {
        CountryRing line;
        for (int lat = -85; lat <= 85; lat += 5) line.push_back(LatLon{double(lat), double(lon)});
        lines.add(line);
    }
    return lines;
}

}  // namespace

GlobeScene GlobeScene::make(std::span<const CountryRing> countries) {
    const bool hasCountries = !countries.empty();
    GlobeScene scene{.parallels = kalvo::geo::parallels(),
                     .meridians = kalvo::geo::meridians(),
                     .outlines = {},
                     .outlineWidth = hasCountries ? 1.2 : 1.5,
                     .projected = {}};
    for (const CountryRing& ring : hasCountries ? countries : continents()) {
        scene.outlines.add(ring);
    }
    scene.projected.points.reserve(std::max(
        {scene.parallels.pointCount(), scene.meridians.pointCount(), scene.outlines.pointCount()}));
    return scene;
}

}  // namespace kalvo::geo
