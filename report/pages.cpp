#include "report/pages.h"

#include "report/first_page.h"
#include "report/second_page.h"

namespace kalvo::report {

void drawPage(graphics::Canvas& canvas, const Report& report, int page) {
    page == 1 ? drawFirstPage(canvas, report) : drawSecondPage(canvas, report);
}

}  // namespace kalvo::report
