#include "c64out/build_job.h"

#include <algorithm>
#include <utility>

#include "app/path_text.h"
#include "app/text.h"
#include "c64out/short_path.h"

namespace kelvo::c64out {
namespace {

namespace fs = std::filesystem;

bool HoldsBytes(const fs::path& file) {
  std::error_code error;
  const auto size = fs::file_size(file, error);
  return !error && size > 0;
}

}  // namespace

WorkFiles::WorkFiles(const fs::path& system)
    : picture(system / "temp.kvp"),
      viewer_half_filled(system / "bmpshow.tmp1"),
      viewer_source(system / "bmpshow.tmp"),
      viewer_object(system / "bmpshow.obj"),
      viewer_packed(system / "bmpshow.pak"),
      depacker_source(system / "decrush.tmp"),
      animation(system / "animplay.bin"),
      player_source(system / "animplay.tmp"),
      program(system / "bmpshow.prg"),
      saver_source(system / "15x1save.tmp"),
      saver(system / "15x1save.prg") {}

void WorkFiles::RemoveAll() const {
  for (const fs::path& file : {picture, viewer_half_filled, viewer_source, viewer_object, viewer_packed,
                               depacker_source, animation, player_source, program, saver_source, saver}) {
    Remove(file);
  }
}

BuildJob::BuildJob(ResultName result, const CompoPicChoice& choice, const BuildSurroundings& with)
    : result_(std::move(result)), choice_(choice), with_(with), files_(with.folders.System()) {}

std::string BuildJob::Setting(const app::Setting& setting) const {
  return std::string(app::Trimmed(with_.settings.Read(setting)));
}

fs::path BuildJob::Result(std::string_view extension) const {
  return result_.folder / app::PathFromText(result_.base + std::string(extension));
}

std::string BuildJob::DiskFileName(const app::Setting& name_setting) const {
  std::string name = Setting(name_setting);
  if (name.empty()) return BaseName();
  std::replace(name.begin(), name.end(), ' ', '.');
  return name;
}

void BuildJob::Run(const fs::path& tool, std::vector<std::string> arguments) const {
  const ToolCommand command = CommandFor(tool, std::move(arguments));
  RequireSuccess(command, with_.runner.RunAndWait(command));
}

void BuildJob::Make(const fs::path& output, const fs::path& tool, std::vector<std::string> arguments) const {
  Remove(output);
  Run(tool, std::move(arguments));
  if (HoldsBytes(output)) return;
  throw std::runtime_error(app::TextFromPath(tool.filename()) + ": left no " + app::TextFromPath(output.filename()));
}

ToolCommand CommandFor(const fs::path& tool, std::vector<std::string> arguments) {
  const std::string path = ShortPath(tool);
  if (!path.empty()) return {path, std::move(arguments)};
  throw std::runtime_error(app::TextFromPath(tool.filename()) + ": there is no " + app::TextFromPath(tool));
}

void RequireSuccess(const ToolCommand& command, const ToolResult& result) {
  if (result.stopped) throw BuildStopped();
  if (result.failure.empty()) return;
  const std::string said_by = app::FileNamePart(command.tool) + ": ";
  throw std::runtime_error(result.failure.starts_with(said_by) ? result.failure : said_by + result.failure);
}

void Remove(const fs::path& file) {
  std::error_code ignored;
  fs::remove(file, ignored);
}

}  // namespace kelvo::c64out
