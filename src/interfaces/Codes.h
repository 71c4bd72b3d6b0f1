#pragma once

#include <cstdint>
#include <memory>
#include <variant>

namespace ZAFHartTypes {

class CommandRef;
class Transaction;

// Item index of an object error. The text is the string resource 1200 + index.
enum class ItemIndex : std::int32_t {
  CyclicCommand = -2,
  CyclicVariable = -1,
  ObjectError = 0,
  CannotRead = 1,
  NoCommunication = 2,
  ReadNotValid = 3,
  CannotWrite = 4,
  NotWritable = 5,
  WriteNotValid = 6,
  UnknownMenuItem = 7,
  DisplayItemNotVariable = 8,
  EditItemNotEditable = 9,
  NotAnEditItem = 10,
  NotAllChecked = 11,
  MethodNotValid = 12,
  NotCurrentlyEditable = 13,
};

// Icon of a user message.
enum class MessageIcon : std::int32_t {
  None = 0,
  Critical = 16,
  Question = 32,
  Exclamation = 48,
  Information = 64,
  Input = 80,  // asks for a value
};

// What a bit of a status byte leads to in a method.
enum class StatusHandling : std::int32_t { Ignore = 0, Abort = 1, Retry = 2 };

// Delay of a user message that waits for the user; other delays are seconds.
inline constexpr std::int32_t kWaitForUser = -1;
// Answer of a user message that the user cancelled.
inline constexpr std::int32_t kMessageCancelled = -2;
// Answer of a user message whose time has passed; 0 will do as well.
inline constexpr std::int32_t kMessageTimedOut = -5;
// Display id of a message that is not shown.
inline constexpr std::int32_t kNoDisplay = -1;

// Life signals of the runtime to the controls.
enum class LifeSignalCode : std::int32_t {
  DatabaseRead = 1,      // every 26th look-up
  Waiting = 2,           // a step of a wait for an exchange
  ExchangeFinished = 3,  // an asynchronous exchange has been completed
};

// What a life signal is about: nothing, the transaction waited for, or the finished reference.
using SignalObject =
    std::variant<std::monostate, std::shared_ptr<Transaction>, std::shared_ptr<CommandRef>>;

// Data set that a worker database stands for.
enum class StorageMode : std::int32_t { NotPaired = -1, Offline = 0, Online = 1 };

// Values of "__ZAF__OnlineMode".
enum class OnlineMode : std::int16_t { Offline = 0, Online = 1, OnlineSynchronous = 2 };

// Values of "__ZAF__DTMOnlineState" that the library sets.
enum class DtmOnlineState : std::int32_t {
  NotConnected = 0,
  NoDeviceFound = 2,
  WrongDevice = 3,
  PreparingDisconnect = 10,
  Disconnecting = 11,
  Connecting = 20,
  CheckingDeviceType = 21,
  Connected = 100,
};

// Values of "__ZAF__DATASETSTATE".
enum class DataSetState : std::int32_t {
  Default = 0,
  ValidModified = 1,
  InvalidModified = 2,
  AllDataLoaded = 3,
  Zombie = 4,
};

// Values of "__ZAF__FDTUserLevel".
enum class UserLevel : std::int16_t {
  Observer = 0,
  Operator = 1,
  Maintenance = 2,
  PlanningEngineer = 3
};

// IDDCommWrapper::LastResult and the results of messages and builtins.
enum class CommResult : std::int32_t {
  Success = 0,
  NotInDD = -1,
  Cancelled = -2,
  NoDevice = -3,
};

}  // namespace ZAFHartTypes
