#include "model/zoom_border.h"

#include <array>

namespace kelvo::model {
namespace {

constexpr std::array<std::uint8_t, 10> kRamp{0, 11, 12, 15, 7, 1, 7, 15, 12, 11};
constexpr C64Colour kBlack = C64Colour::FromByte(0), kWhite = C64Colour::FromByte(1);

}  // namespace

bool ZoomBorderColour::Tick() {
  if (border_ != ZoomBorder::kFlash) return false;
  step_ = (step_ + 1) % kRamp.size();
  return true;
}

C64Colour ZoomBorderColour::Colour() const {
  switch (border_) {
    case ZoomBorder::kFlash:
      return C64Colour::FromByte(kRamp[step_]);
    case ZoomBorder::kWhite:
      return kWhite;
    case ZoomBorder::kNone:
      break;
  }
  return kBlack;
}

}  // namespace kelvo::model
