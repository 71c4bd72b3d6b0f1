#include <gmock/gmock.h>

#include "support/HartWrapperTest.h"

// Commands to a real device in the background, and a search that the user ends.
namespace test_support {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

TEST_F(HartWrapperTest, BackgroundCommandsWaitForTheConnection) {
  line->latency = platform::Milliseconds{50};
  const auto first = ReadInBackground(1);
  const auto second = ReadInBackground(2);
  EXPECT_THAT(line->log, ElementsAre("0@0"));
  EXPECT_EQ(hart->OnlineState(), State::Connecting);
  for (int i = 0; i < 20; ++i) Advance(10);
  EXPECT_THAT(kernel->ended, ElementsAre(first, second));
  EXPECT_THAT(line->TakeLog(), ElementsAre("0@0", "1@3A10001234", "2@3A10001234"));
  EXPECT_TRUE(second->ReferredTransaction()->Completed());
  // A command that is waited for takes the search over.
  hart->SetAddressInformation(0, "", "");
  const auto third = ReadInBackground(1);
  EXPECT_TRUE(Read());
  for (int i = 0; i < 20; ++i) Advance(10);
  EXPECT_THAT(kernel->ended, ElementsAre(first, second, third));
  EXPECT_THAT(line->TakeLog(), ElementsAre("0@0", "0@0", "1@3A10001234", "3@3A10001234"));
  // What is under way when the host disconnects ends all the same.
  const auto fourth = ReadInBackground(1);
  hart->Disconnect();
  const auto fifth = ReadInBackground(2);
  for (int i = 0; i < 5; ++i) Advance(10);
  EXPECT_THAT(kernel->ended, ElementsAre(first, second, third, fourth, fifth));
  EXPECT_FALSE(fourth->ReferredTransaction()->Completed());
  EXPECT_THAT(line->TakeLog(), SizeIs(1));
}

TEST_F(HartWrapperTest, BackgroundCommandsAreRefusedWithTheReason) {
  information->devices = {{.expandedType = 0x2606}};
  const auto first = ReadInBackground(1);
  for (int i = 0; i < 5; ++i) Advance(10);
  EXPECT_THAT(kernel->ended, ElementsAre(first));
  EXPECT_THAT(Gui().messages, ElementsAre(HasSubstr("0x2606")));
  EXPECT_EQ(pv->ErrorText(), Gui().messages.front());
  // A tear-down in the middle of a search tells nobody.
  line->latency = platform::Milliseconds{50};
  hart->SetAddressInformation(0, "", "");
  ReadInBackground(1);
  hart->SetComponentModel(nullptr);
  for (int i = 0; i < 20; ++i) Advance(10);
  EXPECT_THAT(kernel->ended, ElementsAre(first));
}

TEST_F(HartWrapperTest, CancelEndsTheSearch) {
  line->latency = platform::Milliseconds{1000};
  const auto user = platform.Loop().StartOnce(platform::Milliseconds{30},
                                              [&] { EXPECT_TRUE(hart->CancelExchange()); });
  EXPECT_EQ(WriteFailure(), ErrorNumber::Cancelled);
  EXPECT_EQ(hart->OnlineState(), State::NotConnected);
}

TEST_F(HartWrapperTest, PassesTheBusyAttemptsToALinkThatTakesThem) {
  Add(MakeVariable("__ZAF__RETRYNO", TypeCode::Unsigned, 1, std::int16_t{12}));
  Read();
  EXPECT_EQ(line->busyAttempts, 0);
  line->retriesBusy = true;
  Read();
  EXPECT_EQ(line->busyAttempts, 12);
}

}  // namespace
}  // namespace test_support
