#include "ddobjects/ByteBuffer.h"

#include "types/Failure.h"

namespace ZAFHartTypes {

std::uint8_t ByteBuffer::Item(std::size_t index) const {
  if (index >= bytes_.size()) throw Failure(ErrorNumber::SubscriptOutOfRange, "ByteBuffer.Item");
  return bytes_[index];
}

void ByteBuffer::SetItem(std::size_t index, std::uint8_t value) {
  if (index >= bytes_.size()) throw Failure(ErrorNumber::SubscriptOutOfRange, "ByteBuffer.SetItem");
  bytes_[index] = value;
}

}  // namespace ZAFHartTypes
