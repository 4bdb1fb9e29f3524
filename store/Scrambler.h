// The disguise of names and passwords in the files: keyless, the same in every installation.
//
// A text of n characters becomes 2n: for each one a filler character (30 to 149) and then the character's
// code raised by 4. There is no wrap-around: codes 252 to 255 cannot be scrambled.
#pragma once

#include <string>
#include <string_view>

// Neither tells its caller of a failure. For each character that cannot be formed a box says "Encryption
// Error:" or "Decryption Error:" with the failure's text, and the routine goes on with the statement behind
// it: a character of 252 to 255 repeats the pair before it, an odd last filler repeats the plain character
// before it, a coded character of 0 to 3 is left out.
std::string ScrambleText(std::string_view text);
std::string UnscrambleText(std::string_view text);

// What ScrambleText makes of the text, without a box and with filler that leaves no trace: the next
// ScrambleText draws what it would have drawn without. For copies that are made when the clock says so.
std::string ScrambleTextAside(std::string_view text);
