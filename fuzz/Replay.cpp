#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "Fuzz.h"

// Runs a fuzz target on the files of the folders that the arguments name.
int main(int count, char** arguments) {
  int files = 0;
  for (int i = 1; i < count; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(arguments[i])) {
      std::printf("%s\n", entry.path().c_str());
      std::ifstream file(entry.path(), std::ios::binary);
      const std::vector<char> bytes(std::istreambuf_iterator<char>(file), {});
      LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
      ++files;
    }
  }
  fuzz::Check(files > 0, "there are files to replay");
}
