#include "app/Settings.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>

#include "app/frmOptions.h"
#include "bookcase/frmBookcase.h"
#include "editor/frmJournal.h"
#include "look/Theme.h"
#include "platform/Failure.h"
#include "platform/Files.h"
#include "platform/ProfileFile.h"
#include "state/State.h"

namespace {

constexpr char FileName[] = "journal.ini";
constexpr char Section[] = "Options";
constexpr int Themes = 3;

std::string FileText() {
  return platform::ReadProfile(platform::PathOf(FileName));
}

std::string ValueOf(const char* key) {
  return platform::ProfileValue(FileText(), Section, key);
}

// The number that a text begins with; 0 for a text that begins with no digit.
std::int32_t LeadingNumber(const std::string& text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error == std::errc::result_out_of_range) throw platform::Failure(platform::FailureKind::Overflow, text);
  return std::max(number, 0);
}

[[noreturn]] void Refuse(const char* key, const std::string& value) {
  throw platform::Failure(platform::FailureKind::InvalidPropertyValue,
                          std::string(key) + "=" + value + " in " + platform::PathOf(FileName));
}

void TakeGotoLastPage() {
  const std::string value = ValueOf("chkGotoLastPage");
  if (value.empty()) return;
  const std::int32_t number = LeadingNumber(value);
  if (number > 1) Refuse("chkGotoLastPage", value);
  chkGotoLastPage = number;
}

void TakeColor(const std::string& value, std::int32_t number) {
  if (value.empty()) return;
  if (number >= Themes) Refuse("optColor", value);
  optColor = number;
  if (number != 0) ApplyColorTheme(static_cast<std::int16_t>(number));
}

}  // namespace

// Button 0 is on by design and tells of no change, so theme 0 is put on by a step of its own.
void LoadSettings() {
  const auto guarded = [](auto&& statement) { platform::Guarded("GetIniError: ", statement); };
  guarded(&TakeGotoLastPage);
  std::string value;
  std::int32_t number = 0;
  guarded([&] { value = ValueOf("optColor"); });
  guarded([&] { number = LeadingNumber(value); });
  guarded([&] { TakeColor(value, number); });
  if (number == 0) guarded([] { ApplyColorTheme(0); });
}

void SaveSettings() {
  std::string text = FileText();
  text = platform::WithProfileValue(text, Section, "chkGotoLastPage", std::to_string(chkGotoLastPage));
  text = platform::WithProfileValue(text, Section, "optColor", std::to_string(optColor));
  platform::ReplaceFile(platform::PathOf(FileName), text);
}

void ApplyColorTheme(std::int16_t index) {
  look::PutOnTheme(index);
  if (look::IsLoaded<frmOptions>()) look::The<frmOptions>().WearTheme();
  if (look::IsLoaded<frmBookcase>()) look::The<frmBookcase>().WearTheme();
  if (look::IsLoaded<frmJournal>()) look::The<frmJournal>().face->WearTheme();
}
