#include "engine/location.h"

#include <algorithm>
#include <set>
#include <vector>

#include <gtest/gtest.h>

namespace kalvo::engine {
namespace {

TEST(LocationTest, EqualityAndHashCoverEveryField) {
    std::vector<Location> places(1);
    for (std::string Location::*text :
         {&Location::label, &Location::city, &Location::province, &Location::region,
          &Location::station, &Location::stationOwner}) {
        places.emplace_back().*text = "filled";
    }
    places.emplace_back().source = "filled";
    for (std::optional<double> Location::*number :
         {&Location::kwh1kw, &Location::kwh2kw, &Location::kwh3kw, &Location::latitude,
          &Location::longitude}) {
        places.emplace_back().*number = 0;  // present, so unlike an absent one
    }
    std::set<std::size_t> hashes;
    for (const Location& place : places) {
        EXPECT_EQ(std::ranges::count(places, place), 1);
        hashes.insert(std::hash<Location>{}(place));
    }
    EXPECT_EQ(hashes.size(), places.size());
}

}  // namespace
}  // namespace kalvo::engine
