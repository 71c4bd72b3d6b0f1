#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "links/IpChannel.h"
#include "links/NameLookup.h"
#include "platform/MessageLoop.h"
#include "platform/Sockets.h"

namespace HartLinks {

// What both transports share: looks the host up, tries its addresses, reports to the observer.
class SocketChannel : public IpChannel {
 public:
  SocketChannel(const HartIpServerName& server, std::size_t attempt,
                std::shared_ptr<IPacketObserver> observer, User& user);

 protected:
  // Starts to connect to the address, and has Opened called; a Failure leads to the next address.
  virtual void Connect(const platform::SocketAddress& peer) = 0;
  virtual void Receive() = 0;

  // Calls Receive while there is something to receive, until the subscription is cancelled.
  [[nodiscard]] platform::Subscription WatchReadable(const platform::Socket& socket);

  const Flow& GetFlow() const { return flow_; }
  void SetPeer(const platform::SocketAddress& peer) { flow_.peer = peer; }
  IPacketObserver* Observer() const { return observer_.get(); }

  // Only as the last thing that their callers do: the user may destroy the channel.
  void Opened(const platform::Socket& socket);
  void Received(ZAFHartTypes::hart::Bytes bytes);
  void TryNext();
  void Lose(const std::string& reason) { user_.OnLost(reason); }

  // Runs `action`; when it fails, the channel is lost in an event of its own.
  template <typename Action>
  void Guard(Action&& action) {
    try {
      action();
    } catch (const platform::Failure& failure) {
      LoseLater(failure.Description());
    }
  }
  void TellSent(ZAFHartTypes::hart::Bytes bytes);
  // Why the address that was tried last did not do.
  void SetReason(std::string reason) { reason_ = std::move(reason); }

 private:
  void Found(NameLookup::Result result);
  void LoseLater(const std::string& reason);

  Flow flow_;
  std::size_t attempt_;
  std::shared_ptr<IPacketObserver> observer_;
  User& user_;
  NameLookup lookup_;
  std::vector<platform::SocketAddress> addresses_;
  std::size_t next_ = 0;  // of the addresses
  std::string reason_;
  platform::Subscription losing_;
};

// A server may answer a session's initiation from a port that it has opened for the session: where
// the first datagram comes from, the others go.
class UdpChannel : public SocketChannel {
 public:
  using SocketChannel::SocketChannel;
  void Send(ZAFHartTypes::hart::Bytes message) override;

 private:
  void Connect(const platform::SocketAddress& peer) override;
  void Receive() override;
  // Of the next datagram, the number of bytes; nothing when there is none, or a stranger's.
  std::optional<std::size_t> ReceiveFromPeer(std::span<std::uint8_t> buffer);

  std::optional<platform::UdpSocket> socket_;
  bool isConnected_ = false;  // the server's port is known
  platform::Subscription readable_;
};

class TcpChannel : public SocketChannel {
 public:
  using SocketChannel::SocketChannel;
  ~TcpChannel() override;
  void Send(ZAFHartTypes::hart::Bytes message) override;

 private:
  void Connect(const platform::SocketAddress& peer) override;
  void FinishConnect();
  void Receive() override;
  void Flush();

  std::optional<platform::TcpSocket> socket_;
  bool isOpen_ = false;
  std::vector<std::uint8_t> unsent_;
  platform::Subscription writable_;  // while it connects, and while unsent_ waits
  platform::Subscription readable_;
};

}  // namespace HartLinks
