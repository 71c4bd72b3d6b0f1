#include <stdexcept>

// A plug-in whose static initialiser throws, which ends the process that loads it.
namespace {

struct Thrower {
  Thrower() { throw std::runtime_error("thrown while the plug-in is loaded"); }
};
const Thrower thrower;

}  // namespace
