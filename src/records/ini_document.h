// An INI file held in memory: read once, its keys looked up and set in place, written out once.
// It keeps the file as it stands: comments, blank lines, the spelling of names, a byte order
// mark and each line's own line end. New lines take the line end of the file's first line.
// Section and key names match without regard to case; of two equal sections or keys the first
// counts. A key is replaced where it stands, a new key goes after the last line of its section
// that isn't blank, and a new section goes to the end.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace morvane {

// Longest text that a read hands back, in characters: the game reads into 200 with a final NUL.
constexpr int kProfileStringLimit = 199;

class IniDocument {
  public:
    IniDocument() = default;
    explicit IniDocument(std::string_view text);

    // The key's value without the blanks around it, as it stands in the file.
    std::optional<std::string_view> value(std::string_view section, std::string_view key) const;

    // The value as a number: leading blanks skipped, an optional sign, then the digits up to the
    // first other character; a value that doesn't start with a number reads as 0.
    int32_t readInt(std::string_view section, std::string_view key, int32_t defaultValue) const;
    // The value as UTF-8 text (other bytes read as Shift-JIS where they decode, else replaced),
    // at most kProfileStringLimit characters.
    std::string readString(std::string_view section, std::string_view key,
                           const std::string& defaultValue) const;

    // Sets the key to the value, which stays on one line, adding the section if need be.
    void set(std::string_view section, std::string_view key, std::string_view value);

    // The whole file as it is to be written.
    std::string text() const;

  private:
    struct Line {
        std::string text;
        std::string end; // "\r\n", "\n", or "" for a last line without one
    };
    struct Section {
        std::vector<Line> lines;                      // the header first, but in the preamble
        std::unordered_map<std::string, size_t> keys; // lower-case key -> its line
    };

    void addLine(std::string_view text, std::string_view end);
    const Section* findSection(std::string_view name) const;
    Section& sectionToWrite(std::string_view name);

    std::string byteOrderMark_;
    std::string lineEnd_ = "\n";
    std::vector<Section> sections_{1}; // sections_[0]: the lines before the first header
    std::unordered_map<std::string, size_t> sectionIndex_; // lower-case name -> section
};

} // namespace morvane
