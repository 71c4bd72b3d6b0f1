#pragma once

#include <map>
#include <memory>

#include "ddobjects/Command.h"
#include "interfaces/ComponentBase.h"
#include "linksim/CommandCatalogue.h"
#include "platform/Export.h"

namespace ZAFHartLib {

// The commands of a DTM instance for a device that is emulated on the wire. What a request selects
// (INDEX and INFO items) and what the device has taken is stored in the instance, so that layouts
// follow from it; live values go on moving there. Raises ObjectNotSet once the instance has been
// torn down.
class ZAF_API DtmCatalogue : public HartLinkSim::CommandCatalogue {
 public:
  // Keeps the instance weakly.
  explicit DtmCatalogue(const std::shared_ptr<ZAFHartTypes::IDDComponents>& components);
  HartLinkSim::FoundCommand Find(std::uint16_t number, ZAFHartTypes::hart::Bytes request) override;
  void OnCarriedOut(const ZAFHartTypes::Transaction& transaction,
                    ZAFHartTypes::hart::Bytes request) override;

 private:
  // A copy with current attributes, its items bound; nothing when it cannot be computed.
  std::shared_ptr<ZAFHartTypes::Command> Bound(const ZAFHartTypes::Definition& definition) const;
  enum class Part : std::uint8_t { Selectors, All };
  // Stores the values that were sent; true when one was another before.
  bool Store(const ZAFHartTypes::Transaction& transaction, ZAFHartTypes::hart::Bytes request,
             Part part) const;
  void StoreValue(const ZAFHartTypes::Definition& variable,
                  const ZAFHartTypes::Variant& value) const;
  std::string DataSetReply(const ZAFHartTypes::Transaction& transaction) const;

  ZAFHartTypes::ModelReference model_;
  std::map<std::uint16_t, ZAFHartTypes::Definition> commands_;
};

}  // namespace ZAFHartLib
