#include "hartframe/browse/Browser.h"

#include "hartframe/Reading.h"
#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/TextLayout.h"
#include "interfaces/InternalNames.h"
#include "platform/Platform.h"

namespace hartframe::browse {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
using ZAFHartTypes::UserLevel;
using ZAFHartTypes::Variant;
namespace names = ZAFHartTypes::internal_names;

namespace {

constexpr platform::Milliseconds kStep{100};
constexpr int kFrameLines = 5;  // path, rule, message, status, keys

Definition Internal(std::string_view name) {
  return Definition::Define(name, ObjectKind::Variable);
}

}  // namespace

Browser::Browser(Session& session, Terminal& terminal)
    : session_(session),
      screen_(session, terminal),
      messages_(session, screen_),
      pages_(session),
      editing_(session, screen_),
      actions_(session, screen_),
      control_(std::make_shared<FrameControl>(*this)) {
  auto& gui = session_.Gui();
  control_->SetComponentModel(session_.Components().shared_from_this());
  gui.RegisterCtrl(control_);
  gui.SetActiveControl(control_);
  gui.SetMessageControl(control_);
  pages_.Push(MakeStartPage(session_));
  screen_.SetBase(this);
}

Browser::~Browser() {
  screen_.SetBase(nullptr);
  control_->Detach();
  ZAFHartTypes::IgnoreFailures([this] { session_.Gui().UnregisterCtrl(control_); });
}

ExitCode Browser::Run(const std::vector<Change>& pending) {
  actions_.TakeOver(pending);
  while (!isLeaving_ && !screen_.IsGone()) {
    platform::Current().Loop().WaitStep(kStep);
    if (screen_.TakeBreak()) Quit();
  }
  return screen_.IsGone() ? ExitCode::Interrupted : ExitCode::Ok;
}

// --- what the GUI manager tells ---

void Browser::Changed() {
  isStale_ = true;
  pages_.Invalidate();
  screen_.Redraw();
}

void Browser::OnShown(const std::shared_ptr<ZAFHartTypes::DDObject>& object) {
  editing_.OnShown(*object);
  Changed();
}

void Browser::OnExchange(bool ended) {
  if (ended) Changed();
  screen_.Redraw();
  screen_.DrawSoon();
}

Variant Browser::EditedValue(const Definition& object) {
  return editing_.EditedValue(object);
}

std::int32_t Browser::ShowMessage(ZAFHartTypes::UserMessage& message) {
  return messages_.Show(message);
}

// What decides about an item comes before it. Live values are read again each time.
void Browser::CollectShown(ZAFHartTypes::DefinitionList& variables) {
  for (const Row& row : pages_.Visible()) {
    const Definition& definition = row.item.definition;
    for (const Definition& condition : UnreadConditions(session_, definition))
      variables.Add(condition);
    if (definition.Kind() != ObjectKind::Variable) continue;
    const auto variable = session_.Variable(definition);
    if (variable->Attributes().IsDynamic() && variable->Available())
      session_.Database().SetVariableAvailable(definition, false);
    variables.Add(definition);
  }
}

// --- what is shown ---

// Here and not in Draw(), which comes in the middle of operations.
void Browser::OnIdle() {
  if (!isStale_) return;
  isStale_ = false;
  pages_.Refresh();
  pathNote_ = WhyReadOnly();
  status_ = StatusLine();
  screen_.Redraw();
}

std::string Browser::WhyReadOnly() {
  const Variant locked = session_.Variable(Internal(names::kDataSetLockState))->Value();
  if (!locked.IsEmpty() && locked.ToLong() != 0) return session_.Say()(texts::kDataSetLocked);
  const Variant level = session_.Variable(Internal(names::kFDTUserLevel))->Value();
  const bool observer = level.ToLong() == static_cast<std::int32_t>(UserLevel::Observer);
  return observer ? session_.Say()(texts::kObserver) : std::string();
}

std::string Browser::StatusLine() {
  const Options& options = session_.Settings();
  const std::size_t pending = actions_.Pending();
  const std::string link = options.link == LinkKind::Echo ? "echo"
                           : options.deviceFile.empty()   ? "device"
                                                          : options.deviceFile.filename().string();
  std::vector<std::string> parts{options.dtm, link};
  if (pending > 0) parts.push_back(session_.Say()(texts::kPendingCount, {std::to_string(pending)}));
  parts.push_back(session_.Row(Internal(names::kDTMOnlineState)).value);
  parts.push_back(session_.Say()(texts::kLanguageName));
  parts.push_back(session_.Row(Internal(names::kFDTUserLevel)).value);
  return " " + Joined(parts, " | ");
}

void Browser::Draw(Picture& picture) {
  if (!pathNote_.empty()) picture.pathNote = "[" + pathNote_ + "]";
  pages_.Draw(picture, static_cast<std::size_t>(picture.size.rows - kFrameLines));
  picture.status = status_;
  picture.keys = " " + session_.Say()(texts::kKeys);
}

}  // namespace hartframe::browse
