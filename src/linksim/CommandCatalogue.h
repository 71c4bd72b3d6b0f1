#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/Transaction.h"
#include "hart/Numbers.h"
#include "platform/Export.h"

namespace HartLinkSim {

// What a request's bytes stand for.
struct FoundCommand {
  bool isKnown = false;  // there is a command of that number
  // Items bound to variables; nothing when the bytes are those of no transaction.
  std::shared_ptr<ZAFHartTypes::Transaction> transaction;
  // The reply that the data set would give, status bytes included, as an exchange carries it.
  std::string dataSetReply;
};

// The commands that an emulated device has: those of a DTM, which the host supplies.
class ZAF_API CommandCatalogue {
 public:
  virtual ~CommandCatalogue() = default;
  // `request`: the data bytes of a request to command `number`. Raises a Failure naming what cannot
  // be laid out.
  virtual FoundCommand Find(std::uint16_t number, ZAFHartTypes::hart::Bytes request) = 0;
  // The device has carried that out: layouts may follow from what was sent.
  virtual void OnCarriedOut(const ZAFHartTypes::Transaction& transaction,
                            ZAFHartTypes::hart::Bytes request) = 0;
};

// The transaction that a request's bytes are for: its constants stand in them as far as they go,
// and they are long enough for it. Of several the one with the longest request, then with the
// longest reply. When all want more bytes, the one that wants fewest; nothing when the constants
// tell that it is none. REQUIRES: items are bound.
ZAF_API std::shared_ptr<ZAFHartTypes::Transaction> ChooseTransaction(
    const ZAFHartTypes::TransactionList& transactions, ZAFHartTypes::hart::Bytes request);

}  // namespace HartLinkSim
