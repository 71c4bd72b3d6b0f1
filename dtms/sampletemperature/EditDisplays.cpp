#include "sampletemperature/Description.h"

namespace sampletemperature {

// Forms whose fields belong together.
void DescribeEditDisplays(DeviceDescription& dd) {
  dd.EditDisplay("range_form")
      .Label("Measuring range|de|Messbereich")
      .Display({"primary_variable", "lower_transducer_limit", "upper_transducer_limit",
                "minimum_span", "measuring_span"})
      .EditAsOne({"range_values"})
      .Edit({"damping_value"})
      .PreEdit({"start_range"})
      .PostEdit({"check_span"});
  dd.EditDisplay("service_form")
      .Label("Service record|de|Wartungsprotokoll")
      .Display({"operating_hours", "operating_days"})
      .Edit({"service_date", "service_interval", "service_note"});
}

}  // namespace sampletemperature
