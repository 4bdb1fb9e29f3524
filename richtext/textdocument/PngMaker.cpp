#include "richtext/textdocument/PngMaker.h"

#include <chrono>

#include "richtext/textdocument/SmallPng.h"

namespace richtext {

PngMaker::PngMaker(const QImage& image)
    : made_(std::async(std::launch::async, [this, image] { return SmallPng(image, &stop_); })) {}

bool PngMaker::IsDone() const {
  return made_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace richtext
