#include "game/text.h"

namespace morvane {

namespace {

bool startsCodePoint(unsigned char byte) { return (byte & 0xC0) != 0x80; }

} // namespace

std::string chooseText(const GameState& g, const std::string& japanese,
                       const std::string& english) {
    return g.isJapanese ? japanese : english;
}

std::string trimBlanks(const std::string& text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string::npos)
        return "";
    const auto last = text.find_last_not_of(' ');
    return text.substr(first, last - first + 1);
}

std::string trimAtNull(const std::string& text) {
    return trimBlanks(text.substr(0, text.find('\0')));
}

int codePointCount(const std::string& text) {
    int count = 0;
    for (unsigned char byte : text)
        count += startsCodePoint(byte) ? 1 : 0;
    return count;
}

std::string fitToWidth(const std::string& text, int width) {
    std::string result;
    int count = 0;
    for (size_t i = 0; i < text.size(); ++i) {
        if (startsCodePoint(static_cast<unsigned char>(text[i]))) {
            if (count == width)
                break;
            ++count;
        }
        result += text[i];
    }
    result.append(size_t(width - count), ' ');
    return result;
}

std::string signedNumberText(long value) {
    std::string text = std::to_string(value);
    if (value >= 0)
        text.insert(text.begin(), ' ');
    return text;
}

} // namespace morvane
