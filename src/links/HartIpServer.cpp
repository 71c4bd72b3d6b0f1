#include "links/HartIpServer.h"

#include <array>

#include "platform/Platform.h"

namespace HartLinks {

namespace hart = ZAFHartTypes::hart;
using platform::Failure;
using platform::IgnoreFailures;
using platform::SocketAddress;

namespace {

constexpr std::size_t kMaxConnections = 64;
constexpr int kPortAttempts = 20;  // to find one that is free for both transports

platform::MessageLoop& Loop() {
  return platform::Current().Loop();
}

}  // namespace

// Made anew for each datagram; the service keeps that of a session.
class HartIpServer::Datagrams : public HartIpService::Client {
 public:
  Datagrams(std::shared_ptr<platform::UdpSocket> socket, const SocketAddress& peer)
      : socket_(std::move(socket)), peer_(peer), name_(peer.Text() + "/udp") {}
  const std::string& Name() const override { return name_; }
  // What cannot be sent is lost, as it may be on the way.
  void Send(hart::Bytes message) override {
    IgnoreFailures([&] { socket_->SendTo(peer_, message); });
  }
  void HangUp() override {}

 private:
  std::shared_ptr<platform::UdpSocket> socket_;
  SocketAddress peer_;
  std::string name_;
};

HartIpServer::HartIpServer(FrameAnswerer answerer, const HartIpServerOptions& options)
    : options_(options), service_(std::move(answerer), options.service), address_(options.local) {
  Bind();
  if (udp_) udpReadable_ = Loop().Watch({udp_->Descriptor()}, [this] { ReceiveDatagram(); });
  if (tcp_) tcpReadable_ = Loop().Watch({tcp_->Descriptor()}, [this] { Accept(); });
}

HartIpServer::~HartIpServer() = default;

// A free port of one transport may be taken in the other: then another one is tried.
void HartIpServer::Bind() {
  for (int attempt = 1; !TryBind(); ++attempt) {
    if (attempt == kPortAttempts) {
      throw Failure(platform::ErrorNumber::DeviceIo, "HartLinks.HartIpServer",
                    "No port of " + options_.local.Text() + " is free for both UDP and TCP");
    }
  }
}

bool HartIpServer::TryBind() {
  address_ = options_.local;
  if (options_.tcp) {
    tcp_ = platform::TcpListener::BindTo(address_);
    address_ = tcp_->LocalAddress();
  }
  if (!options_.udp) return true;
  try {
    udp_ = std::make_shared<platform::UdpSocket>(platform::UdpSocket::BindTo(address_));
  } catch (const Failure&) {
    if (!options_.tcp || options_.local.port != 0) throw;
    return false;
  }
  address_ = udp_->LocalAddress();
  return true;
}

void HartIpServer::ReceiveDatagram() {
  std::array<std::uint8_t, hart::kHartIpMaxSize + 1> buffer;
  std::optional<platform::UdpSocket::Received> received;
  // An earlier answer may have found nobody.
  IgnoreFailures([&] { received = udp_->Receive(buffer); });
  if (!received || received->size > buffer.size()) return;
  service_.Receive(std::make_shared<Datagrams>(udp_, received->from),
                   hart::DecodeHartIp(hart::Bytes(buffer).first(received->size)));
}

void HartIpServer::Accept() {
  std::optional<platform::TcpListener::Accepted> accepted;
  IgnoreFailures([&] { accepted = tcp_->Accept(); });
  if (!accepted || connections_.size() >= kMaxConnections) return;
  const auto connection = std::make_shared<ServerConnection>(
      std::move(accepted->socket), accepted->from,
      [this](const auto& client, const auto& decoded) { service_.Receive(client, decoded); },
      [this](const auto& client) { Drop(client); });
  const auto hangUp = [this, client = connection.get()] {
    if (!service_.HasSession(client->Name())) client->HangUp();
  };
  connections_.push_back({connection, Loop().StartTimer(options_.connectTime, hangUp)});
}

void HartIpServer::Drop(const std::shared_ptr<ServerConnection>& connection) {
  service_.Forget(connection->Name());
  std::erase_if(connections_, [&](const Connected& each) { return each.connection == connection; });
}

}  // namespace HartLinks
