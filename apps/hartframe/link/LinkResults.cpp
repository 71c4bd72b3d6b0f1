#include "hartframe/link/LinkResults.h"

#include "comm/ReplyStatus.h"
#include "hart/HexText.h"
#include "hart/StatusBytes.h"
#include "resources/ResText.h"
#include "resources/enumDDResourceIDs.h"

namespace hartframe {

namespace {

constexpr int kBits = 8;

// The texts of the bits that are set; `first` is that of bit 0.
void AddBitTexts(std::vector<std::string>& texts, std::uint8_t byte, std::int32_t first) {
  for (int bit = 0; bit < kBits; ++bit) {
    const std::string& text = ZAFHartLib::ResText(first + bit);
    if ((byte >> bit & 1) != 0 && !text.empty()) texts.push_back(text);
  }
}

}  // namespace

std::vector<std::string> StatusTexts(const RawReply& reply) {
  const ZAFHartTypes::CommandStatus status = ZAFHartLib::SplitStatus(reply.bytes);
  std::vector<std::string> texts;
  if (const auto error = ZAFHartLib::ErrorOf(status, {})) texts.push_back(error->text);
  const auto flags =
      static_cast<std::uint8_t>(status.communication & ~ZAFHartTypes::hart::kCommunicationError);
  AddBitTexts(texts, flags, ZAFHartLib::idCommStatusEntry);
  AddBitTexts(texts, status.device, ZAFHartLib::idDeviceStatusEntry + 1);
  return texts;
}

std::string HexWord(std::uint16_t word) {
  const std::uint8_t bytes[] = {static_cast<std::uint8_t>(word >> 8),
                                static_cast<std::uint8_t>(word)};
  return "0x" + ZAFHartTypes::hart::ToHex(bytes);
}

std::string HexByte(std::uint8_t byte) {
  return "0x" + ZAFHartTypes::hart::ToHex({&byte, 1});
}

}  // namespace hartframe
