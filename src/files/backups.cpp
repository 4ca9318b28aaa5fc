#include "files/backups.h"

#include <algorithm>
#include <chrono>
#include <map>
#include <optional>
#include <set>
#include <utility>
#include <vector>

#include "app/durable_file.h"
#include "app/file_name.h"
#include "app/folder_entries.h"
#include "app/path_text.h"
#include "app/text.h"
#include "app/whole_file.h"
#include "files/backup_index.h"

namespace kelvo::files {
namespace {

namespace fs = std::filesystem;
using std::chrono::sys_days;

constexpr std::string_view kSnapshotEnding = ".prg";
constexpr std::size_t kDayDigits = 6;  // of a stamp: YYMMDD
constexpr int kCentury = 2000;         // that its years are in

// Not when it cannot be read: another program may take it away meanwhile.
bool Holds(const fs::path& file, std::span<const std::uint8_t> bytes) {
  try {
    return fs::is_regular_file(fs::symlink_status(file)) &&
           std::ranges::equal(app::ReadWholeFile(file, app::kMostBytesToCopy), bytes);
  } catch (const app::FileError&) {
    return false;
  }
}

// The day that a stamp begins with, if it is one.
std::optional<sys_days> DayOf(const std::string& stamp) {
  const auto number = [&stamp](std::size_t at) {
    return app::WholeNumber<std::uint16_t>(std::string_view(stamp).substr(std::min(at, stamp.size()), 2)).value_or(0);
  };
  const std::chrono::year_month_day day{std::chrono::year(kCentury + static_cast<int>(number(0))),
                                        std::chrono::month(number(2)), std::chrono::day(number(4))};
  return day.ok() ? std::optional<sys_days>(day) : std::nullopt;
}

// The newest note of each file, in their order: a file that made room left its name to another.
std::vector<BackupNote> NewestOfEach(const std::vector<BackupNote>& notes) {
  std::set<std::string> seen;
  std::vector<BackupNote> newest;
  for (auto note = notes.rbegin(); note != notes.rend(); ++note) {
    if (seen.insert(note->file_name).second) newest.push_back(*note);
  }
  std::reverse(newest.begin(), newest.end());
  return newest;
}

// The names of those that no later one of the same picture and day follows.
std::set<std::string> LastOfTheirDays(const std::vector<BackupNote>& notes) {
  std::map<std::pair<std::string, std::string>, std::string> last;
  for (const BackupNote& note : notes) last[{note.picture, note.stamp.substr(0, kDayDigits)}] = note.file_name;
  std::set<std::string> names;
  for (const auto& [day, name] : last) names.insert(name);
  return names;
}

std::set<std::string> NamesIn(const fs::path& folder) {
  std::set<std::string> names;
  for (const fs::path& entry : app::EntriesOf(folder)) names.insert(app::TextFromPath(entry.filename()));
  return names;
}

}  // namespace

void Backups::KeepSnapshot(std::span<const std::uint8_t> bytes, const CurrentFile& picture) const {
  const std::string stamp = app::BackupStamp(clock_.Now()), mark = "_" + stamp;
  const std::string file_name = app::FittingName(picture.CurrentFileName, mark + std::string(kSnapshotEnding));
  const fs::path file = folders_.Backup() / app::PathFromText(file_name);
  while (!app::MakeOwnFile(file, bytes, app::Flush::kToDisk)) {
    if (Holds(file, bytes)) return;
    MakeRoom(file, [&] { return app::FreeNameIn(folders_.Backup(), picture.CurrentFileName, mark, kSnapshotEnding); });
  }
  AddToBackupIndex(Index(), {file_name, stamp, app::TextFromPath(picture.CurrentFilePath)});
}

// Renames a snapshot, and its note with it. Other programs may do the same at this moment.
void Backups::MakeRoom(const fs::path& file, const std::function<fs::path()>& free_name) const {
  fs::path other = free_name();
  std::error_code error = app::RenameToNew(file, other);
  while (error == std::errc::file_exists) error = app::RenameToNew(file, other = free_name());
  if (error == std::errc::no_such_file_or_directory) return;
  if (error) throw app::FileError(app::TextFromPath(file) + ": it cannot be renamed: " + error.message());
  const std::string name = app::TextFromPath(file.filename());
  const std::vector<BackupNote> notes = ReadBackupIndex(Index());
  const auto note = std::find_if(notes.rbegin(), notes.rend(), [&](const auto& n) { return n.file_name == name; });
  if (note == notes.rend()) return;
  AddToBackupIndex(Index(), {app::TextFromPath(other.filename()), note->stamp, note->picture});
  AddToBackupIndex(Index(), {name, {}, {}});  // whoever takes the name now does not take the note
}

fs::path Backups::Keep(std::span<const std::uint8_t> bytes, std::string_view name, std::string_view mark,
                       std::string_view ending) const {
  const std::string stamped = "_" + app::BackupStamp(clock_.Now()) + std::string(mark);
  fs::path file;
  do {
    file = app::FreeNameIn(folders_.Backup(), name, stamped, ending);
  } while (!app::MakeOwnFile(file, bytes, app::Flush::kToDisk));
  return file;
}

void Backups::Thin(int days) const {
  if (days <= 0) return;
  const std::vector<BackupNote> notes = ReadBackupIndex(Index());
  const auto today = DayOf(app::BackupStamp(clock_.Now()));
  const std::set<std::string> here = NamesIn(folders_.Backup());
  std::vector<BackupNote> kept = NewestOfEach(notes);
  std::erase_if(kept, [&](const BackupNote& note) { return !here.contains(note.file_name); });
  const std::set<std::string> last = LastOfTheirDays(kept);
  std::erase_if(kept, [&](const BackupNote& note) {
    const auto day = DayOf(note.stamp);
    if (!today || !day || *today - *day <= std::chrono::days(days) || last.contains(note.file_name)) return false;
    std::error_code ignored;
    return fs::remove(folders_.Backup() / app::PathFromText(note.file_name), ignored);
  });
  if (kept.size() < notes.size()) WriteBackupIndex(Index(), kept);
}

}  // namespace kelvo::files
