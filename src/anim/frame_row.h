// The frames of an animation that are on the disk, in order.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <vector>

#include "anim/frame_names.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::anim {

// As the folder was when it was read; a folder that is missing or cannot be read has no frames. Where several files
// differ only in the case of their names, the one that FrameNames would write counts.
class FrameRow {
 public:
  FrameRow() = default;
  explicit FrameRow(const FrameNames& names);

  int Count() const { return static_cast<int>(paths_.size()); }
  bool Has(int number) const { return paths_.contains(number); }
  const std::filesystem::path& Path(int number) const { return paths_.at(number); }  // of a frame that it has
  std::vector<int> Numbers() const;
  int Last() const { return paths_.empty() ? 0 : paths_.rbegin()->first; }

  // The nearest frame after or before `number` (0 or more) whose file has the size of a picture.
  std::optional<int> ReadableAfter(int number) const;
  std::optional<int> ReadableBefore(int number) const;

  // The numbers of all frames whose files have the size of a picture.
  std::vector<int> Readable() const;

  friend bool operator==(const FrameRow&, const FrameRow&) = default;

 private:
  std::map<int, std::filesystem::path> paths_;
};

// The frames that are there now, once what a program left halfway is put right.
FrameRow LookAtFrames(const FrameNames& names);

// Whether a file has the size of a picture.
bool HasPictureSize(const std::filesystem::path& path);

// The picture in a frame's file; empty when it cannot be read.
std::optional<model::PictureImage> ReadFrame(const std::filesystem::path& path, files::Reading reading);

}  // namespace kelvo::anim
