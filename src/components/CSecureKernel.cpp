#include "components/CSecureKernel.h"

#include <functional>

#include "types/Failure.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

// The user knows already, and the caller must: the operation ends.
bool EndsQuietly(const Failure& failure) {
  return failure.Number() == ErrorNumber::Cancelled ||
         failure.Number() == ErrorNumber::NotConnected;
}

}  // namespace

template <typename Interface, typename Member, typename... Arguments>
auto CSecureKernel::Trapped(Member Interface::*member, Arguments&&... arguments) const
    -> std::invoke_result_t<Member Interface::*, Interface&, Arguments...> {
  using Result = std::invoke_result_t<Member Interface::*, Interface&, Arguments...>;
  try {
    const auto kernel = std::dynamic_pointer_cast<Interface>(model_.Kernel());
    if (!kernel) throw Failure(ErrorNumber::TypeMismatch, "CSecureKernel");
    return std::invoke(member, *kernel, std::forward<Arguments>(arguments)...);
  } catch (const Failure& failure) {
    Report(failure);
    if (EndsQuietly(failure)) throw;
  }
  return Result();
}

void CSecureKernel::Report(const Failure& failure) const {
  const auto components = model_.Get();
  if (!components) return;
  if (const auto database = components->DDWorkerDB()) database->ResetInRecursionFlags();
  if (EndsQuietly(failure)) return;
  const auto gui = components->DDGUI();
  if (!gui) return;
  gui->SetErrorHandler(nullptr);
  gui->EvaluationError(platform::NumberText(failure.Number()) + " : " + failure.Description() +
                       "\r\nin " + failure.Source() + "\r\nPlease report this Error!");
}

void CSecureKernel::SetDataModel(Ptr<IDDDataModel> model) {
  model_.Kernel()->SetDataModel(std::move(model));
}
CSecureKernel::Ptr<IDDDataModel> CSecureKernel::DataModel() const {
  return model_.Kernel()->DataModel();
}

void CSecureKernel::InitializeDB(const std::string& dataModelClass) {
  Trapped(&IDDKernel::InitializeDB, dataModelClass);
}
DefinitionList CSecureKernel::Commands() const {
  return Trapped(&IDDKernel::Commands);
}
CSecureKernel::Ptr<Variable> CSecureKernel::GetVariable(const Definition& definition) {
  return Trapped(&IDDKernel::GetVariable, definition);
}
CSecureKernel::Ptr<Command> CSecureKernel::GetCommand(const Definition& definition) {
  return Trapped(&IDDKernel::GetCommand, definition);
}
CSecureKernel::Ptr<Menu> CSecureKernel::GetMenu(const Definition& definition) {
  return Trapped(&IDDKernel::GetMenu, definition);
}
CSecureKernel::Ptr<EditDisplay> CSecureKernel::GetEditDisplay(const Definition& definition) {
  return Trapped(&IDDKernel::GetEditDisplay, definition);
}
CSecureKernel::Ptr<Method> CSecureKernel::GetMethod(const Definition& definition) {
  return Trapped(&IDDKernel::GetMethod, definition);
}
CSecureKernel::Ptr<WriteAsOne> CSecureKernel::GetWriteAsOne(const Definition& definition) {
  return Trapped(&IDDKernel::GetWriteAsOne, definition);
}
CSecureKernel::Ptr<ItemArray> CSecureKernel::GetArray(const Definition& definition) {
  return Trapped(&IDDKernel::GetArray, definition);
}
CSecureKernel::Ptr<ItemCollection> CSecureKernel::GetCollection(const Definition& definition) {
  return Trapped(&IDDKernel::GetCollection, definition);
}
bool CSecureKernel::GetVariableValidity(const Definition& definition) {
  return Trapped(&IDDKernel::GetVariableValidity, definition);
}
bool CSecureKernel::GetMethodValidity(const Definition& definition) {
  return Trapped(&IDDKernel::GetMethodValidity, definition);
}
CSecureKernel::Ptr<Variable> CSecureKernel::CalculateVariableType(const Definition& definition) {
  return Trapped(&IDDKernel::CalculateVariableType, definition);
}
CSecureKernel::Ptr<Command> CSecureKernel::GetSafeCommand(const Definition& definition) {
  return Trapped(&IDDKernel::GetSafeCommand, definition);
}
CSecureKernel::Ptr<Variable> CSecureKernel::ReadVariable(const Definition& definition) {
  return Trapped(&IDDKernel::ReadVariable, definition);
}
void CSecureKernel::AsyncReadVariable(const Definition& definition) {
  Trapped(&IDDKernel::AsyncReadVariable, definition);
}
void CSecureKernel::WriteVariable(const Definition& definition, const Variant& value) {
  Trapped(&IDDKernel::WriteVariable, definition, value);
}
CSecureKernel::Ptr<CommandRef> CSecureKernel::FindReadCommand(const Definition& definition,
                                                              const Ptr<CommandRef>& previous) {
  return Trapped(&IDDKernel::FindReadCommand, definition, previous);
}
CSecureKernel::Ptr<CommandRef> CSecureKernel::FindWriteCommand(const Definition& definition) {
  return Trapped(&IDDKernel::FindWriteCommand, definition);
}
void CSecureKernel::ExecuteCommand(const Ptr<Command>& command, std::int16_t transactionNumber) {
  Trapped(&IDDKernel::ExecuteCommand, command, transactionNumber);
}
void CSecureKernel::AsyncExecuteCommandStart(const Ptr<CommandRef>& reference) {
  Trapped(&IDDKernel::AsyncExecuteCommandStart, reference);
}
void CSecureKernel::AsyncExecuteCommandEnd(const Ptr<CommandRef>& reference) {
  Trapped(&IDDKernel::AsyncExecuteCommandEnd, reference);
}
void CSecureKernel::ExecutePreReads(DataItemList& items) {
  Trapped(&IDDKernel::ExecutePreReads, items);
}
void CSecureKernel::ExecutePostReads(DataItemList& items) {
  Trapped(&IDDKernel::ExecutePostReads, items);
}
void CSecureKernel::ExecutePreWrites(DataItemList& items) {
  Trapped(&IDDKernel::ExecutePreWrites, items);
}
void CSecureKernel::ExecutePostWrites(DataItemList& items) {
  Trapped(&IDDKernel::ExecutePostWrites, items);
}
void CSecureKernel::ExecuteActions(const DefinitionList& methods, const Ptr<DDObject>& object) {
  Trapped(&IDDKernel::ExecuteActions, methods, object);
}
void CSecureKernel::ExecuteRelations(const Definition& variable) {
  Trapped(&IDDKernel::ExecuteRelations, variable);
}
void CSecureKernel::ExecuteRefresh(const Definition& relation, const Definition& context) {
  Trapped(&IDDKernel::ExecuteRefresh, relation, context);
}
void CSecureKernel::ExecuteUnit(const Definition& relation, const Definition& context) {
  Trapped(&IDDKernel::ExecuteUnit, relation, context);
}
CSecureKernel::Ptr<WriteAsOne> CSecureKernel::StartWriteAsOne(const Definition& definition) {
  return Trapped(&IDDKernel::StartWriteAsOne, definition);
}
void CSecureKernel::ExecuteWriteAsOne(Ptr<WriteAsOne>& group, Ptr<Variable>& variable,
                                      bool isEntered) {
  Trapped(&IDDKernel::ExecuteWriteAsOne, group, variable, isEntered);
}
void CSecureKernel::ExecuteMethod(const Definition& method, const Ptr<DDObject>& object,
                                  bool inAbort) {
  Trapped(&IDDKernel::ExecuteMethod, method, object, inAbort);
}
CSecureKernel::Ptr<Menu> CSecureKernel::StartMenu(const Definition& definition) {
  return Trapped(&IDDKernel::StartMenu, definition);
}
void CSecureKernel::ExecuteMenu(const Ptr<Menu>& menu, const Ptr<DDObject>& object,
                                bool isEntered) {
  Trapped(&IDDKernel::ExecuteMenu, menu, object, isEntered);
}
CSecureKernel::Ptr<EditDisplay> CSecureKernel::StartEditDisplay(const Definition& definition) {
  return Trapped(&IDDKernel::StartEditDisplay, definition);
}
void CSecureKernel::ExecuteEditDisplay(const Ptr<EditDisplay>& display, const Ptr<DDObject>& object,
                                       bool isEntered) {
  Trapped(&IDDKernel::ExecuteEditDisplay, display, object, isEntered);
}
CSecureKernel::Ptr<DDObject> CSecureKernel::ReadArrayElement(const Ptr<ItemArray>& array,
                                                             const Variant& index) {
  return Trapped(&IDDKernel::ReadArrayElement, array, index);
}
CSecureKernel::Ptr<DDObject> CSecureKernel::ReadCollectionMember(
    const Ptr<ItemCollection>& collection, const Variant& ident) {
  return Trapped(&IDDKernel::ReadCollectionMember, collection, ident);
}
CSecureKernel::Ptr<Menu> CSecureKernel::AsyncStartMenu(const Definition& definition) {
  return Trapped(&IDDKernel2::AsyncStartMenu, definition);
}
void CSecureKernel::AsyncExecuteMenu(const Ptr<Menu>& menu, const Ptr<DDObject>& object,
                                     bool isEntered) {
  Trapped(&IDDKernel2::AsyncExecuteMenu, menu, object, isEntered);
}

}  // namespace ZAFHartLib
