#pragma once

#include "ddobjects/DDObject.h"
#include "platform/Export.h"
#include "types/SharedText.h"

namespace ZAFHartTypes {

// A DD method. Its body is the data model's: IDDDataModel::ExecuteMethodBody runs it by name.
class ZAF_API Method : public DDObject {
 public:
  static constexpr ObjectKind kKind = ObjectKind::Method;
  explicit Method(const ZAFHartTypes::Definition& definition) : DDObject(definition) {}
  Method(const Method&) = default;

  const ZAFHartTypes::Definition& Definition() const { return ObjectDefinition(); }
  // Before the method is added to the worker database, which goes by the name it then has.
  void SetDefinition(const ZAFHartTypes::Definition& definition) {
    SetObjectDefinition(definition);
  }
  const std::string& Label() const { return label_; }
  void SetLabel(SharedText label) { label_ = std::move(label); }
  const std::string& Help() const { return help_; }
  void SetHelp(SharedText help) { help_ = std::move(help); }
  // DD VALIDITY as last computed; true at first. A method that is not valid is hidden, and to run
  // it is reported as an error (ItemIndex::MethodNotValid).
  bool IsValid() const { return isValid_; }
  void SetIsValid(bool valid) { isValid_ = valid; }
  std::shared_ptr<DDObject> Entry() { return shared_from_this(); }
  // Same validity and label.
  bool HasSameState(const Method& other) const;

  void Assign(const DDObject& other) override;
  std::shared_ptr<DDObject> GetCopy() const override { return std::make_shared<Method>(*this); }
  std::string Describe(std::int16_t infoLevel) const override;

 private:
  SharedText label_;
  SharedText help_;
  bool isValid_ = true;
};

}  // namespace ZAFHartTypes
