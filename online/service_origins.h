#pragma once

#include <string>

namespace kalvo::online {

/// Where the two web services are: scheme and host, without a trailing slash.
struct ServiceOrigins {
    std::string meteoblue;
    std::string nominatim;

    /// Returns the public services, which the application uses.
    [[nodiscard]] static ServiceOrigins publicServices() {
        return {"https://www.meteoblue.com", "https://nominatim.openstreetmap.org"};
    }
};

}  // namespace kalvo::online
