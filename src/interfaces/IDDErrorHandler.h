#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "ddobjects/ByteBuffer.h"
#include "ddobjects/Command.h"
#include "interfaces/Codes.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Asked first about every error: the way in which a host without controls learns of them (set it
// with IDDDTMGUI::SetErrorHandler after IDDComponents are initialised). An answer with bit 0 set
// means that the error is handled and is not shown any more; a failure counts as not handled.
class ZAF_API IDDErrorHandler {
 public:
  virtual ~IDDErrorHandler() = default;
  // `index` tells what kept the object from being used: ReadNotValid of each variable that an
  // upload leaves out because the configuration does not have it, CannotRead, CannotWrite, …. Asked
  // before the error is recorded on the variable.
  virtual std::int32_t ObjectError(const std::shared_ptr<DDObject>& object, ItemIndex index) = 0;
  // Comes after each write of a variable that was answered without a communication error, with a
  // `status.responseCode` of 0 when it went well; `command` is the one that was sent. Not for
  // reads, whose errors stand on the variables, nor for commands that methods send.
  virtual std::int32_t ResponseCodeError(const CommandStatus& status,
                                         const std::shared_ptr<CommandRef>& command) = 0;
  // What the DD or the DTM does wrong, in English: a method that uses a variable or command which
  // is not defined, say, and is aborted for it.
  virtual std::int32_t EvaluationError(const std::string& message) = 0;
};

}  // namespace ZAFHartTypes
