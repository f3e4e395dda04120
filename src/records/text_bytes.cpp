#include "records/text_bytes.h"

#include <iconv.h>
#include <optional>

namespace morvane {

namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD"; // U+FFFD
// A byte of Shift-JIS becomes at most three bytes of UTF-8.
constexpr size_t kMostUtf8BytesAByte = 3;

bool inRange(unsigned char byte, unsigned char low, unsigned char high) {
    return byte >= low && byte <= high;
}

// The length of the well-formed UTF-8 sequence at the start of the bytes, or 0 when there is
// none: no overlong forms, no surrogates, nothing above U+10FFFF.
size_t sequenceLength(std::string_view bytes) {
    const auto at = [&](size_t i) {
        return static_cast<unsigned char>(i < bytes.size() ? bytes[i] : '\0');
    };
    const unsigned char lead = at(0);
    const auto tail = [&](size_t from, size_t to) {
        for (size_t i = from; i < to; ++i) {
            if (!inRange(at(i), 0x80, 0xBF))
                return false;
        }
        return true;
    };
    if (lead < 0x80)
        return 1;
    if (inRange(lead, 0xC2, 0xDF))
        return tail(1, 2) ? 2 : 0;
    if (inRange(lead, 0xE0, 0xEF)) {
        const auto low = static_cast<unsigned char>(lead == 0xE0 ? 0xA0 : 0x80);
        const auto high = static_cast<unsigned char>(lead == 0xED ? 0x9F : 0xBF);
        return inRange(at(1), low, high) && tail(2, 3) ? 3 : 0;
    }
    if (inRange(lead, 0xF0, 0xF4)) {
        const auto low = static_cast<unsigned char>(lead == 0xF0 ? 0x90 : 0x80);
        const auto high = static_cast<unsigned char>(lead == 0xF4 ? 0x8F : 0xBF);
        return inRange(at(1), low, high) && tail(2, 4) ? 4 : 0;
    }
    return 0;
}

class ShiftJisDecoder {
  public:
    ShiftJisDecoder() {
        for (const char* name : {"CP932", "SHIFT_JIS"}) {
            handle_ = ::iconv_open("UTF-8", name);
            if (handle_ != kNone)
                return;
        }
    }
    ~ShiftJisDecoder() {
        if (handle_ != kNone)
            ::iconv_close(handle_);
    }
    ShiftJisDecoder(const ShiftJisDecoder&) = delete;
    ShiftJisDecoder& operator=(const ShiftJisDecoder&) = delete;

    // The text in UTF-8, or nothing when some of its bytes aren't Shift-JIS.
    std::optional<std::string> decode(std::string_view bytes) const {
        if (handle_ == kNone)
            return std::nullopt;
        std::string out(bytes.size() * kMostUtf8BytesAByte, '\0');
        char* in = const_cast<char*>(bytes.data());
        size_t inLeft = bytes.size();
        char* to = out.data();
        size_t outLeft = out.size();
        if (::iconv(handle_, &in, &inLeft, &to, &outLeft) == size_t(-1) || inLeft != 0)
            return std::nullopt;
        out.resize(out.size() - outLeft);
        return out;
    }

  private:
    static inline const iconv_t kNone = iconv_t(-1);
    iconv_t handle_ = kNone;
};

std::string withReplacements(std::string_view bytes) {
    std::string text;
    while (!bytes.empty()) {
        const size_t length = sequenceLength(bytes);
        if (length == 0) {
            text += kReplacement;
            bytes.remove_prefix(1);
        } else {
            text += bytes.substr(0, length);
            bytes.remove_prefix(length);
        }
    }
    return text;
}

} // namespace

bool isUtf8(std::string_view bytes) {
    while (!bytes.empty()) {
        const size_t length = sequenceLength(bytes);
        if (length == 0)
            return false;
        bytes.remove_prefix(length);
    }
    return true;
}

std::string utf8FromAnyBytes(std::string_view bytes) {
    if (isUtf8(bytes))
        return std::string(bytes);
    if (auto decoded = ShiftJisDecoder().decode(bytes))
        return *std::move(decoded);
    return withReplacements(bytes);
}

} // namespace morvane
