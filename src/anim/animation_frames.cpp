#include "anim/animation_frames.h"

#include <algorithm>
#include <stdexcept>

#include "anim/frame_row.h"
#include "anim/frame_times.h"
#include "app/path_text.h"
#include "app/whole_file.h"
#include "files/picture_format.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostNamed = 6;

void RequirePictureSize(const fs::path& frame) {
  const files::PictureFormat& format = files::FormatOf(files::kOwnType);
  const std::uintmax_t size = app::FileSize(frame);
  if (format.Takes(size)) return;
  throw std::runtime_error(app::TextFromPath(frame.filename()) + ": " + files::FormatError(format, size).Sizes());
}

}  // namespace

AnimationFrames FindFrames(const AnimProperties& properties) {
  const FrameNames names(properties);
  const FrameRow row = LookAtFrames(names);
  if (row.Count() == 0) {
    throw std::runtime_error("There are no frames such as " + app::TextFromPath(names.Path(kFirstFrame)));
  }
  AnimationFrames found{.folder = names.Folder(), .name = names.AnimationName()};
  const FrameTimes times = ReadFrameTimes(names);
  for (int number = kFirstFrame; number <= row.Last(); ++number) {
    if (row.Has(number)) {
      RequirePictureSize(row.Path(number));
      found.frames.push_back({number, row.Path(number), times.TurnsOf(number)});
    } else if (!found.frames.empty()) {
      found.missing.push_back(number);
    }
  }
  return found;
}

std::vector<int> FieldsOf(const AnimationFrames& animation, int rate) {
  std::vector<int> turns;
  for (const AnimationFrame& frame : animation.frames) turns.push_back(frame.turns);
  return FieldsOf(turns, rate);
}

std::string FramesNamed(const std::vector<int>& numbers) {
  std::string text = numbers.size() == 1 ? "Frame " : "Frames ";
  const std::size_t named = std::min(numbers.size(), kMostNamed);
  for (std::size_t i = 0; i < named; ++i) {
    const bool is_last = i + 1 == numbers.size();
    text += (i == 0 ? "" : is_last ? " and " : ", ") + std::to_string(numbers[i]);
  }
  const std::size_t more = numbers.size() - named;
  return more == 0 ? text : text + " and " + std::to_string(more) + " more";
}

}  // namespace kelvo::anim
