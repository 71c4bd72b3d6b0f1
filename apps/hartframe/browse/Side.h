#pragma once

#include "hartframe/browse/Editing.h"
#include "hartframe/browse/FrameControl.h"
#include "hartframe/browse/Messages.h"
#include "hartframe/browse/PageStack.h"

namespace hartframe::browse {

// Who shows the sides.
class ISideOwner {
 public:
  virtual ~ISideOwner() = default;
  // What is shown is no longer right.
  virtual void OnChanged() = 0;
  // The rows that can be seen, whosever they are.
  virtual std::vector<Row> Shown() const = 0;
};

// One data set on the screen, with its pages: the only one, or a side of a pair. Registers its
// control with the GUI manager for its lifetime.
class Side : public IFrame {
 public:
  // `pair`: what the session is a side of, or nullptr.
  Side(Session& session, DataSetPair* pair, Screen& screen, ISideOwner& owner);
  ~Side() override;
  Side(const Side&) = delete;
  Side& operator=(const Side&) = delete;

  Session& Data() { return session_; }
  Messages& Talk() { return messages_; }
  PageStack& Pages() { return pages_; }
  const PageStack& Pages() const { return pages_; }
  Editing& Edits() { return editing_; }
  bool IsLocked() const { return control_->LockControls(); }

 private:
  // --- IFrame ---
  void OnShown(const std::shared_ptr<ZAFHartTypes::DDObject>& object) override;
  void OnExchange(bool ended) override;
  void OnRefreshView() override { owner_.OnChanged(); }
  ZAFHartTypes::Variant EditedValue(const ZAFHartTypes::Definition& object) override;
  std::int32_t ShowMessage(ZAFHartTypes::UserMessage& message) override;
  void HideMessage(std::int32_t displayId) override { messages_.Hide(displayId); }
  void CollectShown(ZAFHartTypes::DefinitionList& variables) override;
  void OnLocked() override { screen_.Redraw(); }

  Session& session_;
  Screen& screen_;
  ISideOwner& owner_;
  Messages messages_;
  PageStack pages_;
  Editing editing_;
  std::shared_ptr<FrameControl> control_;
};

}  // namespace hartframe::browse
