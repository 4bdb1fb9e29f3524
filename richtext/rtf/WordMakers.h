// What makes the rows of the tables of control words.
#pragma once

#include <string_view>

#include "richtext/rtf/ControlWord.h"
#include "richtext/rtf/Handlers.h"
#include "richtext/rtf/ListHandlers.h"

namespace richtext::rtf {

using handlers::Number;

constexpr ControlWord Word(std::string_view name, ControlWord::Handler handle, Number whenAbsent = 0) {
  return {name, handle, 0, whenAbsent, WordKind::Format};
}

template <typename Value>
constexpr ControlWord WordOf(std::string_view name, ControlWord::Handler handle, Value argument,
                             Number whenAbsent = 0) {
  return {name, handle, static_cast<Number>(argument), whenAbsent, WordKind::Format};
}

constexpr ControlWord End(std::string_view name) {
  return {name, handlers::ParagraphEnd, 0, 0, WordKind::Structure};
}

constexpr ControlWord Skipped(std::string_view name) {
  return {name, handlers::Skip, 0, 0, WordKind::Destination};
}

constexpr ControlWord Shown(std::string_view name) {
  return {name, handlers::Transparent, 0, 0, WordKind::Destination};
}

constexpr ControlWord Aside(std::string_view name, Destination destination) {
  return {name, handlers::SetAside, static_cast<Number>(destination), 0, WordKind::Destination};
}

constexpr ControlWord Sent(std::string_view name, Destination destination) {
  return {name, handlers::SendTo, static_cast<Number>(destination), 0, WordKind::Destination};
}

constexpr ControlWord LabelOf(std::string_view name, WrittenLabel::Kind kind) {
  return {name, handlers::Label, static_cast<Number>(kind), 0, WordKind::Destination};
}

constexpr Number On = 1;          // toggles are on where no parameter is written
constexpr Number UsualShift = 6;  // half points

}  // namespace richtext::rtf
