#include "comm/DeviceSearch.h"

#include "hart/HexText.h"
#include "hart/Texts.h"
#include "types/Failure.h"
#include "types/Utf8.h"

namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::Addressing;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::ExchangeResult;
using ZAFHartTypes::Failure;
using ZAFHartTypes::IgnoreFailures;

namespace {

// HART universal commands that answer with the identity.
constexpr std::int16_t kReadUniqueIdentifier = 0;
constexpr std::int16_t kReadUniqueIdentifierByTag = 11;
constexpr std::int16_t kReadUniqueIdentifierByLongTag = 21;

constexpr const char* kBroadcast = "0000000000";
constexpr std::int32_t kLastPollingAddress = 63;
constexpr std::size_t kTagSize = 6;  // bytes of Packed ASCII
constexpr std::size_t kLongTagSize = 32;

void RequireAddress(bool isAddress, const std::string& what) {
  if (!isAddress) throw Failure(ErrorNumber::InvalidArgument, "CHARTCommWrapper.Connect", what);
}

std::string PackedText(const std::string& tag) {
  std::vector<std::uint8_t> bytes(kTagSize);
  hart::WritePackedAscii(bytes, tag);
  return hart::ToHex(bytes);
}

std::string Latin1Text(const std::string& tag) {
  std::vector<std::uint8_t> bytes(kLongTagSize);
  hart::WriteLatin1(bytes, tag);
  return hart::ToHex(bytes);
}

}  // namespace

Addressing DeviceTarget::Way() const {
  if (addressing != Addressing::Automatic) return addressing;
  return longAddress.empty() ? Addressing::PollingAddress : Addressing::LongAddress;
}

std::string DeviceTarget::Text() const {
  switch (Way()) {
    case Addressing::Tag:
      return tag;
    case Addressing::LongAddress:
      return longAddress;
    default:
      return std::to_string(pollingAddress);
  }
}

DeviceSearch::DeviceSearch(const DeviceTarget& target, const std::string& knownAddress,
                           int rounds) {
  switch (target.Way()) {
    case Addressing::Tag:
      AddTagRequests(target.tag, knownAddress);
      break;
    case Addressing::LongAddress:
      RequireAddress(!target.longAddress.empty(), "The device's long address is not given.");
      requests_.push_back({kReadUniqueIdentifier, target.longAddress, ""});
      break;
    default:
      RequireAddress(target.pollingAddress >= 0 && target.pollingAddress <= kLastPollingAddress,
                     "The polling address " + std::to_string(target.pollingAddress) +
                         " is no address. HART polling addresses are 0 to 63.");
      pollingAddress_ = static_cast<std::int16_t>(target.pollingAddress);
      requests_.push_back({kReadUniqueIdentifier, "", ""});
  }
  end_ = requests_.size() * static_cast<std::size_t>(rounds);
}

// A short tag may be the tag or the long tag of a device. Some devices fill up long tags with
// blanks instead of NUL, and compare all of it.
void DeviceSearch::AddTagRequests(const std::string& tag, const std::string& knownAddress) {
  const std::size_t length = ZAFHartTypes::utf8::Length(tag);
  RequireAddress(length > 0 && length <= kLongTagSize,
                 "\"" + tag + "\" is no tag. Tags have 1 to 8 characters, long tags up to 32.");
  if (length <= hart::PackedCharacters(kTagSize)) {
    requests_.push_back({kReadUniqueIdentifierByTag, kBroadcast, PackedText(tag)});
  }
  requests_.push_back({kReadUniqueIdentifierByLongTag, kBroadcast, Latin1Text(tag)});
  if (length < kLongTagSize) {
    const std::string blanks(kLongTagSize - length, ' ');
    requests_.push_back({kReadUniqueIdentifierByLongTag, kBroadcast, Latin1Text(tag + blanks)});
  }
  if (!knownAddress.empty()) requests_.push_back({kReadUniqueIdentifier, knownAddress, ""});
}

std::shared_ptr<Exchange> DeviceSearch::Next() {
  if (found_ || next_ == end_) return nullptr;
  const Request& request = requests_[next_++ % requests_.size()];
  auto exchange = std::make_shared<Exchange>();
  exchange->SetCommandNumber(request.command);
  exchange->SetPollAddress(pollingAddress_);
  exchange->SetLongAddress(request.longAddress);
  exchange->SetRequestData(request.data);
  return exchange;
}

void DeviceSearch::Take(const Exchange& exchange) {
  if (exchange.Result() != ExchangeResult::ReplyPresent) return;
  IgnoreFailures([&] {
    const std::vector<std::uint8_t> reply = hart::FromHex(exchange.ReplyData());
    found_ = hart::ReadIdentity(reply);
    if (!found_ && !reply.empty()) refused_ = {exchange.CommandNumber(), reply.front()};
  });
}

}  // namespace ZAFHartLib
