#include "anim/frame_row.h"

#include <algorithm>
#include <exception>

#include "anim/renaming.h"
#include "app/path_text.h"
#include "files/load_picture.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

template <typename Entries>
std::optional<int> FirstReadable(Entries from, Entries to) {
  const auto found = std::find_if(from, to, [](const auto& frame) { return HasPictureSize(frame.second); });
  return found == to ? std::nullopt : std::optional(found->first);
}

}  // namespace

FrameRow::FrameRow(const FrameNames& names) {
  std::error_code error;
  for (fs::directory_iterator entry(names.Folder(), error), end; entry != end; entry.increment(error)) {
    const std::string name = app::TextFromPath(entry->path().filename());
    const auto number = names.NumberOf(name);
    std::error_code ignored;
    if (!number || !entry->is_regular_file(ignored)) continue;
    const fs::path path = app::PathFromText(names.FolderText() + name), exact = names.Path(*number);
    fs::path& chosen = paths_[*number];
    if (chosen != exact && (path == exact || path > chosen)) chosen = path;
  }
}

std::vector<int> FrameRow::Numbers() const {
  std::vector<int> numbers;
  for (const auto& [number, path] : paths_) numbers.push_back(number);
  return numbers;
}

std::optional<int> FrameRow::ReadableAfter(int number) const {
  return FirstReadable(paths_.upper_bound(number), paths_.end());
}

std::optional<int> FrameRow::ReadableBefore(int number) const {
  return FirstReadable(std::make_reverse_iterator(paths_.lower_bound(number)), paths_.rend());
}

std::vector<int> FrameRow::Readable() const {
  std::vector<int> numbers = Numbers();
  std::erase_if(numbers, [this](int number) { return !HasPictureSize(Path(number)); });
  return numbers;
}

FrameRow LookAtFrames(const FrameNames& names) {
  try {
    SettleRenaming(names.Folder());
  } catch (const RenamingError&) {
    // what can be read of the folder is shown; who renames is told
  }
  return FrameRow(names);
}

bool HasPictureSize(const fs::path& path) {
  std::error_code error;
  const std::uintmax_t size = fs::file_size(path, error);
  return !error && files::FormatOf(files::kOwnType).Takes(size);
}

std::optional<model::PictureImage> ReadFrame(const fs::path& path, files::Reading reading) {
  try {
    return files::LoadPicture(path, files::kOwnType, {}, reading);
  } catch (const std::exception&) {
    return std::nullopt;
  }
}

}  // namespace kelvo::anim
