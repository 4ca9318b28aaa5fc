// Numbers with what they count.
#pragma once

#include <string>

namespace kelvo::cli {

// "1 cell", "2 cells".
inline std::string Counted(int count, const std::string& what) {
  return std::to_string(count) + " " + what + (count == 1 ? "" : "s");
}

}  // namespace kelvo::cli
