#include "support/ModemScript.h"

// The master on a modem's line at 1200 baud: a character takes 9.17 ms, RT1 303, RT2 74.
namespace HartLinks {
namespace {

using Script = std::vector<std::string>;

const std::string kPoll = "> 20 02 80 00 00 *";
const std::string kReply = "< FF FF FF FF FF 06 80 00 02 00 00 *";
const std::string kUnit = "2606123456";
const std::string kIdentity = "< FF FF 06 80 00 0E 00 00 FE 26 06 07 07 01 01 00 00 12 34 56 *";
const std::string kIdentityData = "0000FE2606070701010000123456";

// The line opened and its silence waited for.
Script Begun(const Script& script) {
  Script whole = {"ask 1 0", "open", "+ 303", kPoll, "sent"};
  whole.insert(whole.end(), script.begin(), script.end());
  return whole;
}

ModemOptions Options(int busyAttempts = 0) {
  ModemOptions options;
  options.retries = 1;
  options.busy.attempts = busyAttempts;
  return options;
}

TEST(HartLine, EndsOfARequest) {
  const std::string done = "= 1 0 0000";
  const std::string damaged = "= 1 0 no reply What was received at line is damaged: ";
  const struct {
    const char* what;
    Script script;
  } cases[] = {
      {"answered", {kReply, done}},
      {"echo first", {"< FF FF 02 80 00 00 *", kReply, done}},
      {"noise first", {"< 06 FF 80 FF FF 06 11", kReply, "+ 74", done}},
      {"late but begun in time", {"+ 302", "< FF FF 06 80", "+ 70", "< 00 02 00 00 84", done}},
      {"received while the program was held up", {"held 400 FF FF 06 80 00 02 00 00 84", done}},
      {"half of it then", {"< FF FF 06 80", "held 400 00 02 00 00 84", done}},
      {"wrong check byte, again",
       {"< FF FF 06 80 00 02 00 00 85", "+ 303", kPoll, "sent", kReply, done}},
      {"byte with an error, again",
       {"< FF FF 06 80 00 02 ~00 00 *", "+ 303", kPoll, "sent", kReply, done}},
      {"damaged to the end",
       {"< FF FF 06 80 00 02 00 00 85", "+ 303", kPoll, "sent", "< FF FF 06 80 00 02 00", "+ 303",
        damaged + "the frame ends before its check byte."}},
      {"communication error, handed over when it stays",
       {"< FF FF 06 80 00 02 88 00 *", "+ 74", kPoll, "sent", "< FF FF 06 80 00 02 88 00 *",
        "= 1 0 8800"}},
      {"silence", {"+ 303", kPoll, "sent", "+ 303", "= 1 0 no reply "}},
      {"answers to others are none",
       {"< FF FF 06 00 00 02 00 00 *", "< FF FF 06 81 00 02 00 00 *", "< FF FF 06 80 03 02 00 00 *",
        "+ 303", kPoll, "sent", kReply, done}},
      {"cancelled, the reply ignored, RT2 kept",
       {"cancel 1 0", "= 1 0 cancelled", "ask 1 0", kReply, "+ 74", kPoll, "sent", kReply, done}},
      {"broken and opened again",
       {"broken", "= 1 0 no reply It has gone.", "unplugged", "ask 1 0",
        "= 1 0 no reply Cannot open line.", "plugged", "ask 1 0", "open", "+ 303", kPoll, "sent",
        kReply, done}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.what);
    test_support::ModemScript(Options()).Run(Begun(test.script));
  }
}

TEST(HartLine, SharesTheBusWithAnotherMasterAndBurstDevices) {
  const std::string burst = "< FF FF 01 00 03 02 00 00 *";
  const struct {
    const char* what;
    Script script;
  } cases[] = {
      {"the other master asks, is answered, and leaves the bus",
       {"+ 50", "< FF FF 02 00 03 00 *", "+ 250", "< FF FF 06 00 03 02 00 00 *", kPoll}},
      {"the other master looks for a device", {"< FF FF 02 00 00 00 *", "+ 303", kPoll}},
      {"the other master asks in vain", {"+ 50", "< FF FF 02 00 03 00 *", "+ 303", kPoll}},
      {"a burst for the other master gives the bus", {burst, "burst 010003020000 *", kPoll}},
      {"one for this master leaves it to the other",
       {"< FF FF 01 80 03 02 00 00 *", "burst 018003020000 *", "+ 74", kPoll}},
      {"noise", {"+ 200", "< 55", "+ 103", kPoll}},
      {"noise late", {"+ 300", "< 55", "+ 74", kPoll}},
  };
  for (const auto& test : cases) {
    SCOPED_TRACE(test.what);
    Script script = {"ask 1 0", "open"};
    script.insert(script.end(), test.script.begin(), test.script.end());
    script.insert(script.end(), {"sent", kReply, "= 1 0 0000"});
    test_support::ModemScript(Options()).Run(script);
  }
  // Behind a reply of a device in burst mode its burst frame is waited for.
  test_support::ModemScript(Options()).Run(
      Begun({"< FF FF 06 C0 00 02 00 00 *", "= 1 0 0000", "ask 1 0", "+ 100", burst,
             "burst 010003020000 *", kPoll}));
  // A bus that is never free.
  Script babble = {"ask 1 0", "open"};
  for (int i = 0; i < 100; ++i) babble.insert(babble.end(), {"+ 100", "< FF FF 02 00 03 00 *"});
  babble.insert(babble.end(),
                {"= 1 0 no reply The line at line is never free: another master, a device "
                 "in burst mode or noise keeps it busy."});
  test_support::ModemScript(Options()).Run(babble);
}

TEST(HartLine, NoiseKeepsNoRequestForever) {
  Script noise;
  for (int i = 0; i < 259; ++i) noise.insert(noise.end(), {"+ 50", "< 55"});
  // 2934 ms, with the longest of replies, and 10 s for a free bus, seen RT2 after a byte.
  noise.insert(noise.end(), {"+ 24",
                             "= 1 0 no reply The line at line is never free: another master, a "
                             "device in burst mode or noise keeps it busy."});
  test_support::ModemScript(Options()).Run(Begun(noise));
}

TEST(HartLine, LinksTakeTurns) {
  const std::string three = "> 20 02 80 03 00 *";
  test_support::ModemScript(Options()).Run(Begun({"ask 1 1",
                                                  "ask 1 2",
                                                  "ask 2 3",
                                                  "ask 2 48",
                                                  "cancel 2 48",
                                                  "= 2 48 cancelled",
                                                  kReply,
                                                  "= 1 0 0000",
                                                  "ask 1 0",
                                                  "+ 74",
                                                  "> 20 02 80 01 00 *",
                                                  "sent",
                                                  "< FF FF 06 80 01 02 00 00 *",
                                                  "= 1 1 0000",
                                                  "+ 74",
                                                  three,
                                                  "sent",
                                                  "< FF FF 06 80 03 02 00 00 *",
                                                  "= 2 3 0000",
                                                  "+ 74",
                                                  "> 20 02 80 02 00 *"}));
}

TEST(HartLine, PreamblesAddressesAndLongNumbers) {
  test_support::ModemScript(Options()).Run(
      Begun({kIdentity,
             "= 1 0 " + kIdentityData,
             "ask 1 512 " + kUnit + " AB",
             "+ 74",
             "> 7 82 A6 06 12 34 56 1F 03 02 00 AB *",
             "sent",
             "< FF FF 86 A6 06 12 34 56 1F 05 00 40 02 00 AB *",
             "= 1 512 0040AB",
             "ask 2 3 2606654321",
             "+ 74",
             "> 20 82 A6 06 65 43 21 03 00 *",
             "sent",
             "cancel 2 3",
             "= 2 3 cancelled",
             "ask 1 11 0000000000",
             "+ 303",
             "> 20 82 80 00 00 00 00 0B 00 *",
             "sent",
             "< FF FF 86 A6 06 12 34 56 0B 02 00 00 *",
             "= 1 11 0000",
             "ask 1 9 05",
             "+ 74",
             "> 20 02 85 09 00 *"}));
}

TEST(HartLine, AsksABusyDeviceAgainWhenItMay) {
  const std::string busy = "< FF FF 06 80 00 02 20 00 *";
  test_support::ModemScript(Options()).Run(Begun({busy, "= 1 0 2000"}));
  test_support::ModemScript(Options(2))
      .Run(Begun({busy, "+ 500", kPoll, "sent", busy, "+ 500", kPoll, "sent", busy, "= 1 0 2000"}));
  test_support::ModemScript(Options(2))
      .Run(Begun({busy, "+ 500", kPoll, "sent", "< FF FF 06 80 00 02 23 00 *", "= 1 0 2300"}));
}

}  // namespace
}  // namespace HartLinks
