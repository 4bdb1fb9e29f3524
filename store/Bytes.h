// Numbers and counted strings as the files hold them: little-endian, whatever the machine's own order is.
#pragma once

#include <bit>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <type_traits>

namespace store {

// The number whose lowest byte stands first at `bytes`.
template <std::integral Number>
Number LoadNumber(const char* bytes) {
  std::make_unsigned_t<Number> number = 0;
  for (std::size_t i = sizeof(Number); i-- > 0;) {
    number = static_cast<std::make_unsigned_t<Number>>((std::uint64_t{number} << 8) |
                                                       static_cast<unsigned char>(bytes[i]));
  }
  return static_cast<Number>(number);
}

template <std::integral Number>
void AppendNumber(std::string& bytes, Number number) {
  char raw[sizeof(Number)];
  const auto rest = static_cast<std::uint64_t>(number);
  for (std::size_t i = 0; i < sizeof(Number); ++i) raw[i] = static_cast<char>(rest >> (8 * i));
  bytes.append(raw, sizeof(Number));
}

inline double LoadDouble(const char* bytes) {
  return std::bit_cast<double>(LoadNumber<std::uint64_t>(bytes));
}
inline void AppendDouble(std::string& bytes, double number) {
  AppendNumber(bytes, std::bit_cast<std::uint64_t>(number));
}

// The longest string that a 16-bit length can tell.
inline constexpr std::size_t LongestCountedString = 0xFFFF;

// A 16-bit length, then the text. Throws platform::Failure (InvalidArgument), with nothing appended, when the
// text is longer than LongestCountedString.
void AppendCountedString(std::string& bytes, std::string_view text);
// The same for a text of any length: from LongestCountedString on its length is 0xFFFF and then 32 bits.
void AppendLongString(std::string& bytes, std::string_view text);

// What a reader throws when a field is not there whole; the text is the field's plain name.
class MissingField : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Walks over the bytes of a file from front to back. Each step takes a field's bytes away, or throws
// MissingField with that field's plain name when fewer are left, and then takes nothing.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {}

  std::size_t left() const { return rest_.size(); }

  std::string_view Take(std::size_t size, const char* field);
  // A 16-bit length and that many bytes.
  std::string_view TakeCountedString(const char* field);
  // What AppendLongString writes.
  std::string_view TakeLongString(const char* field);

  template <std::integral Number>
  Number TakeNumber(const char* field) {
    return LoadNumber<Number>(Take(sizeof(Number), field).data());
  }

 private:
  std::string_view rest_;
};

}  // namespace store
