// The font of the selected text, or of what is typed next.
#pragma once

#include <optional>
#include <utility>

// The value, or the default where there is none.
template <class Value>
Value NullDefault(const std::optional<Value>& value, Value defaultValue) {
  return value ? *value : std::move(defaultValue);
}

// Lets the user change it in the font dialog. What is mixed goes into the dialog as plain, as black, without
// a name and of no size, and comes back so when it is left alone: all of the selection is then plain and
// black, but keeps its fonts and sizes.
void ChangeSelectionFont();
