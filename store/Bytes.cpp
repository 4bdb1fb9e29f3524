#include "store/Bytes.h"

#include <algorithm>
#include <limits>

#include "platform/Failure.h"

namespace store {

void AppendCountedString(std::string& bytes, std::string_view text) {
  if (text.size() > LongestCountedString) {
    throw platform::Failure(platform::FailureKind::InvalidArgument, "a text is too long for its file");
  }
  AppendNumber(bytes, static_cast<std::uint16_t>(text.size()));
  bytes += text;
}

void AppendLongString(std::string& bytes, std::string_view text) {
  if (text.size() > std::numeric_limits<std::uint32_t>::max()) {
    throw platform::Failure(platform::FailureKind::InvalidArgument, "a text is too long for its file");
  }
  AppendNumber(bytes, static_cast<std::uint16_t>(std::min(text.size(), LongestCountedString)));
  if (text.size() >= LongestCountedString) AppendNumber(bytes, static_cast<std::uint32_t>(text.size()));
  bytes += text;
}

std::string_view Reader::Take(std::size_t size, const char* field) {
  if (size > rest_.size()) throw MissingField(field);
  const std::string_view taken = rest_.substr(0, size);
  rest_.remove_prefix(size);
  return taken;
}

std::string_view Reader::TakeCountedString(const char* field) {
  const Reader before = *this;
  try {
    const auto size = TakeNumber<std::uint16_t>(field);
    return Take(size, field);
  } catch (const MissingField&) {
    *this = before;
    throw;
  }
}

std::string_view Reader::TakeLongString(const char* field) {
  const Reader before = *this;
  try {
    std::size_t size = TakeNumber<std::uint16_t>(field);
    if (size == LongestCountedString) size = TakeNumber<std::uint32_t>(field);
    return Take(size, field);
  } catch (const MissingField&) {
    *this = before;
    throw;
  }
}

}  // namespace store
