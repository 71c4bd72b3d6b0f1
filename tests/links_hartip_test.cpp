#include "support/HartIpScript.h"

// HART-IP sessions on a channel that the test plays, with a clock that stands still.
namespace HartLinks {
namespace {

using namespace test_support;  // NOLINT(google-build-using-namespace)
using namespace std::chrono_literals;
using Script = std::vector<std::string>;

HartIpOptions Options(Transport transport = Transport::Udp) {
  HartIpOptions options;
  options.server = {"gw", 5094, transport};
  options.timeout = 1000ms;
  options.retries = 2;
  options.connectTimeout = 5000ms;
  options.inactivityTime = 60'000ms;
  return options;
}

// A session in use: one exchange done.
const Script kInSession = {"ask 1 0",
                           "opening",
                           "open",
                           "> 0 0 0 #1 010000EA60",
                           "< 1 0 8 #1 0100007530",  // 30 s, the nearest that the server has
                           "> 0 3 0 #2 req0",
                           "< 1 3 0 #2 ack0",
                           "= 1 0 0000"};

void Play(HartIpOptions options, const Script& script) {
  const auto played = std::make_shared<HartIpScript>(options);
  played->Run(script);
  played->Finish();
}
void PlayInSession(HartIpOptions options, const Script& script) {
  Script whole = kInSession;
  whole.insert(whole.end(), script.begin(), script.end());
  Play(std::move(options), whole);
}

TEST(HartIpSession, IsMadeKeptAndClosed) {
  const auto script = std::make_shared<HartIpScript>(Options());
  script->Run(kInSession);
  // Kept alive after a third of the granted 30 s of silence, counted from the last message.
  script->Run({"+ 9000", "ask 1 1", "> 0 3 0 #3 req1", "< 1 3 0 #3 ack1", "= 1 1 0000", "+ 9999",
               "+ 1", "> 0 2 0 #4", "+ 1000", "> 0 2 0 #4", "< 1 2 0 #4", "< 1 2 0 #4", "+ 9999",
               "+ 1", "> 0 2 0 #5", "< 1 2 0 #5"});
  script->Finish();
  EXPECT_EQ(script->Next(), "> 0 1 0 #6");
  EXPECT_EQ(script->Next(), "closed");
  EXPECT_EQ(script->Next(), "");
}

TEST(HartIpSession, RefusalsAndServersThatCannotBeReached) {
  const struct {
    const char* what;
    Script script;
  } cases[] = {
      {"refused, tried again after a pause, granted",
       {"ask 1 0", "opening", "open", "> 0 0 0 #1 010000EA60", "< 1 0 15 #1", "closed", "+ 99",
        "+ 1", "opening", "open", "> 0 0 0 #2 010000EA60", "< 1 0 0 #2 010000EA60",
        "> 0 3 0 #3 req0", "< 1 3 0 #3 ack0", "= 1 0 0000"}},
      {"refused until the request's time is over; pauses double",
       {"ask 1 0",
        "opening",
        "lost Connection refused",
        "closed",
        "+ 100",
        "opening",
        "lost Connection refused",
        "closed",
        "+ 199",
        "+ 1",
        "opening",
        "open",
        "> 0 0 0 #1 010000EA60",
        "< 15 0 14 #1",
        "closed",
        "+ 400",
        "opening",
        "+ 4299",
        "+ 1",
        "= 1 0 no reply: gw:5094/udp: The server does not know version 1 of HART-IP"}},
      {"silent; the initiate goes out again under its number",
       {"ask 1 0", "opening", "open", "> 0 0 0 #1 010000EA60", "+ 1000", "> 0 0 0 #1 010000EA60",
        "+ 4000", "> 0 0 0 #1 010000EA60", "closed",
        "= 1 0 no reply: gw:5094/udp: The server does not answer"}},
      {"another version",
       {"ask 1 0", "opening", "open", "> 0 0 0 #1 010000EA60", "<hex 0201000000010008", "closed",
        "+ 100", "opening", "+ 4900",
        "= 1 0 no reply: gw:5094/udp: The server sent what is no HART-IP: the message is of "
        "another version",
        "+ 100", "closed", "+ 1000"}},
      {"cancelled while it waits for the session",
       {"ask 1 0", "opening", "cancel 1", "= 1 0 cancelled", "open", "> 0 0 0 #1 010000EA60",
        "< 1 0 0 #1 010000EA60"}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.what);
    Play(Options(), test.script);
  }
}

TEST(HartIpSession, WhatComesInsteadOfTheAnswer) {
  const struct {
    const char* what;
    Script script;
  } cases[] = {
      {"nothing at first: the same message again, and the late answer counts once",
       {"+ 1000", "> 0 3 0 #3 req1", "< 1 3 0 #3 ack1", "= 1 1 0000", "< 1 3 0 #3 ack1", "ask 1 2",
        "> 0 3 0 #4 req2", "< 1 3 0 #3 ack1", "< 1 3 0 #4 ack2", "= 1 2 0000"}},
      {"answers to others, damaged datagrams, published bursts",
       {"< 1 3 0 #7 ack1", "< 1 3 0 #2 ack1", "<hex 0101030000030010", "<hex 01",
        "<hex 0201030000030008", "< 2 3 0 #3 ack1", "< 0 3 0 #3 ack1", "< 1 3 0 #3 ack1",
        "= 1 1 0000"}},
      {"the answer of another command, a damaged one: asked again under a new number",
       {"< 1 3 0 #3 ack9", "> 0 3 0 #4 req1", "< 1 3 0 #3 ack1", "< 1 3 0 #4 0680010200FF00",
        "> 0 3 0 #5 req1", "< 1 3 0 #5 ack9",
        "= 1 1 no reply: gw:5094/udp: The answer is damaged: it belongs to another request"}},
      {"communication errors are asked again, the last one is handed over",
       {"< 1 3 0 #3 ack1/88", "> 0 3 0 #4 req1", "< 1 3 0 #4 ack1/88", "> 0 3 0 #5 req1",
        "< 1 3 0 #5 ack1/C0", "= 1 1 C000"}},
      {"the master bit is the gateway's", {"< 1 3 0 #3 06000102000005", "= 1 1 0000"}},
      {"the device does not answer the gateway", {"< 1 3 0 #3", "= 1 1 no reply"}},
      {"status of the gateway: is the session known?",
       {"< 1 3 6 #3", "> 0 2 0 #4",
        "= 1 1 no reply: gw:5094/udp: The server answered with status 6", "< 1 2 6 #4", "closed"}},
      {"NAK: surely not carried out, once more in a new session",
       {"< 15 3 14 #3", "> 0 1 0 #4", "closed", "+ 100", "opening", "open", "> 0 0 0 #5 010000EA60",
        "< 1 0 0 #5 010000EA60", "> 0 3 0 #6 req1", "< 15 3 14 #6",
        "= 1 1 no reply: gw:5094/udp: The server refused the request"}},
      {"nothing at all: the session is lost, the next request makes a new one",
       {"ask 2 9", "+ 1000", "> 0 3 0 #3 req1", "+ 1000", "> 0 3 0 #3 req1", "+ 1000", "> 0 1 0 #4",
        "closed", "= 1 1 no reply: gw:5094/udp: The server does not answer any more", "+ 100",
        "opening", "open", "> 0 0 0 #5 010000EA60", "< 1 0 0 #5 010000EA60", "> 0 3 0 #6 req9",
        "< 1 3 0 #3 ack1", "< 1 3 0 #6 ack9", "= 2 9 0000"}},
      {"nothing for this one, but the server lives",
       {"+ 1000", "> 0 3 0 #3 req1", "+ 1000", "> 0 3 0 #3 req1", "< 2 3 0 #0 ack1", "+ 1000",
        "= 1 1 no reply"}},
      {"the server closes the session, or the channel is lost",
       {"< 0 1 0 #9", "closed", "= 1 1 no reply: gw:5094/udp: The server has closed the session",
        "ask 1 2", "+ 100", "opening", "lost Connection refused", "closed", "+ 200", "opening",
        "+ 4700", "= 1 2 no reply: gw:5094/udp: Connection refused"}},
      {"cancelled: its place is free when the server has done with it",
       {"ask 2 9", "cancel 1", "= 1 1 cancelled", "< 1 3 0 #3 ack1", "> 0 3 0 #4 req9", "cancel 2",
        "= 2 9 cancelled", "ask 1 2", "+ 1000", "> 0 3 0 #5 req2"}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.what);
    Script script = {"ask 1 1", "> 0 3 0 #3 req1"};
    script.insert(script.end(), test.script.begin(), test.script.end());
    PlayInSession(Options(), script);
  }
}

TEST(HartIpSession, TcpSendsOnceAndWaitsAsLong) {
  PlayInSession(Options(Transport::Tcp),
                {"ask 1 1", "> 0 3 0 #3 req1", "+ 2999", "+ 1", "> 0 1 0 #4", "closed",
                 "= 1 1 no reply: gw:5094/tcp: The server does not answer any more"});
  PlayInSession(Options(Transport::Tcp),
                {"ask 1 1", "> 0 3 0 #3 req1", "<hex 0101030000030003", "> 0 1 0 #4", "closed",
                 "= 1 1 no reply: gw:5094/tcp: The server sent what is no HART-IP: the message has "
                 "an impossible byte count"});
}

TEST(HartIpSession, TcpMessagesMayBeCutAnywhere) {
  Script requests = kInSession;
  requests.insert(requests.end(), {"ask 1 1", "> 0 3 0 #3 req1"});
  auto bytes = hart::EncodeHartIp(ParseMessage("2 3 0 #0 ack9"));
  const auto answer = hart::EncodeHartIp(ParseMessage("1 3 0 #3 ack1"));
  bytes.insert(bytes.end(), answer.begin(), answer.end());
  for (std::size_t cut = 0; cut <= bytes.size(); ++cut) {
    const auto script = std::make_shared<HartIpScript>(Options(Transport::Tcp));
    script->Run(requests);
    script->Receive(hart::Bytes(bytes).first(cut));
    script->Receive(hart::Bytes(bytes).subspan(cut));
    EXPECT_EQ(script->Next(), "= 1 1 0000") << cut;
    script->Finish();
  }
}

TEST(HartIpSession, PublishedBurstsGoToTheirObserver) {
  const auto script = std::make_shared<HartIpScript>(Options());
  script->Run(kInSession);
  std::vector<int> commands;
  script->Session().SetPublishHandler(
      [&](const hart::LinkFrame& frame) { commands.push_back(frame.CommandNumber()); });
  script->Run({"< 2 3 0 #0 01800302000080", "< 2 3 0 #0 0180"});
  EXPECT_EQ(commands, std::vector{3});
  script->Finish();
}

// 250 links with two requests each, and one that has ten: the others have one each before anybody
// has a second one.
TEST(HartIpSession, LinksTakeTurns) {
  HartIpOptions options = Options();
  options.outstanding = 3;
  const auto script = std::make_shared<HartIpScript>(options);
  script->Run(kInSession);
  for (int i = 0; i < 10; ++i) script->Ask(0, 1);
  for (int link = 1; link <= 250; ++link) {
    script->Ask(link, 1);
    script->Ask(link, 2);
  }
  std::map<int, int> ends;
  int underWay = 0, done = 0;
  std::deque<int> sequences;
  while (done < 510) {
    const std::string event = script->Next();
    if (event.empty()) {
      ASSERT_FALSE(sequences.empty());
      const std::string command = sequences.front() < 0 ? "1" : "2";
      script->Receive(hart::EncodeHartIp(ParseMessage(
          "1 3 0 #" + std::to_string(std::abs(sequences.front())) + " ack" + command)));
      sequences.pop_front();
      --underWay;
    } else if (event[0] == '>') {
      EXPECT_LE(++underWay, 3);
      const int sequence = std::stoi(event.substr(event.find('#') + 1));
      sequences.push_back(event.ends_with("req1") ? -sequence : sequence);
    } else {
      ++done;
      ++ends[std::stoi(event.substr(2))];
      if (done == 3 + 251) {  // three of the first link were on their way before the others came
        EXPECT_EQ(ends.size(), 251U);
      }
    }
  }
  EXPECT_EQ(ends[0], 10);
  script->Finish();
}

}  // namespace
}  // namespace HartLinks
