#pragma once

#include <string>
#include <string_view>

#include "hart/Numbers.h"
#include "platform/Export.h"

// Texts as HART puts them on the wire. Inside the library they are UTF-8.
namespace ZAFHartTypes::hart {

// Latin-1, one byte per character, filled up with NUL. A character that Latin-1 lacks is sent as
// "?". Reading takes the filling off.
ZAF_API std::string ReadLatin1(Bytes bytes);
// Raises Overflow for a text of more characters than there are bytes.
ZAF_API void WriteLatin1(WritableBytes bytes, std::string_view text);

// Packed ASCII, four characters in three bytes, filled up with blanks. It holds the characters from
// blank to "_": small letters are sent as capitals, other characters as "?". Reading takes trailing
// blanks off.
ZAF_API std::string ReadPackedAscii(Bytes bytes);
// Raises Overflow for a text of more characters than the bytes hold.
ZAF_API void WritePackedAscii(WritableBytes bytes, std::string_view text);

// Characters that `size` bytes of Packed ASCII hold.
constexpr std::size_t PackedCharacters(std::size_t size) {
  return size * 8 / 6;
}

}  // namespace ZAFHartTypes::hart
