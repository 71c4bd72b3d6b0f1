#include "linksim/CommandCatalogue.h"

#include <tuple>

#include "linksim/ItemCoding.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::DataItem;
using ZAFHartTypes::DataItemList;
using ZAFHartTypes::Transaction;

namespace {

bool HasConstants(const DataItemList& items, const ItemLayout& layout, const Frame& request) {
  std::size_t index = 0;
  for (const DataItem& item : items) {
    const ItemPlace& place = layout[index++];
    if (item.IsVariable()) continue;
    const auto sent = ReadItem(request, item, place);
    if (sent && (sent->ToBits32() & 0xFF) != (item.ConstantValue().ToBits32() & 0xFF)) return false;
  }
  return true;
}

}  // namespace

std::shared_ptr<Transaction> ChooseTransaction(const ZAFHartTypes::TransactionList& transactions,
                                               hart::Bytes request) {
  using Rank = std::tuple<bool, std::ptrdiff_t, std::size_t>;
  Frame frame;
  frame.SetBytes({request.begin(), request.end()});
  std::shared_ptr<Transaction> best;
  Rank bestRank;
  for (const auto& transaction : transactions) {
    const ItemLayout layout = LayOut(transaction->Request());
    if (!HasConstants(transaction->Request(), layout, frame)) continue;
    const auto wanted = static_cast<std::ptrdiff_t>(LengthOf(layout));
    const bool isEnough = wanted <= static_cast<std::ptrdiff_t>(request.size());
    const Rank rank{isEnough, isEnough ? wanted : -wanted, LengthOf(LayOut(transaction->Reply()))};
    if (best && rank <= bestRank) continue;
    best = transaction;
    bestRank = rank;
  }
  return best;
}

}  // namespace HartLinkSim
