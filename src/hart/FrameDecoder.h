#pragma once

#include <array>
#include <bitset>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "hart/LinkFrame.h"
#include "platform/Export.h"

namespace ZAFHartTypes::hart {

// Finds the frames in what a line brings: a delimiter behind two or more preambles starts one, its
// byte count says where it ends. What looked like a frame and turns out to be none is searched for
// frames once more, from the byte after its delimiter on, so that noise hides no frame behind it.
// The same bytes and gaps give the same frames, in whatever pieces they come. The echo of one's own
// request is a frame like any other. Keeps no more than one frame of the longest kind.
class ZAF_API FrameDecoder {
 public:
  // Takes bytes that were received well; returns the frames that end in them, and faults, in the
  // order in which they began on the line. A fault is a start that became no good frame; noise
  // outside of one is passed over without a word.
  std::vector<DecodedFrame> Receive(Bytes bytes);
  // Takes one byte that was received with wrong parity or framing. It is no preamble and no
  // delimiter. A frame that has it in its header ends at once; with one in data or check byte it is
  // read to its end, to be found with fault ReceiveError.
  std::vector<DecodedFrame> ReceiveFaulty(std::uint8_t byte);
  // The line has been silent for longer than between two characters of one frame, so that no frame
  // goes on: one under way ends with fault TooShort, and what it held is searched.
  std::vector<DecodedFrame> Gap();

  // A frame is under way: its delimiter has come.
  bool IsReceiving() const { return size_ > 0; }

 private:
  using Found = std::vector<DecodedFrame>;

  void Search(bool ended, Found& found);
  // Where a frame starts at or after `at`; size_ when none does.
  std::size_t FindStart(std::size_t at);
  // What the frame that starts there came to; nothing while it may go on.
  std::optional<DecodedFrame> Judge(std::size_t start, bool ended) const;
  bool HasFaulty(std::size_t first, std::size_t count) const;
  void Drop(std::size_t count);

  // Between two calls: nothing, or a frame under way from its delimiter on.
  std::array<std::uint8_t, kMaxFrameSize> bytes_{};
  std::bitset<kMaxFrameSize> faulty_;
  std::size_t size_ = 0;
  int preambles_ = 0;  // just ahead of what is searched; 2 stands for more
};

}  // namespace ZAFHartTypes::hart
