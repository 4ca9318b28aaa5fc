// What kelvo-cli does, a file for each command, and what commands work with.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

#include "app/settings_store.h"
#include "c64out/tool_runner.h"
#include "cli/arguments.h"

namespace kelvo::cli {

enum ExitCode {
  kDone,
  kNo,      // the picture says no
  kCannot,  // wrong use, or a file that cannot be read or written
};

// All of it outlives the commands.
struct Ports {
  c64out::ToolRunner& tools;      // may be asked by several threads at a time
  app::SettingsStore& settings;   // the editor's
  std::filesystem::path shipped;  // the folder with SYSTEM
};

// Does what `words` ask for, the program's own name not among them, and tells on standard error what went wrong.
ExitCode RunCommandLine(const std::vector<std::string>& words, const Ports& ports);

// The picture is not as it was asked to be: kNo.
class PictureSaysNo : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What came of one input.
struct Report {
  ExitCode code = kDone;
  std::string text = {};   // for standard output
  std::string notes = {};  // for standard error: lines
};

// Calls `work` with the place of each of `count` inputs, on all cores at the same time, and tells what comes of it in
// their order. What `work` throws is told too, and counts as kCannot. Gives the highest code.
ExitCode ReportEach(std::size_t count, const std::function<Report(std::size_t)>& work);

// The editor's settings where --settings asks for them, else the defaults. What is written stays here.
class ChosenSettings final : public app::SettingsStore {
 public:
  ChosenSettings(const Arguments& arguments, const Ports& ports)
      : editors_(arguments.Has(kSettings) ? &ports.settings : nullptr) {}

  std::string Read(const app::Setting& setting) const override;
  void Write(const app::Setting& setting, std::string_view value) override;

 private:
  const app::SettingsStore* editors_;
  std::map<std::string, std::string> written_{};
};

ExitCode Info(const Arguments& arguments, const Ports& ports);
ExitCode Check(const Arguments& arguments, const Ports& ports);
ExitCode Convert(const Arguments& arguments, const Ports& ports);
ExitCode MakeProgram(const Arguments& arguments, const Ports& ports);
ExitCode MakeDisk(const Arguments& arguments, const Ports& ports);
ExitCode MakeAnimation(const Arguments& arguments, const Ports& ports);
ExitCode Show(const Arguments& arguments, const Ports& ports);
ExitCode TakeSprites(const Arguments& arguments, const Ports& ports);
ExitCode Optimise(const Arguments& arguments, const Ports& ports);
ExitCode Diff(const Arguments& arguments, const Ports& ports);
ExitCode Render(const Arguments& arguments, const Ports& ports);
ExitCode Send(const Arguments& arguments, const Ports& ports);

}  // namespace kelvo::cli
