// The files that stand beside the tests.
#pragma once

#include <string>
#include <string_view>

namespace fixture {

// The path of one that is named from the samples' folder.
std::string PathOfSample(std::string_view name);

}  // namespace fixture
