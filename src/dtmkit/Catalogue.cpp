#include "dtmkit/Catalogue.h"

#include "types/Failure.h"

namespace ZAFHartTypes::dtmkit {
namespace {

constexpr const char* kSource = "dtmkit.Catalogue";

}  // namespace

void Catalogue::Register(const std::shared_ptr<DDObject>& item) {
  if (names_.try_emplace(item->ObjectDefinition().Key(), item).second) return;
  throw Failure(ErrorNumber::DuplicateKey, kSource,
                "The data model defines the item \"" + item->ObjectDefinition().Name() +
                    "\" twice; rename one of the two.");
}

TextKey Catalogue::Require(std::string_view name, ObjectKind kind) const {
  const Definition definition = Definition::Define(name, kind);
  if (Contains(definition)) return definition.Key();
  throw Failure(ErrorNumber::InvalidArgument, kSource,
                "The data model has no " + definition.Describe(1) +
                    "; describe the item before what refers to it.");
}

bool Catalogue::Contains(const Definition& definition) const {
  const auto found = names_.find(definition.Key());
  return found != names_.end() && found->second->Kind() == definition.Kind();
}

void Catalogue::OnExecute(std::string_view method, MethodBody body) {
  bodies_.insert_or_assign(Require(method, ObjectKind::Method), std::move(body));
}

const MethodBody* Catalogue::Body(std::string_view method) const {
  const auto found = bodies_.find(TextKey::Of(method));
  return found == bodies_.end() ? nullptr : &found->second;
}

}  // namespace ZAFHartTypes::dtmkit
