#pragma once

#include "dtmkit/CommandBuilder.h"
#include "dtmkit/ItemBuilders.h"
#include "dtmkit/VariableBuilder.h"
#include "platform/Export.h"

namespace ZAFHartTypes::dtmkit {

// A catalogue with the words to write it. Start here to write a data model:
//
//   void DescribeOutput(DeviceDescription& dd) {
//     dd.Variable("alarm_delay")
//         .Label("Alarm delay|de|Alarmverzögerung")
//         .Unsigned(2).Range(0, 600).Unit("s").Default(10)
//         .ValidWhen([](Context& context) { return context.Long("alarm_mode") != 0; });
//     dd.Command("read_alarm_delay", 134, Operation::Read).Reply({"alarm_delay"});
//     dd.Command("write_alarm_delay", 135, Operation::Write)
//         .Request({"alarm_delay"}).Reply({"alarm_delay"});
//   }
//
// Describe arrays and collections before the index variables and commands that name them. Each
// operation but Known starts a new item and returns the builder that writes it; it raises
// DuplicateKey for a name that is taken. The description is complete, and does not change any more,
// before the first data model is made from it (see DataModelBase).
class ZAF_API DeviceDescription : public Catalogue {
 public:
  VariableBuilder Variable(std::string_view name) {
    return Make<VariableBuilder, ZAFHartTypes::Variable>(name);
  }
  // A variable that was described before, to say more about it or to say it anew. Raises
  // InvalidArgument when there is none of that name.
  VariableBuilder Known(std::string_view name) {
    return VariableBuilder(*this, *Prototype<ZAFHartTypes::Variable>(name));
  }
  // `number` is the HART command number. The kernel finds a variable's read and write commands
  // among those of Operation::Read and Write.
  CommandBuilder Command(std::string_view name, std::int16_t number, Operation operation) {
    return {*this, Add<ZAFHartTypes::Command>(name), number, operation};
  }
  MenuBuilder Menu(std::string_view name) { return Make<MenuBuilder, ZAFHartTypes::Menu>(name); }
  EditDisplayBuilder EditDisplay(std::string_view name) {
    return Make<EditDisplayBuilder, ZAFHartTypes::EditDisplay>(name);
  }
  MethodBuilder Method(std::string_view name) {
    return Make<MethodBuilder, ZAFHartTypes::Method>(name);
  }
  RefreshRelationBuilder RefreshRelation(std::string_view name) {
    return Make<RefreshRelationBuilder, ZAFHartTypes::RefreshRelation>(name);
  }
  UnitRelationBuilder UnitRelation(std::string_view name) {
    return Make<UnitRelationBuilder, ZAFHartTypes::UnitRelation>(name);
  }
  WriteAsOneBuilder WriteAsOne(std::string_view name) {
    return Make<WriteAsOneBuilder, ZAFHartTypes::WriteAsOne>(name);
  }
  ArrayBuilder Array(std::string_view name) { return Make<ArrayBuilder, ItemArray>(name); }
  CollectionBuilder Collection(std::string_view name) {
    return Make<CollectionBuilder, ItemCollection>(name);
  }

 private:
  template <typename Builder, typename Item>
  Builder Make(std::string_view name) {
    return Builder(*this, Add<Item>(name));
  }
};

}  // namespace ZAFHartTypes::dtmkit
