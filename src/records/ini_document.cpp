#include "records/ini_document.h"

#include "game/text.h"
#include "records/text_bytes.h"

#include <algorithm>
#include <limits>

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

// Names match without regard to case, so they are looked up in lower case.
std::string lowerCase(std::string_view name) {
    std::string lower(name);
    for (char& c : lower) {
        if (c >= 'A' && c <= 'Z')
            c = char(c - 'A' + 'a');
    }
    return lower;
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

// The key that a line sets, with its value: nothing for headers, comments and lines without an
// equals sign.
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

int32_t leadingNumber(std::string_view text) {
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

// The first kProfileStringLimit characters of the text, counted in code points.
std::string cutToLimit(std::string text) {
    if (codePointCount(text) <= kProfileStringLimit)
        return text;
    return fitToWidth(text, kProfileStringLimit);
}

// A value stays on its one line.
std::string oneLine(std::string_view value) {
    std::string line(value);
    std::ranges::replace(line, '\n', ' ');
    std::ranges::replace(line, '\r', ' ');
    return line;
}

} // namespace

IniDocument::IniDocument(std::string_view text) {
    if (text.starts_with(kByteOrderMark)) {
        byteOrderMark_ = kByteOrderMark;
        text.remove_prefix(kByteOrderMark.size());
    }
    if (const auto firstEnd = text.find('\n'); firstEnd != std::string_view::npos)
        lineEnd_ = firstEnd > 0 && text[firstEnd - 1] == '\r' ? "\r\n" : "\n";
    while (!text.empty()) {
        const auto end = text.find('\n');
        if (end == std::string_view::npos) {
            addLine(text, "");
            break;
        }
        const bool crlf = end > 0 && text[end - 1] == '\r';
        addLine(text.substr(0, crlf ? end - 1 : end), crlf ? "\r\n" : "\n");
        text.remove_prefix(end + 1);
    }
}

void IniDocument::addLine(std::string_view text, std::string_view end) {
    if (const auto name = sectionNameOf(text)) {
        sectionIndex_.try_emplace(lowerCase(*name), sections_.size());
        sections_.emplace_back();
    }
    Section& section = sections_.back();
    section.lines.push_back({std::string(text), std::string(end)});
    if (const auto keyLine = keyLineOf(text); keyLine && sections_.size() > 1)
        section.keys.try_emplace(lowerCase(keyLine->name), section.lines.size() - 1);
}

const IniDocument::Section* IniDocument::findSection(std::string_view name) const {
    const auto found = sectionIndex_.find(lowerCase(trimmed(name)));
    return found == sectionIndex_.end() ? nullptr : &sections_[found->second];
}

std::optional<std::string_view> IniDocument::value(std::string_view section,
                                                   std::string_view key) const {
    const Section* s = findSection(section);
    if (!s)
        return std::nullopt;
    const auto found = s->keys.find(lowerCase(trimmed(key)));
    if (found == s->keys.end())
        return std::nullopt;
    return keyLineOf(s->lines[found->second].text)->value;
}

int32_t IniDocument::readInt(std::string_view section, std::string_view key,
                             int32_t defaultValue) const {
    const auto text = value(section, key);
    return text ? leadingNumber(*text) : defaultValue;
}

std::string IniDocument::readString(std::string_view section, std::string_view key,
                                    const std::string& defaultValue) const {
    const auto text = value(section, key);
    return cutToLimit(text ? utf8FromAnyBytes(*text) : defaultValue);
}

IniDocument::Section& IniDocument::sectionToWrite(std::string_view name) {
    if (const Section* found = findSection(name))
        return sections_[size_t(found - sections_.data())];
    addLine("[" + std::string(trimmed(name)) + "]", lineEnd_);
    return sections_.back();
}

void IniDocument::set(std::string_view section, std::string_view key, std::string_view value) {
    Section& s = sectionToWrite(section);
    const std::string name(trimmed(key));
    const std::string line = "=" + oneLine(value);
    if (const auto found = s.keys.find(lowerCase(name)); found != s.keys.end()) {
        // The key keeps the spelling that the file gave it.
        Line& old = s.lines[found->second];
        old.text = std::string(keyLineOf(old.text)->name) + line;
        return;
    }
    // After the last line of the section that isn't blank: only blank lines follow it, so no
    // key's place moves.
    size_t at = s.lines.size();
    while (at > 1 && trimmed(s.lines[at - 1].text).empty())
        --at;
    s.lines.insert(s.lines.begin() + std::ptrdiff_t(at), Line{name + line, lineEnd_});
    s.keys.emplace(lowerCase(name), at);
}

std::string IniDocument::text() const {
    size_t size = byteOrderMark_.size();
    for (const Section& s : sections_) {
        for (const Line& line : s.lines)
            size += line.text.size() + lineEnd_.size();
    }
    std::string text;
    text.reserve(size);
    text += byteOrderMark_;
    for (const Section& s : sections_) {
        for (const Line& line : s.lines) {
            text += line.text;
            text += line.end.empty() ? lineEnd_ : line.end;
        }
    }
    return text;
}

} // namespace morvane
