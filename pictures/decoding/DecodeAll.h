// Several pictures at once, on up to four processors.
#pragma once

#include <exception>
#include <vector>

#include "pictures/decoding/PictureFile.h"

namespace pictures {

struct Outcome {
  DecodedPicture decoded;
  std::exception_ptr failure;  // what Decode has thrown; then nothing is decoded
};

// One outcome for each, in their order. The calling thread decodes too, and waits for the threads that it has
// made for it. They take one picture after another and give it back, take no signals, and know nothing else
// of the program.
std::vector<Outcome> DecodeAll(const std::vector<WantedPicture>& wanted);

}  // namespace pictures
