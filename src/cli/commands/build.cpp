#include "cli/commands/build.h"

#include <atomic>
#include <functional>
#include <random>
#include <stdexcept>
#include <vector>

#include "app/number_text.h"
#include "app/whole_file.h"
#include "c64out/build_animation.h"
#include "c64out/build_compo_pic.h"
#include "c64out/output_settings.h"

namespace kelvo::cli {
namespace {

namespace fs = std::filesystem;

constexpr const char* kPicture = "picture.kvp";
constexpr c64out::CompoPicChoice kProgramAlone{.MakePrg = true, .AsksForVice = false};

std::atomic<int> temporary_folders = 0;
static_assert(std::atomic<int>::is_always_lock_free, "a signal handler asks");

// What a build tells its user.
class BuildWords final : public app::Messages, public app::PromptOutput {
 public:
  void Inform(std::string_view text) override { lines_.emplace_back(text); }
  void InformWithMore(std::string_view text, std::string_view) override { Inform(text); }
  bool InformWithChoice(std::string_view text, std::string_view) override {
    Inform(text);
    return false;
  }
  void Warn(std::string_view text) override { Inform(text); }
  void Tell(std::string_view text) override { Inform(text); }
  bool Ask(std::string_view text) override {
    Inform(text);
    return false;
  }
  app::UnsavedAnswer AskUnsaved(std::string_view) override { return app::UnsavedAnswer::kCancel; }
  void CommandPromptList(std::string_view line) override {
    constexpr std::string_view kArrow = "--> ";
    Inform(line.starts_with(kArrow) ? line.substr(kArrow.size()) : line);
  }

  // Why it failed: the last line but the error's number.
  std::string Failure() const {
    std::string failure = "the build failed";
    for (const std::string& line : lines_) failure = line.starts_with("[err ") ? failure : line;
    return failure;
  }
  std::string Notes() const {
    std::string notes;
    for (const std::string& line : lines_) {
      if (line.starts_with("Note: ")) notes += (notes.empty() ? "" : "\n") + line;
    }
    return notes;
  }

 private:
  std::vector<std::string> lines_;
};

// A link to a shipped file is enough, and a tool may be started where temporary files may not. Where there are no links
// it is copied.
void Provide(const fs::path& shipped, const fs::path& place) {
  std::error_code error;
  fs::create_symlink(shipped, place, error);
  if (error) fs::copy_file(shipped, place);
}

void FillSystem(const fs::path& shipped, const app::ProgramFolders& folders) {
  folders.Create();
  std::error_code error;
  for (const auto& entry : fs::directory_iterator(fs::absolute(shipped) / "SYSTEM", error)) {
    Provide(entry.path(), folders.System() / entry.path().filename());
  }
  if (error) throw std::runtime_error("the tools for builds are not where kelvo-cli was installed");
}

void TakeBuildOptions(const Arguments& arguments, app::SettingsStore& settings) {
  if (arguments.Has(kFadeIn)) settings.Write(c64out::kFadeIn, "1");
  if (arguments.Has(kKeyEnds)) settings.Write(c64out::kKeyEndsPicture, "1");
}

using BuildWork = std::function<c64out::BuildResult(const fs::path& place, const c64out::BuildSurroundings& with)>;

// What `work` builds, in a place of its own.
BuiltProgram Build(const Arguments& arguments, const Ports& ports, const BuildWork& work) {
  const TemporaryFolder place;
  const app::ProgramFolders folders(place.Path());
  FillSystem(ports.shipped, folders);
  ChosenSettings settings(arguments, ports);
  TakeBuildOptions(arguments, settings);
  const app::SystemClock clock;
  const app::ErrorLog log(folders.ErrorLogFile(), clock);
  BuildWords words;
  const c64out::BuildResult result = work(place.Path(), {{folders, settings, clock, log, words, words}, ports.tools});
  if (result.outcome != c64out::BuildOutcome::kDone) throw std::runtime_error(words.Failure());
  return {app::ReadWholeFile(result.made, app::kMostBytesToCopy), words.Notes()};
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  std::random_device random;
  std::error_code error;
  const fs::path folder = fs::temp_directory_path(error);
  while (!error && path_.empty()) {
    const fs::path path = folder / ("kelvo-cli-" + app::ToHex(static_cast<int>(random() & 0x7FFFFFFF), 8));
    if (fs::create_directory(path, error)) path_ = path;
  }
  if (!error) fs::permissions(path_, fs::perms::owner_all, error);
  if (!error) ++temporary_folders;
  if (error) throw app::FileError("no temporary folder can be made: " + error.message());
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
  --temporary_folders;
}

bool TemporaryFolder::AnyIsThere() {
  return temporary_folders > 0;
}

BuiltProgram BuildProgram(const model::PictureImage& picture, const Arguments& arguments, const Ports& ports) {
  return Build(arguments, ports, [&](const fs::path& place, const c64out::BuildSurroundings& with) {
    const files::Document document{.picture = picture, .file = files::SetFileParameters(place / kPicture)};
    return c64out::BuildCompoPic(document, kProgramAlone, with);
  });
}

BuiltProgram BuildProgram(c64out::Release release, const Arguments& arguments, const Ports& ports) {
  return Build(arguments, ports, [&](const fs::path& place, const c64out::BuildSurroundings& with) {
    release.animation.folder = place;
    return c64out::BuildAnimation(release, kProgramAlone, with);
  });
}

}  // namespace kelvo::cli
