#pragma once

#include <map>
#include <string>

#include "debugger/Statistics.h"
#include "debugger/TraceView.h"
#include "interfaces/ILink.h"

namespace ZAFHartDebugger {

// An exchange with the device, once it has ended.
struct EndedExchange {
  std::int16_t number = 0;
  std::string request;  // data, hexadecimal
  std::string reply;    // data from the response code byte on; "" without a reply
  ZAFHartTypes::ExchangeState state{};
  Time duration{};

  CommandFigures Figures() const;
  // "#3  > 01 02  < 00 40 …", and what went wrong.
  std::string Line(const TraceView& view) const;
};

// The exchanges under way. Several may be.
class ExchangeLog {
 public:
  void Start(const ZAFHartTypes::Exchange& exchange, Time now) {
    started_[&exchange] = {exchange.RequestData(), now};
  }
  EndedExchange End(const ZAFHartTypes::Exchange& exchange, Time now);

 private:
  struct Started {
    std::string request;  // as it was sent; a link may work on the exchange
    Time time{};
  };
  std::map<const ZAFHartTypes::Exchange*, Started> started_;
};

}  // namespace ZAFHartDebugger
