#include "cli/commands/commands.h"

#include <algorithm>
#include <array>
#include <exception>
#include <utility>

#include "cli/completion.h"
#include "cli/help_text.h"
#include "cli/parallel.h"
#include "cli/standard_streams.h"

namespace kelvo::cli {
namespace {

using Work = ExitCode (*)(const Arguments& arguments, const Ports& ports);

ExitCode Help(const Arguments& arguments, const Ports&) {
  if (arguments.operands.empty()) return Print(HelpOnCommands()), kDone;
  const Command* command = FindCommand(arguments.operands.front());
  if (command == nullptr) throw UsageError("there is no command \"" + arguments.operands.front() + "\"");
  return Print(HelpOn(*command)), kDone;
}

ExitCode PrintCompletion(const Arguments& arguments, const Ports&) {
  const std::string script = CompletionFor(arguments.operands.front());
  if (script.empty()) throw UsageError("completion is there for bash and zsh", arguments.command);
  return Print(script), kDone;
}

ExitCode PrintManual(const Arguments&, const Ports&) {
  return Print(ManualPage()), kDone;
}

constexpr std::array<std::pair<std::string_view, Work>, 15> kWork{{
    {"help", Help},
    {"info", Info},
    {"convert", Convert},
    {"check", Check},
    {"program", MakeProgram},
    {"disk", MakeDisk},
    {"animation", MakeAnimation},
    {"show", Show},
    {"sprites", TakeSprites},
    {"optimise", Optimise},
    {"diff", Diff},
    {"render", Render},
    {"send", Send},
    {"completion", PrintCompletion},
    {"manual", PrintManual},
}};

ExitCode Perform(const std::vector<std::string>& words, const Ports& ports) {
  if (words.size() == 1 && words.front() == "--version") return Print(VersionText()), kDone;
  const Arguments arguments = ReadArguments(words);
  if (arguments.help) return Print(HelpOn(*arguments.command)), kDone;
  const auto* work = std::ranges::find(kWork, arguments.command->name, [](const auto& row) { return row.first; });
  return work->second(arguments, ports);
}

ExitCode CodeOf(const std::exception& error) {
  return dynamic_cast<const PictureSaysNo*>(&error) == nullptr ? kCannot : kNo;
}

std::string NameOf(const app::Setting& setting) {
  return std::string(setting.section) + "/" + std::string(setting.key);
}

}  // namespace

ExitCode RunCommandLine(const std::vector<std::string>& words, const Ports& ports) {
  try {
    return Perform(words, ports);
  } catch (const OutputClosed&) {
    return kCannot;
  } catch (const std::exception& error) {
    Complain(error.what());
    return CodeOf(error);
  }
}

ExitCode ReportEach(std::size_t count, const std::function<Report(std::size_t)>& work) {
  std::vector<Report> reports(count);
  ExitCode code = kDone;
  const auto try_one = [&](std::size_t i) {
    try {
      reports[i] = work(i);
    } catch (const std::exception& error) {
      reports[i] = {CodeOf(error), {}, error.what()};
    }
  };
  InParallel(count, try_one, [&](std::size_t i) {
    const Report report = std::exchange(reports[i], {});
    if (!report.text.empty()) Print(report.text);
    Complain(report.notes);
    if (report.text.empty() && count > 1) ShowProgress(i + 1, count);  // what is told tells how far it is, too
    code = std::max(code, report.code);
  });
  return code;
}

std::string ChosenSettings::Read(const app::Setting& setting) const {
  const auto found = written_.find(NameOf(setting));
  if (found != written_.end()) return found->second;
  return editors_ == nullptr ? std::string(setting.default_value) : editors_->Read(setting);
}

void ChosenSettings::Write(const app::Setting& setting, std::string_view value) {
  written_[NameOf(setting)] = value;
}

}  // namespace kelvo::cli
