#pragma once

#include "hartframe/browse/Page.h"
#include "hartframe/browse/Row.h"
#include "hartframe/browse/Screen.h"

namespace hartframe::browse {

// The editing of one variable: the kernel is told that its field is entered, the user gives a
// value, the kernel is told that the field is left and asks for the value.
class Editing {
 public:
  Editing(Session& session, Screen& screen) : session_(session), screen_(screen) {}

  void Edit(Page& page, const Row& row);

  // What the user has typed into the variable's field: Null for nothing.
  ZAFHartTypes::Variant EditedValue(const ZAFHartTypes::Definition& variable) const;
  // Remembers why the value was refused.
  void OnShown(const ZAFHartTypes::DDObject& object);

 private:
  using Field = std::shared_ptr<ZAFHartTypes::Variable>;
  bool Enter(Page& page, Field& field);
  void Leave(Page& page, Field& field);
  // In synchronous mode, where leaving writes to the device.
  void LeaveAndWrite(Page& page, Field& field);
  void TellOutcome(const Row& row);

  Session& session_;
  Screen& screen_;
  ZAFHartTypes::Definition edited_;
  ZAFHartTypes::Variant value_;
  std::string refusal_;
};

// Changes of the session's device are written at once.
bool WritesAtOnce(Session& session);
// Why the row's variable cannot be edited; "" when it can. `why`: why nothing can be changed.
std::string WhyNotEditable(const Row& row, const std::string& why, const Speech& speech);

}  // namespace hartframe::browse
