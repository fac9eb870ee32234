#pragma once

#include <string>
#include <string_view>

#include "base/result.h"

namespace kalvo::tools {

/// The texts of the source tables: places (name;sigla;region;lat;lon;istat) and weather stations
/// (nome;icao;wmo;lat;lon;quota_m;vento_medio_ms;...).
struct CatalogueSources {
    std::string_view places;
    std::string_view stations;
};

/// What is made from them: the catalogue that ships ("comuni_italia.csv"), its places in
/// ascending order of their labels, and the table of stations for the note on its provenance.
struct CatalogueFiles {
    std::string catalogue;
    std::string stationTable;  // Markdown
};

/// Gives every place the mean wind of the nearest weather station, as the yield that stands for
/// it. Fails on a table with other columns than expected, a faulty number, or two places with one
/// label.
[[nodiscard]] base::Result<CatalogueFiles> makeCatalogue(const CatalogueSources& sources);

}  // namespace kalvo::tools
