#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "engine/climate_data.h"
#include "engine/country_ring.h"
#include "engine/monthly_production.h"
#include "geojson/geojson.h"

namespace kalvo::report {

/// A local date and time of day, to the minute.
struct Moment {
    int year;
    int month;  // 1 to 12
    int day;
    int hour;
    int minute;
    friend bool operator==(const Moment&, const Moment&) = default;
};

/// What the wind of a place was worked out from.
enum class WindBasis {
    kStations,   // estimated from weather stations
    kMeteoblue,  // downloaded
    kFixedYield  // nothing is known of the place: a fixed yield stands in
};

/// The wind of a place as it is estimated from weather stations.
struct StationWind {
    std::string station;  // name of the one that weighs most
    std::string code;
    double distance;           // km from the place
    double share;              // of its weight in the estimate, 0 to 1
    std::string years;         // of its measurements, "1965–2023"
    std::size_t stationCount;  // how many weigh in
    double mean;               // m/s, 10 m above the ground
    double typicalError;       // m/s
    double hubMean;            // m/s at the hub of the chosen turbine
    int hubHeight;             // m
    // Expected production of all turbines, kWh per year, with the mean lower and higher by the
    // typical error.
    double lowest;
    double highest;
};

/// The provinces of a country and the highest yield of the places in each, by its code in upper
/// case, kWh per year on the catalogue's scale.
struct CountryMap {
    geojson::GeoMapData provinces;
    std::unordered_map<std::string, double> highestYield;
};

/// Everything that a printed report shows: the state of one moment as plain values.
struct Report {
    Moment taken;

    std::string city;
    std::string province;  // abbreviation or name; of an online place the country
    std::string region;    // empty for an online place, as is the country
    std::string country;
    std::optional<double> latitude;   // degrees north
    std::optional<double> longitude;  // degrees east

    WindBasis windBasis;
    std::optional<Moment> downloaded;        // when Meteoblue answered
    std::optional<StationWind> stationWind;  // where the basis is stations and they are known
    bool hasDownloadedSky;                   // else the sky is the usual one of the zone
    engine::WindDistribution distribution;
    engine::WindRoseData rose;
    engine::SolarData sky;

    int kilowatts;                     // size of a turbine and of a plant: 1, 2 or 3
    std::int64_t quantity;             // turbines, and plants
    double turbineGross;               // kWh per year of one turbine
    std::array<double, 3> plantGross;  // kWh per year of one plant of 1, 2 and 3 kWp
    // Gross, of all turbines and of all plants; nothing when a year is no finite number.
    std::optional<engine::MonthlyProduction> windMonths;
    std::optional<engine::MonthlyProduction> solarMonths;

    std::optional<CountryMap> map;           // of the chosen country, if it has one
    bool isOnTheGlobe;                       // an online place
    std::vector<engine::CountryRing> world;  // outlines for the globe
    std::filesystem::path logo;              // a PNG file

    [[nodiscard]] double turbinesGross() const {
        return turbineGross * static_cast<double>(quantity);
    }
    [[nodiscard]] double onePlantGross() const {
        return plantGross.at(static_cast<std::size_t>(kilowatts - 1));
    }
    [[nodiscard]] double plantsGross() const {
        return onePlantGross() * static_cast<double>(quantity);
    }
};

}  // namespace kalvo::report
