#include "common/HartItems.h"
#include "sampletemperature/Description.h"

namespace sampletemperature {

void DescribeIdentityVariables(DeviceDescription& dd) {
  hart::DescribeIdentityVariables(dd);
  dd.Known("device_type")
      .Enumerated(2, MakeEnums({{0xFA10,
                                 "Sample temperature transmitter|de|"
                                 "Beispiel-Temperaturmessumformer"}}));
  dd.Known("tag").Default("TT-0000");
  dd.Known("descriptor").Default("TEMPERATURE");
  dd.Known("message").Default("NO MESSAGE");
  dd.Known("long_tag").Default("Temperature transmitter");
}

}  // namespace sampletemperature
