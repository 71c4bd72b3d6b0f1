#pragma once

#include <unordered_map>

#include "hartframe/Session.h"
#include "hartframe/dataset/DataSetFile.h"
#include "types/TextKey.h"

namespace hartframe {

// The data set of a session on disk: the device's variables that have a value, without live ones,
// and of the library's own those that a user sets or that both sides of a pair share. Values are
// kept whether they are valid or not.
class KeptDataSet {
 public:
  KeptDataSet(Session& session, std::filesystem::path path);

  const std::filesystem::path& Path() const { return file_.Path(); }
  bool IsNew() const { return !loaded_; }
  // What the file said; nothing for a new one.
  const std::optional<StoredDataSet>& Loaded() const { return loaded_; }

  // Takes over the file's values and marks, all of them or, when it is refused (CommandFailure,
  // FileBroken), none. Nothing for a file that is not there.
  void Restore();
  // The connected device is not the one that the values were taken from: those that are not to be
  // written are to be read again. Values that nobody reads keep their mark in the file.
  void ExpectReading();
  // The values of the device type in the file go with no other than the one connected to `online`:
  // CommandFailure (NotAllowed), and the file stays as it is. A device that does not answer passes.
  void RequireSameDevice(Session& online);
  // The file does not say the same; there may be none.
  bool HasChanged() { return !SaysTheSame(Current()); }
  // Writes the file when something has changed. CommandFailure (FileBroken). A file that another
  // program has changed meanwhile stays as it is: the data set then goes into one beside it, where
  // it is kept from now on, and the failure names it.
  void Keep();
  // The file stays as it is from now on.
  void Abandon() { isAbandoned_ = true; }
  bool IsAbandoned() const { return isAbandoned_; }
  // After values were put into the data set with those of their units: a change of a unit from now
  // on converts from these.
  void SettleUnits();
  // Writes the same to another file; the number of variables.
  std::size_t SaveTo(const DataSetFile& file);
  // CommandFailure (FileBroken) for a data set of another DTM, or of a newer version of this one.
  static void RequireSameDtm(Session& session, const DataSetFile& file,
                             const StoredDataSet& dataSet);

 private:
  struct Restored {
    ZAFHartTypes::Definition definition;
    const StoredVariable* stored;
  };
  std::vector<Restored> Resolve(const StoredDataSet& dataSet) const;
  void Apply(const Restored& restored);
  void RefuseType(const StoredVariable& stored, const ZAFHartTypes::Variable& variable) const;

  StoredDataSet Current();
  // The file is as it was restored or last written; it may be gone.
  bool IsAsLeft() const;
  void Store(StoredDataSet dataSet);
  bool SaysTheSame(const StoredDataSet& dataSet) const;
  bool IsAvailable(const ZAFHartTypes::Variable& variable) const;
  // Of the identity that a variable tells; nothing while it is not known.
  std::optional<std::int32_t> Known(std::string_view name) const;

  Session& session_;
  DataSetFile file_;
  std::optional<StoredDataSet> loaded_;
  // Values that the file holds as available, by variable.
  std::unordered_map<ZAFHartTypes::TextKey, ZAFHartTypes::Variant, ZAFHartTypes::TextKeyHash>
      available_;
  bool isAbandoned_ = false;
};

}  // namespace hartframe
