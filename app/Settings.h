// The two settings and the file that keeps them between runs.
#pragma once

#include <cstdint>

// Reads journal.ini of the program's folder into chkGotoLastPage and optColor and puts the theme on. A
// missing file or key leaves the design's value. A value that no control takes is told in a message and
// passed over; a theme of such a number is none at all, and the windows are plain.
void LoadSettings();

// Writes both settings into journal.ini and leaves the rest of the file as it is. Throws platform::Failure,
// with the file as it was, when it cannot be written.
void SaveSettings();

// Whether a setting in memory has changed since it was read or last written.
bool AreSettingsUnsaved();

// Dresses the bookcase and the journal's head strip in a theme, 0 to 2; the options dress themselves, and
// every other window takes it over when it loads. Any other number leaves the pictures as they are, over a
// black surface.
void ApplyColorTheme(std::int16_t index);
