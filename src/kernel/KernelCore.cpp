// The kernel's state and its binding to the component model, the data models and the database.

#include "fdtobjects/CFDTDataModel.h"
#include "kernel/CommandIndex.h"
#include "kernel/DependencyFrame.h"
#include "kernel/ErrorHandlerScope.h"
#include "kernel/KernelTemplates.h"
#include "kernel/PostingIndex.h"
#include "kernel/ScopedValue.h"
#include "platform/ForeignCall.h"
#include "platform/Platform.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

using InitStep = void (IDDDataModel::*)(IDDComponents&, DefinitionList&, DefinitionList&);
constexpr InitStep kInitSteps[] = {
    &IDDDataModel::InitVariables,    &IDDDataModel::InitCommands,    &IDDDataModel::InitMenus,
    &IDDDataModel::InitEditDisplays, &IDDDataModel::InitMethods,     &IDDDataModel::InitRelations,
    &IDDDataModel::InitArrays,       &IDDDataModel::InitCollections,
};

}  // namespace

CHARTKernel::CHARTKernel()
    : internalModel_(std::make_shared<CFDTDataModel>()),
      commandIndex_(std::make_unique<CommandIndex>()),
      relationIndex_(std::make_unique<PostingIndex>()) {}

CHARTKernel::~CHARTKernel() {
  Unhook();
}

void CHARTKernel::Unhook() {
  const auto database = hookedDatabase_.lock();
  if (database && database->SinkHolder() == this) database->SetSinks({});
}

void CHARTKernel::SetComponentModel(const std::shared_ptr<IDDComponents>& components) {
  model_.Set(components);
}
std::shared_ptr<IDDComponents> CHARTKernel::ComponentModel() const {
  return model_.Get();
}
void CHARTKernel::SetDataModel(std::shared_ptr<IDDDataModel> model) {
  deviceModel_ = std::move(model);
}
std::shared_ptr<IDDDataModel> CHARTKernel::DataModel() const {
  return deviceModel_;
}
DefinitionList CHARTKernel::Commands() const {
  return commandList_.Copy();
}

void CHARTKernel::InitializeDB(const std::string& dataModelClass) {
  deviceModel_ = platform::Current().Classes().CreateAs<IDDDataModel>(dataModelClass);
  const auto components = model_.Model();
  for (const auto& model : {deviceModel_, internalModel_}) {
    for (const InitStep step : kInitSteps) {
      platform::CallForeign("IDDDataModel",
                            [&] { ((*model).*step)(*components, commandList_, relationList_); });
    }
  }
  RunUnitRelations();
  Database()->SetVariableAvailable({}, false);
  if (const auto own = std::dynamic_pointer_cast<CDDWorkerDB>(Database())) own->InitUnitTable();
}

// Gives every variable its unit; errors are kept from the user, and a cycle is reported at once.
void CHARTKernel::RunUnitRelations() {
  ErrorHandlerScope quiet(Gui());
  ScopedValue cycle(context_.cycleFlag, true);
  for (const Definition& relation : relationList_) {
    if (relation.Kind() == ObjectKind::UnitRelation) ExecuteUnit(relation, {});
  }
}

std::shared_ptr<CDDWorkerDB> CHARTKernel::TrackingDatabase() {
  auto database = std::dynamic_pointer_cast<CDDWorkerDB>(Database());
  if (!database || !database->TrackDependencies()) return nullptr;
  if (hookedDatabase_.lock() != database || database->SinkHolder() != this) {
    Unhook();
    hookedDatabase_ = database;
    commandIndex_->Reset(commandList_);
    relationIndex_->Reset(relationList_.Count());
    database->SetSinks(
        {.holder = this,
         .invalidated = [this](const Definition& object) { AttributesStale(object); },
         .read =
             [this](const Definition& item) {
               if (context_.frame) context_.frame->Note(item, ReadSort::Attributes);
             }});
  }
  return database;
}

void CHARTKernel::AttributesStale(const Definition& object) {
  DependencyFrame::Outdate(innermostFrame_, object);
  commandIndex_->ObjectStale(object.Key());
  relationIndex_->ObjectStale(object.Key());
}

void CHARTKernel::RaiseUnknown(const Definition& definition, ObjectKind kind,
                               const char* operation) const {
  std::string text = "The data set has no ";
  text.append(KindWord(kind)).append(" \"").append(definition.Name()).append("\"");
  if (context_.current) {
    text.append(", which the computation of \"").append(context_.current.Name());
    text.append("\" asks for");
  }
  throw Failure(ErrorNumber::ObjectNotSet, operation, text + ".");
}

void CHARTKernel::Store(const std::shared_ptr<DDObject>& object) const {
  Database()->WriteObject(object);
}
void CHARTKernel::Show(const std::shared_ptr<DDObject>& object) const {
  Gui()->ShowObject(object);
}

void CHARTKernel::Report(const std::shared_ptr<DDObject>& object, ItemIndex index) {
  ScopedValue wait(context_, Context{});
  Gui()->ObjectError(object, index);
}

}  // namespace ZAFHartLib
