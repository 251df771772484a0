#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace brivane::fuzz {

/// Turns the bytes of a fuzzer into choices. Past the last byte every choice is the first one.
class Bytes {
 public:
  explicit Bytes(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  [[nodiscard]] bool Empty() const { return bytes_.empty(); }

  std::uint8_t Next() {
    if (bytes_.empty()) return 0;
    const std::uint8_t byte = bytes_.front();
    bytes_ = bytes_.subspan(1);
    return byte;
  }
  /// A number below `count`, which is at least 1.
  std::size_t Below(std::size_t count) { return Next() % count; }
  bool Flip() { return (Next() & 1U) != 0; }
  /// One of four times, no.
  bool Often() { return (Next() & 3U) != 0; }
  std::int32_t Whole32() {
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i) value = value << 8U | Next();
    return static_cast<std::int32_t>(value);
  }
  template <class List> const auto& OneOf(const List& list) { return list[Below(std::size(list))]; }
  std::string Text() {
    std::string text;
    for (std::size_t length = Below(12); length > 0; --length) text += static_cast<char>(' ' + Below(95));
    return text;
  }

 private:
  std::span<const std::uint8_t> bytes_;
};

}  // namespace brivane::fuzz
