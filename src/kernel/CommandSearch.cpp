// Finding the command and transaction that read or write a variable.

#include "kernel/ArrayReach.h"
#include "kernel/CommandIndex.h"
#include "kernel/IndexedTest.h"
#include "kernel/KernelOperation.h"
#include "kernel/KernelTemplates.h"
#include "workerdb/CDDWorkerDB.h"

namespace ZAFHartLib {

using namespace ZAFHartTypes;

namespace {

constexpr int kFound = 1;
constexpr int kNotFound = 2;

std::vector<std::int16_t> NumbersOf(const Command& command) {
  std::vector<std::int16_t> numbers;
  for (const auto& transaction : command.Transactions()) numbers.push_back(transaction->Number());
  return numbers;
}

std::shared_ptr<CommandRef> Reported(KernelOperation& operation,
                                     std::shared_ptr<CommandRef> result) {
  if (result) return operation.Return(std::move(result), kFound);
  operation.ResultLine("<Result = Nothing ");
  operation.Release(kNotFound);
  return nullptr;
}

}  // namespace

// One search of the command list: a pass with the direct test, then one with the indexed test. With
// a database that tracks dependencies the index chooses the commands to visit.
class CHARTKernel::CommandSearch {
 public:
  CommandSearch(CHARTKernel& kernel, SearchKind kind, const Definition& item,
                std::shared_ptr<CommandRef> previous, std::shared_ptr<CDDWorkerDB> tracking)
      : kernel_(kernel),
        kind_(kind),
        item_(item),
        previous_(std::move(previous)),
        tracking_(std::move(tracking)) {
    if (previous_) {
      start_ = kernel_.commandList_.IndexOf(previous_->Command()->Definition()) - 1;
    }
  }

  std::shared_ptr<CommandRef> Run() {
    for (const Pass pass : {Pass::Direct, Pass::Indexed}) {
      std::size_t position = previous_ ? start_ : Next(pass, 0);
      for (; position < kernel_.commandList_.Count(); position = Next(pass, position + 1)) {
        if (auto found = Try(pass, position)) return found;
      }
    }
    return nullptr;
  }

 private:
  enum class Pass : bool { Direct, Indexed };

  std::size_t Next(Pass pass, std::size_t from) const {
    if (!tracking_) return from;
    const CommandIndex& index = *kernel_.commandIndex_;
    return pass == Pass::Direct ? index.NextDirect(kind_, item_.Key(), from)
                                : index.NextIndexed(item_.Key(), from);
  }

  std::shared_ptr<CommandRef> Try(Pass pass, std::size_t position) {
    const Definition definition = kernel_.commandList_.Item(position + 1);
    if (kind_ == SearchKind::Read && kernel_.Database()->IsCommandInRecursion(definition)) {
      return nullptr;
    }
    const bool continues = previous_ && position == start_;
    const auto command = continues ? previous_->Command() : kernel_.GetSafeCommand(definition);
    if (!command) return nullptr;
    if (tracking_ && !continues) UpdateIndex(pass, position, *command);
    const Operation wanted = kind_ == SearchKind::Read ? Operation::Read : Operation::Write;
    if (command->Operation() != wanted) return nullptr;
    bool skipping = continues;
    for (const std::int16_t number : NumbersOf(*command)) {
      if (skipping) {
        skipping = number != previous_->TransactionNumber();
      } else if (auto found = Test(pass, command, number)) {
        return found;
      }
    }
    return nullptr;
  }

  std::shared_ptr<CommandRef> Test(Pass pass, std::shared_ptr<Command> command,
                                   std::int16_t number) {
    if (pass == Pass::Indexed) {
      IndexedTest test(kind_, kernel_, kernel_.model_);
      return test.Passes(command, number, item_) ? std::make_shared<CommandRef>(command, number)
                                                 : nullptr;
    }
    const auto transaction = FindTransaction(*command, number);
    if (!transaction || !PassesDirectTest(kind_, *transaction, item_)) return nullptr;
    return std::make_shared<CommandRef>(command->CommandCopy(), number);
  }

  void UpdateIndex(Pass pass, std::size_t position, const Command& command) {
    CommandIndex& index = *kernel_.commandIndex_;
    if (index.NeedsContent(position)) index.PostContent(position, command, IsSettled(command));
    if (pass == Pass::Indexed && index.NeedsReach(position)) PostReach(position);
  }

  // The object's attributes are current, and the database will tell when they no longer are.
  bool IsSettled(const DDObject& object) const {
    return object.AttributesAvailable() &&
           !tracking_->HasMissingDependency(object.ObjectDefinition());
  }

  void PostReach(std::size_t position) {
    std::vector<TextKey> items;
    std::vector<TextKey> sources;
    std::vector<Definition> computed;
    bool settled = true;
    const auto uses = [&](const DDObject& source) {
      sources.push_back(source.ObjectDefinition().Key());
      computed.push_back(source.ObjectDefinition());
    };
    const auto lookup = [&](const Definition& definition) {
      std::shared_ptr<ItemCollection> collection;
      IgnoreFailures([&] { collection = kernel_.GetCollection(definition); });
      if (collection) {
        uses(*collection);
      } else {
        settled = false;
      }
      return collection;
    };
    const auto collect = [&](const Definition& item) {
      items.push_back(item.Key());
      return false;
    };
    const std::vector<Definition> variables = kernel_.commandIndex_->IndexVariables(position);
    const auto reach = [&](const Definition& definition) {
      const auto variable = kernel_.GetVariable(definition);
      uses(*variable);
      const ItemArray* array = IndexedArrayOf(*variable);
      if (!array) return;
      // A stale array is searched as it stands; the getter tells when it has been computed anew.
      sources.push_back(array->Definition().Key());
      for (std::size_t i = 0; i < array->Elements().size(); ++i) {
        const Definition item = array->Elements()[i].definition;
        VisitElementItem(item, lookup, collect);
      }
    };
    // The ordinary test alone decides whether a failure ends the search.
    for (const Definition& definition : variables) {
      if (!IgnoreFailures([&] { reach(definition); })) settled = false;
    }
    // At the end: computing one source may have made another stale.
    for (const Definition& source : computed) {
      settled = settled && IsSettled(*kernel_.Database()->ReadObject(source));
    }
    kernel_.commandIndex_->PostReach(position, std::move(items), std::move(sources), settled);
  }

  CHARTKernel& kernel_;
  SearchKind kind_;
  Definition item_;
  std::shared_ptr<CommandRef> previous_;
  std::shared_ptr<CDDWorkerDB> tracking_;
  std::size_t start_ = 0;  // position of the previous result's command
};

std::shared_ptr<CommandRef> CHARTKernel::FindReadCommand(
    const Definition& definition, const std::shared_ptr<CommandRef>& previous) {
  const auto prev = previous ? TraceScope::Input{trace_tag::kPrev, previous}
                             : TraceScope::Input{trace_tag::kNoPrev, {}};
  KernelOperation operation(*this, "IDDKernel_FindReadCommand",
                            {{trace_tag::kDef, definition}, prev});
  std::shared_ptr<CommandRef> result;
  if (!previous) result = Optimized(&ICommandOptimization::FindReadCommand, definition);
  if (!result) result = Search(SearchKind::Read, definition, previous, operation);
  return Reported(operation, std::move(result));
}

std::shared_ptr<CommandRef> CHARTKernel::FindWriteCommand(const Definition& definition) {
  KernelOperation operation(*this, "IDDKernel_FindWriteCommand", {{trace_tag::kDef, definition}});
  auto result = Optimized(&ICommandOptimization::FindWriteCommand, definition);
  if (!result) result = Search(SearchKind::Write, definition, nullptr, operation);
  return Reported(operation, std::move(result));
}

std::shared_ptr<CommandRef> CHARTKernel::Optimized(OptimizedSearch search,
                                                   const Definition& definition) {
  const auto components = model_.Model();
  const OptimizationTable records = optimizations_;
  for (const auto& record : records) {
    if (const auto found = ((*record).*search)(*components, definition)) return found->GetCopy();
  }
  return nullptr;
}

// A tracer that is shown the levels of this search is shown the visit of every command.
std::shared_ptr<CommandRef> CHARTKernel::Search(SearchKind kind, const Definition& definition,
                                                const std::shared_ptr<CommandRef>& previous,
                                                const TraceScope& trace) {
  if (previous && !previous->Command()) {
    throw Failure(ErrorNumber::ObjectNotSet, "IDDKernel_FindReadCommand",
                  "The previous result holds no command to go on from.");
  }
  auto tracking = trace.ShowsLevel() ? nullptr : TrackingDatabase();
  if (tracking && commandIndex_->Count() != commandList_.Count()) {
    commandIndex_->Reset(commandList_);
  }
  return CommandSearch(*this, kind, definition, previous, std::move(tracking)).Run();
}

}  // namespace ZAFHartLib
