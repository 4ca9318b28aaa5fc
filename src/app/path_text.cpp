#include "app/path_text.h"

#include <algorithm>

#include "app/text.h"

namespace kelvo::app {
namespace {

#ifdef _WIN32
constexpr std::string_view kSeparators = "/\\";
#else
constexpr std::string_view kSeparators = "/";
#endif

}  // namespace

std::string FolderPart(std::string_view path) {
  const auto separator = path.find_last_of(kSeparators);
  return std::string(separator == std::string_view::npos ? std::string_view() : path.substr(0, separator));
}

std::string FileNamePart(std::string_view path) {
  const auto separator = path.find_last_of(kSeparators);
  return std::string(separator == std::string_view::npos ? path : path.substr(separator + 1));
}

std::string LowerExtension(std::string_view path) {
  const std::string name = FileNamePart(path);
  const auto dot = name.rfind('.');
  return dot == std::string::npos ? std::string() : ToLower(std::string_view(name).substr(dot));
}

}  // namespace kelvo::app
