// From the characters' state in a reading to the formats of the document.
#pragma once

#include "richtext/rtf/DocumentBuilder.h"
#include "richtext/rtf/FontTable.h"
#include "richtext/rtf/GroupState.h"
#include "richtext/rtf/Links.h"

namespace richtext::rtf {

// Equal keys are equal formats, and the other way round.
FormatKey KeyOf(const CharacterState& state, const FontTable& fonts);
CharacterFormat FormatOf(const CharacterState& state, const FontTable& fonts, const Links& links);

}  // namespace richtext::rtf
