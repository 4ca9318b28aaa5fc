// What is to become of a picture's program.
#pragma once

namespace kelvo::c64out {

struct CompoPicChoice {
  bool MakePrg = false;     // a PRG beside the picture, or a transfer; else a D64
  bool LaunchVice = false;  // only for the D64: start the emulator on it
  bool ViaCodenet = false;  // send the PRG to a real C64 instead of keeping it
  bool SaveOn15x1 = false;  // with ViaCodenet: let the C64 save the picture on its own drive
  bool AsksForVice = true;  // the emulator must be there before anything is made; not with ViaCodenet
};

// The five that there are.
inline constexpr CompoPicChoice kCreatePrg{.MakePrg = true};
inline constexpr CompoPicChoice kCreateD64{};
inline constexpr CompoPicChoice kPreviewInVice{.LaunchVice = true};
inline constexpr CompoPicChoice kPreviewOnC64{.MakePrg = true, .ViaCodenet = true};
inline constexpr CompoPicChoice kSaveOn15x1{.MakePrg = true, .ViaCodenet = true, .SaveOn15x1 = true};

}  // namespace kelvo::c64out
