#include <gmock/gmock.h>

#include "support/RecordingTracer.h"
#include "support/StubGui.h"
#include "support/TestPlatform.h"
#include "trace/CExternalTraceConnection.h"
#include "trace/CTraceObj.h"

namespace ZAFHartLib {
namespace {

using test_support::RecordingTracer;
using testing::ElementsAre;
using ZAFHartTypes::Failure;

// An operation that counts how often its lines are built.
class Operation : public ZAFHartTypes::ITracedOperation {
 public:
  explicit Operation(const char* newName) : name(newName) {}
  std::vector<std::string> TraceLines(std::int32_t level) const override {
    ++built;
    return {"[ " + name, "> Level: " + std::to_string(level)};
  }
  std::string name;
  mutable int built = 0;
};

class TraceStackTest : public testing::Test, public test_support::TestPlatform {
 protected:
  std::shared_ptr<CTraceObj> NewTrace() {
    return std::make_shared<CTraceObj>(std::weak_ptr<ZAFHartTypes::IDDDTMGUI>{}, stack, connection);
  }

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
  EXPECT_EQ(stack->Text(), "\r\nNo Trace Info Available!\r\n[ A\r\n> Def: x\r\n[ B");
  b->ReleaseStack("] B");
  EXPECT_EQ(stack->Count(), 2);
  // An outer release takes along what was left open below it; its own release then does nothing.
  b->AddStack("[ B");
  a->ReleaseStack("] A");
  b->ReleaseStack("] B");
  EXPECT_EQ(stack->Text(), "\r\nNo Trace Info Available!");
}

TEST_F(TraceStackTest, FailedOperationsLeaveTheirTextsToTheCaller) {
  auto a = NewTrace();
  a->AddStack("[ A");
  auto b = NewTrace();
  b->AddStack("[ B");
  b.reset();
  EXPECT_EQ(stack->Item(2), "[ A\r\n[ B");
  a.reset();
  EXPECT_EQ(stack->Count(), 1);
  EXPECT_EQ(NewTrace()->GetStackInformation(), "\r\n[ A\r\n[ B\r\n");
  {
    const Operation unfixed("C");
    NewTrace()->OpenStack(unfixed);
  }
  EXPECT_EQ(stack->Text(), "\r\n[ C\r\n> Level: 1\r\n");
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
  const auto trace = NewTrace();
  trace->AddStack("[ B");
  stack->Clear();
  trace->TraceStack("dropped");
  trace->ReleaseStack("] B");
  EXPECT_THROW(stack->Item(1), Failure);
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
  connection.reset();
  callBack->Terminate();
  EXPECT_THAT(tracer->calls, ElementsAre("Terminate 0 "));
}

TEST_F(ExternalTracerTest, NoneWithoutAUsableSetting) {
  for (const char* className : {"", "Test.Unknown", "Nothing"}) {
    platform.Registry().SetValue(kTracerKey, kTracerClassName, className);
    EXPECT_FALSE(CExternalTraceConnection().CheckConnection()) << className;
  }
}

}  // namespace
}  // namespace ZAFHartLib
