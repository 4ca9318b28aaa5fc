#include "anim/frame_player.h"

#include <algorithm>

#include "anim/anim_settings.h"
#include "anim/frame_row.h"

namespace kelvo::anim {

FramePlayer::FramePlayer(std::vector<std::filesystem::path> paths, int rate, files::Reading reading)
    : paths_(std::move(paths)), rate_(std::clamp(rate, kSlowestRate, kFastestRate)), reading_(reading) {}

const model::PictureImage* FramePlayer::Due(Milliseconds since_start) {
  const Turn turn = TurnAt(since_start);
  if (IsEmpty() || turn == shown_turn_) return nullptr;
  Read(turn);
  shown_turn_ = turn;
  return read_ ? &*read_ : nullptr;
}

void FramePlayer::ReadAhead() {
  if (!IsEmpty()) Read(shown_turn_ + 1);
}

FramePlayer::Milliseconds FramePlayer::UntilNext(Milliseconds since_start) const {
  const Turn next = TurnAt(since_start) + 1;
  const Milliseconds at((next * 1000 + rate_ - 1) / rate_);
  return at - since_start;
}

FramePlayer::Turn FramePlayer::TurnAt(Milliseconds since_start) const {
  return std::max<Turn>(since_start.count(), 0) * rate_ / 1000;
}

void FramePlayer::Read(Turn turn) {
  const auto index = static_cast<std::size_t>(turn) % paths_.size();
  if (read_index_ == index) return;
  read_index_ = index;
  read_ = ReadFrame(paths_[index], reading_);
}

}  // namespace kelvo::anim
