// Going from frame to frame: the buttons of the frame window and its number field.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "anim/anim_mode.h"
#include "anim/frame_row.h"
#include "model/picture_image.h"

namespace kelvo::anim {

inline constexpr const char* kNoFrames = "THERE ARE NO FRAMES";

// "FRAME 12", for the status bar.
std::string FrameWords(int number);

// The buttons of the frame window.
enum class FrameMove { kPrevious, kNext, kBack, kFirst };

// The current frame is the one whose file is the current file, so there is none while another picture is open.
//
// A frame that is left is saved first when it has changed; if that fails, or the wanted frame cannot be loaded, the
// frame stays. Numbers without a file, and files of another size than a picture's, are skipped. Each move gives a word
// for the status bar, empty when there is nothing to say; failures of the disk are told by PictureFiles besides.
class FrameNavigation {
 public:
  explicit FrameNavigation(const files::PictureSurroundings& with) : with_(with) {}

  [[nodiscard]] std::string Move(FrameMove move);
  [[nodiscard]] std::string First();
  [[nodiscard]] std::string Previous();
  // Behind the last frame it asks whether to make the next one from the picture in memory.
  [[nodiscard]] std::string Next();
  // The "Previous" beside "First": back to the frame that was shown before this one. Pressed again it returns, so that
  // two frames can be compared.
  [[nodiscard]] std::string Back();
  // The frame whose number was typed. One that is not there is not replaced by a neighbour.
  [[nodiscard]] std::string GoTo(std::string_view typed);

  // kFirstFrame..kLastFrame.
  std::optional<int> CurrentFrame() const;

  // The frames as they were at the last move or Refresh(), which looks at the settings and the folder anew.
  const FrameRow& Row() const { return row_; }
  void Refresh();

  FrameNames Names() const;

  // The pictures of the frames before and after the current one; empty when there is none.
  std::optional<model::PictureImage> PictureBefore() const;
  std::optional<model::PictureImage> PictureAfter() const;

  // Frames have other numbers now: that of the frame that was `number`, empty when it is gone.
  void FramesRenumbered(const std::function<std::optional<int>(int)>& number_now);

 private:
  std::optional<model::PictureImage> PictureOf(std::optional<int> number) const;
  std::string GoToNumber(int number, const std::string& word);
  std::string OfferToCreate(int number);
  bool SaveChanges();

  files::PictureSurroundings with_;
  FrameRow row_;
  std::optional<int> shown_before_;
};

}  // namespace kelvo::anim
