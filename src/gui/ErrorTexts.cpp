#include "gui/ErrorTexts.h"

#include <optional>

#include "ddobjects/EditDisplay.h"
#include "ddobjects/ItemArray.h"
#include "ddobjects/Menu.h"
#include "ddobjects/Method.h"
#include "ddobjects/Variable.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"
#include "text/LangText.h"
#include "trace/StackInformation.h"
#include "types/Failure.h"

namespace ZAFHartLib {
namespace {

using ZAFHartTypes::CommandRef;
using ZAFHartTypes::DDObject;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::ItemIndex;
using ZAFHartTypes::MessageIcon;
using ZAFHartTypes::ResponseCodeType;
using DefinedCode = ZAFHartTypes::ResponseCode;

constexpr std::uint8_t kBusyBit = 1U << 5;

// The label of an object that has one.
std::optional<std::string> LabelOf(DDObject& object) {
  if (const auto variable = object.MakeVariable()) return variable->Label();
  if (const auto menu = object.MakeMenu()) return menu->Label();
  if (const auto display = object.MakeEditDisplay()) return display->Label();
  if (const auto method = object.MakeMethod()) return method->Label();
  if (const auto array = object.MakeArray()) return array->Label();
  if (const auto collection = object.MakeCollection()) return collection->Label();
  return std::nullopt;
}

// "255", and the number of an extended command as it stands in the DD.
std::string CommandNumber(const CommandRef& command) {
  return std::to_string(static_cast<std::uint16_t>(command.Command()->Number()));
}

std::string TransactionNumber(const CommandRef& command) {
  return std::to_string(command.TransactionNumber());
}

// nullptr when neither the transaction nor the command defines the code.
const DefinedCode* FindCode(std::uint8_t code, const CommandRef& command) {
  const DefinedCode* found = nullptr;
  IgnoreFailures([&] { found = command.ReferredTransaction()->ResponseCodes().Find(code); });
  return found ? found : command.Command()->ResponseCodes().Find(code);
}

}  // namespace

std::string ErrorTexts::Translated(const std::string& text) const {
  return LangText(text, language_);
}

std::string ErrorTexts::Resource(std::int32_t id) const {
  return Translated(ResText(id));
}

std::string ErrorTexts::ObjectName(const std::shared_ptr<DDObject>& object) const {
  const std::string& name = object->ObjectDefinition().Name();
  const auto label = LabelOf(*object);
  if (!label) return name;
  return Translated(*label) + (showDDInformation_ ? " (" + name + ")" : "");
}

std::string ErrorTexts::ObjectError(const std::shared_ptr<DDObject>& object,
                                    ItemIndex index) const {
  return ObjectName(object) + ":" + kLineBreak +
         Resource(idDDErrorCodes + static_cast<std::int32_t>(index));
}

// Command, transaction, and the name and number of the code.
std::string ErrorTexts::DetailedHeading(const CommandRef& command, std::int32_t what,
                                        std::uint8_t code) const {
  return "Command " + CommandNumber(command) + ", Transaction " + TransactionNumber(command) +
         kLineBreak + Resource(what) + ": " + std::to_string(code) + kLineBreak;
}

ErrorReport ErrorTexts::ResponseCode(std::uint8_t code, const CommandRef& command) const {
  const std::string heading = showDDInformation_
                                  ? DetailedHeading(command, idResponseCode, code)
                                  : "Command " + CommandNumber(command) + "(" +
                                        TransactionNumber(command) + "): " + kLineBreak;
  const DefinedCode* defined = FindCode(code, command);
  if (!defined) {
    std::string meaning =
        Resource((code & kBusyBit) != 0 ? idDeviceBusy : idResponseCodeEntry + code);
    if (meaning.empty()) meaning = Resource(idSpecificError);
    return {.text = heading + meaning, .help = {}};
  }
  return {.text = heading + Translated(defined->Description()),
          .help = Translated(defined->Help()) + kLineBreak + kLineBreak,
          .icon = IsError(defined->CodeType()) ? MessageIcon::Critical : MessageIcon::Information,
          .shown = defined->CodeType() != ResponseCodeType::Success};
}

ErrorReport ErrorTexts::CommunicationError(std::uint8_t flags, const CommandRef& command) const {
  if (showDDInformation_) {
    return {.text = DetailedHeading(command, idCommStatusEntry, flags), .help = {}};
  }
  return {.text = "Command " + CommandNumber(command) + "(" + TransactionNumber(command) + ")" +
                  kLineBreak + Resource(idCommStatusEntry) + ": " + std::to_string(flags),
          .help = {}};
}

}  // namespace ZAFHartLib
