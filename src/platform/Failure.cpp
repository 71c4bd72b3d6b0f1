#include "platform/Failure.h"

namespace platform {

std::string_view StandardText(ErrorNumber number) {
  switch (number) {
    case ErrorNumber::InvalidProcedureCall:
      return "Invalid procedure call or argument";
    case ErrorNumber::Overflow:
      return "Overflow";
    case ErrorNumber::SubscriptOutOfRange:
      return "Subscript out of range";
    case ErrorNumber::TypeMismatch:
      return "Type mismatch";
    case ErrorNumber::FileNotFound:
      return "File not found";
    case ErrorNumber::DeviceIo:
      return "Device I/O error";
    case ErrorNumber::PathFileAccess:
      return "Path/File access error";
    case ErrorNumber::ObjectNotSet:
      return "Object variable or With block variable not set";
    case ErrorNumber::CannotCreateObject:
      return "Component can't create object";
    case ErrorNumber::MemberNotFound:
      return "Object doesn't support this property or method";
    case ErrorNumber::DuplicateKey:
      return "This key is already associated with an element of this collection";
    case ErrorNumber::NotImplemented:
      return "Not implemented";
    case ErrorNumber::InvalidArgument:
      return "The parameter is incorrect";
    case ErrorNumber::NotConnected:
      return "The device is not connected";
    case ErrorNumber::Cancelled:
      return "The operation was canceled by the user";
    case ErrorNumber::Unexpected:
      return "Catastrophic failure";
  }
  return "Automation error";
}

Failure::Failure(ErrorNumber number, std::string source, std::string description)
    : number_(number), source_(std::move(source)), description_(std::move(description)) {
  if (description_.empty()) description_ = StandardText(number);
}

Failure::~Failure() = default;

std::string NumberText(ErrorNumber number) {
  return std::to_string(static_cast<std::int32_t>(number));
}

}  // namespace platform
