#include "hartframe/browse/Browser.h"

#include "hartframe/browse/BrowseTexts.h"
#include "hartframe/browse/PairActions.h"
#include "hartframe/browse/PairScreenTexts.h"
#include "hartframe/browse/TextLayout.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/KeptDataSet.h"
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

Browser::Browser(Session& session, Terminal& terminal) : Browser(session, nullptr, terminal) {}

Browser::Browser(DataSetPair& pair, Terminal& terminal) : Browser(pair.Online(), &pair, terminal) {}

Browser::Browser(Session& online, DataSetPair* pair, Terminal& terminal)
    : online_(online), pair_(pair), screen_(online, terminal) {
  if (pair) sides_.push_back(std::make_unique<Side>(pair->Offline(), pair, screen_, *this));
  sides_.push_back(std::make_unique<Side>(online, pair, screen_, *this));
  if (pair)
    actions_ = std::make_unique<PairActions>(*pair, screen_);
  else
    actions_ = std::make_unique<DataSetActions>(online, screen_);
  screen_.SetBase(this);
}

Browser::~Browser() {
  screen_.SetBase(nullptr);
}

ExitCode Browser::Run(const std::vector<Change>& pending) {
  actions_->TakeOver(pending);
  while (!isLeaving_ && !screen_.IsGone()) {
    platform::Current().Loop().WaitStep(kStep);
    if (screen_.TakeBreak()) Quit();
  }
  return screen_.IsGone() ? ExitCode::Interrupted : ExitCode::Ok;
}

void Browser::OnChanged() {
  isStale_ = true;
  Pages().Invalidate();
  screen_.Redraw();
}

bool Browser::IsLocked() const {
  return std::ranges::any_of(sides_, [](const auto& side) { return side->IsLocked(); });
}

// --- what is shown ---

// Here and not in Draw(), which comes in the middle of operations.
void Browser::OnIdle() {
  if (!isStale_) return;
  isStale_ = false;
  Pages().Refresh();
  pathNote_ = PathNote();
  status_ = StatusLine();
  screen_.Redraw();
}

std::string Browser::WhyReadOnly() {
  Session& session = FrontSession();
  const Variant locked = session.Variable(Internal(names::kDataSetLockState))->Value();
  if (!locked.IsEmpty() && locked.ToLong() != 0) return session.Say()(texts::kDataSetLocked);
  const Variant level = session.Variable(Internal(names::kFDTUserLevel))->Value();
  const bool observer = level.ToLong() == static_cast<std::int32_t>(UserLevel::Observer);
  return observer ? session.Say()(texts::kObserver) : std::string();
}

std::string Browser::PathNote() {
  const Speech& say = online_.Say();
  std::string side;
  if (pair_)
    side =
        FrontSession().IsOffline() ? say(hartframe::texts::kDataSetTitle) : say(Text::InfoDevice);
  const std::string note = Joined({side, WhyReadOnly()}, ": ");
  return note.empty() ? note : "[" + note + "]";
}

std::string Browser::StatusLine() {
  const Options& options = online_.Settings();
  const Speech& say = online_.Say();
  const std::size_t pending = actions_->Pending();
  const std::string link =
      options.deviceFile.empty() ? LinkText(options) : options.deviceFile.filename().string();
  const auto kept = pair_ ? pair_->Offline().Kept() : online_.Kept();
  return " " +
         Joined({options.dtm, link, kept ? kept->Path().filename().string() : "",
                 pending > 0 ? say(texts::kPendingCount, {std::to_string(pending)}) : "",
                 WritesAtOnce(online_) ? say(texts::kWritesAtOnce) : "",
                 online_.Row(Internal(names::kDTMOnlineState)).value, say(texts::kLanguageName),
                 online_.Row(Internal(names::kFDTUserLevel)).value},
                " | ");
}

void Browser::Draw(Picture& picture) {
  picture.pathNote = pathNote_;
  Pages().Draw(picture, static_cast<std::size_t>(picture.size.rows - kFrameLines));
  picture.status = status_;
  picture.keys = " " + online_.Say()(pair_ ? texts::kPairKeys : texts::kKeys);
}

}  // namespace hartframe::browse
