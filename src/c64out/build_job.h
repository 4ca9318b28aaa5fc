// One build while it runs: what it works with, and how its tools are run and checked.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "app/surroundings.h"
#include "c64out/compo_pic_choice.h"
#include "c64out/fill_template.h"
#include "c64out/output_settings.h"
#include "c64out/tool_runner.h"

namespace kelvo::c64out {

// What builds work with; all of it outlives them.
struct BuildSurroundings : app::Surroundings {
  ToolRunner& runner;
};

// The user stopped the build.
class BuildStopped : public std::runtime_error {
 public:
  BuildStopped() : std::runtime_error("Build stopped.") {}
};

// What a build makes: in which folder, and under which name without its ending.
struct ResultName {
  std::filesystem::path folder;
  std::string base;
};

// The work files of a build, all in SYSTEM.
struct WorkFiles {
  explicit WorkFiles(const std::filesystem::path& system);
  // Removes all that are there.
  void RemoveAll() const;

  std::filesystem::path picture, viewer_half_filled, viewer_source, viewer_object, viewer_packed, depacker_source,
      animation, player_source, program, saver_source, saver;
};

class BuildJob {
 public:
  BuildJob(ResultName result, const CompoPicChoice& choice, const BuildSurroundings& with);

  const CompoPicChoice& Choice() const { return choice_; }
  const BuildSurroundings& With() const { return with_; }
  const WorkFiles& Files() const { return files_; }

  std::filesystem::path System(const std::filesystem::path& name) const { return with_.folders.System() / name; }
  void Print(std::string_view line) const { with_.prompt.CommandPromptList(line); }

  // A setting, trimmed of surrounding blanks.
  std::string Setting(const app::Setting& setting) const;

  bool IsOn(const app::Setting& setting) const { return app::IsOn(with_.settings, setting); }

  // The lines of templates that this build asks for.
  TemplateMarks Marks() const { return {choice_.ViaCodenet, IsOn(kKeyEndsPicture), IsOn(kFadeIn)}; }

  const std::string& BaseName() const { return result_.base; }
  // The file that is made, with `extension`.
  std::filesystem::path Result(std::string_view extension) const;
  // The name on the C64's disk: `name_setting` with every blank replaced by ".", or the base name where none is set.
  std::string DiskFileName(const app::Setting& name_setting) const;

  // Runs a tool and checks it. Throws BuildStopped, or std::runtime_error naming the tool and what it said when it is
  // missing, cannot be started or fails.
  void Run(const std::filesystem::path& tool, std::vector<std::string> arguments) const;
  // The same for a tool that makes a file: also throws when that is not there afterwards.
  void Make(const std::filesystem::path& output, const std::filesystem::path& tool,
            std::vector<std::string> arguments) const;

 private:
  ResultName result_;
  CompoPicChoice choice_;
  BuildSurroundings with_;
  WorkFiles files_;
};

// What runs `tool`. Throws std::runtime_error when it is missing.
ToolCommand CommandFor(const std::filesystem::path& tool, std::vector<std::string> arguments);

// Throws what BuildJob::Run throws when `command` ended otherwise than well.
void RequireSuccess(const ToolCommand& command, const ToolResult& result);

// Removes a file; one that is not there, or cannot be removed, is left alone.
void Remove(const std::filesystem::path& file);

}  // namespace kelvo::c64out
