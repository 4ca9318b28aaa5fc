// What can be done with a frame of the frame strip, and the keys for it.
#pragma once

#include <array>

namespace kelvo::ui {

enum class FrameDeed { kGo, kInsert, kDuplicate, kDelete, kEarlier, kLater };

struct FrameDeedRow {
  FrameDeed deed;
  const char* name;  // objectName
  const char* text;
  const char* key;
  const char* tip;
};

inline constexpr std::array<FrameDeedRow, 6> kFrameDeeds{{
    {FrameDeed::kGo, "actGoToFrame", "&Go to this frame", "Return", "Leave the frame that is open, which is saved"},
    {FrameDeed::kInsert, "actInsertFrame", "&Insert a frame", "Ins", "The picture in memory becomes the next frame"},
    {FrameDeed::kDuplicate, "actDuplicateFrame", "D&uplicate", "Ctrl+D", "A copy of this frame becomes the next one"},
    {FrameDeed::kDelete, "actDeleteFrame", "&Delete", "Del", "Its file goes to the BACKUP folder, the others close up"},
    {FrameDeed::kEarlier, "actFrameEarlier", "Move &earlier", "Alt+Left", "Change places with the frame before"},
    {FrameDeed::kLater, "actFrameLater", "Move &later", "Alt+Right", "Change places with the frame after"},
}};

}  // namespace kelvo::ui
