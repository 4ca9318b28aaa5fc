// How the files of an animation's frames are called: folder, prefix, number of four digits, ".kvp".
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "anim/anim_settings.h"

namespace kelvo::anim {

inline constexpr int kFirstFrame = 1, kLastFrame = 9999;

// Folder and prefix are joined as plain text, with no separator in between, on purpose: a folder that was typed without
// its final separator becomes a part of the file names. Frame numbers are kFirstFrame..kLastFrame.
class FrameNames {
 public:
  explicit FrameNames(const AnimProperties& properties);

  std::filesystem::path Path(int number) const;
  std::string FileName(int number) const { return FileStart() + Ending(number); }
  // What all file names begin with.
  std::string FileStart() const { return path_start_.substr(file_start_at_); }

  // The folder that the paths lead to, as the text that stands before the file names: empty, or with its separator.
  std::string FolderText() const { return path_start_.substr(0, file_start_at_); }
  std::filesystem::path Folder() const;

  // What is made of all frames is called so: the prefix without what parts it from the numbers ("walk" for "walk_").
  std::string AnimationName() const;
  // The list of times, beside the frames.
  std::filesystem::path TimesPath() const;

  // The frame that a file of that folder is, whatever the case of its name; empty when it is none.
  std::optional<int> NumberOf(std::string_view file_name) const;

  // The same for a whole path, which may spell the folder in another way.
  std::optional<int> NumberOfPath(const std::filesystem::path& path) const;

 private:
  static std::string Ending(int number);

  std::string path_start_;
  std::size_t file_start_at_;
};

}  // namespace kelvo::anim
