// The frame application on a real link: the demo device behind a HART-IP server.
#include <optional>

#include "hart/HexText.h"
#include "platform/Sockets.h"
#include "support/DeviceServer.h"
#include "support/HartframeTest.h"

namespace {

namespace hart = ZAFHartTypes::hart;
using namespace support;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* kLongAddress = "3A1012A4F7";

class HartframeLink : public Hartframe {
 protected:
  HartframeLink() { Plug(); }

  void Plug(const std::string& fault = "") {
    server_.reset();
    server_.emplace(device_, port_, fault);
    port_ = server_->Port();
  }
  Arguments OverLink(Arguments arguments, const std::string& rest = "") const {
    arguments.insert(arguments.end(),
                     {"--link", server_->Link(rest + "?timeout=300&connecttimeout=500"),
                      "--retries", "1", "--dtm", "SampleTemperature"});
    return arguments;
  }
  Result Over(const Arguments& arguments, const std::string& rest = "") const {
    return RunLine(OverLink(arguments, rest));
  }
  Json OverJson(Arguments arguments, int code = 0) const {
    arguments.push_back("--json");
    const Result result = Over(arguments);
    EXPECT_EQ(result.code, code) << result.error;
    return Json::parse(result.out);
  }

  std::uint16_t port_ = 0;
  std::optional<DeviceServer> server_;
};

TEST_F(HartframeLink, CommandsWorkOverIt) {
  const Result upload = Over({"upload"}, "/tcp");
  EXPECT_EQ(upload.code, 0) << upload.error;
  EXPECT_THAT(upload.out, HasSubstr("89 variables loaded from the device."));
  EXPECT_THAT(Over({"info", "--address", "TT-4711"}).out, HasSubstr(kLongAddress));
  EXPECT_EQ(Over({"write", "damping_value=3", "--address", kLongAddress}).code, 0);
  EXPECT_THAT(TempFolder::Read(device_), HasSubstr("\ndamping_value=3\n"));
  EXPECT_EQ(Over({"run", "loop_test", "--answer", "ok", "--answer", "20 mA", "--answer", "ok",
                  "--answer", "End of test", "--answer", "ok"})
                .code,
            0);
  const std::string set = (folder_ / "plant.dataset").string();
  EXPECT_EQ(Over({"save", set}).code, 0);
  EXPECT_EQ(Over({"pair", "tag=NEW", "--download", "--dataset", set}).code, 0);
  EXPECT_EQ(Over({"compare", "tag", "--dataset", set, "--address", "NEW"}).code, 0);
  EXPECT_EQ(Over({"watch", "tag", "--count", "1"}).code, 0);
  EXPECT_THAT(Over({"menu", "temp/device/output"}).out, HasSubstr("Upper range value"));
}

TEST_F(HartframeLink, WhatAnUnpluggedDeviceDidNotGetIsWrittenLater) {
  const std::string set = (folder_ / "plant.dataset").string();
  server_->UnplugAt(22);
  const Json cut = OverJson(
      {"download", "message=ONE", "long_tag=Two", "final_assembly_number=3", "--dataset", set}, 2);
  std::map<std::string, Json> writes;
  for (const Json& write : cut["writes"]) writes[write["variable"]["name"]] = write;
  EXPECT_EQ(writes["message"]["outcome"], "written");
  EXPECT_EQ(writes["long_tag"]["outcome"], "noAnswer");
  EXPECT_EQ(writes["long_tag"]["meant"], "Two");
  EXPECT_EQ(writes["final_assembly_number"]["outcome"], "notAttempted");
  EXPECT_EQ(cut["problems"].back()["code"], "noDevice");

  server_.reset();
  EXPECT_EQ(Over({"write", "--dataset", set}).code, 2) << "nobody there";
  Plug();
  const Result again = Over({"write", "--dataset", set});
  EXPECT_EQ(again.code, 0) << again.error;
  EXPECT_THAT(again.out, AllOf(HasSubstr("Two "), HasSubstr("40 of 40 written to the device.")));
  EXPECT_THAT(TempFolder::Read(device_),
              AllOf(HasSubstr("\nlong_tag=Two\n"), HasSubstr("\nfinal_assembly_number=3\n")));
}

TEST_F(HartframeLink, ChangesAreKeptWhereTheUserSays) {
  const std::string pending = (folder_ / "changes").string();
  server_->UnplugAt(0);
  EXPECT_THAT(Over({"write", "alarm_delay=9"}).out, HasSubstr("--pending FILE"));
  EXPECT_EQ(Over({"write", "alarm_delay=9", "--pending", pending}).code, 2);
  Plug();
  EXPECT_EQ(Over({"write", "--pending", pending}).code, 0);
  EXPECT_THAT(TempFolder::Read(device_), HasSubstr("\nalarm_delay=9\n"));
}

TEST_F(HartframeLink, NothingIsWrittenToAnotherDevice) {
  SetInDevice("device_type", "device_type=17");
  Plug();
  const std::string pending = (folder_ / "changes").string();
  const Json wrong = OverJson({"write", "tag=NEW", "--pending", pending}, 12);
  EXPECT_EQ(wrong["result"], "wrongDevice");
  EXPECT_THAT(wrong["problems"].back()["text"].get<std::string>(),
              HasSubstr("The wrong device is connected."));
  EXPECT_THAT(TempFolder::Read(device_), Not(HasSubstr("\ntag=NEW\n")));
  EXPECT_THAT(TempFolder::Read(pending), HasSubstr("tag=NEW"));
}

TEST_F(HartframeLink, FaultsOfTheDeviceAreTold) {
  Plug("response:7:2");  // of finding the device, and of reading
  EXPECT_EQ(Over({"read", "tag"}).code, 2) << "whoever refuses to say who he is, is nobody";
  Plug("busy:3");
  EXPECT_EQ(Over({"read", "tag", "--busy", "5"}).code, 0) << "asked again";
  server_.reset();
  const Result upload = Over({"upload"});
  EXPECT_EQ(upload.code, 2);
  EXPECT_EQ(upload.out, "") << "no values that nobody has read";
  const std::string nobody = "127.0.0.1:" + std::to_string(port_);
  const Result none = RunLine({"read", "tag", "--lang", "de", "--dtm", "SampleTemperature",
                               "--link", "hartip://" + nobody + "/tcp?connecttimeout=300"});
  EXPECT_EQ(none.code, 2);
  EXPECT_THAT(none.error, AllOf(HasSubstr("ist nicht erreichbar: 127.0.0.1:"),
                                HasSubstr("Connection refused"), HasSubstr("Prüfen Sie")));
  const Result setting = RunLine({"scan", "--link", "hartip://" + nobody + "?baud=1200"});
  EXPECT_EQ(setting.code, 1);
  EXPECT_THAT(setting.error, HasSubstr("no setting \"baud\"; it has: BusyAttempts"));
  const Result port = RunLine({"scan", "--link", "modem:/dev/no-such-port"});
  EXPECT_EQ(port.code, 2);
  EXPECT_THAT(port.error, HasSubstr("/dev/no-such-port"));
}

TEST_F(HartframeLink, CtrlCEndsAWaitAtOnceAndKeepsWhatWasTyped) {
  const auto silent = platform::UdpSocket::BindTo(*platform::NumericAddress("127.0.0.1", 0));
  const std::string link =
      "hartip://127.0.0.1:" + std::to_string(silent.LocalAddress().port) + "?connecttimeout=600000";
  const std::string pending = (folder_ / "changes").string();
  for (const auto& [command, sign] :
       {std::pair{Arguments{"write", "alarm_delay=9", "--dtm", "SampleTemperature", "--trace", "1",
                            "--pending", pending},
                  "ReadVariable"},
        std::pair{Arguments{"scan"}, "Looking for devices"}}) {
    Arguments arguments = command;
    arguments.insert(arguments.end(), {"--link", link});
    ChildProgram program(Line(arguments), ChildProgram::Streams::Pipes);
    ASSERT_TRUE(program.WaitFor(sign));
    program.Interrupt();
    EXPECT_EQ(program.Finish(), 130) << command[0];
  }
  EXPECT_THAT(TempFolder::Read(pending), HasSubstr("\nalarm_delay=9\n"));
}

TEST_F(HartframeLink, ScanTellsWhoAnswers) {
  const Json scan = OverJson({"scan", "--to", "2"});
  ASSERT_EQ(scan["devices"].size(), 1U);
  const Json& device = scan["devices"][0];
  EXPECT_EQ(device["pollingAddress"], 0);
  EXPECT_EQ(device["longAddress"], kLongAddress);
  EXPECT_EQ(device["tag"], "TT-4711");
  EXPECT_EQ(device["deviceRevision"], 2);
  const Result none = Over({"scan", "--from", "1", "--to", "2"});
  EXPECT_EQ(none.code, 2);
  EXPECT_THAT(none.out, StartsWith("0 devices found."));
}

// At address 0 a gateway that has two devices behind it, at address 1 somebody who makes no sense.
std::optional<HartLinkSim::WireReply> AnswerAsGateway(const hart::DecodedFrame& request) {
  const bool isLong = request.frame.address.isLong;
  const std::string address = hart::ToHex(request.frame.address.bytes);
  std::string reply;
  switch (request.frame.command) {
    case 0:
      if (address.starts_with("00"))
        reply =
            "0000"
            "FE3A10050701010804000001";
      if (address.starts_with("01")) reply = "0000FE";
      break;
    case 13:
      if (address == "2606ABCDEF")
        reply =
            "0000"
            "514B74DF1C60"
            "000000000000000000000000"
            "010101";
      break;
    case 74:
      reply =
          "0000010108"
          "0003"
          "020303";
      break;
    case 84:
      reply =
          "0000"
          "0001"
          "0000"
          "0026"
          "E606"
          "ABCDEF"
          "07"
          "41" +
          std::string(62, '0') + "03";
      // By an earlier revision of the command.
      if (request.frame.data == std::vector<std::uint8_t>{0, 2}) reply.resize(reply.size() - 2);
      break;
    default:
      reply = "4000";
  }
  if (reply.empty() || (request.frame.command == 0 && isLong)) return std::nullopt;
  return HartLinkSim::WireReply{
      hart::EncodeFrame(hart::ReplyFrame(request.frame, hart::FromHex(reply))), {}};
}

TEST_F(HartframeLink, ScanLooksBehindAGateway) {
  const ServerThread gateway([](const ServerThread::Serve& serve) { serve(AnswerAsGateway); }, 0);
  const Result result =
      RunLine({"scan", "--to", "2", "--json", "--link", gateway.Link("?timeout=300")});
  EXPECT_EQ(result.code, 2) << "at address 1 is something wrong";
  const Json scan = Json::parse(result.out);
  ASSERT_EQ(scan["devices"].size(), 3U) << result.out;
  EXPECT_EQ(scan["devices"][0]["longAddress"], "3A10000001");
  EXPECT_EQ(scan["devices"][0]["pollingAddress"], 0);
  const Json& behind = scan["devices"][1];
  EXPECT_TRUE(behind["pollingAddress"].is_null());
  EXPECT_EQ(behind["longAddress"], "2606ABCDEF");
  EXPECT_EQ(behind["manufacturer"], 0x26);
  EXPECT_EQ(behind["deviceRevision"], 3);
  EXPECT_EQ(behind["longTag"], "A");
  EXPECT_EQ(scan["devices"][2]["longTag"], "A");
  EXPECT_EQ(behind["tag"], "TT-4711");
  ASSERT_EQ(scan["problems"].size(), 1U);
  EXPECT_THAT(scan["problems"][0]["text"].get<std::string>(), StartsWith("Polling address 1: "));
}

TEST_F(HartframeLink, RawCommandsGoAsTheyAre) {
  const Json identity = OverJson({"raw", "0"})["reply"];
  EXPECT_EQ(identity["responseCode"], 0);
  EXPECT_THAT(identity["data"].get<std::string>(), StartsWith("FEFA10"));
  EXPECT_THAT(Over({"raw", "0x6", "05", "01", "--address", "TT-4711"}).out,
              AllOf(HasSubstr(kLongAddress), HasSubstr("05")));
  EXPECT_THAT(TempFolder::Read(device_), HasSubstr("\npolling_address=5\n"));
  EXPECT_EQ(Over({"raw", "13", "--address", "5"}).code, 0);
  EXPECT_EQ(Over({"raw", "13", "--address", "0"}).code, 2) << "nobody there any more";
  EXPECT_EQ(OverJson({"raw", "999", "--address", kLongAddress}, 3)["reply"]["responseCode"], 64);
  const Json extended = OverJson({"raw", "31", "0x03e7", "00", "--address", kLongAddress}, 3);
  EXPECT_EQ(extended["reply"]["command"], 999) << "the number that command 31 carries";
  EXPECT_EQ(Over({"raw", "0", "0G"}).code, 1);
  EXPECT_EQ(Over({"raw", "6", "01", "--user-level", "observer"}).code, 7);
}

TEST_F(HartframeLink, RecordsWhatGoesOverEveryLink) {
  const std::string record = (folder_ / "x.pcap").string();
  const std::string reply = "TT-4711 in Packed ASCII";
  const std::string packed("\x51\x4B\x74\xDF\x1C\x60", 6);
  EXPECT_EQ(Over({"read", "tag", "--pcap", record}).code, 0);
  EXPECT_THAT(TempFolder::Read(record), HasSubstr(packed)) << reply;
  server_.reset();
  EXPECT_EQ(Run({"read", "tag", "--pcap", record}).code, 0);
  EXPECT_THAT(TempFolder::Read(record), HasSubstr(packed)) << reply;
  EXPECT_EQ(Run({"read", "tag", "--pcap", (folder_ / "none" / "x").string()}).code, 6);
}

}  // namespace
