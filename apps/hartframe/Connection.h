#pragma once

#include <memory>
#include <set>
#include <string>

#include "hartframe/Options.h"
#include "links/PcapFile.h"
#include "linksim/DeviceLink.h"

namespace hartframe {

// A link to an emulated device that remembers what the device could not do with its file.
class EmulatedLink : public HartLinkSim::DeviceLink {
 public:
  using DeviceLink::DeviceLink;
  // Each names the variable or the file and what is wrong with it.
  const std::set<std::string>& FileErrors() const { return fileErrors_; }

 protected:
  std::optional<Reply> Answer(const ZAFHartTypes::Exchange& exchange) override;

 private:
  std::set<std::string> fileErrors_;
};

// The faults of the command line. CommandFailure (Usage) for one that is none.
void AddFaults(HartLinkSim::Faults& faults, const Options& options);

// The way to the device, and what stands on it. Of a device that is served the faults are those of
// the wire, and not this link's.
class Connection {
 public:
  Connection() = default;
  // Nothing is sent yet. CommandFailure: Usage for a fault that is none and for a setting that the
  // link does not have, FileBroken for a device file or a record that cannot be used.
  explicit Connection(const Options& options);

  const std::shared_ptr<ZAFHartTypes::ILink>& Link() const { return link_; }
  // What kept the last exchange from an answer; "" when the device simply did not answer.
  std::string LastError() const;
  // What the emulated device could not do with its file, and why the record is not complete.
  std::set<std::string> FileErrors() const;
  // The emulated device behind the link; nothing for other links.
  std::shared_ptr<HartLinkSim::EmulatedDevice> Device() const;

 private:
  void UseEmulation(const Options& options);
  void UseRealLink(const Options& options);

  std::shared_ptr<ZAFHartTypes::ILink> link_;
  std::shared_ptr<EmulatedLink> emulated_;  // link_, or what it captures; may be nothing
  std::shared_ptr<HartLinks::PcapFile> record_;
};

}  // namespace hartframe
