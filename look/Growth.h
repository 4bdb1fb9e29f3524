// How much larger than designed the windows are, for those who have chosen a larger font on their desktop.
//
// One factor for places and sizes: what stands side by side stays so, and no caption is cut. 1 at the
// design's font, whatever is smaller, and what hardly differs from it. Where the screen has no room for all
// that the font asks for, the letters in the windows grow no further than their places.
#pragma once

#include <QtCore/QSize>
#include <QtGui/QFont>
#include <QtWidgets/QWidget>

namespace look {

// In steps of an eighth, for the desktop's font; never so large that a dialog would outgrow the first screen.
// It stays as it was measured first: what has been laid out is not laid out anew when the font changes.
double Growth();
// For when no window is left.
void MeasureGrowthAnew();
double GrowthFor(const QFont& font, const QSize& screen);

// A measure of the design in logical pixels, as it is on the screen.
int Grown(double pixels);
QSize Grown(const QSize& pixels);

// Gives the window a smaller font than the desktop's where the windows could not grow as far as that.
void WearGrownFont(QWidget& window);
QFont FontFor(const QFont& font, const QSize& screen);

}  // namespace look
