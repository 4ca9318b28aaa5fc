// How a program for developers takes its command line and tells its errors.
#pragma once

#include <functional>
#include <stdexcept>
#include <string_view>

namespace kelvo {

// What is wrong with a command line.
struct WrongUsage : std::runtime_error {
  using std::runtime_error::runtime_error;
};

enum ToolExit { kToolDone, kToolFailed, kToolWrongUsage };

// What a program is called, and what --help prints.
struct ToolAbout {
  std::string_view name, help;
};

// Prints the help when that alone is asked for, else does `work`. What that throws is told in the error stream: of a
// WrongUsage with the help behind it.
ToolExit ToolMain(const ToolAbout& about, int argc, char** argv, const std::function<ToolExit()>& work);

// Throws WrongUsage about a word that a program does not know.
[[noreturn]] void RefuseWord(std::string_view word);

}  // namespace kelvo
