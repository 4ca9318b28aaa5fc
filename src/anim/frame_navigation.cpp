#include "anim/frame_navigation.h"

#include <algorithm>

#include "app/text.h"
#include "files/load_picture.h"

namespace kelvo::anim {
namespace {

// What lies between two numbers of the row, neither included.
std::string Skipped(int from, int to) {
  const int first = std::min(from, to) + 1, last = std::max(from, to) - 1;
  if (first > last) return {};
  if (first == last) return FrameWords(first) + " SKIPPED";
  return "FRAMES " + std::to_string(first) + " TO " + std::to_string(last) + " SKIPPED";
}

std::optional<int> FrameNumberIn(std::string_view typed) {
  constexpr std::size_t kMostDigits = 9;  // leading zeros may stand there as in a file name
  const std::string_view digits = app::Trimmed(typed);
  if (digits.empty() || digits.size() > kMostDigits) return std::nullopt;
  if (digits.find_first_not_of("0123456789") != std::string_view::npos) return std::nullopt;
  const int number = std::stoi(std::string(digits));
  return number >= kFirstFrame && number <= kLastFrame ? std::optional(number) : std::nullopt;
}

}  // namespace

std::string FrameWords(int number) {
  return "FRAME " + std::to_string(number);
}

std::string FrameNavigation::Move(FrameMove move) {
  switch (move) {
    case FrameMove::kPrevious:
      return Previous();
    case FrameMove::kNext:
      return Next();
    case FrameMove::kBack:
      return Back();
    case FrameMove::kFirst:
      return First();
  }
  return {};
}

std::string FrameNavigation::First() {
  Refresh();
  const auto first = row_.ReadableAfter(0);
  return first ? GoToNumber(*first, Skipped(0, *first)) : kNoFrames;
}

std::string FrameNavigation::Previous() {
  Refresh();
  const int here = CurrentFrame().value_or(0);
  const auto before = row_.ReadableBefore(here);
  return before ? GoToNumber(*before, Skipped(*before, here)) : "NO FRAME BEFORE THIS ONE";
}

std::string FrameNavigation::Next() {
  Refresh();
  const int here = CurrentFrame().value_or(0);
  const auto after = row_.ReadableAfter(here);
  return after ? GoToNumber(*after, Skipped(here, *after)) : OfferToCreate(std::max(here, row_.Last()) + 1);
}

std::string FrameNavigation::Back() {
  Refresh();
  return shown_before_ ? GoToNumber(*shown_before_, {}) : "NO FRAME WAS SHOWN BEFORE";
}

std::string FrameNavigation::GoTo(std::string_view typed) {
  Refresh();
  const auto number = FrameNumberIn(typed);
  return number ? GoToNumber(*number, {}) : "TYPE A NUMBER FROM 1 TO 9999";
}

std::optional<int> FrameNavigation::CurrentFrame() const {
  return Names().NumberOfPath(with_.document.file.CurrentFilePath);
}

void FrameNavigation::Refresh() {
  row_ = LookAtFrames(Names());
}

std::optional<model::PictureImage> FrameNavigation::PictureBefore() const {
  return PictureOf(row_.ReadableBefore(CurrentFrame().value_or(0)));
}

std::optional<model::PictureImage> FrameNavigation::PictureAfter() const {
  const auto current = CurrentFrame();
  return current ? PictureOf(row_.ReadableAfter(*current)) : std::nullopt;
}

std::optional<model::PictureImage> FrameNavigation::PictureOf(std::optional<int> number) const {
  return number ? ReadFrame(row_.Path(*number), files::ReadingBy(with_.settings)) : std::nullopt;
}

void FrameNavigation::FramesRenumbered(const std::function<std::optional<int>(int)>& number_now) {
  if (shown_before_) shown_before_ = number_now(*shown_before_);
  Refresh();
}

FrameNames FrameNavigation::Names() const {
  return FrameNames(ReadAnimProperties(with_.settings));
}

std::string FrameNavigation::GoToNumber(int number, const std::string& word) {
  const auto left = CurrentFrame();
  if (number == left) return word;
  if (!row_.Has(number)) return FrameWords(number) + " IS MISSING";
  if (!SaveChanges()) return FrameWords(*left) + " IS NOT SAVED";
  if (!with_.files.OpenPicture(row_.Path(number))) return FrameWords(number) + " IS NOT LOADED";
  if (left) shown_before_ = left;
  return word;
}

std::string FrameNavigation::OfferToCreate(int number) {
  if (number > kLastFrame) return FrameWords(kLastFrame) + " IS THE LAST ONE";
  const FrameNames names = Names();
  const auto left = CurrentFrame();
  if (!with_.messages.Ask("There is no frame after this one\r\nDo you want to create " + names.FileName(number) +
                          " based on the picture in memory?")) {
    return {};
  }
  if (!SaveChanges()) return FrameWords(*left) + " IS NOT SAVED";
  if (!with_.files.SaveTo(names.Path(number))) return FrameWords(number) + " IS NOT SAVED";
  if (left) shown_before_ = left;
  Refresh();
  return Skipped(left.value_or(0), number);
}

// A picture that is no frame is not touched here: opening a frame keeps a rescue copy of it.
bool FrameNavigation::SaveChanges() {
  return !CurrentFrame() || !with_.document.HasUnsavedWork() || with_.files.SaveChanges();
}

}  // namespace kelvo::anim
