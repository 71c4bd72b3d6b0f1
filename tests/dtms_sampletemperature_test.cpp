#include <gtest/gtest.h>

#include <set>

#include "sampletemperature/Description.h"
#include "sampletemperature/SampleTemperature.h"
#include "types/Utf8.h"

// The description of the sample transmitter is consistent in itself and with HART.
namespace {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)
using sampletemperature::Description;

template <typename Item>
const std::vector<std::shared_ptr<Item>>& All() {
  return Description().Items<Item>();
}

void ExpectDefined(const Definition& definition, const std::string& by) {
  EXPECT_TRUE(Description().Contains(definition)) << definition.Describe(0) << " named by " << by;
}

template <typename List>
void ExpectAllDefined(const List& list, const DDObject& by) {
  for (const auto& item : list) {
    if constexpr (requires { item.definition; }) {
      ExpectDefined(item.definition, by.Describe(0));
    } else if constexpr (requires { item.Definition(); }) {
      ExpectDefined(item.Definition(), by.Describe(0));
    } else {
      ExpectDefined(item, by.Describe(0));
    }
  }
}

TEST(SampleTemperature, NamesOnlyWhatItDefines) {
  for (const auto& command : All<Command>()) {
    for (const auto& transaction : command->Transactions()) {
      for (const DataItemList* list : {&transaction->Request(), &transaction->Reply()}) {
        for (const DataItem& item : *list) {
          if (item.IsVariable()) ExpectDefined(item.VariableDefinition(), command->Describe(0));
        }
      }
    }
  }
  for (const auto& menu : All<Menu>()) ExpectAllDefined(menu->Items(), *menu);
  for (const auto& array : All<ItemArray>()) ExpectAllDefined(array->Elements(), *array);
  for (const auto& collection : All<ItemCollection>())
    ExpectAllDefined(collection->Members(), *collection);
  for (const auto& relation : All<RefreshRelation>()) {
    ExpectAllDefined(relation->TriggerItems(), *relation);
    ExpectAllDefined(relation->RefreshItems(), *relation);
  }
  for (const auto& relation : All<UnitRelation>()) {
    ExpectDefined(relation->UnitVariable(), relation->Describe(0));
    ExpectAllDefined(relation->DependentItems(), *relation);
  }
  for (const auto& display : All<EditDisplay>()) {
    ExpectAllDefined(display->DisplayItems(), *display);
    ExpectAllDefined(display->EditItems(), *display);
    ExpectAllDefined(display->PreEditActions(), *display);
    ExpectAllDefined(display->PostEditActions(), *display);
  }
  for (const auto& group : All<WriteAsOne>()) ExpectAllDefined(group->Items(), *group);
  sampletemperature::KernelInformation information;
  for (const auto index : {StandardName::UploadVariables, StandardName::OnlineParameters,
                           StandardName::ProcessVariables, StandardName::StatusDisplay})
    ExpectDefined(dtmkit::MenuNamed(information.StandardName(index)), "the kernel information");
}

// Bytes of the items; masked ones count once per group, whose masks cover its bytes.
std::size_t WireLength(const DataItemList& items, const std::string& where) {
  std::size_t length = 0;
  std::uint32_t group = 0;
  std::set<std::string> names;
  for (const DataItem& item : items) {
    if (!item.IsVariable()) {
      ++length;
      continue;
    }
    const std::string& name = item.VariableDefinition().Name();
    EXPECT_TRUE(names.insert(name).second) << name << " stands twice in " << where;
    EXPECT_TRUE(group == 0 || item.Mask() != 0) << "open group of masks in " << where;
    EXPECT_EQ(group & item.Mask(), 0U) << name << " overlaps its neighbour in " << where;
    if (item.Mask() != 0) {
      group |= item.Mask();
      if (group != 0xFF) continue;
      group = 0;
      ++length;
      continue;
    }
    const TypeInfo& type = Description().Prototype<Variable>(name)->TypeInfo();
    EXPECT_TRUE(type.TypeCode() != TypeCode::BitString && type.TypeCode() < TypeCode::Time)
        << name << " has a type without a form on the wire";
    length += static_cast<std::size_t>(type.WireSize());
  }
  EXPECT_EQ(group, 0U) << "open group of masks at the end of " << where;
  return length;
}

struct Layout {
  std::int16_t command;
  std::int16_t transaction;
  std::size_t request;
  std::size_t reply;  // without response code and device status
};

// Numbers of data bytes of the HART commands; from 128 on the device's own.
constexpr Layout kLayouts[] = {
    {0, 0, 0, 22},    {1, 0, 0, 5},    {2, 0, 0, 8},     {3, 0, 0, 24},    {6, 0, 2, 2},
    {7, 0, 0, 2},     {8, 0, 0, 4},    {9, 0, 1, 13},    {9, 1, 4, 37},    {11, 0, 6, 22},
    {12, 0, 0, 24},   {13, 0, 0, 21},  {14, 0, 0, 16},   {15, 0, 0, 18},   {16, 0, 0, 3},
    {17, 0, 24, 24},  {18, 0, 21, 21}, {19, 0, 3, 3},    {20, 0, 0, 32},   {21, 0, 32, 22},
    {22, 0, 32, 32},  {33, 0, 1, 6},   {34, 0, 4, 4},    {35, 0, 9, 9},    {36, 0, 0, 0},
    {37, 0, 0, 0},    {38, 0, 0, 0},   {38, 1, 2, 2},    {40, 0, 4, 4},    {41, 0, 0, 0},
    {42, 0, 0, 0},    {43, 0, 0, 0},   {44, 0, 1, 1},    {45, 0, 4, 4},    {46, 0, 4, 4},
    {48, 0, 0, 14},   {49, 0, 3, 3},   {50, 0, 0, 4},    {53, 0, 2, 2},    {59, 0, 1, 1},
    {82, 0, 7, 7},    {128, 0, 0, 1},  {129, 0, 1, 1},   {130, 0, 0, 33},  {131, 0, 33, 33},
    {132, 0, 0, 7},   {133, 0, 7, 7},  {134, 0, 0, 19},  {135, 0, 19, 19}, {136, 0, 0, 28},
    {137, 0, 28, 28}, {138, 0, 0, 2},  {139, 0, 2, 2},   {140, 0, 1, 9},   {141, 0, 9, 9},
    {142, 0, 0, 23},  {144, 0, 0, 45}, {145, 0, 45, 45},
};

TEST(SampleTemperature, CommandsHaveTheirLayouts) {
  std::size_t transactions = 0;
  for (const auto& command : All<Command>()) transactions += command->Transactions().Count();
  EXPECT_EQ(transactions, std::size(kLayouts));
  for (const Layout& layout : kLayouts) {
    const std::string where = "command " + std::to_string(layout.command);
    const auto found =
        std::find_if(All<Command>().begin(), All<Command>().end(),
                     [&](const auto& each) { return each->Number() == layout.command; });
    ASSERT_NE(found, All<Command>().end()) << where;
    const auto& transaction = (*found)->Transactions().Item(layout.transaction);
    EXPECT_EQ(WireLength(transaction->Request(), where), layout.request) << where;
    EXPECT_EQ(WireLength(transaction->Reply(), where), layout.reply + 2) << where;
    EXPECT_EQ(transaction->Reply().Item(1).VariableDefinition().Name(), "response_code") << where;
    EXPECT_EQ(transaction->Reply().Item(2).VariableDefinition().Name(), "device_status") << where;
  }
}

TEST(SampleTemperature, UploadMenuListsTheConfiguration) {
  const auto menu = Description().Prototype<Menu>("upload_variables");
  std::set<std::string> names;
  for (const MenuItem& item : menu->Items()) {
    EXPECT_TRUE(names.insert(item.Definition().Name()).second) << item.Definition().Name();
    const auto variable = Description().Prototype<Variable>(item.Definition().Name());
    EXPECT_EQ(item.IsReadOnly(), !variable->CheckHandling(AccessMode::Write))
        << item.Definition().Name();
  }
  for (const auto& variable : All<Variable>()) {
    EXPECT_EQ(names.contains(variable->Definition().Name()),
              variable->CheckHandling(AccessMode::Read) && !variable->Attributes().IsDynamic() &&
                  !variable->Attributes().IsLibraryHeld())
        << variable->Definition().Name();
  }
}

TEST(SampleTemperature, HasVariablesOfEveryType) {
  std::set<TypeCode> codes;
  for (const auto& variable : All<Variable>()) {
    const TypeInfo& type = variable->TypeInfo();
    codes.insert(type.TypeCode());
    if (!variable->DefaultValue().IsEmpty()) {
      EXPECT_TRUE(variable->CheckValue(variable->DefaultValue(), true))
          << variable->Definition().Name();
    }
  }
  EXPECT_EQ(codes.size(), 15U) << "0 to 14";
  EXPECT_EQ(*codes.begin(), TypeCode::Float);
  EXPECT_GE(All<Variable>().size(), 100U);
}

TEST(SampleTemperature, HasResponseCodesOfEveryClass) {
  std::set<ResponseCodeType> types;
  for (const auto& command : All<Command>()) {
    EXPECT_NE(command->ResponseCodes().Find(0), nullptr) << command->Describe(0);
    std::set<std::int16_t> values;
    for (const ResponseCode& code : command->ResponseCodes()) {
      EXPECT_TRUE(values.insert(code.Value()).second) << command->Describe(0) << code.Value();
      EXPECT_LT(code.Value(), 128) << "bit 7 marks communication errors";
      types.insert(code.CodeType());
    }
  }
  EXPECT_EQ(types.size(), 7U);
}

void ExpectGermanToo(const std::string& text, const DDObject& of) {
  EXPECT_TRUE(utf8::IsValid(text)) << of.Describe(0);
  EXPECT_FALSE(text.empty()) << of.Describe(0);
  EXPECT_FALSE(text.starts_with("|") || text.ends_with("|")) << of.Describe(0) << ": " << text;
}

TEST(SampleTemperature, SpeaksEnglishAndGerman) {
  for (const auto& variable : All<Variable>()) {
    ExpectGermanToo(variable->Label(), *variable);
    ExpectGermanToo(variable->Help(), *variable);
    EXPECT_NE(variable->Help().find("|de|"), std::string::npos) << variable->Describe(0);
    for (const EnumItem& item : variable->TypeInfo().EnumItems())
      ExpectGermanToo(item.Description(), *variable);
    for (const BitItem& item : variable->TypeInfo().BitItems())
      ExpectGermanToo(item.Description(), *variable);
  }
  for (const auto& menu : All<Menu>()) ExpectGermanToo(menu->Label(), *menu);
  for (const auto& method : All<Method>()) ExpectGermanToo(method->Label(), *method);
  for (const auto& form : All<EditDisplay>()) ExpectGermanToo(form->Label(), *form);
}

}  // namespace
