#pragma once

#include <initializer_list>
#include <memory>
#include <optional>
#include <string>

#include "interfaces/ComponentBase.h"
#include "interfaces/IAsyncReader.h"
#include "interfaces/IDDKernel.h"
#include "kernel/ICommandOptimization.h"
#include "kernel/PendingContexts.h"
#include "platform/Object.h"

namespace ZAFHartLib {

class CDDWorkerDB;
class CommandIndex;
class DependencyFrame;
class KernelOperation;
class PostingIndex;
class TraceScope;
struct Execution;
struct ResponseVerdict;
enum class SearchKind : bool;

// The kernel of one DTM instance: resolves DD objects through the data models and the worker
// database, reads and writes variables, finds and executes HART commands, evaluates their responses
// and the relations between variables, and runs menus, edit displays and methods.
//
// It keeps no values: they live in the worker database. Single-threaded and re-entrant on its
// thread, where data models call back and timers may call during a wait. See IDDKernel for the
// operations; each traces itself under "IDDKernel_<name>".
class CHARTKernel : public platform::Object,
                    public ZAFHartTypes::IDDKernel,
                    public ZAFHartTypes::IDDKernel2,
                    public ZAFHartTypes::IAsyncReader {
 public:
  using Command = ZAFHartTypes::Command;
  using CommandRef = ZAFHartTypes::CommandRef;
  using DataItemList = ZAFHartTypes::DataItemList;
  using DDObject = ZAFHartTypes::DDObject;
  using Definition = ZAFHartTypes::Definition;
  using DefinitionList = ZAFHartTypes::DefinitionList;
  using EditDisplay = ZAFHartTypes::EditDisplay;
  using IDDComponents = ZAFHartTypes::IDDComponents;
  using IDDDataModel = ZAFHartTypes::IDDDataModel;
  using ItemArray = ZAFHartTypes::ItemArray;
  using ItemCollection = ZAFHartTypes::ItemCollection;
  using Menu = ZAFHartTypes::Menu;
  using Method = ZAFHartTypes::Method;
  using Transaction = ZAFHartTypes::Transaction;
  using Variable = ZAFHartTypes::Variable;
  using Variant = ZAFHartTypes::Variant;
  using WriteAsOne = ZAFHartTypes::WriteAsOne;

  CHARTKernel();
  ~CHARTKernel() override;

  void SetComponentModel(const std::shared_ptr<IDDComponents>& components) override;
  std::shared_ptr<IDDComponents> ComponentModel() const override;
  void SetDataModel(std::shared_ptr<IDDDataModel> model) override;
  std::shared_ptr<IDDDataModel> DataModel() const override;
  // Raises CannotCreateObject or TypeMismatch when the class gives no data model; failures of the
  // data models reach the caller.
  void InitializeDB(const std::string& dataModelClass) override;
  DefinitionList Commands() const override;

  std::shared_ptr<Variable> GetVariable(const Definition& definition) override;
  std::shared_ptr<Command> GetCommand(const Definition& definition) override;
  std::shared_ptr<Menu> GetMenu(const Definition& definition) override;
  std::shared_ptr<EditDisplay> GetEditDisplay(const Definition& definition) override;
  std::shared_ptr<Method> GetMethod(const Definition& definition) override;
  std::shared_ptr<WriteAsOne> GetWriteAsOne(const Definition& definition) override;
  std::shared_ptr<ItemArray> GetArray(const Definition& definition) override;
  std::shared_ptr<ItemCollection> GetCollection(const Definition& definition) override;
  bool GetVariableValidity(const Definition& definition) override;
  bool GetMethodValidity(const Definition& definition) override;
  std::shared_ptr<Variable> CalculateVariableType(const Definition& definition) override;
  std::shared_ptr<Command> GetSafeCommand(const Definition& definition) override;

  std::shared_ptr<Variable> ReadVariable(const Definition& definition) override;
  // Raises Unexpected when no command reads the variable.
  void AsyncReadVariable(const Definition& definition) override;
  // The same for the background refresh: also tells the reference whose end completes the read,
  // nothing when no exchange was needed.
  std::shared_ptr<CommandRef> AsyncReadVariableEx(const Definition& definition) override;
  void WriteVariable(const Definition& definition, const Variant& value) override;

  std::shared_ptr<CommandRef> FindReadCommand(
      const Definition& definition, const std::shared_ptr<CommandRef>& previous = {}) override;
  std::shared_ptr<CommandRef> FindWriteCommand(const Definition& definition) override;
  void ExecuteCommand(const std::shared_ptr<Command>& command,
                      std::int16_t transactionNumber) override;
  void AsyncExecuteCommandStart(const std::shared_ptr<CommandRef>& reference) override;
  void AsyncExecuteCommandEnd(const std::shared_ptr<CommandRef>& reference) override;
  void ExecutePreReads(DataItemList& items) override;
  void ExecutePostReads(DataItemList& items) override;
  void ExecutePreWrites(DataItemList& items) override;
  void ExecutePostWrites(DataItemList& items) override;
  void ExecuteActions(const DefinitionList& methods,
                      const std::shared_ptr<DDObject>& object) override;

  void ExecuteRelations(const Definition& variable) override;
  void ExecuteRefresh(const Definition& relation, const Definition& context) override;
  void ExecuteUnit(const Definition& relation, const Definition& context) override;
  std::shared_ptr<WriteAsOne> StartWriteAsOne(const Definition& definition) override;
  void ExecuteWriteAsOne(std::shared_ptr<WriteAsOne>& group, std::shared_ptr<Variable>& variable,
                         bool isEntered) override;

  void ExecuteMethod(const Definition& definition, const std::shared_ptr<DDObject>& object,
                     bool inAbort = false) override;

  std::shared_ptr<Menu> StartMenu(const Definition& definition) override;
  void ExecuteMenu(const std::shared_ptr<Menu>& menu, const std::shared_ptr<DDObject>& object,
                   bool isEntered) override;
  std::shared_ptr<EditDisplay> StartEditDisplay(const Definition& definition) override;
  void ExecuteEditDisplay(const std::shared_ptr<EditDisplay>& display,
                          const std::shared_ptr<DDObject>& object, bool isEntered) override;
  std::shared_ptr<DDObject> ReadArrayElement(const std::shared_ptr<ItemArray>& array,
                                             const Variant& index) override;
  std::shared_ptr<DDObject> ReadCollectionMember(const std::shared_ptr<ItemCollection>& collection,
                                                 const Variant& ident) override;
  std::shared_ptr<Menu> AsyncStartMenu(const Definition& definition) override;
  void AsyncExecuteMenu(const std::shared_ptr<Menu>& menu, const std::shared_ptr<DDObject>& object,
                        bool isEntered = false) override;

  // The records asked before a search; replaced as a whole.
  void SetOptimizationTable(OptimizationTable table) { optimizations_ = std::move(table); }

 private:
  friend class KernelOperation;
  class VariableGuard;
  class CommandGuard;
  class NestingGuard;
  class ReadRecursion;
  class CommandSearch;
  template <typename View>
  struct Getter;
  struct Evaluation;

  // What belongs to the operation under way; put aside while others may run.
  struct Context {
    Definition current;                // being computed by the device data model
    bool cycleFlag = false;            // a cyclic evaluation has been met once and is tolerated
    DependencyFrame* frame = nullptr;  // of the computation that calls back
  };
  enum class AsyncTrace : bool { Plain, Extended };
  enum class Binding : bool { Synchronous, Asynchronous };
  enum class MenuReads : bool { No, Yes };
  enum class PreEdit : bool { No, Yes };
  using OptimizedSearch = std::shared_ptr<CommandRef> (ICommandOptimization::*)(IDDComponents&,
                                                                                const Definition&);
  using EditItemList = ZAFHartTypes::EditDisplayItems& (EditDisplay::*)();

  // --- KernelCore.cpp, KernelTemplates.h ---
  std::shared_ptr<ZAFHartTypes::IDDWorkerDB> Database() const { return model_.Database(); }
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> Gui() const { return model_.Gui(); }
  std::shared_ptr<ZAFHartTypes::IDDCommWrapper> Comm() const { return model_.Comm(); }
  // The worker database while it tracks dependencies, nothing otherwise.
  std::shared_ptr<CDDWorkerDB> TrackingDatabase();
  void Unhook();
  void AttributesStale(const Definition& object);
  void RunUnitRelations();
  // The object to work with; nothing for an unknown name or another kind.
  template <typename View>
  std::shared_ptr<View> Find(const Definition& definition) const;
  // The same, but ObjectNotSet, naming the item and the operation.
  template <typename View>
  std::shared_ptr<View> Stored(const Definition& definition, const char* operation) const;
  [[noreturn]] void RaiseUnknown(const Definition& definition, ZAFHartTypes::ObjectKind kind,
                                 const char* operation) const;
  void Store(const std::shared_ptr<DDObject>& object) const;
  void Show(const std::shared_ptr<DDObject>& object) const;
  // Reports an object error; the user may be asked meanwhile.
  void Report(const std::shared_ptr<DDObject>& object, ZAFHartTypes::ItemIndex index);

  // --- Getters.cpp ---
  template <typename Guard, typename View>
  std::shared_ptr<View> Get(const Getter<View>& getter, const Definition& definition);
  template <typename Guard, typename View>
  void Compute(const Getter<View>& getter, Guard& guard, std::shared_ptr<View>& object);
  template <typename View>
  std::shared_ptr<View> ComputedBy(const std::shared_ptr<IDDDataModel>& model,
                                   const Getter<View>& getter, const std::shared_ptr<View>& object);
  void AfterLookUp(DDObject&) {}
  void AfterLookUp(Menu& menu) { ApplyAccessRestrictions(menu); }
  void AfterComputing(DDObject&) {}
  void AfterComputing(Variable& variable);
  void AfterComputing(Command& command);
  void AfterComputing(Menu& menu);
  void AfterStoring(DDObject&) {}
  void AfterStoring(ItemArray& array);
  void AfterStoring(Variable& variable) { ShowIf(variable.Validity(), variable); }
  void AfterStoring(Method& method) { ShowIf(method.IsValid(), method); }
  void AfterStoring(Menu& menu) { ApplyAccessRestrictions(menu); }
  void ShowIf(bool valid, DDObject& object) const;
  void ApplyAccessRestrictions(Menu& menu);
  bool IsAccessRestricted();

  // --- ReadVariable.cpp ---
  void ExecuteRead(const CommandRef& command);
  static bool CanBeRead(const Variable& variable);
  void TakeSubstitute(const std::shared_ptr<Variable>& variable) const;
  void BringUnit(const std::shared_ptr<Variable>& variable);
  void MarkUnreadable(const std::shared_ptr<Variable>& variable) const;
  std::shared_ptr<CommandRef> ReadAsync(const Definition& definition, AsyncTrace trace);
  void RefuseAsync(const std::shared_ptr<Variable>& variable, AsyncTrace trace);
  std::shared_ptr<CommandRef> ChooseAsyncCommand(const Definition& definition);

  // --- WriteVariable.cpp ---
  void StoreNewValue(Variable& variable, const Variant& value) const;
  void WriteLocally(const std::shared_ptr<Variable>& variable, const Variant& value);
  void EndDeviceWrite(const Definition& definition, const Variant& value,
                      const std::shared_ptr<CommandRef>& command);
  bool IsOutrun(const Definition& definition, const Variant& sent) const;
  void GiveUpWrite(const Definition& definition, const Variant& sent);
  void GiveUpRequest(const Definition& written, const CommandRef& command,
                     const ZAFHartTypes::CommandStatus& status);

  // --- CommandSearch.cpp ---
  std::shared_ptr<CommandRef> Optimized(OptimizedSearch search, const Definition& definition);
  std::shared_ptr<CommandRef> Search(SearchKind kind, const Definition& definition,
                                     const std::shared_ptr<CommandRef>& previous,
                                     const TraceScope& trace);

  // --- CommandExecution.cpp ---
  void Prepare(Execution& execution, Binding binding);
  void BindRequest(DataItemList& request);
  bool AwaitsItsUnit(const Variable& variable);
  void BindReply(Transaction& transaction, Binding binding);
  std::shared_ptr<Variable> ReplyVariable(const Definition& definition, Binding binding);
  void BindRest(DataItemList& items) const;
  void Complete(Execution& execution);
  void StoreWritten(Execution& execution) const;
  void StoreRead(const Execution& execution) const;
  void RefreshReply(DataItemList& reply);

  // --- ResponseEvaluation.cpp, Actions.cpp ---
  void EvaluateResponse(const Execution& execution);
  bool RecordVerdict(const Definition& definition, const ResponseVerdict& verdict) const;
  void RecordLastError(const std::string& message);
  void RunItemActions(const char* name, ZAFHartTypes::ActionList list, DataItemList& items);

  // --- Relations.cpp ---
  void EvaluateRelation(std::size_t position, const Definition& relation, const Definition& context,
                        const CDDWorkerDB* tracking);
  Evaluation EvaluateRefresh(const Definition& relation, const Definition& context);
  Evaluation EvaluateUnit(const Definition& relation, const Definition& context);
  void ApplyUnit(const ZAFHartTypes::UnitRelation& relation, const Definition& remembered,
                 const Definition& context);
  template <typename Relation, typename ComputeOperation>
  bool ComputeSpecifier(std::shared_ptr<Relation>& relation, ComputeOperation compute);

  // --- Editing.cpp, WriteAsOne.cpp ---
  bool BeginsEdit(const Definition& variable);
  void EnterField(const std::shared_ptr<Variable>& field, PreEdit preEdit);
  bool TakeEditedValue(const std::shared_ptr<Variable>& field, const Variant& value);
  void EndEdit(const std::shared_ptr<Variable>& field);
  void EnterMember(std::shared_ptr<Variable>& variable);
  void LeaveMember(std::shared_ptr<Variable>& variable);
  void CheckComplete(WriteAsOne& group);

  // --- Menus.cpp, EditDisplays.cpp, Elements.cpp ---
  std::shared_ptr<Menu> Start(const Definition& definition, const char* name, MenuReads reads);
  std::shared_ptr<Menu> PrepareMenu(const Definition& definition, MenuReads reads);
  std::shared_ptr<DDObject> PrepareItem(const Definition& definition, MenuReads reads);
  void ExecuteVariableItem(const std::shared_ptr<Variable>& field, bool isReadOnly, bool isEntered);
  void LeaveMenuField(const std::shared_ptr<Variable>& field);
  void WriteChangesAtOnce();
  void ExecuteSubMenu(const Definition& definition, bool isReadOnly, bool isEntered);
  std::optional<ZAFHartTypes::MenuItem> FindMenuItem(const std::shared_ptr<Menu>& menu,
                                                     const std::shared_ptr<DDObject>& object,
                                                     const char* operation);
  void SetSubMenuReadOnly(const Definition& definition, bool isReadOnly);
  void ExecuteEditDisplayItem(const std::shared_ptr<EditDisplay>& field, bool isEntered);
  bool PrepareItems(const std::shared_ptr<EditDisplay>& display, EditItemList list,
                    std::initializer_list<ZAFHartTypes::ObjectKind> allowed);
  std::shared_ptr<DDObject> ReturnEntry(KernelOperation& operation, const Definition& item);
  std::shared_ptr<DDObject> EntryOf(const Definition& item);

  ZAFHartTypes::ModelReference model_;
  std::shared_ptr<IDDDataModel> deviceModel_;
  std::shared_ptr<IDDDataModel> internalModel_;
  DefinitionList commandList_;
  DefinitionList relationList_;
  Context context_;
  DependencyFrame* innermostFrame_ = nullptr;
  PendingContexts pendingContexts_;
  Definition editedVariable_;  // whose pre-edit actions ran last
  OptimizationTable optimizations_;
  std::unique_ptr<CommandIndex> commandIndex_;
  std::unique_ptr<PostingIndex> relationIndex_;
  std::weak_ptr<CDDWorkerDB> hookedDatabase_;  // tells this kernel about stale attributes
};

}  // namespace ZAFHartLib
