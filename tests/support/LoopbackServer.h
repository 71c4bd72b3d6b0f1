#pragma once

#include <array>
#include <list>
#include <optional>
#include <string>
#include <vector>

#include "hart/HartIpMessage.h"
#include "hart/LinkFrame.h"
#include "links/PacketObserver.h"
#include "platform/Platform.h"
#include "platform/Sockets.h"

namespace test_support {

// A small HART-IP server in the message loop of the test: grants sessions and answers every request
// with its command number as data. Over UDP it can have a port for sessions beside the one where
// they are asked for.
class LoopbackServer {
 public:
  LoopbackServer(HartLinks::Transport transport, const char* address, std::uint16_t port = 0,
                 bool hasSessionPort = false) {
    const auto local = *platform::NumericAddress(address, port);
    if (transport == HartLinks::Transport::Udp) {
      udp_ = platform::UdpSocket::BindTo(local);
      Watch(*udp_, [this, hasSessionPort] { ReceiveDatagram(*udp_, hasSessionPort); });
    } else {
      tcp_ = platform::TcpListener::BindTo(local);
      Watch(*tcp_, [this] { Accept(); });
    }
  }

  std::uint16_t Port() const {
    return udp_ ? udp_->LocalAddress().port : tcp_->LocalAddress().port;
  }
  // Kinds of the messages that came: "initiate", "close", "alive", "3" for command 3.
  std::vector<std::string> Heard() const { return heard_; }

 private:
  struct Connection {
    platform::TcpSocket socket;
    ZAFHartTypes::hart::HartIpStream stream;
    platform::Subscription readable;
  };

  template <typename Handler>
  void Watch(const platform::Socket& socket, Handler handler) {
    readable_ = platform::Current().Loop().Watch({socket.Descriptor()}, handler);
  }
  void ReceiveDatagram(platform::UdpSocket& socket, bool opensSession) {
    std::array<std::uint8_t, 2000> buffer{};
    const auto received = socket.Receive(buffer);
    if (!received) return;
    const auto datagram = ZAFHartTypes::hart::Bytes(buffer).first(received->size);
    const auto answer = Answer(ZAFHartTypes::hart::DecodeHartIp(datagram).message);
    if (opensSession) {
      session_ = platform::UdpSocket::OpenTowards(received->from);
      sessionReadable_ = platform::Current().Loop().Watch(
          {session_->Descriptor()}, [this] { ReceiveDatagram(*session_, false); });
    }
    (opensSession ? *session_ : socket).SendTo(received->from, answer);
  }
  void Accept() {
    auto accepted = tcp_->Accept();
    if (!accepted) return;
    connections_.push_back({std::move(accepted->socket), {}, {}});
    Connection* connection = &connections_.back();
    connection->readable = platform::Current().Loop().Watch(
        {connection->socket.Descriptor()}, [this, connection] { ReceiveBytes(*connection); });
  }
  void ReceiveBytes(Connection& connection) {
    std::array<std::uint8_t, 2000> buffer{};
    const auto size = connection.socket.Receive(buffer);
    if (!size) return;
    if (*size == 0) return connection.readable.Cancel();
    for (const auto& decoded :
         connection.stream.Receive(ZAFHartTypes::hart::Bytes(buffer).first(*size))) {
      // In two pieces, as a network may have it.
      const auto answer = Answer(decoded.message);
      connection.socket.Send(ZAFHartTypes::hart::Bytes(answer).first(5));
      connection.socket.Send(ZAFHartTypes::hart::Bytes(answer).subspan(5));
    }
  }
  std::vector<std::uint8_t> Answer(ZAFHartTypes::hart::HartIpMessage message) {
    using ZAFHartTypes::hart::HartIpId;
    message.type = ZAFHartTypes::hart::HartIpType::Response;
    if (message.id == HartIpId::TokenPassing) {
      const auto request = ZAFHartTypes::hart::DecodeFrame(message.body).frame;
      const auto number = request.CommandNumber();
      heard_.push_back(std::to_string(number));
      const std::array<std::uint8_t, 3> reply{0, 0x40, static_cast<std::uint8_t>(number)};
      message.body = ZAFHartTypes::hart::EncodeFrame(ReplyFrame(request, reply));
    } else {
      heard_.emplace_back(message.id == HartIpId::SessionInitiate ? "initiate"
                          : message.id == HartIpId::SessionClose  ? "close"
                                                                  : "alive");
    }
    return ZAFHartTypes::hart::EncodeHartIp(message);
  }

  std::optional<platform::UdpSocket> udp_;
  std::optional<platform::UdpSocket> session_;
  std::optional<platform::TcpListener> tcp_;
  std::list<Connection> connections_;
  platform::Subscription readable_;
  platform::Subscription sessionReadable_;
  std::vector<std::string> heard_;
};

}  // namespace test_support
