#pragma once

#include <cstdint>

// The numeric codes of DD objects.
namespace ZAFHartTypes {

// Item-type numbers of the HART DD binary format minus one.
enum class ObjectKind : std::int32_t {
  Undefined = -1,  // of an empty definition
  Variable = 0,
  Command = 1,
  Menu = 2,
  EditDisplay = 3,
  Method = 4,
  RefreshRelation = 5,
  UnitRelation = 6,
  WriteAsOne = 7,
  ItemArray = 8,
  Collection = 9,
};

// Type of a variable's value, and its form on the wire: numbers most significant byte first. A
// command that carries a variable of a type without a form cannot be executed.
enum class TypeCode : std::int32_t {
  NotComputed = -1,   // no type yet: any value but Null and arrays is accepted, none is shown
  Float = 0,          // IEEE 754, 4 bytes
  Double = 1,         // IEEE 754, 8 bytes
  Integer = 2,        // two's complement, 1 to 4 bytes
  Unsigned = 3,       // 1 to 4 bytes; above 2147483647 read as a negative 32-bit integer
  Enumerated = 4,     // on the wire as Unsigned, like the next two
  BitEnumerated = 5,  // one or more bits of the value for each item
  Index = 6,          // into an item array
  Ascii = 7,          // Latin-1 on the wire
  PackedAscii = 8,    // four characters, blank to "_", in three bytes
  Password = 9,       // like Ascii; shown as one "*" per character
  BitString = 10,     // a text to the library; no form on the wire
  Date = 11,          // three bytes: day, month, year - 1900
  Time = 12,          // this and the following: shown as a date; no form on the wire
  DateAndTime = 13,
  Duration = 14,
};

// The families of types. Unsigned and signed integers are numeric and integral; enumerations, bit
// enumerations and indexes are integral only. NotComputed is in none.
constexpr bool IsNumeric(TypeCode code) {
  return code >= TypeCode::Float && code <= TypeCode::Unsigned;
}
constexpr bool IsIntegral(TypeCode code) {
  return code >= TypeCode::Integer && code <= TypeCode::Index;
}
constexpr bool IsText(TypeCode code) {
  return code >= TypeCode::Ascii && code <= TypeCode::BitString;
}
constexpr bool IsDate(TypeCode code) {
  return code >= TypeCode::Date && code <= TypeCode::Duration;
}
// Commands can carry values of the type.
constexpr bool HasWireForm(TypeCode code) {
  return (code >= TypeCode::Float && code <= TypeCode::Password) || code == TypeCode::Date;
}

// Flags of VariableAttributes.
enum class VariableFlag : std::uint8_t {
  Dynamic = 9,       // a live value: left out of uploads and of reads of whole lists
  LibraryHeld = 12,  // no device command reads or writes it for its own sake; never to be written
};

// Argument of Variable::CheckHandling.
enum class AccessMode : std::int32_t { Write = 0, Read = 1 };

// Value of Command::Operation; other values are possible and mean neither.
enum class Operation : std::int32_t { Read = 0, Write = 1, Command = 2 };

// What a data item of a request or reply stands for.
enum class DataItemType : std::int32_t { Constant = 0, Variable = 1 };

// Type of a DD response code. Values above DataEntryWarning are errors.
enum class ResponseCodeType : std::int32_t {
  Success = 0,
  MiscWarning = 1,
  DataEntryWarning = 2,
  DataEntryError = 3,
  ModeError = 4,
  ProcessError = 5,
  MiscError = 6,
};
// Neither success nor a warning.
constexpr bool IsError(ResponseCodeType type) {
  return type > ResponseCodeType::DataEntryWarning;
}

// Qualifiers of a menu item. Index 0 marks an item for display: the frame shows its value beside
// its label. Index 1 is read-only; index 2 tells that it is so for the present user only.
enum class MenuQualifier : std::uint8_t { DisplayValue = 0, ReadOnly = 1, Restricted = 2 };

}  // namespace ZAFHartTypes
