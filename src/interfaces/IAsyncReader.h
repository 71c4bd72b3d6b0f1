#pragma once

#include <memory>

#include "ddobjects/Command.h"
#include "platform/Export.h"

namespace ZAFHartTypes {

// Offered by kernels that read a variable in the background and tell which exchange does it.
class ZAF_API IAsyncReader {
 public:
  virtual ~IAsyncReader() = default;
  // Starts the read and returns. The result is the reference whose end a life signal
  // ExchangeFinished reports; nothing when no exchange was started. Raises as
  // IDDKernel::AsyncReadVariable.
  virtual std::shared_ptr<CommandRef> AsyncReadVariableEx(const Definition& definition) = 0;
};

}  // namespace ZAFHartTypes
