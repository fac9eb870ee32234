#include <algorithm>

#include "engine/location_parser.h"
#include "fuzz/fuzzing.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/temporary_folder.h"

using kalvo::fuzz::require;

/// The input is the catalogue file.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const kalvo::tests::TemporaryFolder folder;
    folder.write("comuni_italia.csv", kalvo::fuzz::asText(data, size));
    const kalvo::base::Bundle bundle(folder.path());
    kalvo::tests::RecordingDiagnostics diagnostics;
    const auto catalogue = kalvo::engine::LocationParser(bundle, diagnostics).loadLocations();

    require(diagnostics.lines.size() <= 1, "one line for a catalogue that cannot be read");
    require(diagnostics.lines.empty() || catalogue.empty(), "a failure gives no places");
    require(std::is_sorted(catalogue.begin(), catalogue.end(),
                           [](const auto& a, const auto& b) { return a.label < b.label; }),
            "places stand in ascending order of their labels");
    for (const auto& place : catalogue) {
        require(catalogue.find(place.label) == &place, "a place is found by its label");
    }
    return 0;
}
