// The sign that a field's instruction tells, of a symbol font for instance.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>

namespace richtext::rtf {

// It waits from the end of the instruction to the end of the field's group, and is shown there when the
// field's result, which stands between, showed nothing. A field within the result that tells a sign takes its
// place.
class FieldSign {
 public:
  // The instruction has told a number for \u, or 0 for none. `depth` is that of the field's group, `place`
  // the length of the document's text so far.
  void Await(std::int32_t number, std::size_t depth, std::size_t place) {
    number_ = number;
    depth_ = depth;
    place_ = place;
  }

  // The group at `depth` ends: the number of the sign that is to be shown in it, or 0.
  std::int32_t TakeAtEnd(std::size_t depth, std::size_t place) {
    if (number_ == 0 || depth_ != depth) return 0;
    const std::int32_t number = std::exchange(number_, 0);
    return place_ == place ? number : 0;
  }

 private:
  std::int32_t number_ = 0;
  std::size_t depth_ = 0;
  std::size_t place_ = 0;
};

}  // namespace richtext::rtf
