#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>

#include "support/ChildProgram.h"
#include "support/TempFolder.h"

namespace support {

using Arguments = std::vector<std::string>;
using Json = nlohmann::json;

struct Result {
  int code;
  std::string out;
  std::string error;
};

// Runs the frame application over a copy of the demo device.
class Hartframe : public testing::Test {
 protected:
  Hartframe() { folder_.Write("device.txt", TempFolder::Read(ZAF_DEMO_DEVICE)); }

  Arguments Line(const Arguments& arguments) const {
    Arguments line{ZAF_HARTFRAME};
    line.insert(line.end(), arguments.begin(), arguments.end());
    return line;
  }
  Arguments WithDevice(Arguments arguments) const {
    arguments.insert(arguments.end(), {"--dtm", "SampleTemperature", "--device", device_});
    return Line(arguments);
  }
  static Result Finish(ChildProgram& program) {
    const int code = program.Finish();
    return {code, program.Out(), program.Error()};
  }
  Result RunLine(const Arguments& arguments) const {
    ChildProgram program(Line(arguments), ChildProgram::Streams::Pipes);
    return Finish(program);
  }
  Result Run(const Arguments& arguments) const {
    ChildProgram program(WithDevice(arguments), ChildProgram::Streams::Pipes);
    return Finish(program);
  }
  Json RunJson(Arguments arguments, int code = 0) const {
    arguments.push_back("--json");
    const Result result = Run(arguments);
    EXPECT_EQ(result.code, code) << result.error;
    Json json = Json::parse(result.out);
    EXPECT_EQ(json["exitCode"], code);
    return json;
  }
  Json ReadValue(const std::string& name) const {
    return RunJson({"read", name})["variables"][0]["value"];
  }
  // Replaces a line of the device file.
  void SetInDevice(const std::string& name, const std::string& line) const {
    std::string text = TempFolder::Read(device_);
    const auto at = text.find("\n" + name + "=") + 1;
    text.replace(at, text.find('\n', at) - at, line);
    folder_.Write("device.txt", text);
  }
  std::string PendingFile() const { return TempFolder::Read(device_ + ".pending"); }

  TempFolder folder_;
  const std::string device_ = (folder_ / "device.txt").string();
};

}  // namespace support
