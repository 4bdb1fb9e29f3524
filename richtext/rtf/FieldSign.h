// What a field shows by its instruction: a sign, of a symbol font for instance, or the words on a button.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

namespace richtext::rtf {

// It waits from the end of the instruction to the end of the field's group, and is shown there when the
// field's result, which stands between, showed nothing. A field within the result that tells a sign takes its
// place.
class FieldSign {
 public:
  struct Shown {
    std::int32_t number = 0;  // for \u; 0: no sign
    std::u16string words;
  };

  // The instruction has told it. `depth` is that of the field's group, `place` the length of the document's
  // text so far.
  void Await(Shown shown, std::size_t depth, std::size_t place) {
    shown_ = std::move(shown);
    depth_ = depth;
    place_ = place;
  }

  // The group at `depth` ends: what is to be shown in it.
  Shown TakeAtEnd(std::size_t depth, std::size_t place) {
    if ((shown_.number == 0 && shown_.words.empty()) || depth_ != depth) return {};
    Shown shown = std::exchange(shown_, {});
    return place_ == place ? shown : Shown();
  }

 private:
  Shown shown_;
  std::size_t depth_ = 0;
  std::size_t place_ = 0;
};

}  // namespace richtext::rtf
