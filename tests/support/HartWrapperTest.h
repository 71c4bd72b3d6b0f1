#pragma once

#include "comm/CHARTCommWrapper.h"
#include "ddobjects/SupportedDevices.h"
#include "support/CommTest.h"
#include "support/HartLine.h"
#include "types/Failure.h"

namespace test_support {

using State = DtmOnlineState;

struct InformationWithDevices : StubInformation, ISupportedDevices {
  std::vector<SupportedDevice> SupportedDevices() const override { return devices; }
  std::vector<SupportedDevice> devices;
};

// The wrapper for real links in the place of the other one.
struct HartWrapperTest : CommTest {
  HartWrapperTest() {
    comm->SetComponentModel(nullptr);
    components->comm = hart;
    components->information = information;
    hart->SetComponentModel(components);
    hart->SetLink(line);
    line->onExecute = [this] { Note(); };
  }
  // The states that the line has seen, and the present one.
  void Note() {
    const auto state = static_cast<State>(Stored("__ZAF__DTMOnlineState").ToLong());
    if (states.empty() || states.back() != state) states.push_back(state);
  }
  bool Read(std::int16_t number = 3) {
    pv->SetErrorText("");
    pv->SetAvailable(false);
    transaction = MakeTransaction({}, {BoundItem(pv)});
    return hart->ExecuteCommand(number, transaction);
  }
  std::shared_ptr<CommandRef> ReadInBackground(std::int16_t number) {
    auto command = MakeObject<Command>("async_" + std::to_string(number));
    command->SetNumber(number);
    command->Transactions().Put(MakeTransaction({}, {BoundItem(pv)}));
    auto reference = std::make_shared<CommandRef>(command, std::int16_t{0});
    hart->AsyncExecuteCommand(reference);
    return reference;
  }
  ErrorNumber WriteFailure() {
    const auto range = MakeVariable("range", TypeCode::Unsigned, 1, std::int32_t{7});
    range->SetToBeWritten(true);
    try {
      hart->ExecuteCommand(35, MakeTransaction({BoundItem(range)}, {BoundItem(range)}));
    } catch (const Failure& failure) {
      EXPECT_TRUE(range->ToBeWritten());
      EXPECT_EQ(range->Value(), Variant(7));
      return failure.Number();
    }
    return {};
  }

  std::shared_ptr<CHARTCommWrapper> hart = std::make_shared<CHARTCommWrapper>();
  std::shared_ptr<HartLine> line = std::make_shared<HartLine>();
  std::shared_ptr<InformationWithDevices> information = std::make_shared<InformationWithDevices>();
  std::shared_ptr<Variable> pv = MakeVariable("pv", TypeCode::Float, 4, 12.5F);
  std::vector<State> states;
};

}  // namespace test_support
