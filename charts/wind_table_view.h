#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/clipboard.h"
#include "engine/climate_data.h"

namespace kalvo::charts {

/// The days of every month in each wind-speed class as a table, which is also the legend of the
/// wind charts, and as tab-separated text for a spreadsheet.
struct WindTableView {
    engine::WindDistribution distribution;
    bool copiedNotice = false;  // for two seconds after a copy

    static constexpr std::string_view kCorner = "Velocità";

    /// Returns the days of a class (0 to 6) in a month (0 to 11); 0 where the data hold none.
    [[nodiscard]] std::int64_t days(std::size_t windClass, std::size_t month) const;

    /// Some of the table's classes (0 to 6) and months (0 to 11), from the first to the last.
    struct Block {
        std::size_t firstClass = 0;
        std::size_t lastClass = 6;
        std::size_t firstMonth = 0;
        std::size_t lastMonth = 11;
        friend bool operator==(const Block&, const Block&) = default;
    };

    /// Returns the header and a row for each class as tab-separated fields, without a line feed at
    /// the end: of the whole table or of a block, always with the headings of its months and
    /// classes.
    [[nodiscard]] std::string clipboardText(const Block& block) const;
    [[nodiscard]] std::string clipboardText() const { return clipboardText({}); }

    [[nodiscard]] std::string_view copyButtonText() const {
        return copiedNotice ? "Copiato!" : "Copia Dati Tabella";
    }

    /// Puts the text on the clipboard and begins the notice. Whoever shows the view ends it after
    /// two seconds.
    void copyToClipboard(base::Clipboard& clipboard);
};

}  // namespace kalvo::charts
