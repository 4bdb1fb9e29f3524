// The colour table. An entry without components is the automatic colour, wherever it stands; the oldest edit
// controls begin their tables with a real one.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace richtext::rtf {

class ColorTable {
 public:
  // Reading the table. A component is clamped to 0..255.
  void SetRed(std::int32_t value) { SetComponent(0, value); }
  void SetGreen(std::int32_t value) { SetComponent(8, value); }
  void SetBlue(std::int32_t value) { SetComponent(16, value); }
  void AppendText(std::string_view bytes);  // each semicolon ends an entry
  void EndTable();

  // 0x00BBGGRR; AutomaticColor for the automatic one and past the end.
  std::int32_t Find(std::int32_t index) const;

 private:
  void SetComponent(int shift, std::int32_t value);
  void EndEntry();

  std::vector<std::int32_t> colors_;
  bool hasComponent_ = false;
  std::int32_t color_ = 0;
};

}  // namespace richtext::rtf
