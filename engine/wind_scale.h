#pragma once

/// The scale that the catalogue's yields are on: a straight line between a year's yield and the
/// mean wind behind it.
namespace kalvo::engine {

inline constexpr double kReferenceYield = 2800;  // kWh per year
inline constexpr double kReferenceSpeed = 8;     // km/h, the mean wind of the reference yield
inline constexpr double kYieldSpan = 3100;       // kWh per year that stand for ...
inline constexpr double kSpeedSpan = 12;         // ... this many km/h

/// The mean wind in km/h of a yield in kWh per year. Below about 733 kWh it is negative.
[[nodiscard]] constexpr double meanSpeed(double kwh) {
    return (kwh - kReferenceYield) / kYieldSpan * kSpeedSpan + kReferenceSpeed;
}

/// The yield in kWh per year of a mean wind in km/h.
[[nodiscard]] constexpr double yieldFromMeanSpeed(double speed) {
    return kReferenceYield + (speed - kReferenceSpeed) / kSpeedSpan * kYieldSpan;
}

}  // namespace kalvo::engine
