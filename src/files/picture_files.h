// The File menu: open, reload, save, save as, new.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "app/long_work.h"
#include "app/surroundings.h"
#include "files/document.h"
#include "files/file_ports.h"
#include "files/recent_files.h"
#include "files/save_bitmap.h"
#include "model/picture_views.h"

namespace kelvo::files {

// What the file operations work with; all of it outlives them.
struct FileSurroundings : app::Surroundings {
  app::WaitPointer& pointer;
  FileDialogs& dialogs;
  FileDisplay& display;
  model::PictureViews& views;
  app::StatusLine& status;
};

// How a load that failed is told, besides its line in the prompt.
enum class OnFailure { kMessageBox, kPromptOnly };

// No operation throws: what fails is logged and told to the user, and the picture, its name and the title are as they
// were. Operations that throw unsaved work away keep a rescue copy of it first; where that cannot be written they ask.
class PictureFiles {
 public:
  PictureFiles(Document& document, const FileSurroundings& surroundings)
      : document_(document), with_(surroundings), recent_(surroundings.settings) {}

  // True when a picture was opened. The first asks with the open dialog.
  bool Open();
  bool OpenPicture(const std::filesystem::path& path, OnFailure on_failure = OnFailure::kMessageBox);

  // Opens the current file again, without asking. False without a current file.
  bool Reload();

  // True when the picture is on the disk. Save on a picture that has no file yet is SaveAs; SaveChanges is Save without
  // its line in the prompt. What stands at the place already is never replaced unasked, but for the current file as
  // this program knows it and for just the name that the save dialog gave.
  bool Save();
  bool SaveAs();
  bool SaveChanges();
  bool SaveTo(const std::filesystem::path& path);

  // Whether another program changed the current file since this one last read or wrote it.
  bool IsChangedElsewhere() const;

  // An empty picture without a file; the background colour stays.
  void New();

  // Takes over what was made of an image, as unsaved work that is named after it. False when the picture in memory
  // stays.
  bool TakeImported(const model::PictureImage& picture, const std::filesystem::path& image);

  // Takes over unsaved work that outlived a crash, as unsaved work again. False when the picture in memory stays.
  bool Recover(const Document& rescued);

  // Puts a state of the history in the picture's place. Unsaved work of another file is kept as a rescue copy first, as
  // before a load; false when the picture stays.
  bool Return(const Document& state);

  // True when the program may end: nothing is unsaved, or the user saved it or gave it up.
  bool MayClose();

  // Files of pictures have other paths now: the current file, the recent list and the display go along with them.
  void FilesMoved(const WhereNow& now);

  // Removes backups that nobody would miss, as the settings say.
  void ThinBackups();

  std::vector<std::filesystem::path> RecentPaths() const { return recent_.Paths(); }
  // Opens a path of the recent list; one that is gone is passed over in silence.
  void OpenRecent(const std::filesystem::path& path);

  // Where a dialog for files begins: the folder that was used last, else GFX.
  std::filesystem::path FolderForDialogs() const;

 private:
  bool OpenAs(const std::filesystem::path& path, FormatType type, OnFailure on_failure);
  std::optional<Document> Read(const std::filesystem::path& path, FormatType type, OnFailure on_failure);
  // Where the other of the two readings would give another picture.
  void TellOtherReading(FormatType type, const app::Bytes& bytes, model::C64Colour background_before);
  void TellFailedLoad(const std::filesystem::path& path, const std::string& why, OnFailure on_failure);
  // The picture becomes that of `document`, by an action of that caption.
  void TakeOver(Document document, const std::string& caption);
  void Replace(Document document);
  void TakeSnapshot();
  bool MayThrowAwayPicture();
  bool MayReplace(const std::filesystem::path& path, const std::filesystem::path& chosen);
  bool Write(const std::filesystem::path& path);

  Document& document_;
  FileSurroundings with_;
  RecentFiles recent_;
  std::optional<model::PictureImage> rescued_;  // what was kept when a step was left last
};

// What works with the picture and its files; all of it outlives whoever holds this.
struct PictureSurroundings : app::Surroundings {
  const Document& document;
  PictureFiles& files;
};

}  // namespace kelvo::files
