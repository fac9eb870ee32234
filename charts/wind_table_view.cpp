#include "charts/wind_table_view.h"

#include "charts/speed_histogram.h"
#include "engine/calculation_engine.h"
#include "engine/wind_range.h"

namespace kalvo::charts {

using engine::CalculationEngine;
using engine::WindRange;

std::int64_t WindTableView::days(std::size_t windClass, std::size_t month) const {
    return countsOfMonth(distribution, CalculationEngine::months.at(month)).at(windClass);
}

std::string WindTableView::clipboardText() const {
    std::string text(kCorner);
    for (const std::string_view month : CalculationEngine::months) (text += '\t') += month;
    for (std::size_t windClass = 0; windClass < WindRange::kCount; ++windClass) {
        (text += '\n') += WindRange::labels[windClass];
        for (std::size_t month = 0; month < CalculationEngine::months.size(); ++month) {
            (text += '\t') += std::to_string(days(windClass, month));
        }
    }
    return text;
}

void WindTableView::copyToClipboard(base::Clipboard& clipboard) {
    clipboard.setString(clipboardText());
    copiedNotice = true;
}

}  // namespace kalvo::charts
