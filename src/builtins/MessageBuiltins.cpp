// What the method shows to the user and asks of him.

#include "builtins/CDDBuiltinLib.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr std::int32_t kDisplaySeconds = 1;
constexpr std::int32_t kPutMessageSeconds = 2;
constexpr auto kCancelled = static_cast<std::int32_t>(CommResult::Cancelled);

// A variable of no data set, for the user's input.
std::shared_ptr<Variable> InputVariable(TypeCode code, std::int32_t size, Variant value) {
  auto variable = std::make_shared<Variable>("___ZAF___Input");
  variable->EditTypeInfo().SetTypeCode(code);
  variable->EditTypeInfo().SetSize(size);
  variable->SetValue(std::move(value));
  variable->SetAvailable(true);
  return variable;
}

std::shared_ptr<Variable> InputFor(const Variant& local) {
  constexpr std::int32_t kNoLimit = 0;
  switch (local.Type()) {
    case VariantType::Int16:
    case VariantType::Int32:
      return InputVariable(TypeCode::Integer, sizeof(std::int32_t), local.ToLong());
    case VariantType::Single:
    case VariantType::Double:
      return InputVariable(TypeCode::Double, sizeof(double), local.ToDouble());
    default:
      return InputVariable(TypeCode::Ascii, kNoLimit, local.IsNull() ? "" : local.ToText());
  }
}

EnumList OptionsOf(std::string_view options) {
  constexpr char kSeparator = ';';
  EnumList items;
  if (options.empty()) return items;
  for (std::int32_t number = 0;; ++number) {
    const std::size_t end = options.find(kSeparator);
    items.Add(EnumItem(number, std::string(options.substr(0, end))));
    if (end == std::string_view::npos) return items;
    options.remove_prefix(end + 1);
  }
}

}  // namespace

void CDDBuiltinLib::HideMessage() {
  if (displayId_ != 0) model_.Gui()->HideUserMessage(displayId_);
  displayId_ = kNoDisplay;
}

std::int32_t CDDBuiltinLib::Show(MessageIcon icon, std::string title, std::string prompt,
                                 std::int32_t delay, std::shared_ptr<Variable> input) {
  UserMessage message;
  message.displayId = displayId_;
  message.icon = icon;
  message.title = std::move(title);
  message.prompt = std::move(prompt);
  message.delay = delay;
  message.input = std::move(input);
  const std::int32_t result = model_.Gui()->ShowUserMessage(message);
  displayId_ = message.displayId;
  if (result == kMessageCancelled) Abort();
  return result;
}

std::int32_t CDDBuiltinLib::Prompt(std::string_view prompt, std::span<const std::int32_t> ids,
                                   std::int32_t delay) {
  HideMessage();
  std::string title = MessageTitle();
  return Show(MessageIcon::Information, std::move(title), PreparePrompt(prompt, ids), delay);
}

bool CDDBuiltinLib::Ask(MessageIcon icon, std::string title, std::string_view prompt,
                        std::span<const std::int32_t> ids, const std::shared_ptr<Variable>& input) {
  HideMessage();
  return Show(icon, std::move(title), PreparePrompt(prompt, ids), kWaitForUser, input) !=
         kMessageCancelled;
}

std::int32_t CDDBuiltinLib::Acknowledge(const std::string& prompt, const VariableIds& ids) {
  return Prompt(prompt, ids, kWaitForUser);
}

void CDDBuiltinLib::PutMessage(const std::string& message, const VariableIds& ids) {
  Prompt(message, ids, kPutMessageSeconds);
}

void CDDBuiltinLib::Delay(std::int32_t seconds, const std::string& prompt, const VariableIds& ids) {
  Prompt(prompt.empty() ? StandardText(idWaiting) : prompt, ids, seconds);
}

void CDDBuiltinLib::Display(const std::string& prompt, const VariableIds& ids) {
  const std::int32_t result = Prompt(prompt, ids, kDisplaySeconds);
  if (result != 0 && result != kMessageTimedOut) return;
  for (const std::int32_t id : ids) {
    if (id <= 0 || static_cast<std::size_t>(id) > variableIds_.Count()) continue;
    Database()->SetVariableAvailable(variableIds_.Item(static_cast<std::size_t>(id)), false);
  }
}

std::int32_t CDDBuiltinLib::GetDevVarValue(const std::string& prompt, const VariableIds& ids,
                                           const std::string& name) {
  const auto variable = GetMethodVariable(name);
  if (!Ask(MessageIcon::Input, StandardText(idTitleInputMessage), prompt, ids, variable)) {
    return kCancelled;
  }
  AssignTo(*variable, variable->Value());
  return 0;
}

std::int32_t CDDBuiltinLib::GetLocalVarValue(const std::string& prompt, const VariableIds& ids,
                                             Variant& value) {
  const auto input = InputFor(value);
  if (Ask(MessageIcon::Input, StandardText(idTitleInputMessage), prompt, ids, input)) {
    value = input->Value();
  }
  return 0;
}

std::int32_t CDDBuiltinLib::SelectFromList(const std::string& prompt, const VariableIds& ids,
                                           const std::string& options) {
  constexpr std::int32_t kFirst = 0;
  EnumList items = OptionsOf(LangText(options));
  const auto input = InputVariable(TypeCode::Enumerated, sizeof(std::int32_t), kFirst);
  input->EditTypeInfo().SetMaxEnumValue(static_cast<std::int32_t>(items.Count()) - 1);
  input->EditTypeInfo().SetEnumItems(std::move(items));
  if (!Ask(MessageIcon::Question, MessageTitle(), prompt, ids, input)) return kFirst;
  return input->Value().ToLong();
}

}  // namespace ZAFHartLib
