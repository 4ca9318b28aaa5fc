#include "c64out/short_path.h"

namespace kelvo::c64out {

std::string WithEnding(const std::string& path, std::string_view from, std::string_view to) {
  return path.ends_with(from) ? path.substr(0, path.size() - from.size()).append(to) : path;
}

}  // namespace kelvo::c64out
