#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/Command.h"
#include "interfaces/Codes.h"

namespace ZAFHartLib {

// What the user is told about an error.
struct ErrorReport {
  std::string text;
  std::string help;  // stands before the stack text
  ZAFHartTypes::MessageIcon icon = ZAFHartTypes::MessageIcon::Critical;
  bool shown = true;  // false: it is no error after all
};

// The texts of object and response code errors in the user's language.
class ErrorTexts {
 public:
  // With `showDDInformation`, DD names and the parts of a command are told as well.
  ErrorTexts(const std::string& language, bool showDDInformation)
      : language_(language), showDDInformation_(showDDInformation) {}

  // The string resource.
  std::string Resource(std::int32_t id) const;
  // Name of the object and what is wrong with it.
  std::string ObjectError(const std::shared_ptr<ZAFHartTypes::DDObject>& object,
                          ZAFHartTypes::ItemIndex index) const;
  // A response code other than 0, as the transaction, the command or the HART standard defines it.
  ErrorReport ResponseCode(std::uint8_t code, const ZAFHartTypes::CommandRef& command) const;
  // Communication error flags other than 0.
  ErrorReport CommunicationError(std::uint8_t flags, const ZAFHartTypes::CommandRef& command) const;

 private:
  std::string Translated(const std::string& text) const;
  std::string ObjectName(const std::shared_ptr<ZAFHartTypes::DDObject>& object) const;
  std::string DetailedHeading(const ZAFHartTypes::CommandRef& command, std::int32_t what,
                              std::uint8_t code) const;

  const std::string& language_;
  bool showDDInformation_;
};

}  // namespace ZAFHartLib
