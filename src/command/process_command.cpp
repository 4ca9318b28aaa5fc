#include "command/process_command.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "app/file_name.h"
#include "app/path_text.h"
#include "app/text.h"
#include "app/version.h"
#include "command/number_reading.h"

namespace kelvo::command {
namespace {

namespace fs = std::filesystem;

enum ErrorNumber {
  kNone = 0,
  kNoCurrentFile = 900,
  kDeviceNotNumeric = 901,
  kNotLoaded = 902,
  kUnknownWord = 903,
  kBadAnimArgument = 904,
  kDriveCommand = 905,
  kFolderNotMade = 906,
  kFolderNotRemoved = 907,
};

// One command on its way.
struct Call {
  const files::PictureSurroundings& with;
  const AnimationSwitch& animation;
  const ImageImport& images;
  std::string line, word;
  std::string argument;             // in upper case
  std::string_view fixed_reply;     // from the word's row
  ErrorNumber error_scope = kNone;  // what an error that is thrown now is told as

  void Reply(const std::string& text) const { with.prompt.CommandPromptList(text); }
  void Fail(const std::string& what, ErrorNumber number) const {
    Reply(what + " [err " + std::to_string(number) + "]");
  }
};

Call Split(std::string_view line, const files::PictureSurroundings& with, const AnimationSwitch& animation,
           const ImageImport& images) {
  const auto space = std::min(line.find(' '), line.size());
  const std::string_view argument = line.substr(std::min(space + 1, line.size()));
  return {with, animation, images, std::string(line), std::string(line.substr(0, space)), app::ToUpper(argument), {}};
}

void Accept(Call&) {}

void Say(Call& call) {
  call.Reply(std::string(call.fixed_reply));
}

void MakeFolder(Call& call) {
  const std::string name = app::Without(" ", call.argument);
  if (name.empty()) return;
  call.error_scope = kFolderNotMade;
  if (!app::IsPlainName(name)) throw std::runtime_error(name + " is no folder name");
  const fs::path folder = app::EntryOf(call.with.folders.Root(), name);
  if (!fs::create_directory(folder)) throw std::runtime_error(name + " exists already");
  call.error_scope = kNone;
  call.Reply("FOLDER \\" + name + " CREATED");
}

// Looks in GFX while MD makes folders in the program folder itself, on purpose: folders that the program made for
// anything else than pictures are safe from a command.
void RemoveFolder(Call& call) {
  const std::string name = app::Without(" ", call.argument);
  if (name.empty()) return;
  call.error_scope = kFolderNotRemoved;
  if (!app::IsPlainName(name)) throw std::runtime_error(name + " is no folder name");
  const fs::path folder = app::EntryOf(call.with.folders.Gfx(), name);
  const bool removed = fs::is_directory(folder) && fs::remove(folder);
  call.error_scope = kNone;
  if (removed) call.Reply("FOLDER \\" + name + " REMOVED");
}

constexpr std::string_view kPictureEnding = ".PRG", kImageEnding = ".PNG";

void LoadFrom(const Call& call, const fs::path& folder, std::string_view typed) {
  const std::string_view stem =
      typed.ends_with(kPictureEnding) ? typed.substr(0, typed.size() - kPictureEnding.size()) : typed;
  const std::string name = std::string(stem) + std::string(kPictureEnding);
  if (!app::IsPlainName(name)) return call.Fail("LOAD " + std::string(stem), kNotLoaded);
  call.with.files.OpenPicture(app::EntryOf(folder, name), files::OnFailure::kPromptOnly);
}

void LoadFromDevice(const Call& call, std::string_view device, std::string_view name) {
  if (!IsNumeric(device)) return call.Fail(call.line, kDeviceNotNumeric);
  const std::string folder = "DEVICE" + std::string(device);
  if (!app::IsPlainName(folder)) return call.Fail("LOAD " + std::string(name), kNotLoaded);
  LoadFrom(call, app::EntryOf(call.with.folders.Root(), folder), name);
}

// The bare word asks with the open dialog; a name never does.
void Load(Call& call) {
  const auto space = call.line.find(' ');
  if (space == std::string::npos) {
    call.with.files.Open();
    return;
  }
  const std::string_view typed = std::string_view(call.line).substr(space + 1);
  const auto comma = typed.find(',');
  if (comma == std::string_view::npos) return LoadFrom(call, call.with.folders.Gfx(), typed);
  LoadFromDevice(call, typed.substr(comma + 1), typed.substr(0, comma));
}

// The bare word asks with the dialogs; a name never does.
void Import(Call& call) {
  if (call.line == call.word) return call.images.ask();
  const std::string name = call.line.substr(call.word.size() + 1);
  const std::string file = name + std::string(kImageEnding);
  const bool is_read = app::IsPlainName(file) && call.images.open(app::EntryOf(call.with.folders.Gfx(), file));
  if (!is_read) call.Fail(call.line, kNotLoaded);
}

void Reload(Call& call) {
  if (!call.with.document.file.HasFile()) return call.Fail(call.word, kNoCurrentFile);
  call.Reply("RELOAD");
  call.with.files.OpenPicture(call.with.document.file.CurrentFilePath, files::OnFailure::kPromptOnly);
}

void New(Call& call) {
  call.with.files.New();
}

// Without an argument the mode itself is switched. ON and OFF set the flag and the status text alone, on purpose: they
// ask nothing and open no window, and the menu's check mark may then disagree with the flag.
void Anim(Call& call) {
  const AnimationSwitch& animation = call.animation;
  if (call.argument.empty()) {
    call.Reply(animation.toggle() ? "ANIM ON" : "ANIM OFF");
  } else if (call.argument == "ON" || call.argument == "OFF") {
    animation.set_flag(call.argument == "ON");
    call.Reply(call.line);
  } else {
    call.Fail(call.line, kBadAnimArgument);
  }
}

void Refuse(Call& call) {
  if (app::Trimmed(call.line).empty()) return;
  const bool for_a_drive = call.line.starts_with("@") || call.line.starts_with("DEVICE");
  call.Fail(call.line, for_a_drive ? kDriveCommand : kUnknownWord);
}

struct Word {
  std::string_view word;
  void (*carry_out)(Call&);
  std::string_view fixed_reply = {};
};

constexpr std::array kWords{
    Word{"MD", MakeFolder},
    Word{"RD", RemoveFolder},
    Word{"DIR", Accept},
    Word{"BF", Accept},
    Word{"BLOCKFILL", Accept},
    Word{"LOAD", Load},
    Word{"IMPORT", Import},
    Word{"RELOAD", Reload},
    Word{"NEW", New},
    Word{"MC", Accept},
    Word{"MOUSECOPY", Accept},
    Word{"ANIM", Anim},
    Word{"VERSION", Say, app::kVersionWord},
    Word{"VER", Say, app::kVersionWord},
    Word{"HI", Say, "HI THERE, PIXEL PAINTER"},
    Word{"KELVO", Say, "AT YOUR SERVICE"},
    Word{"THANKS", Say, "THE PLEASURE IS MINE"},
    Word{"BYE", Say, "SEE YOU IN 16 COLORS"},
};

constexpr Word kAnyOther{"", Refuse};

const Word& RowOf(std::string_view word) {
  const auto row = std::find_if(kWords.begin(), kWords.end(), [&](const Word& known) { return known.word == word; });
  return row == kWords.end() ? kAnyOther : *row;
}

}  // namespace

void ProcessCommand(std::string_view line, const files::PictureSurroundings& with, const AnimationSwitch& animation,
                    const ImageImport& images) {
  Call call = Split(line, with, animation, images);
  const Word& row = RowOf(call.word);
  call.fixed_reply = row.fixed_reply;
  try {
    row.carry_out(call);
  } catch (const std::exception&) {
    if (call.error_scope == kNone) throw;
    call.Fail(call.line, call.error_scope);
  }
}

}  // namespace kelvo::command
