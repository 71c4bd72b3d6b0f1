#include "hartframe/menus/MenuPath.h"

#include <algorithm>

#include "ddobjects/EditDisplay.h"
#include "ddobjects/ItemArray.h"
#include "ddobjects/Menu.h"
#include "ddobjects/Method.h"
#include "hartframe/LanguageSegments.h"
#include "hartframe/menus/MenuTexts.h"
#include "interfaces/InternalNames.h"
#include "text/LangText.h"
#include "types/Failure.h"
#include "types/TextKey.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::StandardName;
namespace names = ZAFHartTypes::internal_names;

MenuEntry EntryOf(Session& session, const Definition& definition, bool readOnly) {
  const auto object = session.Database().ReadObject(definition);
  if (!object) return {definition, definition.Name(), readOnly};
  // A menu's label may be computed with it.
  if (object->Kind() == ObjectKind::Menu)
    return {definition, MultilingualLabel(*session.Kernel().GetMenu(definition)), readOnly};
  return {object->ObjectDefinition(), MultilingualLabel(*object), readOnly};
}

bool BeginsWith(std::string_view multilingual, std::string_view folded, const std::string& lang) {
  return ZAFHartTypes::FoldCase(ZAFHartLib::LangText(multilingual, lang)).starts_with(folded);
}

// The entries that fulfil the condition, each item once.
template <typename Condition>
std::vector<MenuEntry> Distinct(const std::vector<MenuEntry>& entries, Condition condition) {
  std::vector<MenuEntry> distinct;
  for (const MenuEntry& entry : entries) {
    const bool known = std::any_of(distinct.begin(), distinct.end(), [&entry](const auto& other) {
      return other.definition.IsSameAs(entry.definition);
    });
    if (!known && condition(entry)) distinct.push_back(entry);
  }
  return distinct;
}

[[noreturn]] void Refuse(const std::string& sentence) {
  throw CommandFailure(ExitCode::Usage, sentence);
}

class Walk {
 public:
  explicit Walk(Session& session) : session_(session), entries_(RootMenus(session)) {}

  // Takes the longest beginning of the text that is a step, which may have a "/" in its label.
  void Descend(std::string_view text) {
    while (!text.empty()) {
      std::size_t end = text.size();
      while (!Step(text.substr(0, end))) {
        const auto slash = text.rfind('/', end - 1);
        if (end == 0 || slash == std::string_view::npos || slash == 0) RefuseUnknown(text);
        end = slash;
      }
      text.remove_prefix(std::min(text.size(), end + 1));
    }
  }
  const MenuPlace& Place() const { return place_; }

 private:
  bool Step(std::string_view step) {
    Open();
    std::vector<MenuEntry> matching = MatchingEntries(session_.Say(), entries_, step);
    if (matching.empty() && !place_.entry.definition) matching = ByName(step);
    if (matching.size() > 1) {
      Refuse(session_.Say()(texts::kAmbiguousItem,
                            {OneLine(step), ListEntries(session_.Say(), matching)}));
    }
    if (matching.empty()) return false;
    Enter(matching.front());
    return true;
  }

  // The entries of the menu that the walk has come to.
  void Open() {
    const Definition& here = place_.entry.definition;
    if (!here || here.IsSameAs(opened_)) return;
    if (here.Kind() != ObjectKind::Menu)
      Refuse(session_.Say()(texts::kNoMenu, {place_.labels.back()}));
    entries_ = EntriesOf(session_, here);
    opened_ = here;
  }

  void Enter(const MenuEntry& entry) {
    place_.menu = place_.entry.definition;
    const bool readOnly = place_.entry.readOnly || entry.readOnly;
    place_.entry = entry;
    place_.entry.readOnly = readOnly;
    place_.labels.push_back(session_.Say().Pick(entry.label));
  }

  std::vector<MenuEntry> ByName(std::string_view step) {
    const auto object = session_.Database().ReadObject(Definition::Define(step, ObjectKind::Menu));
    if (!object) return {};
    const ObjectKind kind = object->Kind();
    if (kind != ObjectKind::Menu && kind != ObjectKind::EditDisplay && kind != ObjectKind::Method)
      return {};
    return {EntryOf(session_, object->ObjectDefinition(), false)};
  }

  [[noreturn]] void RefuseUnknown(std::string_view text) {
    const std::string step = OneLine(text.substr(0, text.find('/')));
    const Speech& say = session_.Say();
    if (place_.labels.empty()) Refuse(say(texts::kUnknownMenu, {step, ListEntries(say, entries_)}));
    Refuse(say(texts::kUnknownItem, {step, place_.labels.back(), ListEntries(say, entries_)}));
  }

  Session& session_;
  std::vector<MenuEntry> entries_;
  MenuPlace place_;
  Definition opened_;
};

}  // namespace

std::string MultilingualLabel(ZAFHartTypes::DDObject& object) {
  std::string label;
  if (const auto variable = object.MakeVariable()) label = variable->Label();
  if (const auto menu = object.MakeMenu()) label = menu->Label();
  if (const auto display = object.MakeEditDisplay()) label = display->Label();
  if (const auto method = object.MakeMethod()) label = method->Label();
  if (object.Kind() == ObjectKind::WriteAsOne) label = texts::kGroup;
  return label.empty() ? object.ObjectDefinition().Name() : label;
}

std::vector<MenuEntry> MatchingEntries(const Speech& say, const std::vector<MenuEntry>& entries,
                                       std::string_view text) {
  const std::string folded = ZAFHartTypes::FoldCase(text);
  const auto hasName = [&](const MenuEntry& entry) {
    return ZAFHartTypes::SameKey(entry.definition.Name(), text);
  };
  const auto hasLabel = [&](const MenuEntry& entry) { return HasSegment(entry.label, text); };
  const auto begins = [&](const MenuEntry& entry) {
    return !text.empty() && (BeginsWith(entry.label, folded, say.Language()) ||
                             BeginsWith(entry.label, folded, "en"));
  };
  std::vector<MenuEntry> matching = Distinct(entries, hasName);
  if (matching.empty()) matching = Distinct(entries, hasLabel);
  return matching.empty() ? Distinct(entries, begins) : matching;
}

std::string ListEntries(const Speech& say, const std::vector<MenuEntry>& entries, bool withNames) {
  std::string list;
  for (const MenuEntry& entry : entries) {
    list += (list.empty() ? "\"" : ", \"") + say.Pick(entry.label) + '"';
    if (withNames) list += " (" + entry.definition.Name() + ')';
  }
  return list;
}

std::vector<MenuEntry> RootMenus(Session& session) {
  std::vector<std::string> candidates{"root_menu"};
  const auto information = session.Components().KernelInformation();
  const auto add = [&](StandardName index, std::string_view otherwise) {
    std::string name;
    if (information) {
      ZAFHartTypes::IgnoreFailures([&] { name = information->StandardName(index); });
    }
    candidates.push_back(name.empty() ? std::string(otherwise) : name);
  };
  add(StandardName::OnlineParameters, {});
  add(StandardName::ProcessVariables, names::kProcessVariables);
  add(StandardName::StatusDisplay, names::kStatusDisplay);
  add(StandardName::UploadVariables, names::kUploadVariables);
  std::vector<MenuEntry> roots;
  for (const std::string& name : candidates) {
    const auto definition = Definition::Define(name, ObjectKind::Menu);
    const auto object = name.empty() ? nullptr : session.Database().ReadObject(definition);
    if (object && object->Kind() == ObjectKind::Menu)
      roots.push_back(EntryOf(session, definition, false));
  }
  return roots;
}

std::vector<MenuEntry> EntriesOf(Session& session, const Definition& menu) {
  std::vector<MenuEntry> entries;
  const auto object = session.Kernel().GetMenu(menu);
  for (const auto& item : ZAFHartTypes::MenuItems(object->Items()))
    entries.push_back(EntryOf(session, item.Definition(), item.IsReadOnly()));
  return entries;
}

MenuPlace FollowPath(Session& session, const std::vector<std::string>& path) {
  Walk walk(session);
  for (const std::string& step : path) walk.Descend(step);
  return walk.Place();
}

}  // namespace hartframe
