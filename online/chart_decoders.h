#pragma once

#include <optional>

#include "engine/climate_data.h"
#include "online/json_document.h"

/// The chart documents of the climate page. Each has an array "series" of objects with a "name"
/// and an array "data"; its values are numbers or texts that are numbers. The decoders never fail:
/// what is missing or cannot be read, or is infinite, not a number or beyond ±1e280, leaves the
/// default in place.
namespace kalvo::online {

/// Returns the days per wind-speed class for each of the twelve months, brought to the length of
/// the month.
[[nodiscard]] engine::WindDistribution parseWindSpeedsJSON(const JsonDocument& json);

/// Returns the chart's own values, rounded, for each of the sixteen directions.
[[nodiscard]] engine::WindRoseData parseWindRoseJSON(const JsonDocument& json);

/// Returns the days per sky condition as the chart gives them; nothing without a document (null) or
/// when it has no series array.
[[nodiscard]] std::optional<engine::SolarData> parseCloudCoverageJSON(const JsonDocument* json);

}  // namespace kalvo::online
