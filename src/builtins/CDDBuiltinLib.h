#pragma once

#include <array>
#include <functional>
#include <initializer_list>
#include <optional>
#include <span>
#include <unordered_map>
#include <utility>

#include "builtins/StatusMasks.h"
#include "ddobjects/KeyedList.h"
#include "interfaces/ComponentBase.h"
#include "interfaces/IDDBuiltinLib.h"
#include "platform/Export.h"
#include "platform/Object.h"
#include "resources/enumDDResourceIDs.h"

namespace ZAFHartLib {

class CDDWorkerDB;

// The builtins of one run of a method; see IDDBuiltinLib. Needs the library's own worker database,
// which keeps what was before the method.
class ZAF_API CDDBuiltinLib : public platform::Object,
                              public ZAFHartTypes::IDDBuiltinLib,
                              public ZAFHartTypes::IDDBuiltinLib2 {
 public:
  using ByteBuffer = ZAFHartTypes::ByteBuffer;
  using StatusByte = ZAFHartTypes::StatusByte;
  using StatusHandling = ZAFHartTypes::StatusHandling;
  using VariableIds = ZAFHartTypes::VariableIds;
  using Variant = ZAFHartTypes::Variant;

  CDDBuiltinLib() = default;
  // Ends the method: hides its message, undoes what was not saved, writes back what the method's
  // code has set on the variable that it was started from. Failures of one step do not stop the
  // next.
  ~CDDBuiltinLib() override;
  CDDBuiltinLib(const CDDBuiltinLib&) = delete;
  CDDBuiltinLib& operator=(const CDDBuiltinLib&) = delete;

  void SetComponentModel(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components) override;
  std::shared_ptr<ZAFHartTypes::IDDComponents> ComponentModel() const override;
  void Initialize(std::shared_ptr<ZAFHartTypes::DDObject>& currentObject,
                  const std::string& currentMethodName) override;
  void SetCurrentMethodState(std::shared_ptr<ZAFHartTypes::PromptValues> state) override;

  // --- abort and retry ---
  std::int32_t BiRc() const override { return biRc_; }
  void SetBiRc(std::int32_t result) override { biRc_ = result; }
  bool IsAbort() const override { return isAbort_; }
  bool IsRetry() const override { return isRetry_; }
  const ZAFHartTypes::DefinitionList& AbortMethodsList() const override { return abortMethods_; }
  bool AddAbortMethod(const std::string& methodName) override;
  void RemoveAbortMethod(const std::string& methodName) override;
  void RemoveAllAbortMethod() override { abortMethods_.Clear(); }
  void ProcessAbort() override { isAbort_ = true; }
  void Abort(bool userNotify = false) override;
  void SETNUMBEROFRETRIES(std::int16_t count) override { numberOfRetries_ = count; }
  void SetCommStatus(std::uint8_t mask, StatusHandling handling) override;
  void SetDeviceStatus(std::uint8_t mask, StatusHandling handling) override;
  void SetRespCode(std::uint8_t mask, StatusHandling handling) override;
  void SetAllRespCode(StatusHandling handling) override;
  void SetNoDevice(StatusHandling handling) override { noDevice_ = handling; }
  void SetXmtrCommStatus(std::uint8_t mask, StatusHandling handling) override;
  void SetXmtrDeviceStatus(std::uint8_t mask, StatusHandling handling) override;
  void SetXmtrRespCode(std::uint8_t mask, StatusHandling handling) override;
  void SetXmtrAllRespCode(StatusHandling handling) override;
  void SetXmtrNoDevice(StatusHandling handling) override { xmtrNoDevice_ = handling; }
  void SetXmtrData(std::int32_t byteNumber, std::uint8_t mask, StatusHandling handling) override;
  void SetXmtrAllData(StatusHandling handling) override;

  std::string LangText(std::string_view text) override;
  float NaNValue() const override;

  // --- commands ---
  std::int32_t Send(std::int16_t number, ByteBuffer& status) override;
  std::int32_t SendTrans(std::int16_t number, std::int16_t transaction,
                         ByteBuffer& status) override;
  std::int32_t SendCommand(std::int16_t number) override;
  std::int32_t SendCommandTrans(std::int16_t number, std::int16_t transaction) override;
  std::int32_t ExtSendCommand(std::int16_t number, ByteBuffer& status, ByteBuffer& moreStatus,
                              ByteBuffer& moreInfo) override;
  std::int32_t ExtSendCommandTrans(std::int16_t number, std::int16_t transaction,
                                   ByteBuffer& status, ByteBuffer& moreStatus,
                                   ByteBuffer& moreInfo) override;
  std::int32_t GetMoreStatus(ByteBuffer& moreStatus, ByteBuffer& moreInfo) override;

  // --- variables ---
  bool AssignDouble(const std::string& name, double value) override {
    return Assign(name, [value] { return value; });
  }
  bool AssignFloat(const std::string& name, float value) override {
    return Assign(name, [value] { return value; });
  }
  bool AssignLong(const std::string& name, std::int32_t value) override {
    return Assign(name, [value] { return value; });
  }
  bool AssignInt(const std::string& name, std::int16_t value) override {
    return AssignLong(name, value);
  }
  bool AssignVar(const std::string& destination, const std::string& source) override;
  double FloatValue(const std::string& name) override;
  std::int16_t IntValue(const std::string& name) override;
  std::int32_t LongValue(const std::string& name) override;
  double Fgetval() override;
  std::int16_t Igetval() override;
  std::int32_t Lgetval() override;
  double Fsetval(double value) override;
  std::int16_t Isetval(std::int16_t value) override;
  std::int32_t Lsetval(std::int32_t value) override;
  std::int16_t VARID(const std::string& name) override;
  std::int32_t SaveValues() override;
  bool GetDictionaryString(const std::string& name, std::string& text) override;

  // --- the user ---
  std::int32_t Acknowledge(const std::string& prompt, const VariableIds& ids = {}) override;
  void Display(const std::string& prompt, const VariableIds& ids = {}) override;
  void PutMessage(const std::string& message, const VariableIds& ids = {}) override;
  void Delay(std::int32_t seconds, const std::string& prompt, const VariableIds& ids = {}) override;
  std::int32_t GetDevVarValue(const std::string& prompt, const VariableIds& ids,
                              const std::string& name) override;
  std::int32_t GetLocalVarValue(const std::string& prompt, const VariableIds& ids,
                                Variant& value) override;
  std::int32_t SelectFromList(const std::string& prompt, const VariableIds& ids,
                              const std::string& options) override;
  void DisplayCommStatus(std::int16_t status) override;
  void DisplayDeviceStatus(std::int16_t status) override;
  void DisplayResponseStatus(std::int16_t number, std::int16_t responseCode) override;
  void DisplayXmtrStatus(const std::string& variableName, std::int16_t status) override;
  void GetStatusCodeString(const std::string& variableName, std::int16_t status,
                           std::string& text) override;
  void RspcodeString(std::int16_t number, std::int16_t responseCode, ByteBuffer& text,
                     std::int16_t length) override;

  // --- IDDBuiltinLib2 ---
  Variant Func1(std::int32_t id, const Variant& par1) override;
  Variant Func2(std::int32_t id, const Variant& par1, const Variant& par2) override;
  void AddUnit(std::int32_t code, double factor, double offset, const std::string& name,
               const std::string& help) override;

 private:
  using Variable = ZAFHartTypes::Variable;
  using Definition = ZAFHartTypes::Definition;
  using MessageIcon = ZAFHartTypes::MessageIcon;
  static constexpr const char* kNewLine = "\r\n";
  // Keys and values of the references in an error text.
  using TextValues = std::initializer_list<std::pair<std::string_view, Variant>>;

  std::shared_ptr<CDDWorkerDB> Database() const;
  std::string StandardText(std::int32_t id);
  std::string MessageTitle();
  std::string PreparePrompt(std::string_view prompt, std::span<const std::int32_t> ids);
  void SetPromptValue(const std::string& key, std::string text);
  void FailMethod(const std::string& message);
  void FailMethod(enumDDResourceIDs id, TextValues values);

  // The method's variable; see IDDBuiltinLib. Raises NotImplemented, after FailMethod, for an
  // unknown name.
  std::shared_ptr<Variable> GetMethodVariable(const Definition& definition);
  std::shared_ptr<Variable> GetMethodVariable(const std::string& name);
  bool IsDefined(const Definition& definition);
  std::shared_ptr<Variable> CurrentVariable() const;
  bool CheckContext();
  // Runs what the DD code is only told "it failed" about. A break by the user and the end of the
  // DTM instance also abort the method.
  template <typename Action>
  bool Attempt(Action action);
  bool Assign(const std::string& name, const std::function<Variant()>& value);
  bool AssignText(const Variant& name, const Variant& text);
  void AssignTo(const Variable& variable, const Variant& value);
  template <typename Number>
  Number NamedValue(const std::string& name, Number (Variant::*convert)() const);
  template <typename Number>
  Number CurrentValue(Number (Variant::*convert)() const);
  template <typename Number>
  Number SetCurrentValue(Number value);
  bool IsActionOf(ZAFHartTypes::ActionList list) const;
  void ForgetKept(const Definition& definition);
  void RestoreTouched();
  void WriteBackCurrentVariable();

  Definition FindCommandByNumber(std::int16_t number);
  // The command's transaction, the first without a number; both empty after FailMethod.
  struct Request {
    std::shared_ptr<ZAFHartTypes::Command> command;
    std::shared_ptr<ZAFHartTypes::Transaction> transaction;
  };
  Request FindRequest(std::int16_t number, std::optional<std::int16_t> transaction);
  std::int32_t SendRequest(const Request& request, ByteBuffer& status);
  std::int32_t MoreStatusAfter(std::int32_t result, const ByteBuffer& status,
                               ByteBuffer& moreStatus, ByteBuffer& moreInfo);
  // Executes it until it asks for no retry, aborts, or the retries are used up. After each
  // execution `takeStatus` fills `status`, which the masks judge.
  template <typename TakeStatus>
  void Repeat(const Request& request, const StatusMasks& masks, const ByteBuffer& status,
              TakeStatus takeStatus);
  void EvaluateStatus(const StatusMasks& masks, const ByteBuffer& status);

  void HideMessage();
  // Callers hide the message on display first, before they make the texts of the next.
  std::int32_t Show(MessageIcon icon, std::string title, std::string prompt,
                    std::int32_t delay = ZAFHartTypes::kWaitForUser,
                    std::shared_ptr<Variable> input = {});
  std::int32_t Prompt(std::string_view prompt, std::span<const std::int32_t> ids,
                      std::int32_t delay);
  // Asks for the value of `input`; false when the user cancelled.
  bool Ask(MessageIcon icon, std::string title, std::string_view prompt,
           std::span<const std::int32_t> ids, const std::shared_ptr<Variable>& input);
  void ShowStatus(MessageIcon icon, enumDDResourceIDs title, std::string text);
  std::string BitTexts(std::int16_t status, std::int32_t firstText);
  std::optional<std::string> ResponseText(std::int16_t number, std::int16_t responseCode);
  std::string StatusText(const std::string& variableName, std::int16_t status,
                         enumDDResourceIDs error);

  bool RunMethodNamed(const std::string& name);
  void UploadToOfflineDataSet(const std::string& name);
  void ShowErrorDisplay(const std::string& prompt, const VariableIds& ids);

  ZAFHartTypes::ModelReference model_;
  std::shared_ptr<ZAFHartTypes::DDObject> currentObject_;
  std::string methodName_;
  std::shared_ptr<ZAFHartTypes::PromptValues> methodState_;
  std::vector<std::string> promptKeys_;  // of the last prompt's variables in the method state

  std::int32_t biRc_ = 0;
  bool isAbort_ = false;
  bool isRetry_ = false;
  std::int32_t numberOfRetries_ = 0;
  StatusMasks masks_;
  StatusMasks xmtrMasks_;
  std::array<MaskPair, 25> xmtrDataMasks_{};  // kept for the method; nothing here reads them
  StatusHandling noDevice_ = StatusHandling::Abort;
  StatusHandling xmtrNoDevice_ = StatusHandling::Abort;  // kept for the method
  ZAFHartTypes::DefinitionList abortMethods_;

  // A variable used since the last save. Its state before stands here when the method that has
  // called this one keeps an earlier one in the database; otherwise the database keeps it. What
  // the method has only read is left alone when it ends: others may have changed it.
  struct Touched {
    Definition definition;
    std::shared_ptr<Variable> before;
    bool isAssigned = false;
  };
  ZAFHartTypes::KeyedList<Touched> touched_;
  ZAFHartTypes::DefinitionList variableIds_;  // in order of first use; ids count from 1
  std::int32_t displayId_ = 0;                // of the message on display; 0 when there never was
  std::unordered_map<std::int16_t, Definition> commands_;  // found so far, by number
};

}  // namespace ZAFHartLib
