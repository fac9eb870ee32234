#include "net/qt/curl_http_session.h"
#include "online/meteoblue_scraper.h"

namespace kalvo::online {

/// Defined where the application is put together, because only here is it known that its HTTP
/// session is libcurl's.
MeteoblueScraper& MeteoblueScraper::shared() {
    static net::CurlHttpSession session;
    static MeteoblueScraper scraper(session, ServiceOrigins::publicServices(),
                                    base::Diagnostics::standardOutput());
    return scraper;
}

}  // namespace kalvo::online
