// An animation in a C64's memory: written by c64anim, read by its player, assets/system/animplay.src.
//
// A file has it from kAnimationStart on, in one piece:
//
//     $0E00-$5BFF  steps, then changes
//     $6000-$7FF9  changes that the player moves to $E000-$FFF9 before it draws the first frame here
//     $8000-$CFFF  changes
//
// Between the first two lies the screen, and from $0400 on a buffer of kBufferSize bytes for what is unpacked.
//
// Steps are three bytes each and are taken one after the other:
//
//     fields, low, high   what is shown stays for 1..kMostFields fields of the beam, 50 a second; then the changes at
//                         that address are made. The first step draws the first frame, from nothing; its fields do not
//                         count
//     0, low, high        the player goes on with the step at that address; it stays as it is where the high byte is 0
//
// Changes lead from a frame to another, and back: each byte is the exclusive or of the two. They stand in the order in
// which the beam comes to the cells, in spans: a span is those cells of a row that lie in one page of the bitmap. Each
// row has two, so they are numbered 0..49. The background comes behind them, as if it were a span.
//
//     changes    = part..., kEndOfChanges
//     part       = span | background | kPackedPart, packed span..., packed kEndOfChanges
//                | kElsewhere, low, high      the next part is at that address
//     span       = number, cell of all lines...
//                | number + kFewLines, cell of few lines...
//     background = kBackgroundSpan, colour (0..15)
//     cell       = place in the page (0..31) times 4 + flags,
//                  8 lines of the bitmap or, of a cell of few lines, a byte whose bits, the highest first, say which
//                  lines follow, and these,
//                  screen byte and colour (0..15) if kColoursFollow
//
// and the last cell of a span, no other, has kLastOfSpan. A packed part unpacks to at most kBufferSize bytes:
//
//     packed     = run..., 0
//     run        = 1..63, that many bytes
//                | kNearCopy + length - kShortestNear, distance   `length` bytes that begin `distance` (1..255) before
//                                                                 the next byte of this part; they may overlap it
//                | kFarCopy + length - kShortestFar, low, high    `length` bytes that stand at that address, all of
//                                                                 them steps or changes
#pragma once

#include <cstdint>

#include "app/bytes.h"

namespace kelvo::c64anim {

using app::Bytes;

inline constexpr int kAnimationStart = 0x0E00, kScreen = 0x5C00, kBitmap = 0x6000, kBehindBitmap = 0x8000,
                     kAnimationEnd = 0xD000, kHigh = 0xE000, kHighEnd = 0xFFFA, kBufferSize = 0x0400;

inline constexpr int kFieldsPerSecond = 50, kMostFields = 127;
inline constexpr int kStepBytes = 3;

inline constexpr int kPageCells = 32, kRowCells = 40, kSpansInRow = 2, kSpans = 50, kBackgroundSpan = kSpans;
inline constexpr int kFewLines = 0x40, kColoursFollow = 0x80, kLastOfSpan = 2, kPlaceShift = 2;
inline constexpr std::uint8_t kElsewhere = 0xFD, kPackedPart = 0xFE, kEndOfChanges = 0xFF;
inline constexpr int kElsewhereBytes = 3;

inline constexpr int kMostLiterals = 63, kMostDistance = 255;
inline constexpr int kNearCopy = 64, kShortestNear = 3, kLongestNear = kShortestNear + 63;
inline constexpr int kFarCopy = 128, kShortestFar = 4, kLongestFar = kShortestFar + 127;

}  // namespace kelvo::c64anim
