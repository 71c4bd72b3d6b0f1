#include "platform/Object.h"

namespace platform {

Object::~Object() = default;

}  // namespace platform
