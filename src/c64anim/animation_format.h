// An animation in a C64's memory: written by c64anim, read by its player, assets/system/animplay.src.
//
// From kAnimationStart on, below $D000, with the picture where a saved one lies:
//
//     $0C00-$57FF  steps, then changes
//     $5800-$5BE7  colours of the first frame      $5C00-$5FE7  its screen      $5FFF  background
//     $6000-$7F3F  its bitmap
//     $7F40-$CFFF  changes
//
// Steps are three bytes each and are taken one after the other:
//
//     fields, low, high   what is shown stays for 1..kMostFields fields of the beam, 50 a second; then the changes at
//                         that address are made
//     0, low, high        the player goes on with the step at that address; it stays as it is where the high byte is 0
//
// Changes lead from a frame to another, and back: each byte is the exclusive or of the two. They stand in the order in
// which the beam comes to the cells, in spans: a span is those cells of a row that lie in one page of the bitmap. Each
// row has two, so they are numbered 0..49.
//
//     changes = span..., $FF
//     span    = number, cell...
//     cell    = place in the page (0..31) times 8 + flags, 8 lines of the bitmap,
//               screen byte and colour (0..15) if kColoursFollow
//
// and the last cell of a span, no other, has kLastOfSpan.
#pragma once

#include <cstdint>
#include <vector>

namespace kelvo::c64anim {

using Bytes = std::vector<std::uint8_t>;

inline constexpr int kAnimationStart = 0x0C00, kColours = 0x5800, kScreen = 0x5C00, kBackground = 0x5FFF,
                     kBitmap = 0x6000, kBehindBitmap = 0x7F40, kAnimationEnd = 0xD000;

inline constexpr int kFieldsPerSecond = 50, kMostFields = 127;
inline constexpr int kStepBytes = 3;

inline constexpr int kPageCells = 32, kRowCells = 40, kSpansInRow = 2, kSpans = 50;
inline constexpr int kColoursFollow = 1, kLastOfSpan = 2, kPlaceShift = 3;
inline constexpr std::uint8_t kEndOfChanges = 0xFF;

}  // namespace kelvo::c64anim
