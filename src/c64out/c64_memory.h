// The C64's memory, as programs for it see it.
#pragma once

#include <cstdint>

namespace kelvo::c64out {

inline constexpr std::uintmax_t kMemorySize = 0x10000;
inline constexpr std::uintmax_t kProgramStart = 0x0801;  // where a program to be started by RUN is loaded

}  // namespace kelvo::c64out
