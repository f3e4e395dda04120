#include "sim/command_options.h"

#include "sim/commands.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <limits>
#include <ostream>
#include <random>

namespace morvane::sim {

namespace {

bool listed(std::initializer_list<const char*> names, const std::string& name) {
    return std::any_of(names.begin(), names.end(), [&](const char* n) { return name == n; });
}

} // namespace

std::string CommandOptions::read(const std::vector<std::string>& args,
                                 std::initializer_list<const char*> valued,
                                 std::initializer_list<const char*> flags) {
    for (size_t k = 0; k < args.size(); ++k) {
        const std::string& name = args[k];
        if (listed(flags, name)) {
            values_[name] = "";
        } else if (listed(valued, name)) {
            if (k + 1 >= args.size())
                return name + ": expects a value";
            values_[name] = args[++k];
        } else {
            return "unknown option '" + name + "'";
        }
    }
    return "";
}

std::string CommandOptions::text(const std::string& name) const {
    const auto found = values_.find(name);
    return found == values_.end() ? "" : found->second;
}

std::string CommandOptions::require(const std::string& name) const {
    return has(name) ? "" : name + ": missing";
}

std::string CommandOptions::wholeNumber(const std::string& name, int64_t low, int64_t high,
                                        int64_t& value) const {
    if (!has(name))
        return "";
    const std::string given = text(name);
    const std::string range = std::to_string(low) + " to " + std::to_string(high);
    char* end = nullptr;
    errno = 0;
    const long long number = std::strtoll(given.c_str(), &end, 10);
    if (given.empty() || *end != '\0' || errno != 0)
        return name + ": '" + given + "' is not a whole number";
    if (number < low || number > high)
        return name + ": " + given + " is outside " + range;
    value = number;
    return "";
}

std::string CommandOptions::seed(uint64_t& value) const {
    if (!has("--seed")) {
        value = std::random_device{}();
        return "";
    }
    int64_t seed = 0;
    const std::string error = wholeNumber("--seed", 0, std::numeric_limits<int64_t>::max(), seed);
    value = uint64_t(seed);
    return error;
}

int reportBadInput(std::ostream& err, const std::string& command, const std::string& error) {
    err << "morvane-sim " << command << ": " << error << "\n";
    return kBadInput;
}

} // namespace morvane::sim
