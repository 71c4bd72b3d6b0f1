#include <string>

#include "Fuzz.h"
#include "InputFile.h"
#include "components/COptDataReader.h"
#include "support/StubComponents.h"

// The lines of a DTM's "OptData.Ini", read into a database and reported about to the kernel.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fuzz::InputFile file("Device/OptData.Ini");
  const std::string_view text = fuzz::AsText({data, size});
  file.Fill(text);
  const auto components = test_support::StubComponents::Create();
  const auto information = std::make_shared<test_support::StubInformation>();
  information->folder = fuzz::InputFile::Folder().string();
  components->information = information;

  ZAFHartLib::COptDataReader reader;
  fuzz::Check(reader.ConfigureOptimization(*components), "no content keeps a DTM from starting");
  const std::string& report = reader.ErrorReport();
  fuzz::Check(report.ends_with("\r\n"), "a report is made of lines");
  fuzz::Check(report.size() <= 200 * (text.size() + 4), "a report grows with what it reports");
  return 0;
}
