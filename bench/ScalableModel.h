#pragma once

#include <cstddef>
#include <memory>

#include "components/CDDComponents.h"
#include "dtmkit/dtmkit.h"

// A data model that grows: n variables in groups of eight, one command that reads each group and
// one that writes it (n / 4 commands in all), an item array of 16 elements read and written by
// index, ten unit relations and ten refresh relations whatever n is, and a command of ten items.
namespace bench {

inline constexpr std::size_t kGroup = 8;

// Name of variable i (from 0).
std::string VariableName(std::size_t i);
ZAFHartTypes::Definition VariableDefinition(std::size_t i);

// A DTM instance of that size over the echo link, dependencies tracked.
std::shared_ptr<ZAFHartLib::CDDComponents> MakeInstance(std::size_t variables);
// The same of any description, which stays as it is; see DescribeDevice.
std::shared_ptr<ZAFHartLib::CDDComponents> MakeInstance(
    const ZAFHartTypes::dtmkit::DeviceDescription& description);
// What every description needs to be addressed, and the command "read_ten", 127, of ten items.
void DescribeDevice(ZAFHartTypes::dtmkit::DeviceDescription& dd);
// An instance of the DTM that ships with the library.
std::shared_ptr<ZAFHartLib::CDDComponents> MakeSampleInstance();

}  // namespace bench
