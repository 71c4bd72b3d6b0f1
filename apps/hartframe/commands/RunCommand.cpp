#include <algorithm>
#include <span>
#include <unordered_set>

#include "ddobjects/Command.h"
#include "ddobjects/Method.h"
#include "gui/CDDDTMGUI.h"
#include "hartframe/changes/Changes.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/menus/MenuPath.h"
#include "hartframe/menus/MenuTexts.h"
#include "hartframe/methods/MethodDialogue.h"
#include "hartframe/methods/MethodEnd.h"
#include "hartframe/methods/MethodTexts.h"
#include "hartframe/values/Reading.h"
#include "interfaces/InternalNames.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;

// A method, and the menu that it was found in.
struct Target {
  Definition method;
  std::string label;
  Definition menu;
};

// The DTM's own objects of a kind.
std::vector<Definition> OwnObjects(Session& session, ObjectKind kind) {
  std::vector<Definition> objects;
  for (const auto& object : session.Database().NewEnum()) {
    const Definition& definition = object->ObjectDefinition();
    if (definition.Kind() == kind &&
        !definition.Name().starts_with(ZAFHartTypes::internal_names::kPrefix))
      objects.push_back(definition);
  }
  return objects;
}

// The methods that a menu offers, each once; others are actions and abort methods.
std::vector<MenuEntry> OfferedMethods(Session& session) {
  std::vector<MenuEntry> methods;
  std::unordered_set<ZAFHartTypes::TextKey, ZAFHartTypes::TextKeyHash> known;
  for (const Definition& menu : OwnObjects(session, ObjectKind::Menu)) {
    for (MenuEntry& entry : EntriesOf(session, menu)) {
      if (entry.definition.Kind() == ObjectKind::Method &&
          known.insert(entry.definition.Key()).second)
        methods.push_back(std::move(entry));
    }
  }
  return methods;
}

Target ByPath(Session& session) {
  const MenuPlace place = FollowPath(session, session.Settings().path);
  if (place.entry.definition.Kind() != ObjectKind::Method) {
    throw CommandFailure(ExitCode::Usage, session.Say()(texts::kNoMethod, {place.labels.back()}));
  }
  return {place.entry.definition, place.labels.back(), place.menu};
}

// By the DD name of any method, by the label of one that a menu offers, or by a path of menus.
Target FindTarget(Session& session) {
  const Speech& say = session.Say();
  const std::string& name = session.Settings().path.front();
  if (session.Settings().path.size() > 1) return ByPath(session);
  const auto object = session.Database().ReadObject(Definition::Define(name, ObjectKind::Method));
  if (object && object->Kind() == ObjectKind::Method)
    return {object->ObjectDefinition(), say.Pick(MultilingualLabel(*object)), {}};
  const std::vector<MenuEntry> methods = OfferedMethods(session);
  const std::vector<MenuEntry> matching = MatchingEntries(say, methods, name);
  if (matching.size() == 1)
    return {matching.front().definition, say.Pick(matching.front().label), {}};
  if (matching.empty() && name.find('/') != std::string::npos) return ByPath(session);
  const char* const text = matching.empty() ? texts::kUnknownMethod : texts::kAmbiguousItem;
  throw CommandFailure(
      ExitCode::Usage,
      say(text, {OneLine(name), ListEntries(say, matching.empty() ? methods : matching, true)}));
}

// What went wrong with reading the variable.
std::string FaultText(const VariableRow& row, const Speech& say) {
  const std::int32_t code = ResponseCodeOf(*row.variable);
  return code == 0 ? row.error : say(texts::kResponseCode, {std::to_string(code), row.error});
}

// Tells about what could not be read of that which decides about the method.
[[noreturn]] void RefuseUnknownValidity(Session& session, const Target& target,
                                        std::span<const VariableRow> rows) {
  TellTroubles(session, rows);
  const VariableRow& row = *std::find_if(rows.begin(), rows.end(), [](const VariableRow& read) {
    return TroubleOf(*read.variable) == Trouble::Communication ||
           TroubleOf(*read.variable) == Trouble::Refused;
  });
  const auto found = session.Kernel().FindReadCommand(row.variable->Definition());
  std::string command;
  if (found) {
    command = std::to_string(found->Command()->Number()) + " (" +
              found->Command()->Definition().Name() + ')';
  }
  const Speech& say = session.Say();
  throw CommandFailure(
      CodeOfTroubles(rows),
      say(texts::kValidityUnknown, {target.label, row.name, command, FaultText(row, say)}));
}

// Whether the method is valid follows from variables, which have to be the device's.
void RequireValid(Session& session, const Target& target) {
  ThoroughReader reader(session);
  if (!session.Run([&] { reader.ReadConditions(target.method); })) return;  // nothing will run
  if (session.Kernel().GetMethodValidity(target.method)) return;
  if (CodeOfTroubles(reader.Rows()) != ExitCode::Ok)
    RefuseUnknownValidity(session, target, reader.Rows());
  throw CommandFailure(ExitCode::NotAllowed, session.Say()(texts::kMethodNotValid, {target.label}));
}

// The dialogue has the messages for the time of the method.
class DialogueScope {
 public:
  DialogueScope(Session& session, std::shared_ptr<MethodDialogue> dialogue)
      : gui_(dynamic_cast<ZAFHartLib::CDDDTMGUI&>(*session.Components().DDGUI())),
        before_(gui_.MessageControl()) {
    gui_.SetMessageControl(std::move(dialogue));
  }
  ~DialogueScope() { gui_.SetMessageControl(before_); }
  DialogueScope(const DialogueScope&) = delete;
  DialogueScope& operator=(const DialogueScope&) = delete;

 private:
  ZAFHartLib::CDDDTMGUI& gui_;
  std::shared_ptr<ZAFHartTypes::IDDDTMGUI> before_;
};

// One run of a method, and what is to be told about it.
class MethodRun {
 public:
  MethodRun(Session& session, const Target& target)
      : session_(session),
        target_(target),
        watch_(session.Components()),
        dialogue_(std::make_shared<MethodDialogue>(session, watch_)) {}

  void Run() {
    session_.Errors().Forget();
    const DialogueScope scope(session_, dialogue_);
    try {
      session_.Run([this] { session_.Kernel().ExecuteMethod(target_.method, Context()); },
                   [this] { OnInterrupt(); });
    } catch (const platform::Failure& failure) {
      failure_ = failure.Description();
    }
  }

  // Values that the method has kept, the end that it came to, and what it did not ask for.
  ExitCode Tell() {
    TellKept();
    const ExitCode code = TellEnd();
    TellAnswersLeft();
    return code;
  }

 private:
  // What cleans up after an abort is not broken off.
  void OnInterrupt() {
    if (watch_.IsClosing()) return;
    watch_.AbortAll();
    session_.Components().CancelOperation();
  }

  std::shared_ptr<ZAFHartTypes::DDObject> Context() {
    if (target_.menu) return session_.Kernel().GetMenu(target_.menu);
    return session_.Kernel().GetMethod(target_.method);
  }

  void TellKept() {
    std::vector<VariableRow> rows;
    for (const Definition& definition : watch_.Kept()) rows.push_back(session_.Row(definition));
    if (rows.empty()) return;
    session_.Tell().Note("keptByMethod", session_.Say()(texts::kKeptValues));
    session_.Tell().Variables(rows);
  }

  void TellAnswersLeft() {
    if (dialogue_->Left().empty()) return;
    std::string list;
    for (const std::string& answer : dialogue_->Left())
      list += (list.empty() ? "\"" : ", \"") + OneLine(answer) + '"';
    session_.Tell().Note("answersLeft", session_.Say()(texts::kAnswersLeft, {list}));
  }

  ExitCode TellEnd() {
    const Speech& say = session_.Say();
    if (const auto& trouble = dialogue_->AnswerTrouble()) {
      session_.Tell().Problem(trouble->code, trouble->sentence);
      return TellAborted("answer", texts::kReasonAnswer, ExitCode::AnswerRefused);
    }
    if (session_.Interrupted() && (watch_.IsAborted() || !watch_.HasStarted()))
      return TellAborted("interrupted", texts::kReasonInterrupted, ExitCode::Interrupted);
    if (failure_) return TellFailed(*failure_);
    if (watch_.IsAborted()) return TellAbort();
    session_.Tell().Note("methodFinished", say(texts::kMethodFinished, {target_.label}));
    return ExitCode::Ok;
  }

  ExitCode TellFailed(const std::string& why) {
    session_.Tell().Problem("methodFailed",
                            session_.Say()(texts::kMethodFailed, {target_.label, OneLine(why)}));
    return ExitCode::MethodFailed;
  }

  ExitCode TellAbort() {
    const AbortCause cause = CauseOfAbort(watch_, session_.Errors(), dialogue_->IsCancelled());
    if (cause == AbortCause::Failure) return TellFailed(FailureText(session_.Errors()));
    constexpr const char* kNames[] = {"cancelled", "failed", "method", "noDevice", "status"};
    return TellAborted(kNames[static_cast<std::size_t>(cause)], ReasonText(cause));
  }

  ExitCode TellAborted(std::string_view reason, const char* text,
                       ExitCode code = ExitCode::MethodAborted) {
    const Speech& say = session_.Say();
    session_.Tell().Problem("aborted." + std::string(reason),
                            say(texts::kMethodAborted, {target_.label, say(text)}));
    return code;
  }

  Session& session_;
  const Target& target_;
  MethodWatch watch_;
  std::shared_ptr<MethodDialogue> dialogue_;
  std::optional<std::string> failure_;
};

// What earlier runs left to be written stays so, except for what the method has changed.
void KeepChanges(Session& session, std::vector<Change> earlier) {
  const std::vector<Definition> changed = PendingVariables(session);
  if (changed.empty()) return;
  std::erase_if(earlier, [&changed](const Change& change) {
    return std::any_of(changed.begin(), changed.end(), [&change](const Definition& definition) {
      return definition.IsSameAs(change.definition);
    });
  });
  KeepPending(session, earlier);
}

}  // namespace

ExitCode RunMethod(Session& session) {
  if (session.Settings().userLevel == ZAFHartTypes::UserLevel::Observer) {
    throw CommandFailure(ExitCode::NotAllowed, session.Say()(texts::kObserverCannotRun));
  }
  const Target target = FindTarget(session);
  RequireValid(session, target);
  const std::vector<Change> earlier = LoadPending(session);  // fails before the method runs
  MethodRun run(session, target);
  run.Run();
  const ExitCode code = run.Tell();
  KeepChanges(session, earlier);
  return code;
}

}  // namespace hartframe
