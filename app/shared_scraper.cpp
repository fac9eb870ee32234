#include "online/meteoblue_scraper.h"
#include "platform/qt/qt_http_session.h"

namespace kalvo::online {

/// Defined where the application is put together, because only here is it known that its HTTP
/// session is Qt's.
MeteoblueScraper& MeteoblueScraper::shared() {
    static platform::QtHttpSession session;
    static MeteoblueScraper scraper(session, ServiceOrigins::publicServices(),
                                    platform::Diagnostics::standardOutput());
    return scraper;
}

}  // namespace kalvo::online
