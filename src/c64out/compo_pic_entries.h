// The menu entries that build a self-showing program from the picture.
#pragma once

#include <array>

namespace kelvo::c64out {

struct CompoPicChoice {
  bool MakePrg = false;     // a PRG beside the picture, or a transfer; else a D64
  bool LaunchVice = false;  // only for the D64: start the emulator on it
  bool ViaCodenet = false;  // send the PRG to a real C64 instead of keeping it
  bool SaveOn15x1 = false;  // with ViaCodenet: let the C64 save the picture on its own drive
};

struct CompoPicEntry {
  const char* name;  // objectName of the menu entry
  const char* text;  // its caption; "&" stands before the letter that chooses it
  const char* tip;
  CompoPicChoice choice;
};

inline constexpr std::array<CompoPicEntry, 5> kCompoPicEntries{{
    {"mnuCreatePRGCompopic",
     "Create compopic executable as &PRG",
     "Make a C64 program that shows the picture, beside the picture",
     {.MakePrg = true}},
    {"mnuCreateD64CompoPic",
     "Create &D64 containing compopic PRG",
     "Make a disk image with a program that shows the picture, beside the picture",
     {}},
    {"mnuPreviewCompopicInVICE",
     "Show preview in &VICE",
     "Make the disk image and start VICE on it",
     {.LaunchVice = true}},
    {"mnuShowPreviewOnC64",
     "Show &preview on C64",
     "Send the picture to a C64 and show it there",
     {.MakePrg = true, .ViaCodenet = true}},
    {"mnuSaveCompopicOn15x1",
     "&Save compopic on 15x1",
     "Send the picture to a C64 and save it on that machine's disk drive",
     {.MakePrg = true, .ViaCodenet = true, .SaveOn15x1 = true}},
}};

}  // namespace kelvo::c64out
