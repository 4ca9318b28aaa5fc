#include "ui/desks/frame_strip_desk.h"

#include "ui/ports/qt_text.h"

namespace kelvo::ui {

FrameStripDesk::FrameStripDesk(const files::PictureSurroundings& with, AnimationDesk& animation, frmFrames& strip)
    : animation_(animation), strip_(strip), order_(with, animation.Navigation()) {
  connect(&animation_, &AnimationDesk::FrameShown, this, &FrameStripDesk::Refresh);
  connect(&folder_, &FileWatch::Touched, this, &FrameStripDesk::Refresh);
  connect(&strip_, &frmFrames::Opened, this, &FrameStripDesk::Refresh);
  connect(&strip_, &frmFrames::Closed, this, [this] { folder_.Follow({}); });
  connect(&strip_, &frmFrames::Asked, this, &FrameStripDesk::Do);
  connect(&strip_, &frmFrames::MoveAsked, this, &FrameStripDesk::MoveFrame);
}

void FrameStripDesk::Refresh() {
  if (!strip_.isVisible()) return;
  anim::FrameNavigation& navigation = animation_.Navigation();
  navigation.Refresh();
  strip_.Show(navigation.Row(), navigation.CurrentFrame());
  folder_.Follow(QtFromPath(navigation.Names().Folder()));
}

void FrameStripDesk::StartAfresh() {
  strip_.ForgetPictures();
}

void FrameStripDesk::Do(FrameDeed deed, int number) {
  if (deed == FrameDeed::kGo) return animation_.GoTo(number);
  Change([&] { return WordOf(deed, number); });
  const auto current = animation_.Navigation().CurrentFrame();
  if (current && deed != FrameDeed::kDelete) strip_.Select(*current);
}

std::string FrameStripDesk::WordOf(FrameDeed deed, int number) {
  if (deed == FrameDeed::kInsert) return order_.Insert(strip_.Frames(), number);
  if (deed == FrameDeed::kDuplicate) return order_.Duplicate(strip_.Frames(), number);
  return order_.Delete(strip_.Frames(), number);
}

void FrameStripDesk::MoveFrame(int from, int to) {
  Change([&] { return order_.Move(strip_.Frames(), from, to); });
  strip_.Select(to);
}

// Files have other names then, which say nothing of the pictures that were seen.
void FrameStripDesk::Change(const std::function<std::string()>& change) {
  animation_.Change([&] {
    std::string word = change();
    strip_.ForgetPictures();
    return word;
  });
}

}  // namespace kelvo::ui
