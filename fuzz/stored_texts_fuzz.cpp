// Whatever stands in the settings, in stored paths and in palette files, what is read from it is in range, and what is
// stored again reads the same.
#include <algorithm>

#include "anim/anim_settings.h"
#include "anim/frame_names.h"
#include "app/file_name.h"
#include "app/path_text.h"
#include "app/text.h"
#include "app/utf8.h"
#include "c64out/codenet_form.h"
#include "c64out/vice_folder.h"
#include "editing/preferences.h"
#include "files/current_file.h"
#include "files/palette_file.h"
#include "files/recent_files.h"
#include "files/save_bitmap.h"
#include "input.h"
#include "support/program.h"

namespace kelvo::fuzz {
namespace {

// As the zoom window has them, which is Qt's.
constexpr app::Setting kMagnification{"Settings", "Magnification", "4"}, kGridColor{"Settings", "GridColor", "9"};

constexpr app::Setting kFields[] = {
    kMagnification,
    kGridColor,
    editing::k4thColReplaces,
    editing::kReplaceLeastUsedColWhenFilling,
    anim::kFolder,
    anim::kAnimPrefix,
    anim::kPlayRate,
    anim::kOnionSkin,
    {"Settings", "frmAnimLeftPos", "0"},
    {"Settings", "frmAnimTopPos", "0"},
    {"CodenetGUI", "SendFile", ""},
    {"CodenetGUI", "FileType", ""},
    {"CodenetGUI", "SetDestAddress", ""},
    {"CodenetGUI", "DestAddress", ""},
    {"CodenetGUI", "SetExecute", ""},
    {"CodenetGUI", "SetExecuteAddress", ""},
    {"CodenetGUI", "TransferOnly", ""},
    {"CodenetGUI", "ExecuteAddress", ""},
    {"CodenetGUI", "C64IP", ""},
    {"CodenetGUI", "Port", ""},
    {"CodenetGUI", "PRGName", ""},
    {"Recent", "Recent1", ""},
    {"Recent", "Recent2", ""},
    {"Recent", "Recent5", ""},
};

// Lines of a number (which setting) and its text.
support::MapSettings Settings(Input& input) {
  support::MapSettings settings;
  while (!input.IsEmpty()) {
    const app::Setting& field = kFields[input.Below(static_cast<int>(std::size(kFields)))];
    settings.Write(field, input.Line());
  }
  return settings;
}

bool IsBetween(int number, int lowest, int highest) {
  return number >= lowest && number <= highest;
}

void CheckNumbers(support::MapSettings settings) {
  Require(IsBetween(app::ReadNumber(settings, kMagnification, 4, 8), 4, 8), "the zoom factor is in range");
  Require(IsBetween(app::ReadNumber(settings, kGridColor, 0, 15), 0, 15), "the grid colour is in range");
  const int rate = anim::ReadPlayRate(settings);
  Require(IsBetween(rate, anim::kSlowestRate, anim::kFastestRate), "the rate is in range");
  anim::KeepPlayRate(settings, rate);
  Require(anim::ReadPlayRate(settings) == rate, "what is kept reads the same");
  app::IsOn(settings, editing::k4thColReplaces);
  app::IsOn(settings, editing::kReplaceLeastUsedColWhenFilling);
}

void CheckFrames(const support::MapSettings& settings) {
  const anim::FrameNames names(anim::ReadAnimProperties(settings));
  for (const int number : {anim::kFirstFrame, 42, anim::kLastFrame}) {
    Require(names.NumberOf(names.FileName(number)) == number, "a frame's name tells its number");
    Require(names.FolderText() + names.FileName(number) == names.Path(number), "a path is folder and name");
  }
  names.NumberOf(settings.Read(kFields[21]));
}

void CheckForm(support::MapSettings settings) {
  const c64out::CodenetForm form = c64out::LoadCodenetForm(settings);
  c64out::SaveCodenetForm(settings, form);
  c64out::CodenetForm expected = form;
  expected.host = app::Trimmed(form.host);
  expected.prg_name = app::Trimmed(form.prg_name);
  Require(c64out::LoadCodenetForm(settings) == expected, "a form that is kept reads the same");
}

void CheckRecent(support::MapSettings settings) {
  files::RecentFiles recent(settings);
  for (const std::string& path : {std::string("new.kvp"), settings.Read(kFields[0]), settings.Read(kFields[22])}) {
    if (path.empty()) continue;
    recent.Add(path);
    const auto paths = recent.Paths();
    Require(paths.size() <= files::RecentFiles::kMost, "the recent list has an end");
    Require(std::find(paths.begin(), paths.end(), path) != paths.end(), "an opened file is in the recent list");
  }
}

void CheckPath(const std::string& path) {
  Require(app::TextFromPath(app::PathFromText(path)) == path, "a path's text stays as it is");
  Require(path.ends_with(app::FileNamePart(path)) && path.starts_with(app::FolderPart(path)), "a path has its parts");
  Require(!app::FileNamePart(path).starts_with('/'), "a name has no separator");
  app::LowerExtension(path);
  const files::CurrentFile file = files::SetFileParameters(path);
  files::WindowTitle(file);
  try {
    Require(app::TextFromPath(files::SavedName(path)).ends_with(".kvp"), "pictures are saved as .kvp");
  } catch (const std::runtime_error&) {
    Require(app::CharactersOf(path).size() < 4, "only short names are refused");
  }
  if (app::IsPlainName(path)) {
    Require(app::PathFromText(path).filename() == app::PathFromText(path), "a plain name stays in its folder");
    Require(path != "." && path != "..", "a plain name is no folder's own");
  }
  c64out::CheckViceFolder(path.substr(0, 200));
}

void CheckPalette(const std::string& text) {
  try {
    for (const std::uint32_t colour : files::ParseVpl(text)) Require(colour >> 24 == 0xFF, "every colour is opaque");
  } catch (const files::PaletteError&) {
    // no palette
  }
}

}  // namespace
}  // namespace kelvo::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace kelvo;
  fuzz::Input input(data, size);
  fuzz::CheckPalette({data, data + size});
  const std::string path = input.Line();
  const support::MapSettings settings = fuzz::Settings(input);
  fuzz::CheckPath(path);
  fuzz::CheckNumbers(settings);
  fuzz::CheckFrames(settings);
  fuzz::CheckForm(settings);
  fuzz::CheckRecent(settings);
  return 0;
}
