// The order of the frames on the disk: moving, inserting, duplicating and deleting them. Frames have the numbers that
// their files are called by, so a change of the order is a renaming of files.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "anim/frame_navigation.h"
#include "anim/renaming.h"

namespace kelvo::anim {

struct NumberChange {
  int from, to;

  friend bool operator==(const NumberChange&, const NumberChange&) = default;
};

// In all of these `numbers` are those of the frames that are there, in their order.

// Frame `from` takes the place of frame `to`, and those between move on by a place. The numbers stay the same ones.
std::vector<NumberChange> MovingFrame(std::span<const int> numbers, int from, int to);
// Those from `number` on up to the next gap move up by one; empty when there is no gap up to kLastFrame.
std::optional<std::vector<NumberChange>> MakingRoom(std::span<const int> numbers, int number);
// Those behind `number` up to the next gap come down by one.
std::vector<NumberChange> ClosingUp(std::span<const int> numbers, int number);

// Every change is done wholly or not at all, and replaces nothing that it does not know. `seen` is the row of frames
// that the user looked at: when the folder is another one meanwhile nothing is done. The current picture, its unsaved
// work, its steps, the recent list and the list of times go along with the files. Each change gives a word for the
// status bar.
class FrameOrder {
 public:
  // `navigation` outlives it.
  FrameOrder(const files::PictureSurroundings& with, FrameNavigation& navigation, RenameFile rename = app::RenameToNew)
      : with_(with), navigation_(navigation), rename_(std::move(rename)) {}

  [[nodiscard]] std::string Move(const FrameRow& seen, int from, int to);
  // A new frame behind frame `number`, or before all others (0): the picture in memory, or a copy of frame `number` as
  // it is to be seen. Then it goes there.
  [[nodiscard]] std::string Insert(const FrameRow& seen, int number);
  [[nodiscard]] std::string Duplicate(const FrameRow& seen, int number);
  // The file goes to the BACKUP folder. The current frame is left first; it stays when it is the only one.
  [[nodiscard]] std::string Delete(const FrameRow& seen, int number);

 private:
  template <typename Change>
  std::string Guard(const FrameRow& seen, Change&& change);
  std::string Add(int number, const app::Bytes& bytes);
  // `passing` is the file that comes into the row or leaves it; empty: none.
  void Renumber(const std::vector<NumberChange>& changes, const Renaming& passing);

  files::PictureSurroundings with_;
  FrameNavigation& navigation_;
  RenameFile rename_;
};

}  // namespace kelvo::anim
