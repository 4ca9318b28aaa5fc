#include "anim/anim_mode.h"

#include <filesystem>

#include "anim/frame_row.h"
#include "app/path_text.h"

namespace kelvo::anim {
namespace {

bool IsFolder(const std::string& text) {
  std::error_code ignored;
  return std::filesystem::is_directory(app::PathFromText(text), ignored);
}

std::string_view WhatIsLacking(const AnimProperties& properties) {
  if (properties.folder.empty()) return "Animation folder must be specified";
  if (properties.prefix.empty()) return "Animation prefix must be specified";
  return {};
}

std::string FirstFrameQuestion(const AnimProperties& properties) {
  return "Initial animation frame could not be found\r\nDo you want to create " + properties.prefix +
         "0001.kvp based on your loaded kvp?";
}

}  // namespace

void AnimMode::ToggleAnimMode() {
  Check(!checked_);
  if (!checked_) return display_.UnloadFrameWindow();
  if (MayStart()) {
    display_.ShowFrameWindow();
  } else {
    Check(false);
  }
}

void AnimMode::SetAnimFlag(bool on) {
  display_.ShowStatus(on ? "ANIM=ON" : "ANIM=OFF");
}

void AnimMode::Check(bool on) {
  checked_ = on;
  display_.ShowCheckMark(on);
  SetAnimFlag(on);
}

// The folder is looked at last, on purpose: a folder that is missing is first heard of as a first frame that is
// missing.
bool AnimMode::MayStart() {
  const AnimProperties properties = ReadAnimProperties(with_.settings);
  if (const auto lack = WhatIsLacking(properties); !lack.empty()) return Refuse(lack);
  const FrameNames names(properties);
  const bool missing = !LookAtFrames(names).Has(kFirstFrame);
  if (missing && !with_.messages.Ask(FirstFrameQuestion(properties))) return false;
  const bool there = !missing || with_.files.SaveTo(names.Path(kFirstFrame));
  return IsFolder(properties.folder) ? there : Refuse("Animation folder can not be found");
}

bool AnimMode::Refuse(std::string_view why) {
  with_.messages.Inform(why);
  return false;
}

}  // namespace kelvo::anim
