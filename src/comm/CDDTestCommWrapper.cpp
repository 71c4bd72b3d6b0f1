#include "comm/CDDTestCommWrapper.h"

#include "comm/CommandFinder.h"
#include "comm/ReplyTemplate.h"
#include "ddobjects/Transaction.h"
#include "hart/StatusBytes.h"
#include "linksim/ItemCoding.h"
#include "platform/Platform.h"

namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using HartLinkSim::Frame;
using ZAFHartTypes::Definition;
using ZAFHartTypes::DtmOnlineState;
using ZAFHartTypes::ExchangeState;
using ZAFHartTypes::OnlineMode;
using ZAFHartTypes::Variant;

namespace {

constexpr auto kReadUniqueIdentifier =
    static_cast<std::int16_t>(UniversalCommand::ReadUniqueIdentifier);

// Positions in the reply to command 0, status bytes included, and in a long address.
constexpr std::size_t kExpansionAt = 2;
constexpr std::size_t kManufacturerAt = 3;
constexpr std::size_t kDeviceTypeAt = 4;
constexpr std::size_t kDeviceIdAt = 11;
constexpr std::size_t kDeviceIdSize = 3;
// Bits of the manufacturer that a long address has room for.
constexpr std::uint32_t kManufacturerMask = 63;

}  // namespace

CDDTestCommWrapper::CDDTestCommWrapper() : CommWrapper("HartLinkSim.EchoLink") {}

void CDDTestCommWrapper::ApplyEmulate(bool emulate) {
  StoreOnlineState(emulate ? OnlineMode::Offline : OnlineMode::Online,
                   emulate ? DtmOnlineState::NotConnected : DtmOnlineState::Connected);
}

void CDDTestCommWrapper::PrepareExchange(std::int16_t number) {
  if (number != kReadUniqueIdentifier) Learn(ErrorSeverity::Critical);
}

std::string CDDTestCommWrapper::ReplyTemplate(const Transaction& transaction) {
  const std::vector<Variant> answers = TemplateValues(
      transaction.Reply(), ReplyBytes(), Model().Gui()->LanguageID(), platform::Current().Random());
  return HartLinkSim::EncodeItems(transaction.Reply(), answers).HexText();
}

void CDDTestCommWrapper::LearnLongAddress() {
  Learn(ErrorSeverity::Error);
}

void CDDTestCommWrapper::Learn(ErrorSeverity severity) {
  if (!LongAddress().empty()) return;
  ExecuteCommand0();
  if (LongAddress().empty()) ShowConnectionError(severity);
}

void CDDTestCommWrapper::ExecuteCommand0() {
  if (isLearning_) return;
  struct Learning {
    bool& flag;
    explicit Learning(bool& learning) : flag(learning) { flag = true; }
    ~Learning() { flag = false; }
  } const learning(isLearning_);
  Address().ReadFromKernel(Model());
  const auto kernel = Model().Kernel();
  const Definition definition = FindCommand(Model(), UniversalCommand::ReadUniqueIdentifier);
  const auto command = definition ? kernel->GetSafeCommand(definition) : nullptr;
  if (command) kernel->ExecuteCommand(command->CommandCopy(), 0);
}

// Takes the long address out of the reply to command 0. A reply that is too short for an identity
// leaves it as it is.
void CDDTestCommWrapper::TakeReplyOf(Exchange& exchange, const Frame& reply) {
  if (exchange.CommandNumber() != kReadUniqueIdentifier ||
      exchange.State() != ExchangeState::Completed || LastStatus().communication != 0 ||
      reply.Length() <= kExpansionAt) {
    return;
  }
  Frame address;
  if (reply.Unsigned(kExpansionAt, 1) != hart::kExpansionCode) {
    address.SetUnsigned(0, 1, static_cast<std::uint32_t>(Address().PollingAddress()));
  } else if (reply.Length() >= kDeviceIdAt + kDeviceIdSize) {
    address.SetUnsigned(0, 1, reply.Unsigned(kManufacturerAt, 1) & kManufacturerMask);
    address.SetUnsigned(1, 1, reply.Unsigned(kDeviceTypeAt, 1));
    address.SetUnsigned(2, kDeviceIdSize, reply.Unsigned(kDeviceIdAt, kDeviceIdSize));
  } else {
    return;
  }
  SetLongAddress(address.HexText());
  exchange.SetLongAddress(LongAddress());
}

}  // namespace ZAFHartLib
