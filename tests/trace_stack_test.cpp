#include <gmock/gmock.h>

#include <array>

#include "support/RecordingTracer.h"
#include "support/StubGui.h"
#include "trace/CEmptyErrorHandler.h"
#include "trace/CExternalTraceConnection.h"
#include "trace/CTraceObj.h"

namespace ZAFHartLib {
namespace {

using test_support::RecordingTracer;
using testing::ElementsAre;
using testing::IsEmpty;
using ZAFHartTypes::ErrorNumber;
using ZAFHartTypes::Failure;
using ZAFHartTypes::ItemIndex;
using ZAFHartTypes::Variant;

// An operation that counts how often its lines are built.
class Operation : public ZAFHartTypes::ITracedOperation {
 public:
  explicit Operation(std::string name) : name_(std::move(name)) {}
  std::vector<std::string> TraceLines(std::int32_t level) const override {
    ++built;
    return {"[ " + name_, "> Level: " + std::to_string(level)};
  }
  mutable int built = 0;

 private:
  std::string name_;
};

class TraceStackTest : public testing::Test {
 protected:
  std::shared_ptr<CTraceObj> NewTrace() {
    return std::make_shared<CTraceObj>(std::weak_ptr<ZAFHartTypes::IDDDTMGUI>{}, stack, connection);
  }
  std::vector<std::string> Entries() const {
    std::vector<std::string> entries;
    for (std::int32_t position = 1; position <= stack->Count(); ++position) {
      entries.push_back(stack->Item(position));
    }
    return entries;
  }

  platform::Platform platform{std::make_unique<platform::ManualClock>()};
  platform::PlatformScope scope{platform};
  std::shared_ptr<StackInformation> stack = std::make_shared<StackInformation>();
  std::shared_ptr<CExternalTraceConnection> connection;
};

TEST_F(TraceStackTest, NestedOperationsOpenAndCloseTheirLevels) {
  const auto a = NewTrace();
  EXPECT_EQ(a->GetStackInformation(), "\r\nNo Trace Info Available!");
  a->AddStack("[ A");
  a->AddStack("[ again");
  a->TraceStack("> Def: x");
  a->TraceStack("");
  const auto b = NewTrace();
  b->TraceStack("dropped: no level is open");
  b->AddStack("[ B");
  EXPECT_THAT(Entries(), ElementsAre("No Trace Info Available!", "[ A\r\n> Def: x", "[ B"));
  b->ReleaseStack("] B");
  EXPECT_EQ(stack->Count(), 2);
  // An outer release takes along what was left open below it; its own release then does nothing.
  b->AddStack("[ B");
  a->ReleaseStack("] A");
  b->ReleaseStack("] B");
  b->FixStack();
  EXPECT_THAT(Entries(), ElementsAre("No Trace Info Available!"));
}

TEST_F(TraceStackTest, FailedOperationsLeaveTheirTextsToTheCaller) {
  auto a = NewTrace();
  a->AddStack("[ A");
  auto b = NewTrace();
  b->AddStack("[ B");
  b.reset();
  EXPECT_THAT(Entries(), ElementsAre("No Trace Info Available!", "[ A\r\n[ B"));
  a.reset();
  EXPECT_THAT(Entries(), ElementsAre("[ A\r\n[ B\r\n"));
  EXPECT_EQ(NewTrace()->GetStackInformation(), "\r\n[ A\r\n[ B\r\n");
}

TEST_F(TraceStackTest, LinesOfAnOperationAreBuiltForReadersOnly) {
  connection = std::make_shared<CExternalTraceConnection>();
  Operation outer("A");
  auto a = NewTrace();
  a->OpenStack(outer);
  EXPECT_FALSE(a->WantsStack() || a->WantsText(-1));
  {
    const Operation released("B");
    const auto b = NewTrace();
    b->OpenStack(released);
    b->ReleaseStack("");
    EXPECT_EQ(released.built, 0);
  }
  EXPECT_EQ(outer.built, 0);
  a->TraceStack("<Result: 1");
  EXPECT_EQ(stack->Item(2), "[ A\r\n> Level: 1\r\n<Result: 1");
  {
    const Operation failed("B");
    const auto b = NewTrace();
    b->OpenStack(failed);
    b->FixStack();
  }
  EXPECT_EQ(stack->Item(2), "[ A\r\n> Level: 1\r\n<Result: 1\r\n[ B\r\n> Level: 1");
}

TEST_F(TraceStackTest, AStackClearedByTheHostKeepsNoRunningOperation) {
  stack->Clear();
  {
    const Operation operation("A");
    const auto trace = NewTrace();
    trace->OpenStack(operation);
    trace->TraceStack("dropped");
  }
  EXPECT_EQ(stack->Text(), "\r\n[ A\r\n> Level: 1");
  EXPECT_THROW(stack->Item(2), Failure);
  EXPECT_THROW(stack->Remove(0), Failure);
  const auto trace = NewTrace();
  trace->AddStack("[ B");
  stack->Clear();
  trace->TraceStack("x");
  trace->ReleaseStack("] B");
  CTraceObj unconnected;
  unconnected.AddStack("[ C");
  unconnected.ReleaseStack("] C");
  EXPECT_EQ(unconnected.GetStackInformation(), "");
}

class ExternalTracerTest : public TraceStackTest {
 protected:
  ExternalTracerTest() { connection = std::make_shared<CExternalTraceConnection>(); }
  std::shared_ptr<RecordingTracer> tracer = RecordingTracer::Install(platform);
};

TEST_F(ExternalTracerTest, GetsWhatItsFiltersTake) {
  ASSERT_TRUE(connection->CheckConnection());
  const Operation outer("A");
  const Operation inner("B");
  const auto a = NewTrace();
  const auto b = NewTrace();
  a->OpenStack(outer);
  b->OpenStack(inner);
  EXPECT_TRUE(a->WantsStack());
  EXPECT_FALSE(b->WantsStack());
  EXPECT_EQ(inner.built, 0);
  b->ReleaseStack("] B");
  a->TraceStack("<Result: 1");
  a->ReleaseStack("] A");
  EXPECT_THAT(tracer->TakeCalls(),
              ElementsAre("Add 1 [ A", "Stack 1 > Level: 1", "StackBreak 1 no db",
                          "Stack 1 <Result: 1", "Release 1 ] A", "StackBreak 1 no db"));

  a->TraceText(-1, "always");
  a->TraceText(2, "too deep");
  EXPECT_THAT(tracer->TakeCalls(), ElementsAre("Text -1 always", "Break 0 no db", "Break 0 no db"));

  tracer->callBack->SetStackLevelFilter(2);
  tracer->callBack->SetTraceLevelFilter(2);
  tracer->callBack->SetTraceInfoLevel(3);
  const auto c = NewTrace();
  const auto d = NewTrace();
  c->AddStack("[ C");
  d->OpenStack(inner);
  d->TraceText(2, "deep");
  EXPECT_THAT(tracer->TakeCalls(),
              ElementsAre("Add 1 [ C", "Add 2 [ B", "Stack 2 > Level: 3", "StackBreak 2 no db",
                          "Text 2 deep", "Break 0 no db"));
  connection->TraceObjectError(nullptr, "lost");
  EXPECT_THAT(tracer->TakeCalls(), ElementsAre("ObjectError 0 lost", "Break 0 no db"));
  EXPECT_EQ(connection->TraceStackBreak(2, nullptr), 7);
  EXPECT_EQ(connection->TraceStackBreak(3, nullptr), 0);
  EXPECT_EQ(connection->WatchBreak(nullptr, nullptr), 9);
}

TEST_F(ExternalTracerTest, NeverMakesAnOperationFail) {
  tracer->raises = true;
  const Operation operation("A");
  const auto trace = NewTrace();
  trace->OpenStack(operation);
  trace->TraceStack("line");
  trace->TraceText(1, "text");
  trace->ReleaseStack("] A");
  EXPECT_EQ(connection->TraceBreak(nullptr), 0);
  connection->PrepareTermination();
  EXPECT_FALSE(connection->CheckConnection());
}

TEST_F(ExternalTracerTest, TerminationDropsTheConnectionFirst) {
  const auto callBack = tracer->callBack;
  callBack->Terminate();
  connection->TraceObjectError("x");
  EXPECT_THAT(tracer->TakeCalls(), ElementsAre("Terminate 0 "));
  EXPECT_EQ(connection->TraceBreak(nullptr), 0);
  connection.reset();
  callBack->Terminate();
  EXPECT_EQ(callBack->TraceInfoLevel(), 1);
  EXPECT_THAT(tracer->calls, IsEmpty());
}

TEST_F(ExternalTracerTest, NoneWithoutAUsableSetting) {
  for (const char* className : {"", "Test.Unknown", "Nothing"}) {
    platform.Registry().SetValue(kTracerKey, kTracerClassName, className);
    EXPECT_FALSE(CExternalTraceConnection().CheckConnection()) << className;
  }
  platform.Classes().Register("Test.Odd", [] { return std::make_shared<CTraceObj>(); });
  platform.Registry().SetValue(kTracerKey, kTracerClassName, "Test.Odd");
  EXPECT_FALSE(CExternalTraceConnection().CheckConnection());
}

TEST(EmptyErrorHandlerTest, NotesCyclicEvaluations) {
  CEmptyErrorHandler handler;
  EXPECT_EQ(handler.ObjectError(nullptr, ItemIndex::UnknownMenuItem), 1);
  EXPECT_EQ(handler.EvaluationError("x"), 1);
  EXPECT_EQ(handler.ResponseCodeError({}, nullptr), 1);
  EXPECT_FALSE(handler.Invoke("criticalerrors", {}).ToBoolean());
  EXPECT_EQ(handler.ObjectError(nullptr, ItemIndex::CyclicVariable), 1);
  EXPECT_TRUE(handler.CriticalErrors());
  const std::array off{Variant(false), Variant(true)};
  handler.Invoke("CriticalErrors", std::span(off).first(1));
  EXPECT_FALSE(handler.CriticalErrors());
  EXPECT_THROW(handler.Invoke("CriticalErrors", off), Failure);
  EXPECT_THROW(handler.Invoke("Criticals", {}), Failure);
}

}  // namespace
}  // namespace ZAFHartLib
