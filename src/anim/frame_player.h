// The preview: which frame is to be seen when.
#pragma once

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <optional>
#include <vector>

#include "anim/anim_settings.h"
#include "anim/frame_row.h"
#include "anim/frame_times.h"
#include "files/picture_format.h"
#include "model/picture_image.h"

namespace kelvo::anim {

struct TimedFrame {
  std::filesystem::path path;
  int turns = 1;  // for how many it stays
};

// All frames that can be played.
std::vector<TimedFrame> FramesToPlay(const FrameRow& row, const FrameTimes& times);

// Runs through the frames at a steady pace: which one is to be seen follows from the time since the start alone,
// so a view that comes late once does not fall behind. Holds one picture, however many frames there are; the picture in
// memory is never touched. A frame that cannot be read any more leaves the one before to be seen.
class FramePlayer {
 public:
  using Milliseconds = std::chrono::milliseconds;

  // The frames in their order, turns a second, kSlowestRate..kFastestRate, how files are read, and what follows the
  // last frame. To and fro, the first and the last frame are shown once each time.
  FramePlayer(std::vector<TimedFrame> frames, int rate, files::Reading reading = files::Reading::kDocumented,
              Playing playing = Playing::kRound);

  bool IsEmpty() const { return frames_.empty(); }

  // Whether the last frame's turns have passed, of frames that play once.
  bool IsOver(Milliseconds since_start) const;

  // The picture whose turn has come, `since_start` after the start; null while the one shown last still has a turn.
  // It stands until the next call.
  const model::PictureImage* Due(Milliseconds since_start);

  // Reads the frame after the one shown last, so that Due() has it at hand. For the time after painting.
  void ReadAhead();

  // How long until the next frame's turn; of frames that are over, until any.
  Milliseconds UntilNext(Milliseconds since_start) const;

 private:
  using Turn = std::chrono::milliseconds::rep;
  // Which frame of those that were and will be shown: counted from 0 on, over all rounds.
  using Showing = Turn;

  Turn TurnAt(Milliseconds since_start) const;
  Turn TurnsARound() const { return ends_.back(); }
  Showing ShowingAt(Turn turn) const;
  void Read(Showing showing);

  std::vector<TimedFrame> frames_;
  int rate_;
  files::Reading reading_;
  Playing playing_;
  std::vector<std::size_t> order_;  // of the frames in a round
  std::vector<Turn> ends_;          // of each one's turns in the first round
  Showing shown_ = -1;
  std::optional<std::size_t> read_index_;
  std::optional<model::PictureImage> read_;
};

}  // namespace kelvo::anim
