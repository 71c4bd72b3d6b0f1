#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "types/Utf8.h"

namespace hartframe {

// The program's own texts; DD texts and the library's come in their own multilingual form.
enum class Text {
  ColumnName,
  ColumnLabel,
  ColumnValue,
  ColumnUnit,
  ColumnState,
  StateNotValid,
  StateToBeWritten,
  StateNotRead,
  StateReadOnly,
  StateLive,
  StateInternal,
  Loaded,
  NotLoaded,
  Skipped,
  Written,
  NothingToWrite,
  OutcomeWritten,
  OutcomeAdjusted,
  OutcomeRefused,
  OutcomeNotAccepted,
  OutcomeNoAnswer,
  OutcomeNotAttempted,
  DeviceHas,
  DeviceUnknown,
  PendingTitle,
  PendingKept,
  Interrupted,
  InterruptedLeft,
  Unreadable,
  NoDevice,
  DisturbedDevice,
  RefusedByDevice,
  PendingRefused,
  PendingQuestion,
  Yes,
  UploadKept,
  ObserverRefused,
  IncompleteDataSet,
  UnknownName,
  NoMatch,
  NotAChange,
  NotWritable,
  NotValidNow,
  NotADeviceVariable,
  ValueRefused,
  AllowedRange,
  AllowedFrom,
  AllowedTo,
  AllowedOneOf,
  AllowedLength,
  AllowedDate,
  AllowedNumber,
  AllowedCapitals,
  BrokenText,
  Repeated,
  InfoDtm,
  InfoDevice,
  InfoStates,
  InfoClass,
  InfoFile,
  InfoPlugin,
  InfoVariables,
  InfoCommands,
  InfoLink,
  InfoPending,
  InfoTag,
  InfoPollingAddress,
  InfoLongAddress,
  DeviceSilent,
  EnterValue,
  NotWatched,
  Count
};

// Says things in the user's language.
class Speech {
 public:
  explicit Speech(std::string language) : language_(std::move(language)) {}

  const std::string& Language() const { return language_; }
  void SetLanguage(std::string language) { language_ = std::move(language); }
  // The text with {0}, {1}, … replaced by the arguments, and {0:word/words} by the first word when
  // the number in argument 0 is one.
  std::string operator()(Text text, std::initializer_list<std::string_view> arguments = {}) const;
  // The same of a multilingual text.
  std::string operator()(std::string_view multilingual,
                         std::initializer_list<std::string_view> arguments = {}) const;
  // The user's part of a multilingual text, without control characters and broken bytes.
  std::string Pick(std::string_view multilingual) const;

 private:
  std::string language_;
};

using ZAFHartTypes::utf8::OneLine;

}  // namespace hartframe
