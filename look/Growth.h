// How much larger than designed the windows are, for those who have chosen a larger font on their desktop.
//
// One factor for places and sizes: what stands side by side stays so, and no caption is cut. 1 at the
// design's font, whatever is smaller, and what hardly differs from it.
#pragma once

#include <QtCore/QSize>
#include <QtGui/QFont>

namespace look {

// In steps of an eighth, for the desktop's font of the moment; never so large that a dialog would outgrow the
// first screen.
double Growth();
double GrowthFor(const QFont& font, const QSize& screen);

// A measure of the design in logical pixels, as it is on the screen.
int Grown(double pixels);

}  // namespace look
