// The pictures of the toolbar's buttons.
#pragma once

#include <QtGui/QIcon>

// 16 x 16 pixels, in ink with one colour; in the active mode, under the mouse, the colour is lit. A null icon
// for a key that no button has.
QIcon ToolbarPicture(const QString& key);
