#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "links/PacketObserver.h"
#include "platform/Export.h"

namespace HartLinks {

// Records packets for network analysers: a classic pcap file of IP packets. Each packet is in the
// file as soon as it has been observed, so that the file can be read at any moment. TCP bytes get
// segments whose numbers fit together; how the system really cut them is not known here.
class ZAF_API PcapFile : public IPacketObserver {
 public:
  // Replaces the file. Raises PathFileAccess when it cannot be written.
  explicit PcapFile(std::filesystem::path file);

  // Never raise: what cannot be written is told by Error().
  void OnOpened(const Flow& flow, Direction sent) override;
  void OnClosed(const Flow& flow) override;
  void OnBytes(const Flow& flow, Direction direction, ZAFHartTypes::hart::Bytes bytes) override;

  // Why the record is not complete, for users; "" while it is. Nothing is written after that.
  const std::string& Error() const { return error_; }

 private:
  // A TCP connection: the next number in each direction.
  struct Connection {
    Flow flow;
    std::uint32_t sent;
    std::uint32_t received;
  };

  Connection& Find(const Flow& flow);
  void WriteSegment(Connection& connection, Direction direction, int flags,
                    ZAFHartTypes::hart::Bytes bytes);
  void WritePacket(const std::vector<std::uint8_t>& packet);
  void Write(const std::vector<std::uint8_t>& bytes);

  std::filesystem::path path_;
  std::ofstream file_;
  std::string error_;
  std::vector<Connection> connections_;
};

}  // namespace HartLinks
