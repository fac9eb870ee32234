#pragma once

#include <cmath>

/// The scale that the catalogue's yields are on: a straight line between a year's yield and the
/// mean wind behind it.
namespace kalvo::engine {

inline constexpr double kReferenceYield = 2800;  // kWh per year
inline constexpr double kReferenceSpeed = 8;     // km/h, the mean wind of the reference yield
inline constexpr double kYieldSpan = 3100;       // kWh per year that stand for ...
inline constexpr double kSpeedSpan = 12;         // ... this many km/h
inline constexpr double kKmhPerMs = 3.6;

/// Returns the mean wind in km/h of a yield in kWh per year. Below about 733 kWh it is negative.
[[nodiscard]] constexpr double meanSpeed(double kwh) {
    return (kwh - kReferenceYield) / kYieldSpan * kSpeedSpan + kReferenceSpeed;
}

/// Returns the yield in kWh per year of a mean wind in km/h.
[[nodiscard]] constexpr double yieldFromMeanSpeed(double speed) {
    return kReferenceYield + (speed - kReferenceSpeed) / kSpeedSpan * kYieldSpan;
}

/// Returns the height in m above the ground of the hub of a turbine of `kw` (1, 2; any other counts
/// as 3) that its column of the catalogue stands for; 10 m is that of the stations' anemometers.
[[nodiscard]] constexpr double hubHeight(int kw) { return kw == 1 ? 10 : kw == 2 ? 12 : 15; }

/// Returns the yield in kWh per year that stands for a place's wind at the hub of a turbine of
/// `kw`, from its mean wind in m/s at 10 m, carried up by the one-seventh power law v(h) = v(10) (h
/// / 10)^(1/7) (E. W. Peterson and J. P. Hennessey, "On the Use of Power Laws for Estimates of Wind
/// Power Potential", Journal of Applied Meteorology 17, 1978). All sizes are read on one scale, so
/// they differ by their height alone, not by their power.
[[nodiscard]] inline double yieldAtHub(double meanWind, int kw) {
    return yieldFromMeanSpeed(meanWind * kKmhPerMs * std::pow(hubHeight(kw) / 10, 1.0 / 7));
}

}  // namespace kalvo::engine
