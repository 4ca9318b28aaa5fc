// The command language: one line in, its replies out.
//
// A line is cut at its first space into a word and an argument. Words are compared exactly, in the order of one table;
// the argument counts in upper case. All replies are lines of the prompt's history, and a failure is one of them: the
// offending text with an error number.
//
//   900  RELOAD without a current file       904  ANIM with another argument than ON or OFF
//   901  a device that is no number          905  a disk-drive command, which this system does not take
//   902  a picture that cannot be loaded,    906  a folder that cannot be made
//        an image that cannot be imported    907  a folder that cannot be removed
//   903  an unknown word
#pragma once

#include <filesystem>
#include <functional>
#include <string_view>

#include "app/messages.h"
#include "app/program_folders.h"
#include "files/document.h"
#include "files/picture_files.h"

namespace kelvo::command {

// How the command language reaches animation mode.
struct AnimationSwitch {
  // What the menu entry Animation mode does, with all its questions. Gives how its check mark ended; the flag follows
  // it.
  std::function<bool()> toggle;
  // Sets the animation-mode flag, which is what the status bar says. The menu entry is left alone, on purpose.
  std::function<void(bool on)> set_flag;
};

// How the command language reaches image files.
struct ImageImport {
  // What the menu entry Import does.
  std::function<void()> ask;
  // Makes a picture of an image without a question, and replies. False for one that cannot be read.
  std::function<bool(const std::filesystem::path& image)> open;
};

// Carries out `line`, which comes without the prompt character. Nothing is kept between calls. Names in a command are
// those of files and folders alone: one that could lead elsewhere is a failure like any other (902, 906, 907). Throws
// what a port throws.
void ProcessCommand(std::string_view line, const files::PictureSurroundings& with, const AnimationSwitch& animation,
                    const ImageImport& images);

}  // namespace kelvo::command
