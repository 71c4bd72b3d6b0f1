#pragma once

#include <memory>
#include <string>

#include "ddobjects/Transaction.h"
#include "ddobjects/Variable.h"
#include "interfaces/ILink.h"

namespace test_support {

using namespace ZAFHartTypes;  // NOLINT(google-build-using-namespace)

inline std::shared_ptr<Variable> MakeVariable(const char* name, TypeCode code, int size,
                                              Variant value = {}) {
  auto variable = std::make_shared<Variable>(name);
  variable->EditTypeInfo().SetTypeCode(code);
  variable->EditTypeInfo().SetSize(size);
  variable->SetValue(std::move(value));
  return variable;
}

// An item bound to the variable.
inline DataItem BoundItem(std::shared_ptr<Variable> variable, std::uint32_t mask = 0) {
  DataItem item = DataItem::Reference(variable->Definition(), mask);
  item.SetVariable(std::move(variable));
  return item;
}

inline DataItem BoundItem(const char* name, TypeCode code, int size, Variant value = {},
                          std::uint32_t mask = 0) {
  return BoundItem(MakeVariable(name, code, size, std::move(value)), mask);
}

// A transaction whose reply begins with the two status bytes.
inline std::shared_ptr<Transaction> MakeTransaction(const DataItemList& request,
                                                    const DataItemList& data) {
  auto transaction = std::make_shared<Transaction>(std::int16_t{0});
  transaction->Request() = request;
  transaction->Reply().Add(BoundItem("response_code", TypeCode::Enumerated, 1));
  transaction->Reply().Add(BoundItem("device_status", TypeCode::BitEnumerated, 1));
  for (const DataItem& item : data) transaction->Reply().Add(item);
  return transaction;
}

inline std::shared_ptr<Exchange> MakeExchange(std::int16_t command,
                                              std::shared_ptr<Transaction> transaction,
                                              const char* request, const char* reply) {
  auto exchange = std::make_shared<Exchange>();
  exchange->SetCommandNumber(command);
  exchange->SetItemsOf(std::move(transaction));
  exchange->SetRequestData(request);
  exchange->SetReplyData(reply);
  return exchange;
}

}  // namespace test_support
