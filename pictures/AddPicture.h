// Adding a picture to the current page: from the choice of a file to the new row of Pictures.
#pragma once

#include <cstdint>
#include <string>

// What the dialog and its routines share.
extern std::int32_t AddFrameIndex;  // the entry chosen in List1: 0 none, n the n-th frame file
extern std::int32_t AddWidth;       // pixels that the picture has at the present scale
extern std::int32_t AddHeight;
extern double AddScale;      // 1.0 is the figure shown as 100%
extern std::string AddFile;  // the full path of the file chosen last, as the file dialog returned it

// Asks for a file and opens frmAddPicture on it. A page that has its seven pictures, and a file that cannot
// be shown, are told in a message instead. Cancelling changes nothing.
void StartAddPicture();

// Sets AddWidth and AddHeight for the picture in picTemp at AddScale, and the preview in frmAddPicture.
// Throws platform::Failure when the frame that AddFrameIndex names cannot be shown; the rest is done and the
// frame hidden.
void ShowScaledPreview();

// Makes the row for AddFile, saves the store and shows the page's pictures. A file that can no longer be
// shown is told in a message, and no row is made.
void AddPictureToPage();
