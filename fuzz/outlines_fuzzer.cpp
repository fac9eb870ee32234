#include "engine/location_parser.h"
#include "fuzz/fuzzing.h"
#include "tests/support/recording_diagnostics.h"
#include "tests/support/temporary_folder.h"

using kalvo::fuzz::require;

/// The input is the file of the world's outlines, from which the globe's rings are picked.
int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const kalvo::tests::TemporaryFolder folder;
    folder.write("world_countries.json", kalvo::fuzz::asText(data, size));
    const kalvo::base::Bundle bundle(folder.path());
    kalvo::tests::RecordingDiagnostics diagnostics;
    kalvo::engine::LocationParser parser(bundle, diagnostics);

    const auto& rings = parser.loadWorldCountryRings();
    require(diagnostics.lines.empty() || rings.empty(), "a failure gives no rings");
    for (const auto& ring : rings) {
        require(!ring.empty() && ring.size() <= 81, "a ring has at most about 80 positions");
    }
    return 0;
}
