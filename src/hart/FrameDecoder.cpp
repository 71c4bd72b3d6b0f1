#include "hart/FrameDecoder.h"

#include <algorithm>

namespace ZAFHartTypes::hart {

std::vector<DecodedFrame> FrameDecoder::Receive(Bytes bytes) {
  Found found;
  while (!bytes.empty()) {
    // There is always room: a frame under way is shorter than the longest.
    const std::size_t count = std::min(bytes.size(), bytes_.size() - size_);
    std::copy_n(bytes.begin(), count, bytes_.begin() + static_cast<std::ptrdiff_t>(size_));
    size_ += count;
    bytes = bytes.subspan(count);
    Search(false, found);
  }
  return found;
}

std::vector<DecodedFrame> FrameDecoder::ReceiveFaulty(std::uint8_t byte) {
  Found found;
  bytes_[size_] = byte;
  faulty_.set(size_);
  ++size_;
  Search(false, found);
  return found;
}

std::vector<DecodedFrame> FrameDecoder::Gap() {
  Found found;
  Search(true, found);
  preambles_ = 0;
  return found;
}

void FrameDecoder::Search(bool ended, Found& found) {
  std::size_t at = FindStart(0);
  while (at < size_) {
    std::optional<DecodedFrame> decoded = Judge(at, ended);
    if (!decoded) break;
    const Bytes rest(bytes_.data() + at, size_ - at);
    at += decoded->IsGood() ? *FrameSize(rest) : 1;
    found.push_back(std::move(*decoded));
    preambles_ = 0;
    at = FindStart(at);
  }
  Drop(at);
}

std::size_t FrameDecoder::FindStart(std::size_t at) {
  for (; at < size_; ++at) {
    const bool faulty = faulty_.test(at);
    if (!faulty && bytes_[at] == kPreamble) {
      preambles_ = std::min(preambles_ + 1, kMinPreambles);
    } else if (!faulty && preambles_ == kMinPreambles && IsDelimiter(bytes_[at])) {
      return at;
    } else {
      preambles_ = 0;
    }
  }
  return at;
}

std::optional<DecodedFrame> FrameDecoder::Judge(std::size_t start, bool ended) const {
  const Bytes rest(bytes_.data() + start, size_ - start);
  if (HasFaulty(start, std::min(rest.size(), HeaderSize(rest[0])))) {
    return DecodedFrame{FrameFault::ReceiveError, {}};
  }
  const std::optional<std::size_t> size = FrameSize(rest);
  const bool whole = size && *size <= rest.size();
  if (!whole && !ended) return std::nullopt;
  const Bytes bytes = whole ? rest.first(*size) : rest;
  DecodedFrame decoded = DecodeStart(bytes);
  if (whole && HasFaulty(start, bytes.size())) decoded.fault = FrameFault::ReceiveError;
  return decoded;
}

bool FrameDecoder::HasFaulty(std::size_t first, std::size_t count) const {
  if (faulty_.none()) return false;
  for (std::size_t at = first; at < first + count; ++at) {
    if (faulty_.test(at)) return true;
  }
  return false;
}

void FrameDecoder::Drop(std::size_t count) {
  if (count == 0) return;
  std::copy(bytes_.begin() + static_cast<std::ptrdiff_t>(count),
            bytes_.begin() + static_cast<std::ptrdiff_t>(size_), bytes_.begin());
  faulty_ >>= count;
  size_ -= count;
}

}  // namespace ZAFHartTypes::hart
