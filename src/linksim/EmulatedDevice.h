#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "interfaces/ILink.h"
#include "linksim/DeviceFile.h"
#include "linksim/DeviceMemory.h"
#include "linksim/Frame.h"
#include "platform/Export.h"

namespace HartLinkSim {

class DeviceRequest;

// A HART device in memory, with values of its own by variable name. It knows no DTM: it takes a
// request's bytes apart by the types of its items, keeps what a write sends and answers from
// memory. A name that it does not know starts with the value that the data set has; live values
// (flag 9) that nobody set go on moving.
//
// Beyond that it behaves like a transmitter: a change of its configuration counts in
// "configuration_change_counter" and sets the device status bit until command 38; command 6 gives
// it another polling address, under which alone it answers command 0 from then on; command 40 fixes
// and frees the loop current; command 42 restarts it, which the next reply tells (cold start);
// "more status available" follows what command 48 told last.
//
// Several links may share one device; it outlives them.
class ZAF_API EmulatedDevice {
 public:
  // When the file is written: after every exchange that changed something, or by Save() alone.
  enum class SaveMode : std::uint8_t { EveryChange, OnDemand };

  // The device of the calling thread's platform, made on first use.
  static std::shared_ptr<EmulatedDevice> OfThread();

  // The value of a variable; nothing for an unknown name. Values from a file are texts until a
  // command has told their type.
  std::optional<ZAFHartTypes::Variant> Value(std::string_view name) const;
  // The same as an unsigned number of 32 bits; nothing for what is none.
  std::optional<std::uint32_t> Number(std::string_view name) const;
  // Sets a value as the device itself would: no change of the configuration. Raises InvalidArgument
  // for a name that cannot stand in a file, PathFileAccess when the file cannot be written.
  void SetValue(std::string_view name, const ZAFHartTypes::Variant& value);
  // The device status byte of the next reply (hart::DeviceStatusFlag). Setting it raises
  // PathFileAccess when the file cannot be written.
  std::uint8_t Status() const { return status_; }
  void SetStatus(std::uint8_t status);
  // Wraps around after 65535; 0 for a device that has none. Raises TypeMismatch or Overflow when a
  // file gave a text that is no such number.
  std::uint16_t ConfigurationChangeCounter() const;

  // Keeps the memory in a file from now on (see DeviceFile) and takes over what it holds; a missing
  // file is made with the first save. Raises InvalidArgument for a broken line, naming file and
  // line; memory and file are then as before.
  void UseFile(const std::filesystem::path& path, SaveMode mode = SaveMode::EveryChange);
  // Writes the file when there is one and something changed. Raises PathFileAccess.
  void Save();

  // Carries a command out and returns the reply from the response code byte on; nothing when the
  // device is not addressed. A request that is too short is answered with response code 5; when the
  // memory holds a value that the wire cannot carry, or the file cannot be written, the answer is
  // response code 6 and LastError() tells why.
  std::optional<std::vector<std::uint8_t>> Answer(const ZAFHartTypes::Exchange& exchange);
  // Why the last command was answered with response code 6; "" when it was not.
  const std::string& LastError() const { return lastError_; }

 private:
  bool IsAddressed(const ZAFHartTypes::Exchange& exchange) const;
  std::vector<std::uint8_t> CarryOut(const ZAFHartTypes::Exchange& exchange);
  void Store(const DeviceRequest& request);
  void CountConfigurationChange();
  void Apply(std::int16_t command, const DeviceRequest& request);
  std::vector<std::uint8_t> ReplyTo(const ZAFHartTypes::Exchange& exchange,
                                    const DeviceRequest& request);
  void TellMoreStatus(const Frame& additionalStatus);
  void FillIn(Frame& reply, const ZAFHartTypes::DataItemList& items, const DeviceRequest& request);
  ZAFHartTypes::Variant Known(const ZAFHartTypes::DataItem& item, const DeviceRequest& request,
                              const ZAFHartTypes::Variant& inDataSet);
  std::vector<std::uint8_t> Refuse(std::uint8_t responseCode) const;
  void SetStatusFlag(std::uint8_t flag, bool set);
  void SaveAfterChange();

  DeviceMemory memory_;
  std::uint8_t status_ = 0;
  bool statusIsChanged_ = false;  // since the file was written
  std::optional<DeviceFile> file_;
  SaveMode saveMode_ = SaveMode::EveryChange;
  std::string lastError_;
};

}  // namespace HartLinkSim
