#include "sim/records_command.h"

#include "sim/command_options.h"
#include "sim/headless_session.h"
#include "sim/records_json.h"

#include <ostream>

namespace morvane::sim {

int runRecordsCommand(const std::vector<std::string>& options, std::ostream& out,
                      std::ostream& err) {
    CommandOptions opts;
    const std::string error = opts.read(options, {});
    if (!error.empty())
        return reportBadInput(err, "records", error);
    const HeadlessSession session(0);
    const GameState& g = session.g;
    nlohmann::json records{{"soloRecords", soloRecordsToJson(g)},
                           {"vsCpuRecords", vsCpuRecordsToJson(g)}};
    addZephLevel(records, g);
    out << jsonLine(records);
    return 0;
}

} // namespace morvane::sim
