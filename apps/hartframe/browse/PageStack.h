#pragma once

#include <memory>
#include <vector>

#include "hartframe/browse/ListState.h"
#include "hartframe/browse/Picture.h"
#include "hartframe/browse/Row.h"

namespace hartframe::browse {

// The pages from the start to the one on the screen, and the rows of that one.
class PageStack {
 public:
  // `pair`: what the session is a side of, or nullptr.
  PageStack(Session& session, DataSetPair* pair) : session_(session), pair_(pair) {}

  void Push(std::unique_ptr<Page> page);
  void Pop();
  std::size_t Depth() const { return pages_.size(); }
  Page& Top() { return *pages_.back().page; }

  // The rows are no longer right.
  void Invalidate() { isStale_ = true; }
  // Asks for the rows again when they are not right.
  void Refresh();
  // True for the selection's keys.
  bool OnKey(const Key& key) { return pages_.back().list.OnKey(key); }
  // Nothing on an empty page.
  const Row* Selected() const;
  // Those that can be seen.
  std::vector<Row> Visible() const;

  // Draws path and items into `height` lines.
  void Draw(Picture& picture, std::size_t height);

 private:
  struct Entry {
    std::unique_ptr<Page> page;
    ListState list;
  };
  std::string Path(std::size_t width) const;

  Session& session_;
  DataSetPair* const pair_;
  std::vector<Entry> pages_;
  std::vector<Row> rows_;
  std::vector<std::string> labels_;
  std::size_t height_ = 1;
  bool isStale_ = true;
};

}  // namespace hartframe::browse
