#include "records/profile_file.h"

#include "game/text.h"
#include "records/atomic_file.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace morvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kBlanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(kBlanks);
    if (first == std::string_view::npos)
        return {};
    const auto last = text.find_last_not_of(kBlanks);
    return text.substr(first, last - first + 1);
}

bool sameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) {
        const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c; };
        return lower(x) == lower(y);
    });
}

// The lines of the file as they stand, without their line ends.
std::vector<std::string> readLines(const std::string& file) {
    std::vector<std::string> lines;
    std::optional<std::string> text = readWholeFile(file);
    if (!text)
        return lines;
    std::string_view rest = *text;
    if (rest.starts_with(kByteOrderMark))
        rest.remove_prefix(kByteOrderMark.size());
    while (!rest.empty()) {
        const auto end = rest.find('\n');
        lines.emplace_back(rest.substr(0, end));
        if (end == std::string_view::npos)
            break;
        rest.remove_prefix(end + 1);
    }
    return lines;
}

std::optional<std::string_view> sectionNameOf(std::string_view line) {
    line = trimmed(line);
    if (!line.starts_with('['))
        return std::nullopt;
    line.remove_prefix(1);
    return trimmed(line.substr(0, line.find(']')));
}

bool isComment(std::string_view line) {
    return line.starts_with(';') || line.starts_with('#');
}

// The name of the key that a line sets, with its value: nothing for headers, comments and lines
// without an equals sign.
struct KeyLine {
    std::string_view name;
    std::string_view value;
};

std::optional<KeyLine> keyLineOf(std::string_view line) {
    line = trimmed(line);
    const auto equals = line.find('=');
    if (equals == std::string_view::npos || line.starts_with('[') || isComment(line))
        return std::nullopt;
    return KeyLine{trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1))};
}

// Lines [header, end) of a section: its header and everything up to the next header.
struct SectionSpan {
    size_t header;
    size_t end;
};

std::optional<SectionSpan> findSection(const std::vector<std::string>& lines,
                                       std::string_view section) {
    for (size_t i = 0; i < lines.size(); ++i) {
        const auto name = sectionNameOf(lines[i]);
        if (!name || !sameName(*name, section))
            continue;
        size_t end = i + 1;
        while (end < lines.size() && !sectionNameOf(lines[end]))
            ++end;
        return SectionSpan{i, end};
    }
    return std::nullopt;
}

std::optional<size_t> findKey(const std::vector<std::string>& lines, SectionSpan span,
                              std::string_view key) {
    for (size_t i = span.header + 1; i < span.end; ++i) {
        const auto keyLine = keyLineOf(lines[i]);
        if (keyLine && sameName(keyLine->name, key))
            return i;
    }
    return std::nullopt;
}

std::optional<std::string> findValue(const std::string& section, const std::string& key,
                                     const std::string& file) {
    const std::vector<std::string> lines = readLines(file);
    const auto span = findSection(lines, section);
    if (!span)
        return std::nullopt;
    const auto at = findKey(lines, *span, key);
    if (!at)
        return std::nullopt;
    return std::string(keyLineOf(lines[*at])->value);
}

// A new key goes after the last line of its section that isn't blank.
size_t endOfSectionText(const std::vector<std::string>& lines, SectionSpan span) {
    size_t end = span.end;
    while (end > span.header + 1 && trimmed(lines[end - 1]).empty())
        --end;
    return end;
}

void setKey(std::vector<std::string>& lines, const std::string& section, const std::string& key,
            const std::string& value) {
    const auto span = findSection(lines, section);
    if (!span) {
        lines.push_back("[" + section + "]");
        lines.push_back(key + "=" + value);
        return;
    }
    if (const auto at = findKey(lines, *span, key)) {
        // The key keeps the spelling that the file gave it.
        lines[*at] = std::string(keyLineOf(lines[*at])->name) + "=" + value;
        return;
    }
    lines.insert(lines.begin() + std::ptrdiff_t(endOfSectionText(lines, *span)), key + "=" + value);
}

// A value stays on its one line.
std::string oneLine(std::string value) {
    std::ranges::replace(value, '\n', ' ');
    std::ranges::replace(value, '\r', ' ');
    return value;
}

std::string joinLines(const std::vector<std::string>& lines) {
    size_t size = 0;
    for (const std::string& line : lines)
        size += line.size() + 1;
    std::string text;
    text.reserve(size);
    for (const std::string& line : lines) {
        text += line;
        text += '\n';
    }
    return text;
}

// The first kProfileStringLimit characters of the text, counted in code points.
std::string cutToLimit(const std::string& text) {
    if (codePointCount(text) <= kProfileStringLimit)
        return text;
    return fitToWidth(text, kProfileStringLimit);
}

int32_t leadingNumber(std::string_view text) {
    text = trimmed(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+'))
        text.remove_prefix(1);
    constexpr int64_t limit = int64_t(std::numeric_limits<int32_t>::max()) + 1;
    int64_t magnitude = 0;
    for (char c : text) {
        if (c < '0' || c > '9')
            break;
        magnitude = std::min(magnitude * 10 + (c - '0'), limit);
    }
    const int64_t value = negative ? -magnitude : magnitude;
    return int32_t(std::clamp<int64_t>(value, std::numeric_limits<int32_t>::min(),
                                       std::numeric_limits<int32_t>::max()));
}

} // namespace

int32_t GetPrivateProfileIntA(const std::string& section, const std::string& key,
                              int32_t defaultValue, const std::string& file) {
    const auto value = findValue(section, key, file);
    return value ? leadingNumber(*value) : defaultValue;
}

std::string GetPrivateProfileStringA(const std::string& section, const std::string& key,
                                     const std::string& defaultValue, const std::string& file) {
    return cutToLimit(findValue(section, key, file).value_or(defaultValue));
}

bool WritePrivateProfileStringA(const std::string& section, const std::string& key,
                                const std::string& value, const std::string& file) {
    std::vector<std::string> lines = readLines(file);
    setKey(lines, section, key, oneLine(value));
    return writeFileAtomically(file, joinLines(lines));
}

} // namespace morvane
