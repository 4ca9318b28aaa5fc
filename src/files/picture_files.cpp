#include "files/picture_files.h"

#include <utility>

#include "app/path_text.h"
#include "app/utf8.h"
#include "app/whole_file.h"
#include "files/backups.h"
#include "files/load_picture.h"
#include "files/picture_content.h"
#include "files/recovery_copy.h"

namespace kelvo::files {
namespace {

namespace fs = std::filesystem;

bool IsThere(const fs::path& path) {
  std::error_code ignored;
  return fs::exists(path, ignored);
}

constexpr std::size_t kExtensionSize = 4;  // with its dot

// Saving replaces an extension of three characters. Another ending belongs to the name.
fs::path WithExtension(fs::path path) {
  const std::string extension = app::TextFromPath(path.extension());
  if (app::CharactersOf(extension).size() != kExtensionSize) path += ".kvp";
  return path;
}

// 0 for a file that is not there.
std::uintmax_t SizeOf(const fs::path& path) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  return error ? 0 : size;
}

// What a file that a person did not choose with a filter is read as.
FormatType TypeOf(const fs::path& path) {
  return TypeOfFile(app::TextFromPath(path), SizeOf(path));
}

// What a file is read as whose filter may be another format's.
FormatType FittingTypeOf(const fs::path& path, FormatType chosen) {
  return FittingType(chosen, app::TextFromPath(path), SizeOf(path));
}

}  // namespace

bool PictureFiles::Open() {
  const int last_filter =
      app::ReadNumber(with_.settings, kFileFilter, kOwnType, static_cast<int>(OfferedFormats().size()));
  const auto chosen = with_.dialogs.SelectFile(FolderForDialogs(), last_filter);
  if (!chosen) return false;
  with_.settings.Write(kFilePath, app::TextFromPath(chosen->path.parent_path()));
  with_.settings.Write(kFileFilter, std::to_string(chosen->type));
  return OpenAs(chosen->path, FittingTypeOf(chosen->path, chosen->type), OnFailure::kMessageBox);
}

bool PictureFiles::OpenPicture(const fs::path& path, OnFailure on_failure) {
  return OpenAs(path, TypeOf(path), on_failure);
}

// `path` may be the current file's own, which is another one as soon as the picture is taken over.
bool PictureFiles::OpenAs(const fs::path& path, FormatType type, OnFailure on_failure) {
  const app::WaitScope wait(with_.pointer);
  auto read = Read(path, type, on_failure);
  if (!read || !MayThrowAwayPicture()) return false;
  const bool is_reload = read->file.CurrentFilePath == document_.file.CurrentFilePath;
  const std::string caption = (is_reload ? "Reload " : "Load ") + read->file.CurrentFileName;
  const model::C64Colour background_before = document_.picture.BackgroundColour;
  TakeOver(std::move(*read), caption);
  TellOtherReading(type, document_.on_disk, background_before);
  with_.prompt.CommandPromptList("LOAD " + document_.file.CurrentFileName);
  TakeSnapshot();
  recent_.Add(document_.file.CurrentFilePath);
  return true;
}

std::optional<Document> PictureFiles::Read(const fs::path& path, FormatType type, OnFailure on_failure) {
  std::optional<Document> read;
  app::Guarded(
      with_.log, "MDIFormMenu_LoadPicture",
      [&] {
        app::Bytes bytes = ReadPictureFile(path, type);
        const auto picture = DecodeAny(type, bytes, document_.picture.BackgroundColour, ReadingBy(with_.settings));
        read = {.picture = picture, .kept = picture, .file = SetFileParameters(path), .on_disk = std::move(bytes)};
      },
      [&](const std::exception& error) {
        const auto* wrong_size = dynamic_cast<const FormatError*>(&error);
        if (wrong_size != nullptr && !FormatOf(type).size_message.empty()) {
          return with_.messages.InformWithMore(error.what(), wrong_size->Sizes());
        }
        const bool is_unknown = dynamic_cast<const UnknownPicture*>(&error) != nullptr;
        TellFailedLoad(path, (is_unknown ? NameOfPath(path) + ": " : "") + error.what(), on_failure);
      });
  return read;
}

void PictureFiles::TellOtherReading(FormatType type, const app::Bytes& bytes, model::C64Colour background_before) {
  const PictureFormat& format = FormatOf(type);
  if (!format.Takes(bytes.size()) || !ReadsDifferently(format, bytes, background_before)) return;
  const bool is_exact = ReadingBy(with_.settings) == Reading::kExact;
  with_.status.Tell("This file looks otherwise " + std::string(is_exact ? "without" : "with") +
                    " File > Read files exactly");
}

void PictureFiles::TellFailedLoad(const fs::path& path, const std::string& why, OnFailure on_failure) {
  with_.prompt.CommandPromptList("LOAD " + NameOfPath(path) + " [err 902]");
  if (on_failure == OnFailure::kMessageBox) with_.messages.Warn(why);
}

void PictureFiles::TakeOver(Document document, const std::string& caption) {
  with_.views.ActionBegins(caption);
  Replace(std::move(document));
}

void PictureFiles::Replace(Document document) {
  document_ = std::move(document);
  with_.display.PictureReplaced();
  with_.display.ShowFile(document_.file);
  with_.views.PictureChanged();
}

void PictureFiles::TakeSnapshot() {
  app::Guarded(with_.log, "MDIFormMenu_TakeSnapshot",
               [&] { app::WriteOwnFile(with_.folders.Snapshot(), document_.on_disk); });
}

bool PictureFiles::Reload() {
  return document_.file.HasFile() && OpenPicture(document_.file.CurrentFilePath);
}

bool PictureFiles::Save() {
  if (!document_.file.HasFile()) return SaveAs();
  if (!MayReplace(document_.file.CurrentFilePath, document_.file.CurrentFilePath)) return false;
  with_.prompt.CommandPromptList("SAVE " + document_.file.CurrentFileName);
  return Write(document_.file.CurrentFilePath);
}

bool PictureFiles::SaveAs() {
  const fs::path proposal = document_.file.HasFile()
                                ? document_.file.CurrentFilePath
                                : FolderForDialogs() / app::PathFromText(document_.file.NameOr("unnamed.kvp"));
  const auto chosen = with_.dialogs.SaveAs(proposal);
  if (!chosen) return false;
  const fs::path path = WithExtension(*chosen);
  return MayReplace(path, *chosen) && Write(path);
}

bool PictureFiles::SaveChanges() {
  return SaveTo(document_.file.CurrentFilePath);
}

bool PictureFiles::SaveTo(const fs::path& path) {
  return MayReplace(path, path) && Write(path);
}

// Saving under `path` may write another file than the one that was chosen.
bool PictureFiles::MayReplace(const fs::path& path, const fs::path& chosen) {
  const bool can_be_saved = app::CharactersOf(app::TextFromPath(path)).size() >= kExtensionSize;
  const fs::path target = can_be_saved ? SavedName(path) : path;
  if (!IsThere(target)) return true;
  if (target == document_.file.CurrentFilePath && IsChangedElsewhere()) {
    return with_.messages.Ask(app::TextFromPath(target) + " was changed by another program. Replace it?\n" +
                              "What that program wrote is kept in the BACKUP folder.");
  }
  std::error_code ignored;
  if (fs::equivalent(target, chosen, ignored)) return true;
  return with_.messages.Ask(app::TextFromPath(target) + " exists already. Replace it?");
}

bool PictureFiles::IsChangedElsewhere() const {
  try {
    return !document_.on_disk.empty() &&
           app::ReadWholeFile(document_.file.CurrentFilePath, app::kMostBytesToCopy) != document_.on_disk;
  } catch (const app::FileError&) {
    return false;  // it is gone, or saving tells what is wrong with it
  }
}

bool PictureFiles::Write(const fs::path& path) {
  const app::WaitScope wait(with_.pointer);
  std::string trouble;
  const bool saved = app::Guarded(
      with_.log, "MDIFormMenu_SaveBitmap", [&] { trouble = SaveBitmap(document_, path, with_); },
      [&](const std::exception& error) {
        with_.messages.Warn("The picture was not saved.\n" + std::string(error.what()));
      });
  if (!saved) return false;
  with_.display.PictureSaved();
  with_.display.ShowFile(document_.file);
  with_.status.Tell("Saved " + app::TextFromPath(document_.file.CurrentFilePath) + ", " +
                    std::to_string(document_.on_disk.size()) + " bytes");
  if (!trouble.empty()) {
    with_.log.Write("MDIFormMenu_SaveBitmap: " + trouble);
    with_.messages.Warn("The picture is saved, but its backup could not be made.\n" + trouble);
  }
  return true;
}

void PictureFiles::New() {
  if (!MayThrowAwayPicture()) return;
  const model::PictureImage empty{.BackgroundColour = document_.picture.BackgroundColour};
  TakeOver({.picture = empty, .kept = empty, .file = {}}, "New");
  with_.prompt.CommandPromptList("NEW");
}

bool PictureFiles::TakeImported(const model::PictureImage& picture, const fs::path& image) {
  if (!MayThrowAwayPicture()) return false;
  const std::string name = app::TextFromPath(image.filename());
  TakeOver({.picture = picture, .kept = {}, .file = {{}, app::TextFromPath(image.stem()) + ".kvp"}}, "Import " + name);
  with_.prompt.CommandPromptList("IMPORT " + name);
  return true;
}

bool PictureFiles::Recover(const Document& rescued) {
  if (!MayThrowAwayPicture()) return false;
  Document recovered{.picture = rescued.picture, .kept = {}, .file = rescued.file};
  if (IsThere(recovered.file.CurrentFilePath)) {
    app::Guarded(with_.log, "MDIFormMenu_Recover", [&] {
      recovered.on_disk = app::ReadWholeFile(recovered.file.CurrentFilePath, app::kMostBytesToCopy);
    });
  }
  const std::string caption = "Recover " + StatusName(recovered.file);
  TakeOver(std::move(recovered), caption);
  return true;
}

bool PictureFiles::Return(const Document& state) {
  const bool leaves_file = state.file.CurrentFilePath != document_.file.CurrentFilePath;
  if (leaves_file && document_.HasUnsavedWork() && rescued_ != document_.picture) {
    if (!MayThrowAwayPicture()) return false;
    rescued_ = document_.picture;
  }
  Replace(state);
  if (leaves_file) TakeSnapshot();  // what the next save backs up is this file's, not the other's
  return true;
}

bool PictureFiles::MayClose() {
  if (!document_.HasUnsavedWork()) return true;
  const app::UnsavedAnswer answer =
      with_.messages.AskUnsaved("The picture " + StatusName(document_.file) + " has unsaved changes.");
  return answer == app::UnsavedAnswer::kDiscard || (answer == app::UnsavedAnswer::kSave && Save());
}

void PictureFiles::FilesMoved(const WhereNow& now) {
  recent_.Follow(now);
  with_.display.FilesMoved(now);
  if (!document_.file.HasFile()) return;
  document_.file = SetFileParameters(now(document_.file.CurrentFilePath));
  with_.display.ShowFile(document_.file);
}

void PictureFiles::ThinBackups() {
  app::Guarded(with_.log, "MDIFormMenu_ThinBackups", [this] {
    Backups(with_.folders, with_.clock).Thin(app::ReadNumber(with_.settings, kKeepBackupsDays, 0, kMostBackupDays));
  });
}

void PictureFiles::OpenRecent(const fs::path& path) {
  if (IsThere(path)) OpenPicture(path);
}

bool PictureFiles::MayThrowAwayPicture() {
  if (!document_.HasUnsavedWork()) return true;
  bool may = true;
  app::Guarded(
      with_.log, "MDIFormMenu_KeepRescueCopy",
      [&] {
        const fs::path kept = KeepRescueCopy(document_, with_.folders, with_.clock);
        with_.status.Warn("Unsaved work was kept in BACKUP as " + app::TextFromPath(kept.filename()));
      },
      [&](const std::exception& error) {
        may = with_.messages.Ask("The unsaved picture could not be kept in the BACKUP folder.\n" +
                                 std::string(error.what()) + "\nThrow it away?");
      });
  return may;
}

fs::path PictureFiles::FolderForDialogs() const {
  const std::string stored = with_.settings.Read(kFilePath);
  return stored.empty() ? with_.folders.Gfx() : app::PathFromText(stored);
}

}  // namespace kelvo::files
