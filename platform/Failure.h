// A run-time failure: something that a routine could not do and that its caller may or may not guard.
#pragma once

#include <stdexcept>
#include <string>

namespace platform {

enum class FailureKind {  // the numbers are told in a message, so they stay
  InvalidArgument = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  BadFileName = 52,
  FileNotFound = 53,
  DeviceError = 57,
  DiskFull = 61,
  PermissionDenied = 70,
  PathAccess = 75,
  PathNotFound = 76,
  InvalidPropertyValue = 380,
  InvalidPicture = 481,
};

// what() is a sentence for a person, in UTF-8, that names the thing: "Path not found:
// /home/ann/diary/frames".
class Failure : public std::runtime_error {
 public:
  // The text is the kind's own, followed by ": " and the subject where there is one.
  explicit Failure(FailureKind kind, const std::string& subject = {});
  FailureKind kind() const noexcept { return kind_; }

 private:
  FailureKind kind_;
};

}  // namespace platform
