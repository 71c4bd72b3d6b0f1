#include "platform/ModuleFolder.h"

#include <dlfcn.h>

namespace platform {

std::filesystem::path ModuleFolder(const void* address) {
  Dl_info info{};
  if (dladdr(address, &info) == 0 || !info.dli_fname) return {};
  std::error_code error;
  const auto file = std::filesystem::absolute(info.dli_fname, error);
  return error ? std::filesystem::path() : file.parent_path();
}

}  // namespace platform
