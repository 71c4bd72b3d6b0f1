#include "debugger/Colour.h"

namespace ZAFHartDebugger {

namespace {

const char* CodeOf(Colour colour) {
  switch (colour) {
    case Colour::Plain:
      return "";
    case Colour::Faint:
      return "2";
    case Colour::Operation:
      return "1";
    case Colour::Request:
      return "36";
    case Colour::Reply:
      return "32";
    case Colour::Notice:
      return "33";
    case Colour::Error:
      return "31";
    case Colour::Change:
      return "35";
  }
  return "";
}

}  // namespace

std::string Painted(Colour colour, std::string_view text, bool showsColours) {
  if (!showsColours || colour == Colour::Plain || text.empty()) return std::string(text);
  return std::string("\033[") + CodeOf(colour) + "m" + std::string(text) + "\033[0m";
}

}  // namespace ZAFHartDebugger
