#include "anim/frame_player.h"

#include <algorithm>

#include "anim/frame_row.h"

namespace kelvo::anim {

FramePlayer::FramePlayer(std::vector<std::filesystem::path> paths, int rate, files::Reading reading, Playing playing)
    : paths_(std::move(paths)),
      rate_(std::clamp(rate, kSlowestRate, kFastestRate)),
      reading_(reading),
      playing_(playing) {}

bool FramePlayer::IsOver(Milliseconds since_start) const {
  return playing_ == Playing::kOnce && TurnAt(since_start) >= static_cast<Turn>(paths_.size());
}

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

std::size_t FramePlayer::IndexAt(Turn turn) const {
  const auto at = static_cast<std::size_t>(turn), last = paths_.size() - 1;
  if (playing_ == Playing::kOnce) return std::min(at, last);
  if (playing_ == Playing::kRound) return at % paths_.size();
  const std::size_t there_and_back = std::max<std::size_t>(2 * last, 1), way = at % there_and_back;
  return way <= last ? way : there_and_back - way;
}

void FramePlayer::Read(Turn turn) {
  const std::size_t index = IndexAt(turn);
  if (read_index_ == index) return;
  read_index_ = index;
  read_ = ReadFrame(paths_[index], reading_);
}

}  // namespace kelvo::anim
