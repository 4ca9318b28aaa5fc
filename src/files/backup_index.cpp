#include "files/backup_index.h"

#include <algorithm>
#include <string_view>

#include "app/durable_file.h"
#include "app/whole_file.h"

namespace kelvo::files {
namespace {

constexpr std::uintmax_t kLongestIndex = 64U << 20;
constexpr char kFieldEnd = '\t', kLineEnd = '\n';

// Takes what stands before the next `end` off `text`, and the end too.
std::string TakeUntil(char end, std::string_view& text) {
  const auto at = std::min(text.find(end), text.size());
  std::string taken(text.substr(0, at));
  text.remove_prefix(std::min(at + 1, text.size()));
  return taken;
}

BackupNote NoteIn(std::string_view line) {
  BackupNote note;
  for (std::string* field : {&note.file_name, &note.stamp, &note.picture}) *field = TakeUntil(kFieldEnd, line);
  return note;
}

std::string LineOf(const BackupNote& note) {
  return note.file_name + kFieldEnd + note.stamp + kFieldEnd + note.picture + kLineEnd;
}

}  // namespace

std::vector<BackupNote> ReadBackupIndex(const std::filesystem::path& index) {
  std::vector<BackupNote> notes;
  std::error_code ignored;
  if (!std::filesystem::exists(index, ignored)) return notes;
  const app::Bytes bytes = app::ReadWholeFile(index, kLongestIndex);
  std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
  while (!text.empty()) {
    const std::string line = TakeUntil(kLineEnd, text);
    const BackupNote note = NoteIn(line);
    if (LineOf(note) == line + kLineEnd) notes.push_back(note);
  }
  return notes;
}

void AddToBackupIndex(const std::filesystem::path& index, const BackupNote& note) {
  const std::string line = LineOf(note);
  if (NoteIn(std::string_view(line).substr(0, line.find(kLineEnd))) == note) app::AppendText(index, line);
}

void WriteBackupIndex(const std::filesystem::path& index, const std::vector<BackupNote>& notes) {
  app::Bytes bytes;
  for (const BackupNote& note : notes) {
    const std::string line = LineOf(note);
    bytes.insert(bytes.end(), line.begin(), line.end());
  }
  app::WriteOwnFile(index, bytes);
}

}  // namespace kelvo::files
