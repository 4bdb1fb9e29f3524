// The input is a log, once as it is and once with its checks put right, which chance would never do. What was
// read of it is written and read again as the same.
#include "store/UnstoredLog.h"

#include <algorithm>
#include <string>

#include "fuzz/Require.h"
#include "store/Bytes.h"

namespace {

using store::LogHealth;

constexpr std::size_t MagicSize = 34;
constexpr std::size_t HeadSize = 4 + 4 + 4 + 4;  // tag, length, check of the payload, check of these

void Put(std::string& bytes, std::size_t place, std::uint32_t number) {
  std::string raw;
  store::AppendNumber(raw, number);
  bytes.replace(place, raw.size(), raw);
}

std::string WithSoundChecks(std::string bytes) {
  for (std::size_t head = MagicSize; head + HeadSize <= bytes.size();) {
    const std::size_t start = head + HeadSize;
    const auto length = store::LoadNumber<std::uint32_t>(&bytes[head + 4]);
    const std::string_view payload = std::string_view(bytes).substr(start, length);
    Put(bytes, head + 8, store::Crc32(payload));
    Put(bytes, head + 12, store::Crc32(std::string_view(bytes).substr(head, 12)));
    head = start + payload.size();
  }
  return bytes;
}

std::size_t BytesOf(const store::UnstoredLog& log) {
  std::size_t sum = 0;
  if (log.index) sum += log.index->bytes.size();
  if (log.pictures) sum += log.pictures->bytes.size();
  for (const store::UnstoredJournal& journal : log.journals) {
    sum += journal.FileName.size();
    for (const store::UnstoredPage& page : journal.pages) sum += HeadSize + page.Body.value_or("").size();
  }
  return sum;
}

void RequireRoundTrip(std::string_view bytes) {
  const auto [log, health, problem] = store::DecodeLog(bytes);
  Require((health == LogHealth::Sound) == problem.empty(), "damage has a name");
  Require(BytesOf(log) <= bytes.size(), "parts come from bytes");
  Require(health != LogHealth::Alien || BytesOf(log) == 0, "nothing is read of an alien file");
  const std::string written = store::EncodeLog(log);
  const store::DecodedLog again = store::DecodeLog(written);
  Require(again.health == LogHealth::Sound, "what is written is sound");
  Require(store::EncodeLog(again.log) == written, "the parts come back");
}

}  // namespace

void Try(std::string_view input) {
  RequireRoundTrip(input);
  RequireRoundTrip(WithSoundChecks(std::string(input)));
}
