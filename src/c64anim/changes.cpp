#include "c64anim/changes.h"

#include <optional>
#include <stdexcept>

namespace kelvo::c64anim {
namespace {

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

int PageOf(int span) {
  return span / kSpansInRow * kRowCells / kPageCells + span % kSpansInRow;
}

void PutCell(int place, const CellBytes& difference, Bytes& changes) {
  const bool has_colours = difference.screen != 0 || difference.colour != 0;
  changes.push_back(static_cast<std::uint8_t>(place << kPlaceShift | (has_colours ? kColoursFollow : 0)));
  changes.insert(changes.end(), difference.lines.begin(), difference.lines.end());
  if (has_colours) changes.insert(changes.end(), {difference.screen, difference.colour});
}

class Reader {
 public:
  explicit Reader(std::span<const std::uint8_t> bytes) : bytes_(bytes) {}

  std::uint8_t Next() {
    Require(at_ < bytes_.size());
    return bytes_[at_++];
  }
  void RequireEnd() const { Require(at_ == bytes_.size()); }
  static void Require(bool is_sound) {
    if (!is_sound) throw std::runtime_error("these are no changes of an animation");
  }

 private:
  std::span<const std::uint8_t> bytes_;
  std::size_t at_ = 0;
};

// The difference that follows `flags`.
CellBytes ReadDifference(Reader& reader, int flags) {
  CellBytes difference;
  for (std::uint8_t& line : difference.lines) line = reader.Next();
  if ((flags & kColoursFollow) == 0) return difference;
  difference.screen = reader.Next();
  difference.colour = reader.Next();
  Reader::Require(difference.colour < 16);
  return difference;
}

ChangedSpan ReadSpan(int number, Reader& reader, Cells& cells) {
  Reader::Require(number < kSpans);
  ChangedSpan span{.number = number};
  int flags = 0;
  for (int last = -1; (flags & kLastOfSpan) == 0; ++span.cells) {
    flags = reader.Next();
    const int cell = PageOf(number) * kPageCells + (flags >> kPlaceShift);
    Reader::Require(cell > last && cell < model::PictureImage::kCells && SpanOf(cell) == number);
    last = cell;
    CellBytes& changed = cells[static_cast<std::size_t>(cell)];
    changed = Difference(changed, ReadDifference(reader, flags));
    span.colours += flags & kColoursFollow;
  }
  return span;
}

}  // namespace

Bytes ChangesBetween(const Cells& one, const Cells& other) {
  Bytes changes;
  std::optional<int> span;
  std::size_t last_cell = 0;  // where its flags stand
  for (int cell = 0; cell < model::PictureImage::kCells; ++cell) {
    const auto index = static_cast<std::size_t>(cell);
    if (one[index] == other[index]) continue;
    if (span != SpanOf(cell)) {
      if (span) changes[last_cell] |= kLastOfSpan;
      span = SpanOf(cell);
      changes.push_back(static_cast<std::uint8_t>(*span));
    }
    last_cell = changes.size();
    PutCell(cell % kPageCells, Difference(one[index], other[index]), changes);
  }
  if (span) changes[last_cell] |= kLastOfSpan;
  changes.push_back(kEndOfChanges);
  return changes;
}

std::vector<ChangedSpan> MakeChanges(std::span<const std::uint8_t> changes, Cells& cells) {
  Reader reader(changes);
  Cells changed = cells;
  std::vector<ChangedSpan> spans;
  for (int number = reader.Next(); number != kEndOfChanges; number = reader.Next()) {
    Reader::Require(spans.empty() || number > spans.back().number);
    spans.push_back(ReadSpan(number, reader, changed));
  }
  reader.RequireEnd();
  cells = changed;
  return spans;
}

}  // namespace kelvo::c64anim
