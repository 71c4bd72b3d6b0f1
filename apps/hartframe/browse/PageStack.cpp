#include "hartframe/browse/PageStack.h"

#include <algorithm>

#include "hartframe/browse/RowTable.h"
#include "hartframe/browse/TextLayout.h"
#include "types/Utf8.h"

namespace hartframe::browse {

void PageStack::Push(std::unique_ptr<Page> page) {
  pages_.push_back({std::move(page), {}});
  rows_.clear();
  isStale_ = true;
}

void PageStack::Pop() {
  pages_.pop_back();
  rows_.clear();
  isStale_ = true;
}

void PageStack::Refresh() {
  if (!isStale_ || pages_.empty()) return;
  isStale_ = false;
  labels_.clear();
  for (const Entry& entry : pages_) labels_.push_back(session_.Say().Pick(entry.page->Label()));
  std::vector<Row> rows;
  for (const PageItem& item : Top().Items()) rows.push_back(MakeRow(session_, pair_, Top(), item));
  rows_ = std::move(rows);
  pages_.back().list.Fit(rows_.size(), height_);
}

const Row* PageStack::Selected() const {
  const std::size_t selected = pages_.back().list.Selected();
  return selected < rows_.size() ? &rows_[selected] : nullptr;
}

std::vector<Row> PageStack::Visible() const {
  if (pages_.empty()) return {};
  const std::size_t first = std::min(pages_.back().list.Top(), rows_.size());
  const std::size_t last = std::min(first + height_, rows_.size());
  return {rows_.begin() + static_cast<std::ptrdiff_t>(first),
          rows_.begin() + static_cast<std::ptrdiff_t>(last)};
}

std::string PageStack::Path(std::size_t width) const {
  std::string path = " " + Joined(labels_, " > ");
  std::size_t length = ZAFHartTypes::utf8::Length(path);
  if (length <= width) return path;
  // The end tells where the user is.
  const std::size_t cut = ZAFHartTypes::utf8::Prefix(path, length - width + 2).size();
  return " …" + path.substr(cut);
}

void PageStack::Draw(Picture& picture, std::size_t height) {
  const auto width = static_cast<std::size_t>(picture.size.columns);
  Table table = TableOf(rows_, pair_ != nullptr, width, session_.Say());
  if (!table.head.empty()) --height;
  height_ = height;
  ListState& list = pages_.back().list;
  list.Fit(rows_.size(), height);
  const std::size_t note = ZAFHartTypes::utf8::Length(picture.pathNote);
  picture.path = Path(width - std::min(width, note == 0 ? 0 : note + 3));
  picture.head = std::move(table.head);
  picture.items.lines = std::move(table.lines);
  picture.items.selected = list.Selected();
  picture.items.top = list.Top();
  picture.items.height = height;
}

}  // namespace hartframe::browse
