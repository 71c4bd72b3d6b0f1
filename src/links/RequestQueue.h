#pragma once

#include <algorithm>
#include <deque>
#include <utility>
#include <vector>

namespace HartLinks {

// What waits for a line or a session that several links share. The links take turns, one request
// each; the requests of one link keep their order, so that one with many of them delays nobody.
// A `Request` that is made without arguments, an empty pointer for one, means "none".
template <typename Request>
class RequestQueue {
 public:
  // Identity of a link; never looked into.
  using Owner = const void*;

  bool IsEmpty() const { return turns_.empty(); }

  // Behind the owner's other requests; an owner who has none gets the last turn.
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

  // Puts back what was taken: it is the next to be taken.
  void Return(Owner owner, Request request) {
    Turn turn{owner, {}};
    const auto at = std::find_if(turns_.begin(), turns_.end(),
                                 [&](const Turn& other) { return other.owner == owner; });
    if (at != turns_.end()) {
      turn = std::move(*at);
      turns_.erase(at);
    }
    turn.requests.push_front(std::move(request));
    turns_.push_front(std::move(turn));
  }

  // Takes all requests out for which `test` holds.
  template <typename Test>
  std::vector<Request> TakeIf(Test&& test) {
    std::vector<Request> taken;
    for (Turn& turn : turns_) {
      std::erase_if(turn.requests, [&](const Request& request) {
        const bool holds = test(request);
        if (holds) taken.push_back(request);
        return holds;
      });
    }
    std::erase_if(turns_, [](const Turn& turn) { return turn.requests.empty(); });
    return taken;
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
