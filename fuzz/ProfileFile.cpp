// A key that is set reads as what it was set to, and whatever else stands in the file stays as it is.
#include "platform/files/ProfileFile.h"

#include <algorithm>
#include <sstream>

#include "fuzz/Desk.h"
#include "platform/files/Files.h"
#include "platform/files/ReplaceFile.h"

namespace {

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream rest(text);
  for (std::string line; std::getline(rest, line); lines.push_back(line))
    if (line.ends_with('\r')) line.pop_back();
  return lines;
}

// One line was changed, or one or two were put in at one place.
void RequireKeptLines(const std::vector<std::string>& before, const std::vector<std::string>& after) {
  const auto front = std::mismatch(before.begin(), before.end(), after.begin(), after.end());
  const auto back = std::mismatch(before.rbegin(), std::make_reverse_iterator(front.first), after.rbegin(),
                                  std::make_reverse_iterator(front.second));
  const auto unlike = back.first.base() - front.first;
  Require(unlike == 0 || (unlike == 1 && before.size() == after.size()), "a person's lines stay");
  Require(after.size() <= before.size() + 2, "a heading and a key are all that comes");
}

}  // namespace

void Try(std::string_view input) {
  const std::string bytes(input);
  Desk desk;
  desk.Write("journal.ini", bytes);
  const std::string path = platform::PathOf("journal.ini");
  const std::string text = platform::ReadProfile(path);
  const std::string theme = platform::ProfileValue(text, "Options", "optColor");
  Require(text == bytes && text.find(theme) != std::string::npos, "a value stands in the file");
  Require(theme.size() <= platform::LongestProfileValue, "a value has an end");

  const auto withKey = [](const std::string& profile) {
    return platform::WithProfileValue(profile, "Options", "chkGotoLastPage", "1");
  };
  platform::ReplaceFile(path, withKey(text));
  const std::string again = platform::ReadProfile(path);
  Require(platform::ProfileValue(again, "Options", "chkGotoLastPage") == "1", "what is set is read");
  Require(platform::ProfileValue(again, "options", " OPTCOLOR ") == theme, "the other key keeps its value");
  Require(withKey(again) == again, "setting it once more changes nothing");
  RequireKeptLines(LinesOf(text), LinesOf(again));
}
