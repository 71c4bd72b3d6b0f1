#include <memory>
#include <string>
#include <vector>

#include "Fuzz.h"
#include "comm/ReplyDecoding.h"
#include "linksim/ItemCoding.h"
#include "support/CommItems.h"

namespace {

using namespace ZAFHartTypes;
using HartLinkSim::Frame;
using test_support::BoundItem;
using test_support::MakeVariable;

// A few variables, so that one stands more than once in a reply; three bytes describe an item.
class RandomTransaction {
 public:
  explicit RandomTransaction(std::span<const std::uint8_t>& input) {
    for (std::size_t count = fuzz::Take(input) % 12; count > 0; --count) {
      const std::size_t kind = fuzz::Take(input);
      const std::size_t size = fuzz::Take(input);
      const auto mask = static_cast<std::uint32_t>(fuzz::Take(input)) << (size % 24);
      if (kind % 16 == 15) {
        items_.Add(DataItem::Constant(static_cast<std::int32_t>(mask)));
        continue;
      }
      const auto type = static_cast<TypeCode>(kind % 16 - 1);
      const std::size_t slot = kind / 16 % std::size(kNames);
      auto& variable = variables_[slot];
      if (!variable) variable = MakeVariable(kNames[slot], type, static_cast<int>(size % 9));
      DataItem item = BoundItem(variable, size >= 128 ? mask : 0);
      items_.Add(item.SetIsInfo(kind >= 240));
    }
  }
  DataItemList& Items() { return items_; }

 private:
  DataItemList items_;
  static constexpr const char* kNames[] = {"a", "b", "c", "d"};
  std::shared_ptr<Variable> variables_[std::size(kNames)];
};

std::vector<Variant> ValuesOf(const DataItemList& items) {
  std::vector<Variant> values;
  for (const DataItem& item : items) values.push_back(item.Value());
  return values;
}

std::string TextOf(const std::vector<Variant>& values) {
  std::string text;
  for (const Variant& value : values) text += value.Describe() + ";";
  return text;
}

// The values as they are after a trip over the wire.
std::string CodedAndDecoded(const Exchange& exchange, DataItemList& items) {
  const Frame coded = HartLinkSim::EncodeItems(items, ValuesOf(items));
  ZAFHartLib::DecodeReply(exchange, coded, items);
  return TextOf(ValuesOf(items));
}

// What has been on the wire once has its type, and comes through a second time as it is.
void CheckCodesAgain(const Exchange& exchange, DataItemList& items) {
  fuzz::Accepts([&] {
    const std::string once = CodedAndDecoded(exchange, items);
    fuzz::Check(CodedAndDecoded(exchange, items) == once, "values code to bytes that say the same");
  });
}

}  // namespace

// A transaction, then the reply's bytes.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::span<const std::uint8_t> input(data, size);
  RandomTransaction transaction(input);
  Frame frame;
  frame.SetBytes({input.begin(), input.end()});
  if (frame.Length() < 2) frame.SetLength(2);
  const auto exchange = std::make_shared<Exchange>();
  if (fuzz::Accepts([&] { ZAFHartLib::DecodeReply(*exchange, frame, transaction.Items()); })) {
    CheckCodesAgain(*exchange, transaction.Items());
  }
  return 0;
}
