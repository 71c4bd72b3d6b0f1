#include "links/FrameCarrier.h"

#include <utility>

#include "platform/Platform.h"

namespace HartLinks {

FrameRequest::FrameRequest(const void* owner, ZAFHartTypes::hart::LinkFrame frame, Done done)
    : owner_(owner), frame_(std::move(frame)), done_(std::move(done)) {}

void FrameRequest::End(FrameEnd end) {
  ending_ = platform::Current().Loop().Post([this, end = std::move(end)] {
    const Done done = done_;  // whoever is told may drop the request
    done(end);
  });
}

}  // namespace HartLinks
