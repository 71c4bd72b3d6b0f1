#include "platform/Registry.h"

#include <algorithm>
#include <utility>

#include "platform/AsciiText.h"
#include "platform/Failure.h"
#include "platform/IniLine.h"
#include "platform/TextFile.h"

namespace platform {

namespace {

constexpr const char* kSource = "Registry";
constexpr char kSeparator = '\\';

std::vector<std::string_view> KeyNames(std::string_view path) {
  std::vector<std::string_view> names;
  while (!path.empty()) {
    const std::size_t end = std::min(path.find(kSeparator), path.size());
    const std::string_view name = Trim(path.substr(0, end));
    if (!name.empty()) names.push_back(name);
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return names;
}

// Whatever is in memory can be written to a file and read back.
void RequireStorable(bool storable, const char* what, std::string_view text) {
  using namespace std::string_view_literals;
  if (storable && text.find_first_of("\r\n\0"sv) == std::string_view::npos) return;
  throw Failure(ErrorNumber::InvalidArgument, kSource,
                std::string("\"") + std::string(text) + "\" cannot be the " + what);
}

void RequireKeyPath(std::string_view path) {
  const bool storable = Trim(path) == path && path.find(']') == std::string_view::npos;
  RequireStorable(storable, "path of a registry key", path);
}

void RequireValueName(std::string_view name) {
  const bool storable = !name.empty() && Trim(name) == name && name.front() != ';' &&
                        name.front() != '[' && name.find('=') == std::string_view::npos;
  RequireStorable(storable, "name of a registry value", name);
}

// Quotes keep what reading a file would take off.
std::string AsWritten(const std::string& value) {
  return Trim(value) == value && Unquote(value) == value ? value : '"' + value + '"';
}

template <typename Entries, typename NameOf>
auto FindNamed(Entries& entries, std::string_view name, NameOf nameOf) -> decltype(entries.data()) {
  for (auto& entry : entries) {
    if (EqualsNoCase(nameOf(entry), name)) return &entry;
  }
  return nullptr;
}

constexpr auto kKeyName = [](const auto& key) -> const std::string& { return key.name; };
constexpr auto kValueName = [](const auto& value) -> const std::string& { return value.first; };

template <typename Key>
void Write(const Key& key, const std::string& path, std::string& text) {
  if (!key.values.empty() || (key.subkeys.empty() && !path.empty())) {
    text += '[' + (path.empty() ? std::string(1, kSeparator) : path) + "]\n";
    for (const auto& [name, value] : key.values) text += name + '=' + AsWritten(value) + '\n';
  }
  for (const Key& subkey : key.subkeys) Write(subkey, path + kSeparator + subkey.name, text);
}

}  // namespace

const Registry::Key* Registry::Find(std::string_view path) const {
  const Key* key = &root_;
  for (const std::string_view name : KeyNames(path)) {
    key = FindNamed(key->subkeys, name, kKeyName);
    if (!key) return nullptr;
  }
  return key;
}

Registry::Key& Registry::Make(std::string_view path) {
  RequireKeyPath(path);
  Key* key = &root_;
  for (const std::string_view name : KeyNames(path)) {
    Key* subkey = FindNamed(key->subkeys, name, kKeyName);
    key = subkey ? subkey : &key->subkeys.emplace_back(Key{std::string(name), {}, {}});
  }
  return *key;
}

bool Registry::HasKey(std::string_view path) const {
  return Find(path) != nullptr;
}

std::optional<std::string> Registry::Value(std::string_view path, std::string_view name) const {
  const Key* key = Find(path);
  const auto* value = key ? FindNamed(key->values, name, kValueName) : nullptr;
  if (!value) return std::nullopt;
  return value->second;
}

void Registry::SetValue(std::string_view path, std::string_view name, std::string value) {
  RequireValueName(name);
  RequireStorable(true, "text of a registry value", value);
  Key& key = Make(path);
  if (auto* present = FindNamed(key.values, name, kValueName)) {
    present->second = std::move(value);
  } else {
    key.values.emplace_back(name, std::move(value));
  }
}

void Registry::CreateKey(std::string_view path) {
  Make(path);
}

std::vector<std::string> Registry::Subkeys(std::string_view path) const {
  std::vector<std::string> names;
  if (const Key* key = Find(path)) {
    for (const Key& subkey : key->subkeys) names.push_back(subkey.name);
  }
  return names;
}

void Registry::Load(const std::filesystem::path& file) {
  TextReader reader(file);
  Registry loaded = *this;
  std::optional<std::string> path;
  for (int number = 1; const auto line = reader.ReadLine(); ++number) {
    const auto refuse = [&](const char* reason) {
      throw Failure(ErrorNumber::InvalidArgument, kSource,
                    file.string() + ", line " + std::to_string(number) + ": " + reason);
    };
    const IniLine parsed = ParseIniLine(*line);
    switch (parsed.kind) {
      case IniLine::Kind::Blank:
      case IniLine::Kind::Comment:
        break;
      case IniLine::Kind::Section:
        if (!parsed.value.empty()) refuse("nothing may follow the \"]\"");
        path = parsed.name;
        loaded.CreateKey(*path);
        break;
      case IniLine::Kind::Entry:
        if (!path) refuse("a value stands before the first \"[path]\" line");
        if (parsed.name.empty()) refuse("the value has no name");
        loaded.SetValue(*path, parsed.name, std::string(Unquote(parsed.value)));
        break;
      case IniLine::Kind::Other:
        refuse("neither \"[path]\" nor \"name=value\"");
    }
  }
  *this = std::move(loaded);
}

void Registry::Save(const std::filesystem::path& file) const {
  std::string text;
  Write(root_, "", text);
  WriteFileAtomically(file, text);
}

}  // namespace platform
