#include <map>
#include <random>
#include <set>

#include "support/WorkerDbFixture.h"

using namespace test_support;

namespace {

class WorkerDbDependencies : public WorkerDbFixture {
 protected:
  void SetUp() override {
    for (const char* name : {"v0", "v1", "v2", "v3"}) AddVariable(name);
    for (const char* name : {"m0", "m1", "m2", "m3"}) database->AddObject(MakeObject<Menu>(name));
    database->AddObject(MakeObject<ItemArray>("array"));
    database->SetVariableAvailable({}, true);
    database->SetTrackDependencies(true);
    database->SetSinks(
        {.invalidated = [this](const Definition& object) { told.insert(object.Name()); },
         .read = {}});
  }
  bool IsCurrent(const std::string& name) {
    return database->ReadObject(VariableNamed(name))->AttributesAvailable();
  }
  // The kernel computes an object's attributes and reads variables meanwhile.
  void Compute(const std::string& object, std::initializer_list<std::string> variables) {
    const auto stored = database->ReadObject(VariableNamed(object));
    database->ClearDependencies(VariableNamed(object));
    for (const auto& variable : variables) {
      database->AddDependency(VariableNamed(object), VariableNamed(variable));
      database->AddDependent(VariableNamed(object), VariableNamed(variable));
    }
    stored->SetAttributesAvailable(true);
  }
  std::set<std::string> told;
};

}  // namespace

TEST_F(WorkerDbDependencies, AWriteMakesDependentsStaleThroughArrays) {
  Compute("array", {"v0", "array"});  // a circle
  Compute("m0", {"array"});
  Compute("m1", {"m0"});  // through a menu nothing goes on
  Write("v0", 1.0);
  EXPECT_EQ(told, (std::set<std::string>{"array", "m0"}));
  EXPECT_TRUE(IsCurrent("m1") && !IsCurrent("array") && !IsCurrent("m0"));
  Compute("array", {"v0"});
  Compute("m0", {"array"});
  Write("v1", 1.0);
  database->SetRefresh(VariableNamed("v0"), VariableNamed("v1"));  // goes one step only
  EXPECT_TRUE(IsCurrent("m0") && !IsCurrent("array"));
  database->SetTrackDependencies(true);
  EXPECT_FALSE(IsCurrent("m0"));
}

// Against the plain rule: look through the whole list at every read.
TEST_F(WorkerDbDependencies, AnswersAsAScanOfTheListsWould) {
  std::mt19937 random(20261124);
  std::map<std::string, std::set<std::string>> dependsOn;
  std::map<std::string, std::set<std::string>> dependents;
  std::map<std::string, bool> current;
  for (int step = 0; step < 20'000; ++step) {
    const std::string object = "m" + std::to_string(random() % 4);
    const std::string variable = "v" + std::to_string(random() % 4);
    switch (random() % 6) {
      case 0:
        Compute(object, {});  // replaces the lists
        dependsOn.erase(object);
        for (auto& [name, list] : dependents) list.erase(object);
        current[object] = true;
        break;
      case 1:
        database->AddDependency(VariableNamed(object), VariableNamed(variable));
        dependsOn[object].insert(variable);
        break;
      case 2:
        database->AddDependent(VariableNamed(object), VariableNamed(variable));
        dependents[variable].insert(object);
        break;
      case 3:
        SetAvailable(variable, random() % 2 == 0);
        break;
      case 4:
        Write(variable, static_cast<double>(random() % 3));
        for (const auto& name : dependents[variable]) current[name] = false;
        break;
      default:
        if (std::ranges::any_of(dependsOn[object],
                                [&](auto& name) { return !Read(name)->Available(); })) {
          current[object] = false;
          dependsOn.erase(object);
        }
        ASSERT_EQ(IsCurrent(object), current[object]) << "step " << step;
    }
  }
}
