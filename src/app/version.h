// The version of the program, as CMake's project gives it.
#pragma once

#include <string_view>

namespace kelvo::app {

inline constexpr std::string_view kVersion = KELVO_VERSION;
inline constexpr std::string_view kVersionWord = "v" KELVO_VERSION;  // as the program names it

}  // namespace kelvo::app
