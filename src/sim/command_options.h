// The options of a command: "--name value" pairs and bare "--flag"s, read once, then asked for
// by name. Every reader returns an empty text when all is well, else one line naming the option.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <iosfwd>
#include <map>
#include <string>
#include <vector>

namespace morvane::sim {

class CommandOptions {
  public:
    // `valued` lists the options that take a value, `flags` those that take none.
    std::string read(const std::vector<std::string>& args,
                     std::initializer_list<const char*> valued,
                     std::initializer_list<const char*> flags = {});

    bool has(const std::string& name) const { return values_.count(name) != 0; }
    // The option's value, or "" when it is absent.
    std::string text(const std::string& name) const;
    std::string require(const std::string& name) const;
    // A whole number from low to high; an absent option leaves the value as it is.
    std::string wholeNumber(const std::string& name, int64_t low, int64_t high,
                            int64_t& value) const;
    // --seed N, or a seed of the machine's own when it is absent.
    std::string seed(uint64_t& value) const;

  private:
    std::map<std::string, std::string> values_;
};

// Says what was wrong on one line, "morvane-sim COMMAND: ERROR", and gives the status of bad input.
int reportBadInput(std::ostream& err, const std::string& command, const std::string& error);

} // namespace morvane::sim
