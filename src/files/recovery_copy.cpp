#include "files/recovery_copy.h"

#include <algorithm>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "files/backups.h"
#include "files/load_picture.h"
#include "files/picture_format.h"

namespace kelvo::files {
namespace {

constexpr std::chrono::minutes kBetweenCopies(1);
constexpr std::uintmax_t kLongestPath = 65536;

// Waiting for the disk is for saving; a crash of the program leaves the system's buffers alone.
constexpr app::Flush kFlush = app::Flush::kLater;

}  // namespace

RecoveryFiles::RecoveryFiles(const std::filesystem::path& folder, int slot)
    : picture(folder / ("recovery_" + std::to_string(slot) + ".kvp")),
      name(folder / ("recovery_" + std::to_string(slot) + ".txt")),
      steps(folder / ("recovery_" + std::to_string(slot) + ".steps")) {}

std::optional<Document> RecoveryFiles::Read() const {
  try {
    Document document;
    document.picture = LoadPicture(picture, kOwnType, {}, Reading::kExact);
    const app::Bytes path = app::ReadWholeFile(name, kLongestPath);
    if (!path.empty()) document.file = SetFileParameters(app::PathFromText(std::string(path.begin(), path.end())));
    return document;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

bool RecoveryFiles::Remove() const {
  std::error_code ignored;
  std::filesystem::remove(picture, ignored);
  std::filesystem::remove(name, ignored);
  return !std::filesystem::exists(picture, ignored);
}

void RecoveryFiles::RemoveSteps() const {
  std::error_code ignored;
  std::filesystem::remove(steps, ignored);
}

void RecoveryCopy::Keep(Time now) {
  if (!document_.HasUnsavedWork()) return Remove();
  const bool is_moved = written_ && written_for_ != document_.file.CurrentFilePath;
  if (!is_moved && last_try_ && now - *last_try_ < kBetweenCopies) return;
  if (!is_moved && written_ == document_.picture) return;
  last_try_ = now;
  KeepNow();
}

void RecoveryCopy::KeepNow() {
  if (!document_.HasUnsavedWork()) return Remove();
  std::string why = "there is no place for it";
  for (Place& place : places_) {
    try {
      place.is_used = true;
      Write(place.files);
      written_ = document_.picture;
      written_for_ = document_.file.CurrentFilePath;
      return RemoveBut(&place);
    } catch (const app::FileError& error) {
      why = error.what();
    }
  }
  throw app::FileError(why);
}

void RecoveryCopy::Write(const RecoveryFiles& files) const {
  const std::string path = app::TextFromPath(document_.file.CurrentFilePath);
  app::WriteOwnFile(files.name, {reinterpret_cast<const std::uint8_t*>(path.data()), path.size()}, kFlush);
  model::PictureImage signed_picture = document_.picture;
  Sign(signed_picture);
  app::WriteOwnFile(files.picture, Encode(signed_picture), kFlush);
}

void RecoveryCopy::Remove() {
  RemoveBut(nullptr);
  written_.reset();
  last_try_.reset();
}

bool RecoveryCopy::IsIn(const RecoveryFiles& files) const {
  return std::any_of(places_.begin(), places_.end(),
                     [&](const Place& place) { return place.is_used && place.files.picture == files.picture; });
}

void RecoveryCopy::RemoveBut(const Place* newest) {
  for (Place& place : places_) {
    if (&place != newest && place.is_used) place.is_used = !place.files.Remove();
  }
}

std::filesystem::path KeepRescueCopy(const Document& document, const app::ProgramFolders& folders,
                                     const app::Clock& clock) {
  model::PictureImage picture = document.picture;
  Sign(picture);
  const std::string name = document.file.NameOr("unnamed");
  return Backups(folders, clock).Keep(Encode(picture), name, "_unsaved", ".kvp");
}

}  // namespace kelvo::files
