#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/Command.h"
#include "interfaces/Codes.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Asked first about every error. An answer with bit 0 set means that the error is handled; a
// failure counts as not handled.
class ZAF_API IDDErrorHandler {
 public:
  virtual ~IDDErrorHandler() = default;
  virtual std::int32_t ObjectError(const std::shared_ptr<DDObject>& object, ItemIndex index) = 0;
  virtual std::int32_t ResponseCodeError(const CommandStatus& status,
                                         const std::shared_ptr<CommandRef>& command) = 0;
  virtual std::int32_t EvaluationError(const std::string& message) = 0;
};

}  // namespace ZAFHartTypes
