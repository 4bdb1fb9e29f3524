#pragma once

#include <QtCore/QString>

#include "richtext/document/Table.h"

namespace richtext::html {

// The names of the sides in styles, by Side.
constexpr const char* SideNames[] = {"top", "left", "bottom", "right"};

// The declaration of a style that tells a border; empty where none is shown.
QString BorderRule(const char* side, const Border& border);

}  // namespace richtext::html
