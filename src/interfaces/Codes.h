#pragma once

#include <cstdint>
#include <memory>
#include <variant>

namespace ZAFHartTypes {

class CommandRef;
class Transaction;

// Item index of an object error: what kept the object from being used. The text is the string
// resource 1200 + index.
enum class ItemIndex : std::int32_t {
  CyclicCommand = -2,   // the command's attributes are computed from themselves
  CyclicVariable = -1,  // so are the variable's
  ObjectError = 0,      // no error: the title of the others
  CannotRead = 1,       // no command of the DD reads the variable
  NoCommunication = 2,  // for DTMs and frames; the library does not report it
  ReadNotValid = 3,     // a variable that is not valid was to be read or sent
  CannotWrite = 4,      // no command writes the variable, or no undamaged answer came
  NotWritable = 5,      // the variable takes no value from the user, or not this one
  WriteNotValid = 6,    // a variable that is not valid was to be written, or is part of a reply
  UnknownMenuItem = 7,  // the object is no item of the menu
  DisplayItemNotVariable = 8,
  EditItemNotEditable = 9,  // an edit item that is neither a variable nor a write-as-one group
  NotAnEditItem = 10,       // the object is no edit item of the edit display
  NotAllChecked = 11,       // a write-as-one group was left before all its members were checked
  MethodNotValid = 12,
  NotCurrentlyEditable = 13,  // the variable is no member of the group that is edited
};

// Icon of a user message; what the message is for.
enum class MessageIcon : std::int32_t {
  None = 0,
  Critical = 16,
  Question = 32,
  Exclamation = 48,
  Information = 64,
  Input = 80,  // asks for a value
};

// What a bit of a status byte leads to in a method: nothing, the end of the method, or another
// attempt of the command.
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
  Waiting = 2,           // an exchange is under way
  ExchangeFinished = 3,  // an asynchronous exchange has been completed
};

// What a life signal is about: nothing, the transaction waited for, or the finished reference.
using SignalObject =
    std::variant<std::monostate, std::shared_ptr<Transaction>, std::shared_ptr<CommandRef>>;

// Data set that a worker database stands for; NotPaired without single storage.
enum class StorageMode : std::int32_t { NotPaired = -1, Offline = 0, Online = 1 };

// Values of "__ZAF__OnlineMode".
// OnlineSynchronous: changes go to the device at once.
enum class OnlineMode : std::int16_t { Offline = 0, Online = 1, OnlineSynchronous = 2 };

// Values of "__ZAF__DTMOnlineState" that the library sets.
enum class DtmOnlineState : std::int32_t {
  NotConnected = 0,
  NoDeviceFound = 2,  // nobody answered
  WrongDevice = 3,    // a type that the DTM is not for, or another unit than before
  PreparingDisconnect = 10,
  Disconnecting = 11,
  Connecting = 20,
  CheckingDeviceType = 21,
  Connected = 100,
};

// Values of "__ZAF__DATASETSTATE". The library sets ValidModified only, with every write and edit
// of a variable that is not internal; the others are for the frame.
enum class DataSetState : std::int32_t {
  Default = 0,
  ValidModified = 1,
  InvalidModified = 2,
  AllDataLoaded = 3,
  Zombie = 4,
};

// Values of "__ZAF__FDTUserLevel", which the frame sets. The library only tells the observer,
// who changes nothing, from the others.
enum class UserLevel : std::int16_t {
  Observer = 0,
  Operator = 1,
  Maintenance = 2,
  PlanningEngineer = 3
};

// IDDCommWrapper::LastResult and the results of messages and builtins.
enum class CommResult : std::int32_t {
  Success = 0,
  NotInDD = -1,    // no such command, transaction or variable
  Cancelled = -2,  // by the user, as kMessageCancelled
  NoDevice = -3,   // no reply
};

}  // namespace ZAFHartTypes
