#pragma once

#include <string>
#include <string_view>

#include "base/result.h"
#include "tools/catalogue/wind_rule.h"

namespace kalvo::tools {

/// The texts of the source tables: places (name;sigla;region;lat;lon;istat), weather stations
/// (nome;icao;wmo;lat;lon;quota_m;vento_medio_ms;...) and how exposed to the sea both are
/// (chiave;mare_100km;costa_km).
struct CatalogueSources {
    std::string_view places;
    std::string_view stations;
    std::string_view exposures;
};

/// What is made from them: the catalogue that ships ("comuni_italia.csv"), its places in
/// ascending order of their labels; the stations that ship ("centraline.csv"); and their table for
/// the note on its provenance.
struct CatalogueFiles {
    std::string catalogue;
    std::string stations;
    std::string stationTable;  // Markdown
};

/// Gives every place the mean wind that `WindRule` estimates, as the yields that stand for it.
/// Fails on a table with other columns than expected, a faulty number, or two places with one
/// label.
[[nodiscard]] base::Result<CatalogueFiles> makeCatalogue(const CatalogueSources& sources);

/// How good the rule is, tested on the stations themselves. Fails as `makeCatalogue` does.
[[nodiscard]] base::Result<LeaveOneOutError> checkError(const CatalogueSources& sources);

}  // namespace kalvo::tools
