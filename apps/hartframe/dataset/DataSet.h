#pragma once

#include <span>
#include <vector>

#include "hartframe/Session.h"

namespace hartframe {

// How loading the data set from the device ended.
struct Loaded {
  std::vector<VariableRow> rows;  // variables of the upload menu
  std::size_t loaded = 0;
  std::size_t failed = 0;        // read, but not with a value from the device
  std::size_t notValid = 0;      // not valid in this configuration
  std::size_t notAttempted = 0;  // left by Ctrl-C, or unreadable as described
  ExitCode code = ExitCode::Ok;
  bool IsComplete() const { return code == ExitCode::Ok; }
  // The device gave not one value, and not because the user has ended it.
  bool IsFruitless() const { return loaded == 0 && !IsComplete() && code != ExitCode::Interrupted; }
};

// The menu that uploads and downloads go by: the DTM's upload menu or, when the DTM names none that
// it has, the library's own, which lists the whole configuration.
ZAFHartTypes::Definition UpDownloadMenu(Session& session);

// Loads the variables of that menu.
Loaded LoadDataSet(Session& session);
// The same variables as they stand in the data set; not attempted are those without a value.
Loaded HeldDataSet(Session& session);
// Says how it ended, in sentences; of a fruitless one only why.
void TellLoaded(Session& session, const Loaded& loaded);

// The worst trouble of the rows, and a sentence about each kind there is.
ExitCode CodeOfTroubles(std::span<const VariableRow> rows);
void TellTroubles(Session& session, std::span<const VariableRow> rows);

// Says how reading the variables went. Those are named that still have no value though nothing was
// wrong with the device: their description does not let the command be carried out
// (ExitCode::Internal, unless others had troubles).
ExitCode TellHowRead(Session& session, std::span<const VariableRow> read);

}  // namespace hartframe
