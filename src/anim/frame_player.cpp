#include "anim/frame_player.h"

#include <algorithm>

#include "anim/playing_order.h"

namespace kelvo::anim {

std::vector<TimedFrame> FramesToPlay(const FrameRow& row, const FrameTimes& times) {
  std::vector<TimedFrame> frames;
  for (const int number : row.Readable()) frames.push_back({row.Path(number), times.TurnsOf(number)});
  return frames;
}

FramePlayer::FramePlayer(std::vector<TimedFrame> frames, int rate, files::Reading reading, Playing playing)
    : frames_(std::move(frames)),
      rate_(std::clamp(rate, kSlowestRate, kFastestRate)),
      reading_(reading),
      playing_(playing) {
  if (IsEmpty()) return;
  order_ = OrderOfRound(frames_.size(), playing);
  Turn end = 0;
  for (const std::size_t frame : order_) ends_.push_back(end += frames_[frame].turns);
}

bool FramePlayer::IsOver(Milliseconds since_start) const {
  return playing_ == Playing::kOnce && TurnAt(since_start) >= TurnsARound();
}

const model::PictureImage* FramePlayer::Due(Milliseconds since_start) {
  if (IsEmpty()) return nullptr;
  const Showing showing = ShowingAt(TurnAt(since_start));
  if (showing == shown_) return nullptr;
  Read(showing);
  shown_ = showing;
  return read_ ? &*read_ : nullptr;
}

void FramePlayer::ReadAhead() {
  if (!IsEmpty()) Read(shown_ + 1);
}

FramePlayer::Milliseconds FramePlayer::UntilNext(Milliseconds since_start) const {
  const Turn turn = TurnAt(since_start);
  const auto end = std::ranges::upper_bound(ends_, turn % TurnsARound());
  const Turn next = turn - turn % TurnsARound() + *end;
  return Milliseconds((next * 1000 + rate_ - 1) / rate_) - since_start;
}

FramePlayer::Turn FramePlayer::TurnAt(Milliseconds since_start) const {
  return std::max<Turn>(since_start.count(), 0) * rate_ / 1000;
}

FramePlayer::Showing FramePlayer::ShowingAt(Turn turn) const {
  if (playing_ == Playing::kOnce) turn = std::min(turn, TurnsARound() - 1);
  const auto place = std::ranges::upper_bound(ends_, turn % TurnsARound()) - ends_.begin();
  return turn / TurnsARound() * std::ssize(order_) + place;
}

void FramePlayer::Read(Showing showing) {
  const std::size_t index = order_[static_cast<std::size_t>(showing) % order_.size()];
  if (read_index_ == index) return;
  read_index_ = index;
  read_ = ReadFrame(frames_[index].path, reading_);
}

}  // namespace kelvo::anim
