#pragma once

#include "hartframe/ErrorWatch.h"
#include "hartframe/methods/MethodWatch.h"

namespace hartframe {

// Why a method was aborted.
enum class AbortCause { User, Failure, Method, NoDevice, Status };

// `isCancelled`: the user has cancelled one of its messages. The errors are those since it began;
// the text of a Failure is theirs.
AbortCause CauseOfAbort(const MethodWatch& watch, const ErrorWatch& errors, bool isCancelled);
// The last line of the DD's error that ended the method.
std::string FailureText(const ErrorWatch& errors);
// The cause in words, in all languages.
const char* ReasonText(AbortCause cause);

}  // namespace hartframe
