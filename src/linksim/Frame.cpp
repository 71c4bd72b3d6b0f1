#include "linksim/Frame.h"

#include <bit>

#include "hart/HexText.h"
#include "hart/Numbers.h"
#include "hart/Texts.h"
#include "types/Failure.h"

namespace HartLinkSim {

namespace hart = ZAFHartTypes::hart;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;

namespace {

hart::Bytes Stretch(const std::vector<std::uint8_t>& bytes, std::size_t position,
                    std::size_t size) {
  if (position > bytes.size() || size > bytes.size() - position) {
    throw Failure(ErrorNumber::SubscriptOutOfRange, "HartLinkSim.Frame",
                  "The frame of " + std::to_string(bytes.size()) + " bytes ends before byte " +
                      std::to_string(position + size) + ".");
  }
  return hart::Bytes(bytes).subspan(position, size);
}

hart::WritableBytes Room(std::vector<std::uint8_t>& bytes, std::size_t position, std::size_t size) {
  if (bytes.size() < position + size) bytes.resize(position + size);
  return hart::WritableBytes(bytes).subspan(position, size);
}

// The part of a mask that lies in a group of `size` bytes.
std::uint32_t MaskWithin(std::uint32_t mask, std::size_t size) {
  return size < hart::kMaxIntegerSize ? mask & ((1U << (8 * size)) - 1) : mask;
}

unsigned ShiftOf(std::uint32_t mask) {
  return static_cast<unsigned>(std::countr_zero(mask));
}

}  // namespace

float Frame::Float(std::size_t position) const {
  return hart::ReadFloat(Stretch(bytes_, position, sizeof(float)));
}

void Frame::SetFloat(std::size_t position, float value) {
  hart::WriteFloat(Room(bytes_, position, sizeof(float)), value);
}

double Frame::Double(std::size_t position) const {
  return hart::ReadDouble(Stretch(bytes_, position, sizeof(double)));
}

void Frame::SetDouble(std::size_t position, double value) {
  hart::WriteDouble(Room(bytes_, position, sizeof(double)), value);
}

std::int32_t Frame::Signed(std::size_t position, std::size_t size) const {
  return hart::ReadSigned(Stretch(bytes_, position, size));
}

void Frame::SetSigned(std::size_t position, std::size_t size, std::int32_t value) {
  hart::WriteSigned(Room(bytes_, position, size), value);
}

std::uint32_t Frame::Unsigned(std::size_t position, std::size_t size) const {
  return hart::ReadUnsigned(Stretch(bytes_, position, size));
}

void Frame::SetUnsigned(std::size_t position, std::size_t size, std::uint32_t value) {
  hart::WriteUnsigned(Room(bytes_, position, size), value);
}

std::string Frame::Ascii(std::size_t position, std::size_t size) const {
  return hart::ReadLatin1(Stretch(bytes_, position, size));
}

void Frame::SetAscii(std::size_t position, std::size_t size, std::string_view text) {
  hart::WriteLatin1(Room(bytes_, position, size), text);
}

std::string Frame::PackedAscii(std::size_t position, std::size_t size) const {
  return hart::ReadPackedAscii(Stretch(bytes_, position, size));
}

void Frame::SetPackedAscii(std::size_t position, std::size_t size, std::string_view text) {
  hart::WritePackedAscii(Room(bytes_, position, size), text);
}

std::uint32_t Frame::Bits(std::size_t position, std::uint32_t mask, std::size_t size) const {
  const std::uint32_t bits = Unsigned(position, size) & mask;
  return bits == 0 ? 0 : bits >> ShiftOf(mask);
}

void Frame::SetBits(std::size_t position, std::uint32_t mask, std::size_t size,
                    std::uint32_t value) {
  const std::uint64_t placed = mask == 0 ? value : std::uint64_t{value} << ShiftOf(mask);
  if ((placed & ~std::uint64_t{mask}) != 0) {
    throw Failure(
        ErrorNumber::Overflow, "HartLinkSim.Frame",
        std::to_string(value) + " does not fit the bits of the mask " + std::to_string(mask) + ".");
  }
  const hart::WritableBytes group = Room(bytes_, position, size);
  const std::uint32_t others = hart::ReadUnsigned(group) & ~mask;
  hart::WriteUnsigned(group, others | MaskWithin(static_cast<std::uint32_t>(placed), size));
}

std::string Frame::BitText(std::uint32_t mask, std::size_t count) {
  std::string text(count, '0');
  for (std::size_t bit = 0; bit < count && bit < 32; ++bit) {
    if (((mask >> bit) & 1U) != 0) text[bit] = '1';
  }
  return text;
}

std::string Frame::HexText(std::size_t position, std::size_t length) const {
  return hart::ToHex(Stretch(bytes_, position, length));
}

std::string Frame::HexText() const {
  return hart::ToHex(bytes_);
}

void Frame::SetHexText(std::string_view text) {
  bytes_ = hart::FromHex(text);
}

}  // namespace HartLinkSim
