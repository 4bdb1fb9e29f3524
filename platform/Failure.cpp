#include "platform/Failure.h"

namespace platform {
namespace {

const char* TextOf(FailureKind kind) {
  switch (kind) {
    case FailureKind::InvalidArgument:
      return "Invalid procedure call or argument";
    case FailureKind::Overflow:
      return "Overflow";
    case FailureKind::OutOfMemory:
      return "Out of memory";
    case FailureKind::SubscriptOutOfRange:
      return "Subscript out of range";
    case FailureKind::BadFileName:
      return "No file can have this name";
    case FailureKind::FileNotFound:
      return "File not found";
    case FailureKind::DeviceError:
      return "The device reported an error";
    case FailureKind::DiskFull:
      return "The disk is full";
    case FailureKind::PermissionDenied:
      return "Permission denied";
    case FailureKind::PathAccess:
      return "The file or folder cannot be opened";
    case FailureKind::PathNotFound:
      return "Path not found";
    case FailureKind::InvalidPicture:
      return "This file cannot be shown as a picture";
    case FailureKind::InvalidPropertyValue:
      return "Invalid property value";
  }
  return "Unknown failure";
}

std::string Sentence(FailureKind kind, const std::string& subject) {
  return subject.empty() ? TextOf(kind) : std::string(TextOf(kind)) + ": " + subject;
}

}  // namespace

Failure::Failure(FailureKind kind, const std::string& subject)
    : std::runtime_error(Sentence(kind, subject)), kind_(kind) {}

}  // namespace platform
