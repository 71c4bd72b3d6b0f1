#include "hartframe/dataset/KeptDataSet.h"

#include <algorithm>
#include <ctime>

#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/StoredValue.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;
namespace names = ZAFHartTypes::internal_names;

// Of HART command 0.
constexpr std::string_view kManufacturer = "manufacturer_id";
constexpr std::string_view kDeviceType = "device_type";

// Settings of the data set; the library's other variables tell about the session.
constexpr std::string_view kSettings[] = {names::kDynAvailTime, names::kStaticAvailTime,
                                          names::kRefreshOnConnect, "__ZAF__RETRYNO"};

bool BelongsToDataSet(const std::string& name) {
  if (!name.starts_with(names::kPrefix)) return true;
  return name.find("ZAFsingleStorage_") != std::string::npos ||
         std::find(std::begin(kSettings), std::end(kSettings), name) != std::end(kSettings);
}

// A live value is past when the file is read.
bool IsWorthKeeping(const Variable& variable) {
  return variable.ToBeWritten() ||
         (!variable.Attributes().IsDynamic() && !variable.Value().IsEmpty());
}

Definition VariableNamed(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}

std::shared_ptr<Variable> Stored(Session& session, const Definition& definition) {
  const auto object = session.Database().ReadObject(definition);
  return object ? object->MakeVariable() : nullptr;
}

TypeCode TypeOf(Session& session, const Variable& variable) {
  const TypeCode code = variable.TypeInfo().TypeCode();
  if (code != TypeCode::NotComputed) return code;
  return session.Variable(variable.Definition())->TypeInfo().TypeCode();
}

// The same value of the same type; NaNs with the same bits, too.
bool IsSame(const Variant& a, const Variant& b) {
  return a.Type() == b.Type() && StoredValueText(a) == StoredValueText(b);
}

bool IsSame(const StoredVariable& a, const StoredVariable& b) {
  return a.name == b.name && a.available == b.available && a.toBeWritten == b.toBeWritten &&
         a.type == b.type && IsSame(a.value, b.value);
}

DtmIdentity DtmOf(Session& session) {
  DtmIdentity dtm;
  dtm.className = session.Components().DataModelClass();
  if (const auto information = session.Components().KernelInformation()) {
    dtm.component = information->ComponentFileName();
    dtm.modelVersion = information->DataModelVersion();
  }
  return dtm;
}

std::string UtcNow() {
  const std::time_t now =
      std::chrono::system_clock::to_time_t(platform::Current().GetClock().WallTime());
  std::tm utc{};
  gmtime_r(&now, &utc);
  char text[32];
  return {text, std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%SZ", &utc)};
}

std::string NumberOrQuestion(const std::optional<std::int32_t>& number) {
  return number ? std::to_string(*number) : "?";
}

bool Differ(const std::optional<std::int32_t>& a, const std::optional<std::int32_t>& b) {
  return a && b && *a != *b;
}

// What the connected device tells; nothing when it does not answer, or the DTM has no such
// variable.
std::optional<std::int32_t> AskDevice(Session& online, std::string_view name) {
  const Definition definition = VariableNamed(name);
  if (!Stored(online, definition)) return std::nullopt;
  online.Database().SetVariableAvailable(definition, false);
  std::shared_ptr<Variable> variable;
  online.Run([&] { variable = online.Kernel().ReadVariable(definition); });
  const bool isKnown = variable && variable->Available() && TroubleOf(*variable) == Trouble::None &&
                       variable->Value().IsNumber();
  if (!isKnown) return std::nullopt;
  return variable->Value().ToLong();
}

}  // namespace

KeptDataSet::KeptDataSet(Session& session, std::filesystem::path path)
    : session_(session), file_(std::move(path), session.Say()) {}

void KeptDataSet::Restore() {
  if (!file_.Exists()) return;
  StoredDataSet dataSet = file_.Load();
  RequireSameDtm(session_, file_, dataSet);
  for (const Restored& restored : Resolve(dataSet)) Apply(restored);
  SettleUnits();
  loaded_ = std::move(dataSet);
}

void KeptDataSet::RequireSameDtm(Session& session, const DataSetFile& file,
                                 const StoredDataSet& dataSet) {
  const Speech& say = session.Say();
  const DtmIdentity own = DtmOf(session);
  const DtmIdentity& other = dataSet.dtm;
  if (other.className != own.className || other.component != own.component) {
    file.Refuse(dataSet.classLine,
                say(texts::kOtherDtm, {OneLine(other.className), OneLine(other.component),
                                       own.className, own.component}),
                say(texts::kTakeThatDtm));
  }
  if (other.modelVersion <= own.modelVersion) return;
  file.Refuse(dataSet.versionLine,
              say(texts::kNewerModel,
                  {std::to_string(other.modelVersion), std::to_string(own.modelVersion)}),
              say(texts::kTakeNewerDtm));
}

std::vector<KeptDataSet::Restored> KeptDataSet::Resolve(const StoredDataSet& dataSet) const {
  std::vector<Restored> all;
  all.reserve(dataSet.variables.size());
  for (const StoredVariable& stored : dataSet.variables) {
    const Definition definition = VariableNamed(stored.name);
    const auto variable = Stored(session_, definition);
    if (!variable || !BelongsToDataSet(definition.Name())) {
      file_.Refuse(stored.line, session_.Say()(texts::kNoSuchVariable, {OneLine(stored.name)}),
                   session_.Say()(texts::kMendLine));
    }
    RefuseType(stored, *variable);
    all.push_back({definition, &stored});
  }
  return all;
}

void KeptDataSet::RefuseType(const StoredVariable& stored, const Variable& variable) const {
  const Speech& say = session_.Say();
  const TypeCode type = TypeOf(session_, variable);
  if (stored.type != type) {
    file_.Refuse(stored.line,
                 say(texts::kWrongType, {stored.name, TypeWord(stored.type), TypeWord(type)}),
                 say(texts::kMendLine));
  }
  const Variant& value = stored.value;
  if (value.IsEmpty() || value.IsNull() || value.IsText() == IsText(type)) return;
  if (variable.CheckValue(value, false)) return;
  file_.Refuse(stored.line, say(texts::kValueOfWrongType, {stored.name}), say(texts::kMendLine));
}

void KeptDataSet::Apply(const Restored& restored) {
  const StoredVariable& stored = *restored.stored;
  const auto variable = Stored(session_, restored.definition);
  variable->SetValue(stored.value);
  variable->SetAvailable(stored.available);
  variable->SetToBeWritten(stored.toBeWritten);
  session_.Database().WriteObject(variable);
  if (stored.available && !stored.toBeWritten)
    available_.emplace(restored.definition.Key(), stored.value);
}

void KeptDataSet::SettleUnits() {
  for (const Definition& definition : session_.AllVariables(false)) {
    const auto variable = Stored(session_, definition);
    if (!variable->UnitSource()) continue;
    variable->SetUnitText(session_.Variable(definition)->UnitText());
    session_.Database().WriteObject(variable);
  }
  for (const auto& object : session_.Database().NewEnum()) {
    if (object->Kind() == ObjectKind::UnitRelation)
      session_.Kernel().ExecuteUnit(object->ObjectDefinition(), {});
  }
}

void KeptDataSet::ExpectReading() {
  constexpr std::int32_t kNoRefresh = 0;
  const auto setting = session_.Variable(VariableNamed(names::kRefreshOnConnect));
  if (setting->Value() == Variant(kNoRefresh)) return;
  for (const auto& [name, value] : available_) {
    const auto variable = Stored(session_, VariableNamed(name.Name()));
    if (variable->Attributes().IsLibraryHeld()) continue;
    session_.Database().SetVariableAvailable(variable->Definition(), false);
  }
}

void KeptDataSet::RequireSameDevice(Session& online) {
  if (!loaded_) return;
  const DtmIdentity& own = loaded_->dtm;
  const auto manufacturer = AskDevice(online, kManufacturer);
  const auto deviceType = AskDevice(online, kDeviceType);
  if (!Differ(own.manufacturer, manufacturer) && !Differ(own.deviceType, deviceType)) return;
  Abandon();
  throw CommandFailure(
      ExitCode::NotAllowed,
      session_.Say()(
          texts::kOtherDevice,
          {Path().string(), NumberOrQuestion(own.manufacturer), NumberOrQuestion(own.deviceType),
           NumberOrQuestion(manufacturer), NumberOrQuestion(deviceType)}));
}

bool KeptDataSet::SaysTheSame(const StoredDataSet& dataSet) const {
  return loaded_ && std::equal(dataSet.variables.begin(), dataSet.variables.end(),
                               loaded_->variables.begin(), loaded_->variables.end(),
                               [](const auto& a, const auto& b) { return IsSame(a, b); });
}

void KeptDataSet::Keep() {
  if (isAbandoned_) return;
  StoredDataSet current = Current();
  if (!SaysTheSame(current)) Store(std::move(current));
}

bool KeptDataSet::IsAsLeft() const {
  if (!file_.Exists()) return true;
  try {
    return SaysTheSame(file_.Load());
  } catch (const CommandFailure&) {
    return false;
  }
}

void KeptDataSet::Store(StoredDataSet dataSet) {
  const std::string meant = Path().string();
  const bool isAsLeft = IsAsLeft();
  const DataSetFile file(isAsLeft ? Path() : file_.FreePathBeside(), session_.Say());
  file.Save(dataSet);
  loaded_ = std::move(dataSet);
  if (isAsLeft) return;
  file_.MoveTo(file.Path());
  throw CommandFailure(ExitCode::FileBroken,
                       session_.Say()(texts::kChangedMeanwhile, {meant, Path().string()}));
}

std::size_t KeptDataSet::SaveTo(const DataSetFile& file) {
  StoredDataSet current = Current();
  const std::size_t count = current.variables.size();
  std::error_code isNone;
  if (std::filesystem::equivalent(file.Path(), Path(), isNone))
    Store(std::move(current));
  else
    file.Save(current);
  return count;
}

StoredDataSet KeptDataSet::Current() {
  StoredDataSet dataSet;
  dataSet.dtm = DtmOf(session_);
  dataSet.dtm.manufacturer = Known(kManufacturer);
  dataSet.dtm.deviceType = Known(kDeviceType);
  dataSet.saved = UtcNow();
  for (const Definition& definition : session_.AllVariables(true)) {
    if (!BelongsToDataSet(definition.Name())) continue;
    const auto variable = Stored(session_, definition);
    if (!IsWorthKeeping(*variable)) continue;
    dataSet.variables.push_back({definition.Name(), IsAvailable(*variable), variable->ToBeWritten(),
                                 TypeOf(session_, *variable), variable->Value()});
  }
  return dataSet;
}

bool KeptDataSet::IsAvailable(const Variable& variable) const {
  if (variable.Available() || variable.Attributes().IsLibraryHeld()) return true;
  const auto kept = available_.find(variable.Definition().Key());
  return kept != available_.end() && IsSame(kept->second, variable.Value());
}

std::optional<std::int32_t> KeptDataSet::Known(std::string_view name) const {
  const auto variable = Stored(session_, VariableNamed(name));
  if (!variable || !IsAvailable(*variable) || !variable->Value().IsNumber()) return std::nullopt;
  return variable->Value().ToLong();
}

}  // namespace hartframe
