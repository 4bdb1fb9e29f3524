#include "richtext/textdocument/PngMaker.h"

#include <chrono>
#include <system_error>

#include "platform/SignalsBlocked.h"
#include "richtext/textdocument/SmallPng.h"

namespace richtext {

PngMaker::PngMaker(const QImage& image) {
  const platform::SignalsBlocked blocked;
  try {
    made_ = std::async(std::launch::async, [this, image] { return SmallPng(image, &stop_); });
  } catch (const std::system_error&) {
    std::promise<std::string> made;
    made.set_value(SmallPng(image));
    made_ = made.get_future();
  }
}

bool PngMaker::IsDone() const {
  return made_.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

}  // namespace richtext
