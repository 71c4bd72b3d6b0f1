#include "comm/ReplyDecoding.h"

#include <optional>

#include "comm/ReplyStatus.h"
#include "ddobjects/Variable.h"
#include "hart/StatusBytes.h"
#include "linksim/ItemCoding.h"
#include "platform/Platform.h"
#include "types/Failure.h"

namespace ZAFHartLib {

namespace hart = ZAFHartTypes::hart;
using HartLinkSim::Frame;
using HartLinkSim::ItemLayout;
using HartLinkSim::ItemPlace;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::DataItemList;
using ZAFHartTypes::Exchange;
using ZAFHartTypes::IgnoreFailures;
using ZAFHartTypes::TypeCode;
using ZAFHartTypes::Variable;
using ZAFHartTypes::Variant;

namespace {

void SetError(Variable& variable, std::int32_t number, const std::string& text) {
  variable.SetErrorIndex(number);
  variable.SetErrorText(text);
}

Variant ConvertedTo(TypeCode type, const Variant& value) {
  switch (type) {
    case TypeCode::Float:
      return value.ToSingle();
    case TypeCode::Double:
      return value.ToDouble();
    case TypeCode::Ascii:
    case TypeCode::PackedAscii:
    case TypeCode::Password:
      return value.ToText();
    default:
      return static_cast<std::int32_t>(value.ToBits32());
  }
}

// The value that the link gave by the variable's name; nothing when it gave none of the type.
std::optional<Variant> NamedValue(const Exchange& exchange, const DataItem& item) {
  std::optional<Variant> value;
  IgnoreFailures([&] {
    const Variant* given = exchange.ResponseInfo().Find(item.VariableDefinition().Key());
    if (given) value = ConvertedTo(item.Variable()->TypeInfo().TypeCode(), *given);
  });
  return value;
}

// Decodes one reply. The status bytes come as bytes in both kinds of reply.
class Decoder {
 public:
  Decoder(const Exchange& exchange, const Frame& frame)
      : exchange_(exchange), frame_(frame), now_(platform::Current().GetClock().WallTime()) {}

  void Take(DataItem& item, const ItemPlace& place) const {
    auto value = ValueOf(item, place);
    if (!item.IsVariable()) {
      if (value) item.SetConstantValue(*std::move(value));
    } else if (!value) {
      Miss(*item.Variable());
    } else if (!item.IsInfo() && !item.Variable()->ToBeWritten()) {
      Store(*item.Variable(), *std::move(value));
    }
  }

 private:
  std::optional<Variant> ValueOf(const DataItem& item, const ItemPlace& place) const {
    if (IsNamed() && item.IsVariable()) {
      if (auto value = NamedValue(exchange_, item)) return value;
      if (place.position >= hart::kStatusSize) return std::nullopt;
    }
    return ReadItem(frame_, item, place);
  }

  void Store(Variable& variable, Variant value) const {
    variable.SetValue(std::move(value));
    SetError(variable, 0, "");
    variable.SetAvailable(true);
    variable.SetLastReadTime(now_);
  }

  void Miss(Variable& variable) const {
    if (frame_.Bytes()[0] != hart::kSuccess) return;
    const ReplyError error = MissingBytesError();
    SetError(variable, error.number, error.text);
  }

  bool IsNamed() const {
    return exchange_.ResponseType() == ZAFHartTypes::ResponseType::NamedValues;
  }

  const Exchange& exchange_;
  const Frame& frame_;
  const Variable::Time now_;
};

}  // namespace

void DecodeReply(const Exchange& exchange, const Frame& frame, DataItemList& reply) {
  const ItemLayout layout = HartLinkSim::LayOut(reply);
  const Decoder decoder(exchange, frame);
  std::size_t index = 0;
  for (DataItem& item : reply) decoder.Take(item, layout[index++]);
}

void SetErrors(DataItemList& items, std::int32_t number, const std::string& text) {
  for (DataItem& item : items) {
    if (item.IsVariable() && item.Variable()) SetError(*item.Variable(), number, text);
  }
}

void SetStatusItems(DataItemList& reply, const ZAFHartTypes::CommandStatus& status) {
  const std::uint8_t first = status.communication != 0 ? status.communication : status.responseCode;
  if (reply.Count() >= 1) reply.Item(1).SetValue(first);
  if (reply.Count() >= 2) reply.Item(2).SetValue(status.device);
}

}  // namespace ZAFHartLib
