#include "files/save_bitmap.h"

#include "app/path_text.h"
#include "app/text.h"
#include "app/utf8.h"
#include "app/whole_file.h"
#include "files/picture_format.h"

namespace kelvo::files {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kEnding = ".kvp";

// `text` without its last `count` characters; a character may take several bytes of UTF-8.
std::string_view WithoutLast(std::string_view text, std::size_t count) {
  const std::size_t all = app::CharactersOf(text).size();
  if (all < count) throw std::runtime_error("a picture's file name needs at least four characters");
  return app::FirstCharacters(text, all - count);
}

// The name that backups go under: names from the first floppy drive lose it.
std::string NameForBackup(const std::string& name) {
  constexpr std::string_view kDrive = "a:\\";
  return app::ToLower(name).starts_with(kDrive) ? name.substr(kDrive.size()) : name;
}

void BackUpSnapshot(const CurrentFile& file, const SavePlaces& places) {
  std::error_code ignored;
  if (!file.HasFile() || !fs::exists(places.folders.Snapshot(), ignored)) return;
  const std::string name = NameForBackup(file.CurrentFileName) + "_" + app::BackupStamp(places.clock.Now()) + ".prg";
  app::CopyWholeFile(places.folders.Snapshot(), places.folders.Backup() / app::PathFromText(name));
}

template <typename Step>
void Collect(std::string& troubles, Step&& step) {
  try {
    step();
  } catch (const std::exception& error) {
    troubles += (troubles.empty() ? "" : "\n") + std::string(error.what());
  }
}

}  // namespace

std::string SavedName(std::string_view path) {
  if (path.ends_with(kEnding)) return std::string(path);
  return std::string(WithoutLast(path, kEnding.size())) + std::string(kEnding);
}

std::string SaveBitmap(Document& document, std::string_view path, const SavePlaces& places) {
  const std::string target = SavedName(path.empty() ? document.file.CurrentFilePath : path);
  model::PictureImage picture = document.picture;
  Sign(picture);
  app::WriteWholeFile(app::PathFromText(target), Encode(picture));

  document.picture = document.kept = picture;
  const CurrentFile before = document.file;
  document.file = SetFileParameters(target);
  places.settings.Write(kFilePath, app::FolderPart(before.HasFile() ? before.CurrentFilePath : target));
  std::string troubles;
  Collect(troubles, [&] { BackUpSnapshot(before, places); });
  Collect(troubles, [&] { app::CopyWholeFile(app::PathFromText(target), places.folders.Snapshot()); });
  return troubles;
}

}  // namespace kelvo::files
