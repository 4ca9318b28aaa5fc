#include "c64anim/changes.h"

#include <algorithm>

namespace kelvo::c64anim {
namespace {

// What the player takes, at the most; that the bytes go on in another page is spread over cells and spans.
constexpr int kSpanCycles = 245, kAllLinesCycles = 140, kColourCycles = 36, kFewLinesCycles = 119, kOneLineCycles = 19,
              kFewColourCycles = 48;
constexpr std::ptrdiff_t kMostFewLines = 5;  // more take hardly fewer bytes than all, and longer

// Where `one` differs from the `other`.
CellBytes Difference(const CellBytes& one, const CellBytes& other) {
  CellBytes difference;
  for (std::size_t line = 0; line < 8; ++line) {
    difference.lines[line] = static_cast<std::uint8_t>(one.lines[line] ^ other.lines[line]);
  }
  difference.screen = static_cast<std::uint8_t>(one.screen ^ other.screen);
  difference.colour = static_cast<std::uint8_t>(one.colour ^ other.colour);
  return difference;
}

int SpanOf(int cell) {
  const int row = cell / kRowCells;
  return row * kSpansInRow + cell / kPageCells - row * kRowCells / kPageCells;
}

void PutFewLines(const CellBytes& difference, Bytes& bytes) {
  const std::size_t which = bytes.size();
  bytes.push_back(0);
  for (std::size_t line = 0; line < 8; ++line) {
    if (difference.lines[line] == 0) continue;
    bytes[which] |= static_cast<std::uint8_t>(0x80 >> line);
    bytes.push_back(difference.lines[line]);
  }
}

bool HasFewLines(const CellBytes& difference) {
  return 8 - std::ranges::count(difference.lines, 0) <= kMostFewLines;
}

bool HasColours(const CellBytes& difference) {
  return difference.screen != 0 || difference.colour != 0;
}

int CyclesOf(const CellBytes& difference) {
  const bool has_colours = HasColours(difference);
  if (!HasFewLines(difference)) return kAllLinesCycles + (has_colours ? kColourCycles : 0);
  const auto lines = static_cast<int>(8 - std::ranges::count(difference.lines, 0));
  return kFewLinesCycles + lines * kOneLineCycles + (has_colours ? kFewColourCycles : 0);
}

// A span while it grows.
struct Growing {
  Span span;
  std::size_t last_cell = 0;  // where its flags stand

  void Put(int place, const CellBytes& difference) {
    last_cell = span.bytes.size();
    span.bytes.push_back(
        static_cast<std::uint8_t>(place << kPlaceShift | (HasColours(difference) ? kColoursFollow : 0)));
    if (HasFewLines(difference)) {
      PutFewLines(difference, span.bytes);
    } else {
      span.bytes.insert(span.bytes.end(), difference.lines.begin(), difference.lines.end());
    }
    if (HasColours(difference)) span.bytes.insert(span.bytes.end(), {difference.screen, difference.colour});
    ++span.cells;
    span.cycles += CyclesOf(difference);
  }
  void EndIn(std::vector<Span>& spans) {
    if (span.cells == 0) return;
    span.bytes[last_cell] |= kLastOfSpan;
    spans.push_back(std::move(span));
  }
};

Growing Begun(int number, int flag) {
  return {{.number = number, .cells = 0, .cycles = kSpanCycles, .bytes = {static_cast<std::uint8_t>(number | flag)}}};
}

}  // namespace

std::vector<Span> SpansBetween(const FrameBytes& one, const FrameBytes& other) {
  std::vector<Span> spans;
  for (int cell = 0; cell < model::PictureImage::kCells;) {
    const int number = SpanOf(cell);
    Growing all = Begun(number, 0), few = Begun(number, kFewLines);
    for (; cell < model::PictureImage::kCells && SpanOf(cell) == number; ++cell) {
      const auto index = static_cast<std::size_t>(cell);
      if (one.cells[index] == other.cells[index]) continue;
      const CellBytes difference = Difference(one.cells[index], other.cells[index]);
      (HasFewLines(difference) ? few : all).Put(cell % kPageCells, difference);
    }
    all.EndIn(spans);
    few.EndIn(spans);
  }
  if (one.background != other.background) {
    spans.push_back({.number = kBackgroundSpan,
                     .cells = 0,
                     .cycles = kSpanCycles,
                     .bytes = {kBackgroundSpan, static_cast<std::uint8_t>(one.background ^ other.background)}});
  }
  return spans;
}

}  // namespace kelvo::c64anim
