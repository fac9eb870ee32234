#pragma once

#include <filesystem>
#include <future>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <tl/expected.hpp>

#include "base/bundle.h"
#include "base/diagnostics.h"
#include "engine/catalogue.h"
#include "engine/country_ring.h"
#include "engine/stations.h"
#include "geojson/geojson.h"

namespace kalvo::engine {

/// Reads the data files that ship with the application. It never fails to its caller: what
/// cannot be read gives an empty or absent result and one diagnostic line. Used on the
/// user-interface thread only.
class LocationParser {
 public:
    /// Both outlive the parser.
    LocationParser(const base::Bundle& bundle, base::Diagnostics& diagnostics)
        : bundle_(bundle), diagnostics_(diagnostics) {}

    /// Returns the application's own instance, on its bundle and standard output.
    [[nodiscard]] static LocationParser& shared();

    /// Begins to read the catalogue on a thread of its own (a deferred std::async where none is
    /// available); the next `loadLocations` takes what it read.
    void prefetchLocations();

    /// Returns the place catalogue, "comuni_italia.csv".
    [[nodiscard]] Catalogue loadLocations();

    /// Returns the weather stations behind the catalogue, "centraline.csv"; none when it cannot be
    /// read. The first call reads it; the reference stays valid and unchanged.
    [[nodiscard]] const Stations& loadStations();

    /// Returns the outlines in a GeoJSON resource, named with or without ".json"; nothing when it
    /// is missing (silently) or cannot be decoded.
    [[nodiscard]] std::optional<geojson::GeoMapData> loadGeoJSON(std::string_view name) const;

    /// Returns the world's country outlines, thinned to at most about 80 positions a ring. They are
    /// read once; after a failure every call tries again. The reference stays valid and unchanged.
    [[nodiscard]] const std::vector<CountryRing>& loadWorldCountryRings();

 private:
    /// Reads the bytes of a text file without the byte order mark that some editors begin it with.
    [[nodiscard]] static base::Result<std::string> readText(const std::filesystem::path& path);

    /// The catalogue, or the diagnostic line that tells why there is none.
    using CatalogueReading = tl::expected<Catalogue, std::string>;
    [[nodiscard]] CatalogueReading readCatalogue() const;

    const base::Bundle& bundle_;
    base::Diagnostics& diagnostics_;
    std::future<CatalogueReading> prefetched_;
    std::optional<std::vector<CountryRing>> worldRings_;
    std::optional<Stations> stations_;
};

}  // namespace kalvo::engine
