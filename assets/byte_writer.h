// A growing buffer of bytes with the little- and big-endian writes the file formats need.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace morvane::assets {

class ByteWriter {
  public:
    void byte(uint8_t v) { bytes_.push_back(v); }
    void le16(uint16_t v);
    void le32(uint32_t v);
    void be16(uint16_t v);
    void be32(uint32_t v);
    void text(const std::string& s);
    void append(const std::vector<uint8_t>& more);
    const std::vector<uint8_t>& bytes() const { return bytes_; }
    size_t size() const { return bytes_.size(); }
    bool save(const std::string& path) const;

  private:
    std::vector<uint8_t> bytes_;
};

} // namespace morvane::assets
