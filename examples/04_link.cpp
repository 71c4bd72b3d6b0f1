// A link of one's own: answers from recorded bytes, and shows what the library asks a device.
//
//   link FOLDER-OF-DTMS
#include <cstdio>
#include <filesystem>
#include <map>

#include "components/CDDComponents.h"
#include "components/LibraryClasses.h"
#include "platform/Platform.h"
#include "text/DisplayString.h"

namespace {

using namespace ZAFHartTypes;

// A reply begins with response code and device status.
const std::map<std::int16_t, std::string>& Recorded() {
  static const std::map<std::int16_t, std::string> replies = {
      {0, "0000FE26060505010208000004D2"},  // HART 5, device number 1234
      // Tag "LINK 4", descriptor "RECORDED", 15 October 2025.
      {13,
       "0000"
       "30938B834820"
       "4850CF484144820820820820"
       "0F0A7D"},
  };
  return replies;
}

// Execute starts an exchange and returns; it ends from the message loop, as a real one would when
// the last byte has come. Whoever goes away or cancels ends what is under way.
class RecordedLink : public platform::Object, public ILink {
 public:
  ~RecordedLink() override {
    if (exchange_) Cancel(exchange_);
  }

  void Execute(const std::shared_ptr<Exchange>& exchange) override {
    exchange_ = exchange;
    exchange->SetState(ExchangeState::InProgress);
    timer_ = platform::Current().Loop().StartOnce(platform::Milliseconds(5), [this] { Answer(); });
  }

  void Cancel(const std::shared_ptr<Exchange>& exchange) override {
    if (exchange != exchange_) return;
    timer_.Cancel();
    std::exchange(exchange_, nullptr)->Finish(ExchangeState::Cancelled, ExchangeResult::None);
  }

 private:
  void Answer() {
    const auto exchange = std::exchange(exchange_, nullptr);
    const auto reply = Recorded().find(exchange->CommandNumber());
    const bool isKnown = reply != Recorded().end();
    std::printf(
        "command %d to %s: %s\n", exchange->CommandNumber(),
        exchange->LongAddress().empty() ? "polling address 0" : exchange->LongAddress().c_str(),
        isKnown ? reply->second.c_str() : "no reply");
    if (!isKnown) return exchange->Finish(ExchangeState::NoReply, ExchangeResult::None);
    exchange->SetReplyData(reply->second);
    exchange->Finish(ExchangeState::Completed, ExchangeResult::ReplyPresent);
  }

  std::shared_ptr<Exchange> exchange_;  // under way
  platform::Subscription timer_;
};

void Run(const char* folder) {
  auto& classes = platform::Current().Classes();
  ZAFHartLib::RegisterLibraryClasses(classes);
  classes.SetPluginPath({std::filesystem::absolute(folder)});
  classes.Register("Example.RecordedLink", [] { return std::make_shared<RecordedLink>(); });

  auto dtm = ZAFHartLib::CDDComponents::Create();
  dtm->SetDataModelClass("Generic.DataModel");
  dtm->SetCommWrapperClass("ZAFHartLib.CHARTCommWrapper");  // finds the device by command 0
  dtm->Initialize();
  std::dynamic_pointer_cast<ILinkUser>(dtm->HARTComm())->SetLinkClass("Example.RecordedLink");

  for (const char* name : {"tag", "message"}) {
    const auto variable =
        dtm->DDKernel()->ReadVariable(Definition::Define(name, ObjectKind::Variable));
    const std::string value = ZAFHartLib::GetVariableDisplayString(*variable);
    std::printf("%s: %s\n", name, variable->ErrorIndex() == 0 ? value.c_str() : "not read");
  }
  dtm->PrepareTermination();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: link FOLDER-OF-DTMS\n");
    return 2;
  }
  try {
    Run(argv[1]);
    return 0;
  } catch (const Failure& failure) {
    std::fprintf(stderr, "%s: %s\n", failure.Source().c_str(), failure.Description().c_str());
    return 1;
  }
}
