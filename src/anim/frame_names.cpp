#include "anim/frame_names.h"

#include <algorithm>

#include "app/path_text.h"
#include "app/text.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kDigits = 4;
constexpr std::string_view kFrameEnding = ".kvp";

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

fs::path FolderOrHere(const std::string& text) {
  return text.empty() ? fs::path(".") : app::PathFromText(text);
}

}  // namespace

FrameNames::FrameNames(const AnimProperties& properties)
    : path_start_(properties.folder + properties.prefix),
      file_start_at_(path_start_.size() - app::FileNamePart(path_start_).size()) {}

std::string FrameNames::Ending(int number) {
  const std::string digits = std::to_string(number);
  return std::string(kDigits - std::min(kDigits, digits.size()), '0') + digits + std::string(kFrameEnding);
}

fs::path FrameNames::Path(int number) const {
  return app::PathFromText(path_start_ + Ending(number));
}

fs::path FrameNames::Folder() const {
  return FolderOrHere(FolderText());
}

std::string FrameNames::AnimationName() const {
  const std::string start = FileStart();
  const auto last = start.find_last_not_of(" .-_,+~#");
  return last == std::string::npos ? "animation" : start.substr(0, last + 1);
}

fs::path FrameNames::TimesPath() const {
  return Folder() / app::PathFromText(AnimationName() + "-times.txt");
}

std::optional<int> FrameNames::NumberOf(std::string_view file_name) const {
  const std::string start = app::ToLower(FileStart()), name = app::ToLower(file_name);
  if (name.size() != start.size() + kDigits + kFrameEnding.size()) return std::nullopt;
  const std::string digits = name.substr(start.size(), kDigits);
  if (!name.starts_with(start) || !name.ends_with(kFrameEnding)) return std::nullopt;
  if (!std::all_of(digits.begin(), digits.end(), IsDigit)) return std::nullopt;
  const int number = std::stoi(digits);
  return number >= kFirstFrame ? std::optional(number) : std::nullopt;
}

std::optional<int> FrameNames::NumberOfPath(const fs::path& path) const {
  const std::string text = app::TextFromPath(path), name = app::FileNamePart(text);
  const std::string folder = text.substr(0, text.size() - name.size());
  std::error_code ignored;
  const bool here = FolderOrHere(folder) == Folder() || fs::equivalent(FolderOrHere(folder), Folder(), ignored);
  return here ? NumberOf(name) : std::nullopt;
}

}  // namespace kelvo::anim
