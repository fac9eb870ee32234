#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <boost/container/flat_map.hpp>
#include <boost/container/small_vector.hpp>

namespace kalvo::engine {

/// Counts per wind-speed class, in the order of `WindRange::labels`. Seven, unless the data are
/// faulty; stored in place.
using ClassCounts = boost::container::small_vector<std::int64_t, 7>;

/// Month abbreviation ("Gen" to "Dic") to the days of that month in each wind-speed class. A
/// missing month reads as seven zeros.
using WindDistribution = boost::container::flat_map<std::string, ClassCounts, std::less<>>;

/// Direction sector 0 to 15 to the counts of each wind-speed class: hours of the year for the
/// offline model, the chart's own values online. Sector d is the compass bearing 22.5 d degrees
/// clockwise from north.
using WindRoseData = boost::container::flat_map<int, ClassCounts>;

/// Sky conditions: four lists of twelve numbers of days, January first. Days with precipitation
/// are counted apart from the three sky classes.
struct SolarData {
    std::vector<double> sunny;
    std::vector<double> partlyCloudy;
    std::vector<double> overcast;
    std::vector<double> precip;

    friend bool operator==(const SolarData&, const SolarData&) = default;
};

}  // namespace kalvo::engine
