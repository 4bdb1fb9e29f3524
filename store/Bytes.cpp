#include "store/Bytes.h"

#include "platform/Failure.h"

namespace store {

void AppendCountedString(std::string& bytes, std::string_view text) {
  if (text.size() > LongestCountedString) {
    throw platform::Failure(platform::FailureKind::InvalidArgument, "a text is too long for its file");
  }
  AppendNumber(bytes, static_cast<std::uint16_t>(text.size()));
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

}  // namespace store
