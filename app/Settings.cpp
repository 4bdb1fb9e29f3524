#include "app/Settings.h"

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <utility>

#include "bookcase/frmBookcase.h"
#include "editor/PageFace.h"
#include "editor/frmJournal.h"
#include "look/Theme.h"
#include "platform/Failure.h"
#include "platform/dialogs/ReportFailure.h"
#include "platform/dialogs/TellKept.h"
#include "platform/files/Files.h"
#include "platform/files/KnownFiles.h"
#include "platform/files/ProfileFile.h"
#include "platform/files/ReplaceFile.h"
#include "state/State.h"

namespace {

constexpr char FileName[] = "journal.ini";
constexpr char Section[] = "Options";
constexpr int Themes = 3;

std::string FileText() {
  return platform::ReadProfile(platform::PathOf(FileName));
}

struct Setting {
  const char* key;
  std::string value;
};

Setting SettingIn(const std::string& text, const char* key) {
  return {key, platform::ProfileValue(text, Section, key)};
}

[[noreturn]] void Refuse(const Setting& setting, platform::FailureKind kind) {
  throw platform::Failure(
      kind, std::string(setting.key) + "=" + setting.value + " in " + platform::PathOf(FileName));
}

// The number that the value begins with; 0 where it begins with no digit, as a sign is none. Quotes may have
// kept blanks before it.
std::int32_t LeadingNumber(const Setting& setting) {
  const std::string& text = setting.value;
  std::int32_t number = 0;
  const std::size_t first = std::min(text.find_first_not_of(" \t"), text.size());
  if (text.substr(first).starts_with('-')) return 0;
  const auto [end, error] = std::from_chars(text.data() + first, text.data() + text.size(), number);
  if (error == std::errc::result_out_of_range) Refuse(setting, platform::FailureKind::Overflow);
  return number;
}

void TakeGotoLastPage(const Setting& setting) {
  if (setting.value.empty()) return;
  const std::int32_t number = LeadingNumber(setting);
  if (number > 1) Refuse(setting, platform::FailureKind::InvalidPropertyValue);
  chkGotoLastPage = number;
}

void TakeColor(const Setting& setting, std::int32_t number) {
  if (setting.value.empty()) return;
  if (number >= Themes) Refuse(setting, platform::FailureKind::InvalidPropertyValue);
  optColor = number;
  if (number != 0) ApplyColorTheme(static_cast<std::int16_t>(number));
}

using Settings = std::pair<std::int32_t, std::int32_t>;

Settings Present() {
  return {chkGotoLastPage, optColor};
}

Settings kept = {1, 0};  // what the next start reads: the file's, or the design's where it has none

}  // namespace

// Button 0 is on by design and tells of no change, so theme 0 is put on by a step of its own.
void LoadSettings() {
  const auto guarded = [](auto&& statement) { platform::Guarded("GetIniError: ", statement); };
  std::string text;
  guarded([&] { text = FileText(); });
  guarded([&] { TakeGotoLastPage(SettingIn(text, "chkGotoLastPage")); });
  const Setting color = SettingIn(text, "optColor");
  std::int32_t number = 0;
  guarded([&] { number = LeadingNumber(color); });
  guarded([&] { TakeColor(color, number); });
  if (number == 0) guarded([] { ApplyColorTheme(0); });
  kept = Present();
}

void SaveSettings() {
  const std::string path = platform::PathOf(FileName);
  platform::KeepChanged(path);
  std::string text = FileText();
  text = platform::WithProfileValue(text, Section, "chkGotoLastPage", std::to_string(chkGotoLastPage));
  text = platform::WithProfileValue(text, Section, "optColor", std::to_string(optColor));
  platform::ReplaceDataFile(path, text);
  kept = Present();
  platform::TellKept(path);
}

bool AreSettingsUnsaved() {
  return Present() != kept;
}

void ApplyColorTheme(std::int16_t index) {
  look::PutOnTheme(index);
  if (look::IsLoaded<frmBookcase>()) look::The<frmBookcase>().WearTheme();
  if (look::IsLoaded<frmJournal>()) look::The<frmJournal>().face->WearTheme();
}
