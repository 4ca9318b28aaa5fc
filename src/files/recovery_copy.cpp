#include "files/recovery_copy.h"

#include "app/path_text.h"
#include "app/whole_file.h"
#include "files/load_picture.h"
#include "files/picture_format.h"

namespace kelvo::files {
namespace {

constexpr std::chrono::minutes kBetweenCopies(1);
constexpr std::uintmax_t kLongestPath = 65536;

// Waiting for the disk is for saving; a crash of the program leaves the system's buffers alone.
constexpr app::Flush kFlush = app::Flush::kLater;

}  // namespace

RecoveryFiles::RecoveryFiles(const app::ProgramFolders& folders, int slot)
    : picture(folders.Backup() / ("recovery_" + std::to_string(slot) + ".kvp")),
      name(folders.Backup() / ("recovery_" + std::to_string(slot) + ".txt")) {}

std::optional<Document> RecoveryFiles::Read() const {
  try {
    Document document;
    document.picture = LoadPicture(app::TextFromPath(picture), kOwnType, {});
    const app::Bytes path = app::ReadWholeFile(name, kLongestPath);
    if (!path.empty()) document.file = SetFileParameters(std::string(path.begin(), path.end()));
    return document;
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

void RecoveryFiles::Remove() const {
  std::error_code ignored;
  std::filesystem::remove(picture, ignored);
  std::filesystem::remove(name, ignored);
}

void RecoveryCopy::Keep(Time now) {
  if (!document_.HasUnsavedWork()) return Remove();
  if (last_try_ && now - *last_try_ < kBetweenCopies) return;
  if (is_there_ && written_ == document_.picture) return;
  last_try_ = now;
  KeepNow();
}

void RecoveryCopy::KeepNow() {
  if (!document_.HasUnsavedWork()) return Remove();
  const std::string& path = document_.file.CurrentFilePath;
  app::WriteWholeFile(files_.name, {reinterpret_cast<const std::uint8_t*>(path.data()), path.size()}, kFlush);
  model::PictureImage signed_picture = document_.picture;
  Sign(signed_picture);
  app::WriteWholeFile(files_.picture, Encode(signed_picture), kFlush);
  written_ = document_.picture;
  is_there_ = true;
}

void RecoveryCopy::Remove() {
  if (is_there_) files_.Remove();
  is_there_ = false;
}

}  // namespace kelvo::files
