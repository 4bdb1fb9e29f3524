// The page cipher: a simple shift with random filler, which keeps a page out of plain sight.
//
// A text of n bytes becomes 2n: for each byte the shifted byte and then a filler (30 to 149). A sum beyond
// 255 is lowered by 255, not by 256, so the two passes are inverse to each other but for the plain byte 255,
// which comes back as 0.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace store {

// Deciphers `body`, an even number of bytes, into `plain`, which has room for half as many. Shift 0 to 255.
void Decipher(std::string_view body, std::int32_t shift, char* plain);

// Enciphers `plain` into `body`, which has room for twice as many bytes. Shift 0 to 255.
void Encipher(std::string_view plain, std::int32_t shift, char* body);

// What Encipher draws its next filler from.
using Filler = std::array<std::uint32_t, 16>;
Filler NextFiller();
// The same with filler that leaves no trace: the next Encipher draws what it would have drawn without. For
// copies that are made when the clock says so, and not when a person acts. On any thread.
void EncipherAside(std::string_view plain, std::int32_t shift, const Filler& filler, char* body);

}  // namespace store
