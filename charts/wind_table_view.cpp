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

std::string WindTableView::clipboardText(const Block& block) const {
    std::string text(kCorner);
    for (std::size_t month = block.firstMonth; month <= block.lastMonth; ++month) {
        (text += '\t') += CalculationEngine::months.at(month);
    }
    for (std::size_t windClass = block.firstClass; windClass <= block.lastClass; ++windClass) {
        (text += '\n') += WindRange::labels.at(windClass);
        for (std::size_t month = block.firstMonth; month <= block.lastMonth; ++month) {
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
