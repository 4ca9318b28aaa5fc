// How often a person can see something new.
#pragma once

namespace kelvo::ui {

inline constexpr int kDisplayFrameMilliseconds = 16;

}  // namespace kelvo::ui
