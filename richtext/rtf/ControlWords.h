// The control words that mean something here, each with what it does.
#pragma once

#include <string_view>

#include "richtext/rtf/ControlWord.h"

namespace richtext::rtf {

// Nothing for a word that is not known, which is to be passed over with its parameter. Letters count by case.
const ControlWord* FindControlWord(std::string_view name);

}  // namespace richtext::rtf
