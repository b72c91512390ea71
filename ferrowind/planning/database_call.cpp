#include "ferrowind/planning/database_call.h"

#include <algorithm>
#include <utility>

#include "ferrowind/data/exec_proc.h"
#include "ferrowind/data/module_state.h"
#include "ferrowind/data/record_set_in.h"
#include "ferrowind/planning/in_words.h"

namespace ferrowind::planning {
namespace {

//: said
const char* TextOf(std::int32_t return_value) {
  switch (return_value) {
    case 2:
      return "something else has that name already";
    case 3:
      return "the currency is unknown, or is no money in that year";
    case 4:
      return "there is no such rule";
    case 5:
      return "there is no such calendar";
    case 6:
      return "it exists already";
    case 7:
      return "a value is missing, malformed or out of range";
    case 8:
      return "it was changed meanwhile";
    case 9:
      return "a later call changed the same, or the history does not reach there";
    case 10:
      return "a removed rule has that name";
    default:
      return "for a reason that this program does not know";
  }
}

/// Why the procedure of the last call refused, where the gateway knows.
std::string WhyRefused() {
  const auto& too_long = Module().too_long_text;
  return too_long ? InWords(*too_long) : "";
}

/// The failure that the gateway keeps, which it keeps no longer: it would be reported beside this one.
platform::Failure TakeFailureOfCall(const std::string& doing) {
  if (std::exchange(Module().pending_failure_count, 0) == 0) {
    return {platform::failure_number::kInvalidArgument, InWords("%1: the call failed", {doing})};
  }
  const FailureRecord& pending = Module().pending_failures.front();
  return {pending.number, doing + ": " + pending.description};
}

}  // namespace

Refusal::Refusal(const std::string& doing, const std::string& procedure, std::int32_t return_value,
                 const std::string& why)
    : Failure(platform::failure_number::kInvalidArgument,
              InWords("%1: %2 (%3 returned %4)", {doing, why.empty() ? InWords(TextOf(return_value)) : why,
                                                  procedure, std::to_string(return_value)})),
      return_value_(return_value) {}

std::shared_ptr<platform::SharedConnections> ShareConnections() {
  return AttachedPlatform().commands.ShareConnections();
}

CallAnswer CallDatabase(const std::string& doing, const std::string& procedure,
                        const SourceValues& parameters, std::size_t least_record_sets,
                        std::initializer_list<std::int32_t> expected) {
  CallAnswer answer;
  std::shared_ptr<SourceValues> results;
  answer.return_value = ExecProc(procedure, &parameters, results);
  // A failure after the return value was read leaves it standing, but not all of the answer.
  if (answer.return_value == kCallFailed || Module().pending_failure_count != 0)
    throw TakeFailureOfCall(doing);
  if (answer.return_value != return_value::kDone) {
    const bool is_expected =
        std::find(expected.begin(), expected.end(), answer.return_value) != expected.end();
    if (!is_expected) throw Refusal(doing, procedure, answer.return_value, WhyRefused());
    return answer;
  }
  for (std::int32_t i = 1; results && i <= results->Count(); ++i) {
    auto records = RecordSetIn(results, results->Values(i)->Name);
    if (records) answer.record_sets.push_back(std::move(records));
  }
  if (answer.record_sets.size() < least_record_sets) {
    throw platform::Failure(platform::failure_number::kSubscriptOutOfRange,
                            InWords("%1: %2 gave only %3 of its %4 record sets",
                                    {doing, procedure, std::to_string(answer.record_sets.size()),
                                     std::to_string(least_record_sets)}));
  }
  return answer;
}

}  // namespace ferrowind::planning
