#ifndef KELPOWER_FUZZ_READER_H
#define KELPOWER_FUZZ_READER_H

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace kelfuzz {

/// Reads an input of the fuzzer from its start; beyond its end it continues with zeros.
class Reader {
public:
  Reader(const std::uint8_t* data, std::size_t size) : data_(data), size_(size) {}

  std::uint8_t Byte() { return position_ < size_ ? data_[position_++] : std::uint8_t{0}; }

  std::uint64_t Bits(int bytes) {
    std::uint64_t bits = 0;
    for (int i = 0; i < bytes; ++i) bits = bits << 8 | Byte();
    return bits;
  }

  /// Half of all arguments are plain numbers, where the methods differ; the others are any bit pattern.
  double Number() {
    const std::uint8_t kind = Byte();
    if (kind % 8 == 0) return static_cast<double>(Bits(2));
    if (kind % 8 == 1) return static_cast<double>(Bits(2)) / 65536;
    if (kind % 8 == 2) return static_cast<double>(Bits(4)) / 1024;
    if (kind % 8 == 3) return -static_cast<double>(Bits(2)) / 256;
    const std::uint64_t bits = Bits(8);
    double value = 0;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }

private:
  const std::uint8_t* data_;
  std::size_t size_;
  std::size_t position_ = 0;
};

}  // namespace kelfuzz

#endif
