#pragma once

#include <array>

#include <boost/multiprecision/cpp_int.hpp>

namespace kalvo::engine {

/// An integer that holds exactly what a double times a double of any finite size can be. In place,
/// because g++ takes the allocating kind for uninitialized.
using WholeNumber = boost::multiprecision::number<
    boost::multiprecision::cpp_int_backend<4096,
                                           4096,
                                           boost::multiprecision::signed_magnitude,
                                           boost::multiprecision::unchecked,
                                           void>,
    boost::multiprecision::et_off>;

/// Production month by month, January first, in whole kWh of any size.
struct MonthlyProduction {
    std::array<WholeNumber, 12> kwh;

    friend bool operator==(const MonthlyProduction&, const MonthlyProduction&) = default;
};

}  // namespace kalvo::engine
