#include "files/save_bitmap.h"

#include <utility>

#include "app/durable_file.h"
#include "app/path_text.h"
#include "app/text.h"
#include "app/utf8.h"
#include "app/whole_file.h"
#include "files/backups.h"
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

// The bytes of a file; empty where there is none.
app::Bytes BytesOf(const fs::path& file) {
  std::error_code ignored;
  return fs::exists(file, ignored) ? app::ReadWholeFile(file, app::kMostBytesToCopy) : app::Bytes();
}

template <typename Step>
void Collect(std::string& troubles, Step&& step) {
  try {
    step();
  } catch (const std::exception& error) {
    troubles += (troubles.empty() ? "" : "\n") + std::string(error.what());
  }
}

// Keeps the snapshot, and what else stands in `file`: a build's copy takes the snapshot's place, so even this program's
// own last state may be another. Only what this program did not put there itself must be kept before it may go.
void KeepWhatGoes(const Document& document, const fs::path& file, const app::Bytes& written,
                  const app::Surroundings& with, std::string& troubles) {
  const Backups backups(with.folders, with.clock);
  const CurrentFile& before = document.file;
  app::Bytes snapshot;
  Collect(troubles, [&] {
    if (before.HasFile()) snapshot = BytesOf(with.folders.Snapshot());
    if (snapshot.empty()) return;
    backups.KeepSnapshot(snapshot, {before.CurrentFilePath, NameForBackup(before.CurrentFileName)});
  });
  const app::Bytes standing = BytesOf(file);
  if (standing.empty() || standing == snapshot || standing == written) return;
  const auto keep = [&] { backups.Keep(standing, app::TextFromPath(file.filename()), "_replaced", kEnding); };
  standing == document.on_disk ? Collect(troubles, keep) : keep();
}

}  // namespace

fs::path SavedName(const fs::path& path) {
  const std::string text = app::TextFromPath(path);
  if (text.ends_with(kEnding)) return path;
  return app::PathFromText(std::string(WithoutLast(text, kEnding.size())) + std::string(kEnding));
}

std::string SaveBitmap(Document& document, const fs::path& path, const app::Surroundings& with) {
  const fs::path file = SavedName(path);
  model::PictureImage picture = document.picture;
  Sign(picture);
  const app::Bytes written = Encode(picture);
  std::string troubles;
  KeepWhatGoes(document, file, written, with, troubles);
  app::WriteWholeFile(file, written);

  const CurrentFile before = std::exchange(document.file, SetFileParameters(file));
  document.picture = document.kept = picture;
  document.on_disk = written;
  with.settings.Write(kFilePath, app::TextFromPath((before.HasFile() ? before.CurrentFilePath : file).parent_path()));
  Collect(troubles, [&] { app::WriteOwnFile(with.folders.Snapshot(), written); });
  app::SweepTemporaryFiles(file.has_parent_path() ? file.parent_path() : ".");
  return troubles;
}

}  // namespace kelvo::files
