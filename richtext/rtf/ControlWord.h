// A control word that means something here, with what it does.
#pragma once

#include <cstdint>
#include <string_view>

namespace richtext::rtf {

class Context;

enum class WordKind : std::uint8_t {
  Format,       // changes what follows
  Structure,    // ends a paragraph, or is a character of its own: never another character's fallback
  Destination,  // says what its group is; known also after "\*"
};

struct ControlWord {
  using Handler = void (*)(Context& context, std::int32_t argument, std::int32_t parameter);

  std::string_view name;
  Handler handle = nullptr;
  std::int32_t argument = 0;    // the handler's, of this word
  std::int32_t whenAbsent = 0;  // the parameter where none is written
  WordKind kind = WordKind::Format;
};

}  // namespace richtext::rtf
