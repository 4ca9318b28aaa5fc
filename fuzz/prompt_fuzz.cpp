// Lines of the command prompt in a real program folder: whatever is typed, nothing outside that folder is touched, and
// inside it only where commands may.
#include <set>

#include "app/file_name.h"
#include "app/path_text.h"
#include "command/input_line.h"
#include "command/number_reading.h"
#include "command/process_command.h"
#include "input.h"
#include "support/files.h"
#include "support/program.h"

namespace kelvo::fuzz {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

constexpr std::string_view kOutside = "untouched";

Names NamesIn(const fs::path& folder) {
  Names names;
  for (const auto& entry : fs::directory_iterator(folder)) names.insert(app::TextFromPath(entry.path().filename()));
  return names;
}

// One program for all inputs; after each it is brought back to how it began.
class PromptAtWork : support::Program {
 public:
  PromptAtWork() {
    fs::create_directory(folders.Root() / "DEVICE8");
    for (const fs::path& place : {folders.Gfx() / "PIC.PRG", folders.Root() / "DEVICE8" / "pic.prg"}) {
      support::WriteFile(place, support::CountingBytes(10003));
    }
    support::WriteFile(folder / "PIC.PRG", support::CountingBytes(10003));
    support::WriteText(folder / "outside.txt", kOutside);
    fs::create_directory(folders.Gfx() / "OLD");
    names_ = NamesIn(folders.Root());
    outside_ = NamesIn(folder.Path());
  }

  void Paint() { document.picture.Bitmap[1] ^= 1; }

  void Type(const std::string& text) {
    const auto line = command::SubmittedLine(text);
    if (!line) return;
    Require(line->find_first_of("\r\n") == std::string::npos, "a command is one line");
    Require(line->front() != ' ' && line->back() != ' ', "a command has no spaces around");
    prompt.lines.clear();
    command::ProcessCommand(*line, surroundings, animation_, images_);
    Require(messages.shown.empty(), "a typed command opens no message box");
    const std::string path = app::TextFromPath(document.file.CurrentFilePath);
    Require(path.empty() ||
                fs::weakly_canonical(path).string().starts_with(fs::weakly_canonical(folders.Root()).string() + "/"),
            "pictures are those of the program folder");
  }

  void CheckAndTidy() {
    Require(NamesIn(folder.Path()) == outside_, "nothing is made or removed outside");
    Require(support::ReadText(folder / "outside.txt") == kOutside, "nothing is written outside");
    fs::create_directory(folders.Gfx() / "OLD");  // the one thing there that a command may remove
    Require(NamesIn(folders.Gfx()) == Names{"OLD", "PIC.PRG"}, "no command writes into the folder of pictures");
    for (const std::string& name : NamesIn(folders.Root())) {
      if (names_.contains(name) || name == "Kelvo_logg.txt") continue;
      Require(app::IsPlainName(name) && fs::is_directory(folders.Root() / name), "what is made is a plain folder");
      Require(fs::is_empty(folders.Root() / name), "and it is empty");
      fs::remove(folders.Root() / name);
    }
    for (const auto& rescue : fs::directory_iterator(folders.Backup())) fs::remove(rescue);
    fs::remove(folders.ErrorLogFile());
    for (const std::string& name : names_) Require(fs::exists(folders.Root() / name), "what was there stays");
    document = {};
    settings.values.clear();
  }

 private:
  bool is_animation_on_ = false;
  const command::AnimationSwitch animation_{[this] { return is_animation_on_ = !is_animation_on_; }, [](bool) {}};
  const command::ImageImport images_{[] {},
                                     [this](const fs::path& image) {
                                       Require(image.parent_path() == folders.Gfx(),
                                               "images are those of the folder of pictures");
                                       return false;
                                     }};
  Names names_, outside_;
};

void CheckTyping(const std::string& text) {
  const std::string_view kept = command::KeepPrompt(text);
  Require(kept.starts_with(command::kPrompt), "the line keeps its prompt");
  for (const char c : text) {
    const auto key = command::FilterKey(static_cast<unsigned char>(c));
    Require(!key || std::string_view("abcdefghijklmnopqrstuvwxyz/\\:.*\"").find(*key) == std::string_view::npos,
            "what can be typed is no path");
  }
  command::IsNumeric(text);
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  static fuzz::PromptAtWork prompt;
  fuzz::Input input(data, size);
  if (input.Bit()) prompt.Paint();
  for (int lines = 0; lines < 8 && !input.IsEmpty(); ++lines) {
    const std::string text = input.Line();
    fuzz::CheckTyping(text);
    prompt.Type(text);
  }
  prompt.CheckAndTidy();
  return 0;
}
