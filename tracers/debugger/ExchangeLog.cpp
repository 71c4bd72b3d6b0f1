#include "debugger/ExchangeLog.h"

#include <charconv>

#include "debugger/Texts.h"

namespace ZAFHartDebugger {

namespace {

using ZAFHartTypes::ExchangeState;

constexpr unsigned kCommunicationErrorBit = 0x80;  // of a reply's first byte

// "0040FE" as "00 40 FE".
std::string Spaced(const std::string& hex) {
  std::string text;
  for (std::size_t at = 0; at < hex.size(); at += 2) {
    if (at > 0) text += ' ';
    text += hex.substr(at, 2);
  }
  return text.empty() ? "-" : text;
}

// The first byte of a reply; 0 without one.
unsigned StatusByte(const std::string& hex) {
  unsigned byte = 0;
  const std::string first = hex.substr(0, 2);
  std::from_chars(first.data(), first.data() + first.size(), byte, 16);
  return byte;
}

std::int64_t ByteCount(const std::string& hex) {
  return static_cast<std::int64_t>(hex.size() / 2);
}

const char* OutcomeText(ExchangeState state) {
  if (state == ExchangeState::NotSent) return texts::kNotSent;
  return state == ExchangeState::Cancelled ? texts::kCancelled : texts::kNoReply;
}

}  // namespace

CommandFigures EndedExchange::Figures() const {
  CommandFigures figures;
  figures.count = state == ExchangeState::NotSent ? 0 : 1;
  figures.withoutReply = state == ExchangeState::Completed ? 0 : 1;
  figures.withCode = StatusByte(reply) != 0 ? 1 : 0;
  figures.total = figures.longest = duration;
  figures.sentBytes = state == ExchangeState::NotSent ? 0 : ByteCount(request);
  figures.receivedBytes = ByteCount(reply);
  return figures;
}

std::string EndedExchange::Line(const TraceView& view) const {
  std::string line = "#" + std::to_string(number) + "  ";
  line += view.Paint(Colour::Request, "> " + Spaced(request)) + "  ";
  if (state != ExchangeState::Completed) {
    return line + view.Paint(Colour::Error, "< " + view.Say(OutcomeText(state)));
  }
  line += view.Paint(Colour::Reply, "< " + Spaced(reply));
  const unsigned status = StatusByte(reply);
  if (status == 0) return line;
  const bool isBroken = (status & kCommunicationErrorBit) != 0;
  const char* const text = isBroken ? texts::kCommunicationError : texts::kResponseCode;
  return line + "  " +
         view.Paint(isBroken ? Colour::Error : Colour::Notice,
                    view.Say(text) + " " + std::to_string(status));
}

EndedExchange ExchangeLog::End(const ZAFHartTypes::Exchange& exchange, Time now) {
  EndedExchange ended;
  ended.number = exchange.CommandNumber();
  ended.state = exchange.State();
  ended.request = exchange.RequestData();
  if (ended.state == ExchangeState::Completed) ended.reply = exchange.ReplyData();
  const auto started = started_.find(&exchange);
  if (started == started_.end()) return ended;
  ended.request = started->second.request;
  ended.duration = now - started->second.time;
  started_.erase(started);
  return ended;
}

}  // namespace ZAFHartDebugger
