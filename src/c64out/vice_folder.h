// Where the VICE emulator is.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace kelvo::c64out {

// The emulator in `folder`, a path text as the user typed it, with or without a separator at its end: x64 or
// x64sc, on Windows x64.exe or x64sc.exe. An empty text stands for the current directory.
std::optional<std::filesystem::path> FindEmulator(std::string_view folder);

// VICE's disk tool in `folder`, whether it is there or not.
std::filesystem::path DiskTool(std::string_view folder);

// The first folder of `search_path`, a text like the environment's PATH, that holds the emulator; else an empty text.
std::string EmulatorOnPath(std::string_view search_path);

// The same for the disk tool.
std::string DiskToolOnPath(std::string_view search_path);

enum class ViceFolderState { kEmpty, kExecutable, kIncorrect, kCorrect };

// What `typed`, trimmed, is: nothing, the path of a program instead of a folder (a file, or any that ends in ".exe"),
// or a folder without or with the emulator.
ViceFolderState CheckViceFolder(std::string_view typed);

}  // namespace kelvo::c64out
