#pragma once

#include <algorithm>
#include <deque>
#include <utility>

namespace HartLinks {

// What waits for a line or a session that several links share. The links take turns, one request
// each; the requests of one link keep their order, so that one with many of them delays nobody.
// `Request` is a pointer type; an empty one means "none".
template <typename Request>
class RequestQueue {
 public:
  // Identity of a link; never looked into.
  using Owner = const void*;

  bool IsEmpty() const { return turns_.empty(); }

  void Add(Owner owner, Request request) {
    for (Turn& turn : turns_) {
      if (turn.owner == owner) return turn.requests.push_back(std::move(request));
    }
    turns_.push_back({owner, {std::move(request)}});
  }

  // The request whose turn it is; none when nothing waits.
  Request Take() {
    if (turns_.empty()) return Request{};
    Turn turn = std::move(turns_.front());
    turns_.pop_front();
    Request request = std::move(turn.requests.front());
    turn.requests.pop_front();
    if (!turn.requests.empty()) turns_.push_back(std::move(turn));
    return request;
  }

  // Takes a request out before its turn; false when it does not wait here.
  bool Remove(const Request& request) {
    for (auto turn = turns_.begin(); turn != turns_.end(); ++turn) {
      const auto at = std::find(turn->requests.begin(), turn->requests.end(), request);
      if (at == turn->requests.end()) continue;
      turn->requests.erase(at);
      if (turn->requests.empty()) turns_.erase(turn);
      return true;
    }
    return false;
  }

 private:
  struct Turn {
    Owner owner;
    std::deque<Request> requests;  // never empty
  };
  std::deque<Turn> turns_;
};

}  // namespace HartLinks
