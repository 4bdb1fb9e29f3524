#include "platform/files/ProfileFile.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include "platform/files/Files.h"
#include "platform/files/InputFile.h"

namespace platform {
namespace {

constexpr std::string_view Blanks = " \t\r";
constexpr std::string_view LineEnd = "\r\n";
// No person's settings are longer: such a file is something else.
constexpr std::uint64_t LongestProfile = 1 << 20;  // bytes

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(Blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(Blanks) - first + 1);
}

char Lower(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool SameName(std::string_view one, std::string_view other) {
  return std::ranges::equal(Trimmed(one), Trimmed(other), {}, Lower, Lower);
}

std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
  }
  return lines;
}

// The name in a line such as "[Options]".
std::optional<std::string_view> SectionIn(std::string_view line) {
  line = Trimmed(line);
  if (!line.starts_with('[')) return std::nullopt;
  return line.substr(1, line.find(']') - 1);
}

bool IsKey(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  if (equals == std::string_view::npos || Trimmed(line).starts_with(';')) return false;
  return SameName(line.substr(0, equals), key);
}

std::string_view Unquoted(std::string_view value) {
  const bool quoted =
      value.size() >= 2 && value.front() == value.back() && (value.front() == '"' || value.front() == '\'');
  return quoted ? value.substr(1, value.size() - 2) : value;
}

// The lines of one section as a range of positions, behind its heading; none when there is no such section.
struct SectionLines {
  std::size_t first;
  std::size_t end;
};

std::optional<SectionLines> FindSection(const std::vector<std::string_view>& lines,
                                        std::string_view section) {
  const auto isHeading = [](std::string_view line) { return SectionIn(line).has_value(); };
  const auto heading = std::ranges::find_if(lines, [section](std::string_view line) {
    const auto name = SectionIn(line);
    return name && SameName(*name, section);
  });
  if (heading == lines.end()) return std::nullopt;
  const auto end = std::find_if(heading + 1, lines.end(), isHeading);
  return SectionLines{static_cast<std::size_t>(heading - lines.begin()) + 1,
                      static_cast<std::size_t>(end - lines.begin())};
}

std::optional<std::size_t> FindKey(const std::vector<std::string_view>& lines, SectionLines within,
                                   std::string_view key) {
  for (std::size_t i = within.first; i < within.end; ++i)
    if (IsKey(lines[i], key)) return i;
  return std::nullopt;
}

// Behind the section's last line that is not blank, so that the blank lines before the next heading stay.
std::size_t PlaceForAKey(const std::vector<std::string_view>& lines, SectionLines within) {
  std::size_t place = within.end;
  while (place > within.first && Trimmed(lines[place - 1]).empty()) --place;
  return place;
}

}  // namespace

std::string ProfileValue(std::string_view text, std::string_view section, std::string_view key) {
  const auto lines = LinesOf(text);
  const auto within = FindSection(lines, section);
  if (!within) return {};
  const auto line = FindKey(lines, *within, key);
  if (!line) return {};
  const std::string_view value = lines[*line].substr(lines[*line].find('=') + 1);
  return std::string(Unquoted(Trimmed(value)).substr(0, LongestProfileValue));
}

std::string WithProfileValue(std::string_view text, std::string_view section, std::string_view key,
                             std::string_view value) {
  auto lines = LinesOf(text);
  const std::string heading = std::string("[").append(section).append("]");
  const std::string entry = std::string(key).append("=").append(value);
  const auto at = [&lines](std::size_t place) { return lines.begin() + static_cast<std::ptrdiff_t>(place); };

  if (const auto within = FindSection(lines, section)) {
    if (const auto line = FindKey(lines, *within, key))
      lines[*line] = entry;
    else
      lines.insert(at(PlaceForAKey(lines, *within)), entry);
  } else {
    lines.insert(lines.end(), {heading, entry});
  }

  std::string result;
  for (const std::string_view line : lines) result.append(line).append(LineEnd);
  return result;
}

std::string ReadProfile(const std::string& path) {
  if (IsMissing(path)) return {};
  return ReadDataFile(path, LongestProfile);
}

}  // namespace platform
