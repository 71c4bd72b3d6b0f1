#include "types/TextKey.h"

#include <deque>
#include <mutex>
#include <unordered_map>

namespace ZAFHartTypes {
namespace {

const std::string kNoName;

}  // namespace

// One pool for the process: DTM instances on several threads meet in it.
struct TextKeyPool {
  std::mutex mutex;
  std::unordered_map<std::string_view, const std::string*> folded;
  std::unordered_map<std::string_view, const TextKey::Entry*> entries;
  std::deque<std::string> foldedStore;
  std::deque<TextKey::Entry> entryStore;

  static TextKeyPool& Instance() {
    static auto* pool = new TextKeyPool;  // outlives every static Definition
    return *pool;
  }

  const std::string* Fold(std::string_view name) {
    std::string text = FoldCase(name);
    if (auto found = folded.find(text); found != folded.end()) return found->second;
    const std::string& stored = foldedStore.emplace_back(std::move(text));
    folded.emplace(stored, &stored);
    return &stored;
  }

  TextKey Intern(std::string_view name) {
    const std::lock_guard lock(mutex);
    if (auto found = entries.find(name); found != entries.end()) return TextKey(found->second);
    TextKey::Entry& entry = entryStore.emplace_back(TextKey::Entry{std::string(name), Fold(name)});
    entries.emplace(entry.name, &entry);
    return TextKey(&entry);
  }
};

TextKey TextKey::Of(std::string_view name) {
  return name.empty() ? TextKey() : TextKeyPool::Instance().Intern(name);
}

const std::string& TextKey::Name() const {
  return entry_ ? entry_->name : kNoName;
}
const std::string& TextKey::Folded() const {
  return entry_ ? *entry_->folded : kNoName;
}

}  // namespace ZAFHartTypes
