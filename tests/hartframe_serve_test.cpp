// The serving program: the demo device behind HART-IP and on a modem's line.
#include <optional>

#include "support/HartframeTest.h"

namespace {

using namespace support;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

TEST_F(Hartframe, ServesUntilItIsAskedToEnd) {
  const std::string line = (folder_ / "line").string();
  std::string port = "0";
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    ChildProgram serve(WithDevice({"serve", "--hart-ip", port, "--pty", line}),
                       ChildProgram::Streams::Terminal);
    ASSERT_TRUE(serve.WaitFor("pty " + line)) << serve.Error();
    const std::size_t place = serve.Error().find("127.0.0.1:") + 10;
    port = serve.Error().substr(place, serve.Error().find('\r', place) - place);
    for (const std::string& link : {"hartip://127.0.0.1:" + port + "/tcp", "modem:" + line})
      EXPECT_EQ(RunLine({"raw", "0", "--link", link}).code, 0) << "the same places each time";
    serve.Signal(signal);
    EXPECT_EQ(serve.Finish(), 0) << "signal " << signal;
    EXPECT_THAT(serve.Error(), AllOf(HasSubstr("2 requests answered."), Not(HasSubstr("Load"))));
    EXPECT_FALSE(std::filesystem::is_symlink(line));
  }
}

TEST_F(Hartframe, WorksOverAModemsLine) {
  const std::string line = (folder_ / "line").string();
  std::optional<ChildProgram> modem;
  const auto plug = [&] {
    modem.emplace(WithDevice({"serve", "--pty", line}), ChildProgram::Streams::Terminal);
    ASSERT_TRUE(modem->WaitFor("pty ")) << modem->Error();
  };
  const auto over = [&](Arguments arguments) {
    arguments.insert(arguments.end(), {"--link", "modem:" + line + "?master=secondary", "--dtm",
                                       "SampleTemperature", "--pending", line + ".pending"});
    return RunLine(arguments);
  };
  ASSERT_NO_FATAL_FAILURE(plug());
  EXPECT_THAT(over({"upload"}).out, HasSubstr("89 variables loaded from the device."));
  EXPECT_THAT(over({"scan", "--to", "1"}).out, HasSubstr("3A1012A4F7"));
  const Result second = Run({"serve", "--hart-ip", "0", "--pty", line});
  EXPECT_EQ(second.code, 2) << "the line is another one's";
  EXPECT_EQ(second.out, "") << "and nothing is served";
  EXPECT_THAT(second.error, HasSubstr("which another program may use"));
  modem.reset();
  std::filesystem::remove(line);  // its number may be another terminal's by now
  const Result unplugged = over({"write", "alarm_delay=9"});
  EXPECT_EQ(unplugged.code, 2);
  EXPECT_THAT(unplugged.error, HasSubstr(line));
  ASSERT_NO_FATAL_FAILURE(plug());
  EXPECT_EQ(over({"write"}).code, 0);
  EXPECT_THAT(TempFolder::Read(device_), HasSubstr("\nalarm_delay=9\n"));
}

}  // namespace
