// The preview: which frame is to be seen when.
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

#include "anim/anim_settings.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::anim {

// Runs through the frames at a steady pace: a frame's turn follows from the time since the start alone,
// so a view that comes late once does not fall behind. Holds one picture, however many frames there are; the picture in
// memory is never touched. A frame that cannot be read any more leaves the one before to be seen.
class FramePlayer {
 public:
  using Milliseconds = std::chrono::milliseconds;

  // The frames in their order, frames a second, kSlowestRate..kFastestRate, how files are read, and what follows the
  // last frame. To and fro, the first and the last frame have one turn each time.
  FramePlayer(std::vector<std::filesystem::path> paths, int rate, files::Reading reading = files::Reading::kDocumented,
              Playing playing = Playing::kRound);

  bool IsEmpty() const { return paths_.empty(); }

  // Whether the turn of the last frame has passed, of frames that play once.
  bool IsOver(Milliseconds since_start) const;

  // The picture whose turn has come, `since_start` after the start; null while the one shown last still has its turn.
  // It stands until the next call.
  const model::PictureImage* Due(Milliseconds since_start);

  // Reads the frame after the one shown last, so that Due() has it at hand. For the time after painting.
  void ReadAhead();

  // How long until the next turn.
  Milliseconds UntilNext(Milliseconds since_start) const;

 private:
  using Turn = std::chrono::milliseconds::rep;

  Turn TurnAt(Milliseconds since_start) const;
  std::size_t IndexAt(Turn turn) const;
  void Read(Turn turn);

  std::vector<std::filesystem::path> paths_;
  int rate_;
  files::Reading reading_;
  Playing playing_;
  Turn shown_turn_ = -1;
  std::optional<std::size_t> read_index_;
  std::optional<model::PictureImage> read_;
};

}  // namespace kelvo::anim
