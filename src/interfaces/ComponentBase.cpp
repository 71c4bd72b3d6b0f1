#include "interfaces/ComponentBase.h"

namespace ZAFHartTypes {

std::shared_ptr<IDDComponents> ModelReference::Model() const {
  auto model = components_.lock();
  if (!model) RaiseTornDown();
  return model;
}

void ModelReference::RaiseTornDown() {
  throw Failure(ErrorNumber::ObjectNotSet, "ZAFHartLib",
                "The DTM instance is not initialised or has been torn down.");
}

}  // namespace ZAFHartTypes
