#pragma once

#include <map>
#include <string>
#include <vector>

#include "hart/HexText.h"
#include "linksim/CommandCatalogue.h"
#include "linksim/EmulatedDevice.h"
#include "linksim/ItemCoding.h"
#include "support/CommItems.h"
#include "types/Failure.h"

namespace test_support {

namespace hart = ZAFHartTypes::hart;
using HartLinkSim::Frame;

inline DataItem Unsigned(const char* name, int size) {
  return BoundItem(name, TypeCode::Unsigned, size);
}

// A small description: command 0 of HART 5, a text, a choice by constants, and 16 bits of number.
struct SmallCatalogue : HartLinkSim::CommandCatalogue {
  std::map<std::uint16_t, TransactionList> commands;
  std::vector<std::string> carriedOut;

  SmallCatalogue() {
    const DataItem tag = BoundItem("tag", TypeCode::PackedAscii, 8);
    const DataItem poll = Unsigned("polling_address", 1);
    const DataItem level = Unsigned("level", 2);
    Add(0, {},
        {DataItem::Constant(254), Unsigned("device_type", 2), Unsigned("preambles", 1),
         Unsigned("universal_revision", 1)});
    Add(6, {poll}, {poll});
    Add(13, {}, {tag});
    Add(20, {}, {BoundItem("long_tag", TypeCode::Ascii, 32)});
    Add(130, {DataItem::Constant(1)}, {DataItem::Constant(1), level});
    Add(130, {DataItem::Constant(2)}, {DataItem::Constant(2), tag});
    Add(130, {DataItem::Constant(1), level}, {DataItem::Constant(1), level});
    Add(600, {level}, {level});
    Add(700, {}, {BoundItem("unsendable", TypeCode::BitString, 4)});
  }
  void Add(std::uint16_t number, const DataItemList& request, const DataItemList& data) {
    const auto added = MakeTransaction(request, data);
    Transaction& transaction =
        commands[number].Add(static_cast<std::int16_t>(commands[number].Count()));
    transaction.Request() = added->Request();
    transaction.Reply() = added->Reply();
  }
  HartLinkSim::FoundCommand Find(std::uint16_t number, hart::Bytes request) override {
    const auto found = commands.find(number);
    if (found == commands.end()) return {};
    const auto transaction = HartLinkSim::ChooseTransaction(found->second, request);
    return {true, transaction, transaction ? Constants(transaction->Reply()) : ""};
  }
  // The data set has nothing to add to them.
  static std::string Constants(const DataItemList& items) {
    Frame frame;
    IgnoreFailures([&] {
      const HartLinkSim::ItemLayout layout = HartLinkSim::LayOut(items);
      std::size_t index = 0;
      for (const DataItem& item : items) {
        const HartLinkSim::ItemPlace& place = layout[index++];
        if (!item.IsVariable()) HartLinkSim::WriteItem(frame, item, place, item.ConstantValue());
      }
      frame.SetLength(HartLinkSim::LengthOf(layout));
    });
    return frame.HexText();
  }
  void OnCarriedOut(const Transaction&, hart::Bytes request) override {
    carriedOut.push_back(hart::ToHex(request));
  }
};

}  // namespace test_support
