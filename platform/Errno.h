// What the operating system's error numbers mean to a person.
#pragma once

#include <string>

#include "platform/Failure.h"

namespace platform {

// The failure of a file operation on `path` that ended with the error number `error`. `missing` is what a
// missing entry means to the caller: for a file to be read the file, for one to be written its folder.
Failure FailureOf(int error, const std::string& path, FailureKind missing);

}  // namespace platform
