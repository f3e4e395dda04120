#include "byte_writer.h"

#include <fstream>

namespace morvane::assets {

void ByteWriter::le16(uint16_t v) {
    byte(static_cast<uint8_t>(v & 0xff));
    byte(static_cast<uint8_t>(v >> 8));
}

void ByteWriter::le32(uint32_t v) {
    le16(static_cast<uint16_t>(v & 0xffff));
    le16(static_cast<uint16_t>(v >> 16));
}

void ByteWriter::be16(uint16_t v) {
    byte(static_cast<uint8_t>(v >> 8));
    byte(static_cast<uint8_t>(v & 0xff));
}

void ByteWriter::be32(uint32_t v) {
    be16(static_cast<uint16_t>(v >> 16));
    be16(static_cast<uint16_t>(v & 0xffff));
}

void ByteWriter::text(const std::string& s) {
    bytes_.insert(bytes_.end(), s.begin(), s.end());
}

void ByteWriter::append(const std::vector<uint8_t>& more) {
    bytes_.insert(bytes_.end(), more.begin(), more.end());
}

bool ByteWriter::save(const std::string& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(bytes_.data()),
               static_cast<std::streamsize>(bytes_.size()));
    return static_cast<bool>(file);
}

} // namespace morvane::assets
