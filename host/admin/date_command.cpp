#include "host/admin/date_command.h"

#include <exception>
#include <istream>
#include <memory>
#include <ostream>

#include "ferrowind/business_days/day_failures.h"
#include "ferrowind/loading/day_loader.h"

#include "host/admin/database_content.h"
#include "host/admin/date_line.h"
#include "host/admin/day_reloader.h"
#include "host/admin/text_escapes.h"

namespace ferrowind::host {
namespace {

std::unique_ptr<loading::DayLoader> Load(const platform::EngineRegistry& engines, const std::string& url,
                                         const DateAnswering& answering) {
  using Names = loading::DayLoader::Names;
  const Names names = answering.tells_why ? Names::kLoaded : Names::kLeftOut;
  std::unique_ptr<loading::DayLoader> loader;
  RunWithCalendars(engines, url, [&] { loader = std::make_unique<loading::DayLoader>(engines, url, names); });
  return loader;
}

}  // namespace

ExitStatus DateCommand::Run(const platform::EngineRegistry& engines, std::ostream& out,
                            std::ostream& errors) const {
  const auto say = [&](const std::exception& error) {
    errors << "ferrowindctl: " << OneLine(error.what()) << '\n';
  };
  try {
    const DateAnswer answer = AnswerDateQuestion(words, *Load(engines, url, answering)->Current(), answering);
    if (format == AnswerFormat::kJson) {
      out << JsonLineOf(words, answer, answering) << '\n';
    } else {
      for (const PassedDay& passed : answer.passed) out << OneLine(passed.Text()) << '\n';
      out << answer.text << '\n';
    }
    if (!answer.remark.empty()) errors << "ferrowindctl: " << OneLine(answer.remark) << '\n';
    return answer.status;
  } catch (const business_days::NotPrepared& failure) {
    say(failure);
    return ExitStatus::kNotPrepared;
  } catch (const std::exception& error) {
    say(error);
    return ExitStatus::kNotAnswered;
  }
}

ExitStatus DateServeCommand::Run(const platform::EngineRegistry& engines, std::istream& in, std::ostream& out,
                                 std::ostream& errors) const {
  const auto loader = Load(engines, url, answering);
  const DayReloader reloader(engines, url, *loader, errors);
  while (const auto line = NextDateLine(in)) {
    out << AnswerDateLine(*line, *loader->Current(), answering, format) << '\n' << std::flush;
    if (!out) break;
  }
  return ExitStatus::kDone;
}

}  // namespace ferrowind::host
