// A method's frame: its beginning and end, its abort list, its texts, its failures.

#include "builtins/CDDBuiltinLib.h"

#include <bit>

#include "platform/ForeignCall.h"
#include "resources/ResText.h"
#include "text/DisplayString.h"
#include "text/LangText.h"
#include "text/modDDPrintF.h"
#include "types/Failure.h"
#include "types/Utf8.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

std::string BeforeNul(std::string text) {
  text.resize(std::min(text.find('\0'), text.size()));
  return text;
}

// A DD compiler pads prompts with NULs; one among the last three characters stays.
std::string_view WithoutPadding(std::string_view prompt) {
  constexpr std::size_t kKept = 3;
  const std::size_t nul = prompt.find('\0');
  if (nul == std::string_view::npos) return prompt;
  const std::size_t position = utf8::Length(prompt.substr(0, nul)) + 1;
  return position + kKept <= utf8::Length(prompt) ? prompt.substr(0, nul) : prompt;
}

bool IsBlank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

}  // namespace

CDDBuiltinLib::~CDDBuiltinLib() {
  const auto end = [](auto step) {
    IgnoreFailures([&] { platform::CallForeign("CDDBuiltinLib", step); });
  };
  end([this] {
    if (displayId_ != 0) model_.Gui()->HideUserMessage(displayId_);
  });
  end([this] { RestoreTouched(); });
  end([this] { WriteBackCurrentVariable(); });
}

void CDDBuiltinLib::SetComponentModel(const std::shared_ptr<IDDComponents>& components) {
  model_.Set(components);
}

std::shared_ptr<IDDComponents> CDDBuiltinLib::ComponentModel() const {
  return model_.Get();
}

void CDDBuiltinLib::Initialize(std::shared_ptr<DDObject>& currentObject,
                               const std::string& currentMethodName) {
  if (currentObject && currentObject->Kind() == ObjectKind::Variable) {
    if (const auto stored = Database()->ReadObject(currentObject->ObjectDefinition())) {
      currentObject = stored;
    }
  }
  currentObject_ = currentObject;
  methodName_ = currentMethodName;
}

void CDDBuiltinLib::SetCurrentMethodState(std::shared_ptr<PromptValues> state) {
  methodState_ = std::move(state);
}

std::shared_ptr<CDDWorkerDB> CDDBuiltinLib::Database() const {
  auto database = std::dynamic_pointer_cast<CDDWorkerDB>(model_.Database());
  if (!database) {
    throw Failure(ErrorNumber::TypeMismatch, "CDDBuiltinLib",
                  "Methods need the library's own worker database.");
  }
  return database;
}

// --- abort ---

bool CDDBuiltinLib::AddAbortMethod(const std::string& methodName) {
  const auto method = Definition::Define(methodName, ObjectKind::Method);
  if (!abortMethods_.Contains(method)) abortMethods_.Add(method);
  return false;
}

void CDDBuiltinLib::RemoveAbortMethod(const std::string& methodName) {
  const auto method = Definition::Define(methodName, ObjectKind::Method);
  if (const std::size_t position = abortMethods_.IndexOf(method)) {
    abortMethods_.Remove(position);
  } else {
    FailMethod(idErrMethodNotInList, {{"s", methodName}});
  }
}

void CDDBuiltinLib::Abort(bool userNotify) {
  isAbort_ = true;
  if (!userNotify) return;
  HideMessage();
  Show(MessageIcon::Exclamation, MessageTitle(), StandardText(idStrAbort));
}

// --- masks ---

void CDDBuiltinLib::SetCommStatus(std::uint8_t mask, StatusHandling handling) {
  masks_[StatusByte::Communication].Apply(mask, handling);
}
void CDDBuiltinLib::SetDeviceStatus(std::uint8_t mask, StatusHandling handling) {
  masks_[StatusByte::Device].Apply(mask, handling);
}
void CDDBuiltinLib::SetRespCode(std::uint8_t mask, StatusHandling handling) {
  masks_[StatusByte::ResponseCode].Apply(mask, handling);
}
void CDDBuiltinLib::SetAllRespCode(StatusHandling handling) {
  SetRespCode(0x7F, handling);
}
void CDDBuiltinLib::SetXmtrCommStatus(std::uint8_t mask, StatusHandling handling) {
  xmtrMasks_[StatusByte::Communication].Apply(mask, handling);
}
void CDDBuiltinLib::SetXmtrDeviceStatus(std::uint8_t mask, StatusHandling handling) {
  xmtrMasks_[StatusByte::Device].Apply(mask, handling);
}
void CDDBuiltinLib::SetXmtrRespCode(std::uint8_t mask, StatusHandling handling) {
  xmtrMasks_[StatusByte::ResponseCode].Apply(mask, handling);
}
void CDDBuiltinLib::SetXmtrAllRespCode(StatusHandling handling) {
  SetXmtrRespCode(0x7F, handling);
}
void CDDBuiltinLib::SetXmtrData(std::int32_t byteNumber, std::uint8_t mask,
                                StatusHandling handling) {
  if (byteNumber < 0 || static_cast<std::size_t>(byteNumber) >= xmtrDataMasks_.size()) {
    throw Failure(ErrorNumber::SubscriptOutOfRange, "CDDBuiltinLib.SetXmtrData");
  }
  xmtrDataMasks_[static_cast<std::size_t>(byteNumber)].Apply(mask, handling);
}
void CDDBuiltinLib::SetXmtrAllData(StatusHandling handling) {
  for (MaskPair& pair : xmtrDataMasks_) pair.Apply(0xFF, handling);
}

// --- texts ---

std::string CDDBuiltinLib::LangText(std::string_view text) {
  return BeforeNul(ZAFHartLib::LangText(text, model_.Gui()->LanguageID()));
}

std::string CDDBuiltinLib::StandardText(std::int32_t id) {
  return LangText(ResText(id));
}

std::string CDDBuiltinLib::MessageTitle() {
  std::string label;
  IgnoreFailures([&] {
    const auto method = Definition::Define(methodName_, ObjectKind::Method);
    label = LangText(model_.Kernel()->GetMethod(method)->Label());
  });
  return IsBlank(label) ? StandardText(idTitleMessage) : label;
}

float CDDBuiltinLib::NaNValue() const {
  return std::bit_cast<float>(std::uint32_t{0x7FA00000});
}

std::string CDDBuiltinLib::PreparePrompt(std::string_view prompt,
                                         std::span<const std::int32_t> ids) {
  const std::string language = model_.Gui()->LanguageID();
  if (!methodState_) methodState_ = std::make_shared<PromptValues>();
  for (const std::string& key : std::exchange(promptKeys_, {})) methodState_->Remove(key);
  for (std::size_t i = 0; i < ids.size(); ++i) {
    if (ids[i] <= 0) continue;
    IgnoreFailures([&] {
      const auto variable = GetMethodVariable(variableIds_.Item(static_cast<std::size_t>(ids[i])));
      const std::string key = std::to_string(i);
      SetPromptValue(key + "LABEL", ZAFHartLib::LangText(variable->Label(), language));
      if (variable->Value().IsEmpty()) return;  // never read: it has no value to show
      SetPromptValue(key, ZAFHartLib::LangText(GetVariableDisplayString(*variable), language));
    });
  }
  return FormatDDString(ZAFHartLib::LangText(WithoutPadding(prompt), language), *methodState_);
}

void CDDBuiltinLib::SetPromptValue(const std::string& key, std::string text) {
  methodState_->Set(key, std::move(text));
  promptKeys_.push_back(key);
}

// --- the method cannot go on ---

void CDDBuiltinLib::FailMethod(const std::string& message) {
  Abort();
  RemoveAllAbortMethod();
  HideMessage();
  model_.Gui()->EvaluationError(StandardText(idInternalError) + kNewLine +
                                StandardText(idActionAborted) + kNewLine + message);
}

void CDDBuiltinLib::FailMethod(enumDDResourceIDs id, TextValues values) {
  PromptValues references;
  for (const auto& [key, value] : values) references.Set(key, value);
  FailMethod(FormatDDString(ResText(id), references));
}

}  // namespace ZAFHartLib
