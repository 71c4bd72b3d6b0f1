#pragma once

#include <map>

#include "hartframe/report/Report.h"
#include "interfaces/IDDErrorHandler.h"

namespace hartframe {

// Listens to the errors that the GUI manager routes, and leaves handling them to it.
class ErrorWatch : public ZAFHartTypes::IDDErrorHandler {
 public:
  std::int32_t ObjectError(const std::shared_ptr<ZAFHartTypes::DDObject>& object,
                           ZAFHartTypes::ItemIndex index) override;
  std::int32_t ResponseCodeError(const ZAFHartTypes::CommandStatus& status,
                                 const std::shared_ptr<ZAFHartTypes::CommandRef>& command) override;
  std::int32_t EvaluationError(const std::string& message) override {
    evaluationError_ = message;
    return 0;
  }

  // How the write of the variable failed; Trouble::None when it did not.
  Trouble WriteTrouble(const ZAFHartTypes::Definition& definition) const;
  // For a write that was not tried, because it could not have been done properly.
  void SetWriteTrouble(const ZAFHartTypes::Definition& definition, Trouble trouble) {
    writes_[definition.Key().Folded()] = trouble;
  }
  // The last error of the DD's own code since Forget; "" without one.
  const std::string& EvaluationErrorText() const { return evaluationError_; }
  void Forget() { *this = {}; }

 private:
  std::map<std::string, Trouble> writes_;  // by folded name
  std::string evaluationError_;
};

}  // namespace hartframe
