#include <algorithm>

#include "ddobjects/Menu.h"
#include "hartframe/Identity.h"
#include "hartframe/InfoTexts.h"
#include "hartframe/changes/Changes.h"
#include "hartframe/commands/Commands.h"
#include "hartframe/dataset/DataSet.h"
#include "hartframe/dataset/DataSetTexts.h"
#include "hartframe/dataset/KeptDataSet.h"
#include "hartframe/link/LinkResults.h"
#include "interfaces/InternalNames.h"

namespace hartframe {

namespace {

using ZAFHartTypes::Definition;
using ZAFHartTypes::ObjectKind;
namespace names = ZAFHartTypes::internal_names;

void TellDtm(Session& session) {
  const Speech& say = session.Say();
  const Options& options = session.Settings();
  auto& components = session.Components();
  std::string file;
  if (const auto information = components.KernelInformation()) {
    ZAFHartTypes::IgnoreFailures([&] { file = information->ComponentFileName(); });
  }
  std::vector<Fact> facts{
      {"class", say(Text::InfoClass), components.DataModelClass()},
      {"componentFile", say(Text::InfoFile), file},
      {"plugin", say(Text::InfoPlugin), session.PluginFile().string()},
      {"variables", say(Text::InfoVariables), std::to_string(session.AllVariables(false).size())},
      {"commands", say(Text::InfoCommands), std::to_string(session.Kernel().Commands().Count())},
      {"link", say(Text::InfoLink), LinkText(options)},
      {"pendingChanges", say(Text::InfoPending), std::to_string(LoadPending(session).size())}};
  session.Tell().Facts("dtmFacts", say(Text::InfoDtm), facts);
}

void TellDataSet(Session& session) {
  if (!session.Kept() || !session.Kept()->Loaded()) return;
  const Speech& say = session.Say();
  const StoredDataSet& dataSet = *session.Kept()->Loaded();
  std::vector<Fact> facts{
      {"file", say(texts::kFactFile), session.Kept()->Path().string()},
      {"saved", say(texts::kFactSaved), OneLine(dataSet.saved)},
      {"variables", say(texts::kFactVariables), std::to_string(dataSet.variables.size())},
      {"pendingChanges", say(Text::InfoPending), std::to_string(PendingVariables(session).size())}};
  session.Tell().Facts("dataSet", say(texts::kDataSetTitle), facts);
}

std::vector<VariableRow> ReadIdentity(Session& session) {
  std::vector<VariableRow> rows;
  const auto command = IdentityCommand(session);
  if (!command) return rows;
  constexpr std::size_t kFirstData = 3;  // behind response code and device status
  const auto& reply = command->Transactions().At(1)->Reply();
  session.Run([&] {
    for (std::size_t at = kFirstData; at <= reply.Count(); ++at) {
      const auto& item = reply.Item(at);
      if (!item.IsVariable() || session.Interrupted()) continue;
      rows.push_back(
          MakeRow(session.Kernel().ReadVariable(item.VariableDefinition()), session.Say()));
    }
  });
  return rows;
}

// Codes of the HART tables that the DTM has no text for are told as the tables have them.
std::string IdentityValue(const Session& session, const VariableRow& row) {
  constexpr std::string_view kCodes[] = {"manufacturer_id", "device_type",
                                         "private_label_distributor"};
  const bool isNumber = row.value.find_first_not_of("0123456789") == std::string::npos;
  if (session.Settings().json || row.value.empty() || !isNumber ||
      std::ranges::find(kCodes, row.name) == std::end(kCodes)) {
    return row.value;
  }
  return HexWord(static_cast<std::uint16_t>(row.variable->Value().ToLong()));
}

// The variables that the wrapper answers the address from, in a DTM that has them by these names.
void ReadAddress(Session& session) {
  for (const char* name : {"tag", "polling_address"}) {
    const Definition definition = Definition::Define(name, ObjectKind::Variable);
    if (session.Database().ReadObject(definition))
      session.Run([&] { session.Kernel().ReadVariable(definition); });
  }
}

ExitCode TellDevice(Session& session) {
  const Speech& say = session.Say();
  const std::vector<VariableRow> rows = ReadIdentity(session);
  const ExitCode code = session.Interrupted() ? ExitCode::Interrupted : CodeOfTroubles(rows);
  if (code != ExitCode::Ok) {
    session.Tell().Problem("noIdentity", say(Text::DeviceSilent));
    TellTroubles(session, rows);
    return code;
  }
  ReadAddress(session);
  std::int32_t pollingAddress = 0;
  std::string tag;
  std::string longAddress;
  session.Comm().GetAddressInformation(pollingAddress, tag, longAddress);
  std::vector<Fact> facts{
      {"tag", say(Text::InfoTag), OneLine(tag)},
      {"pollingAddress", say(Text::InfoPollingAddress), std::to_string(pollingAddress)},
      {"longAddress", say(Text::InfoLongAddress), longAddress}};
  for (const VariableRow& row : rows)
    facts.push_back({row.name, row.label, IdentityValue(session, row)});
  session.Tell().Facts("device", say(Text::InfoDevice), facts);
  return code;
}

void TellStates(Session& session) {
  // The library's own labels are partly alike, and in English only.
  constexpr std::pair<std::string_view, const char*> kStates[] = {
      {names::kOnlineMode, texts::kStateOnlineMode},
      {names::kDTMOnlineState, texts::kStateConnection},
      {names::kDataSetState, texts::kStateDataSet},
      {names::kStorageState, texts::kStateStorage},
      {names::kDataSetLockState, texts::kStateLock},
      {names::kFDTUserLevel, texts::kStateUserLevel},
      {names::kLastCommunicationError, texts::kStateLastError}};
  std::vector<Fact> facts;
  for (const auto& [name, label] : kStates) {
    const VariableRow row = session.Row(Definition::Define(name, ObjectKind::Variable));
    facts.push_back({row.name, session.Say()(label), row.value});
  }
  session.Tell().Facts("states", session.Say()(Text::InfoStates), facts);
}

}  // namespace

ExitCode RunInfo(Session& session) {
  TellDtm(session);
  TellDataSet(session);
  const ExitCode code = TellDevice(session);
  TellStates(session);
  return code;
}

}  // namespace hartframe
