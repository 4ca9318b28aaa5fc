#include "optimise/slot_search.h"

#include <algorithm>
#include <limits>

#include "model/palette.h"

namespace kelvo::optimise {
namespace {

using model::PictureImage;

constexpr int kWide = PictureImage::kCellsWide, kHigh = PictureImage::kCellsHigh, kCount = PictureImage::kCells;
constexpr int kNone = -1, kMostPasses = 6;
constexpr float kSideWeight = 0.25F;  // of the cell beside against the one above; found by trying

// The cells in columns from the left, each from its top.
int Before(int cell) {
  if (cell >= kWide) return cell - kWide;
  return cell == 0 ? kNone : (kHigh - 1) * kWide + cell - 1;
}

int Behind(int cell) {
  if (cell < kCount - kWide) return cell + kWide;
  const int column = cell % kWide;
  return column == kWide - 1 ? kNone : column + 1;
}

int Left(int cell) {
  return cell % kWide == 0 ? kNone : cell - 1;
}

int Right(int cell) {
  return cell % kWide == kWide - 1 ? kNone : cell + 1;
}

int Brightness(std::uint8_t colour) {
  const auto rgb = model::kPalette.at(colour);
  return 3 * rgb.red + 6 * rgb.green + rgb.blue;
}

// The bytes of a row of cells before `cell`.
template <typename Row>
Context ContextInRow(const Row& row, int cell) {
  const auto at = static_cast<std::size_t>(cell);
  return {cell > 1 ? row[at - 2] : std::uint8_t{0}, cell > 0 ? row[at - 1] : std::uint8_t{0}};
}

std::uint8_t ScreenByte(int high, int low) {
  return static_cast<std::uint8_t>(high << 4 | low);
}

}  // namespace

SlotSearch::SlotSearch(const PictureImage& picture) : picture_(picture), chosen_(kCount) {
  for (int cell = 1; cell <= kCount; ++cell) orders_.push_back(SlotOrdersOf(picture, cell));
}

const std::array<std::uint8_t, 8>& SlotSearch::Lines(int cell) const {
  const auto at = static_cast<std::size_t>(cell);
  return orders_[at][chosen_[at]].lines;
}

std::uint8_t SlotSearch::ColourIn(int cell, std::size_t slot) const {
  const auto at = static_cast<std::size_t>(cell);
  const std::array<int, kSlots> colours{screen_[at] >> 4, screen_[at] & 0x0F, colour_[at]};
  return static_cast<std::uint8_t>(colours[slot]);
}

// How little an order looks like what a search begins with.
float SlotSearch::Strangeness(int cell, const SlotOrder& order, SlotStart start) const {
  float strange = 0;
  int brightest = 0;
  const auto at = static_cast<std::size_t>(cell);
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    if (!order.slots[slot]) continue;
    const std::uint8_t colour = *order.slots[slot];
    if (start == SlotStart::kLikeNeighbours) {
      if (Left(cell) != kNone && ColourIn(cell - 1, slot) != colour) strange += 1.2F;
      if (cell >= kWide && ColourIn(cell - kWide, slot) != colour) strange += 1;
    } else if (start == SlotStart::kByBrightness) {
      strange += (Brightness(colour) < brightest ? 10.0F : 0.0F) + 0.01F * static_cast<float>(slot);
      brightest = Brightness(colour);
    }
  }
  if (start == SlotStart::kAsDrawn) {
    for (std::size_t line = 0; line < order.lines.size(); ++line) {
      strange += order.lines[line] != picture_.Bitmap[at * 8 + 1 + line] ? 1.0F : 0.0F;
    }
  }
  return strange;
}

std::size_t SlotSearch::FirstOrder(int cell, SlotStart start) const {
  const auto& orders = orders_[static_cast<std::size_t>(cell)];
  const auto least = std::min_element(orders.begin(), orders.end(), [&](const SlotOrder& a, const SlotOrder& b) {
    return Strangeness(cell, a, start) < Strangeness(cell, b, start);
  });
  return static_cast<std::size_t>(least - orders.begin());
}

void SlotSearch::FillLikeBefore(int cell) {
  const auto at = static_cast<std::size_t>(cell);
  const auto& slots = orders_[at][chosen_[at]].slots;
  std::array<std::uint8_t, kSlots> colours{};
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    colours[slot] = slots[slot].value_or(cell > 0 ? ColourIn(cell - 1, slot) : std::uint8_t{0});
  }
  screen_[at] = ScreenByte(colours[0], colours[1]);
  colour_[at] = colours[2];
}

void SlotSearch::Begin(SlotStart start) {
  for (int cell = 0; cell < kCount; ++cell) {
    chosen_[static_cast<std::size_t>(cell)] = FirstOrder(cell, start);
    FillLikeBefore(cell);
  }
}

Context SlotSearch::ContextOfLines(int cell) const {
  const int before = Before(cell);
  return before == kNone ? Context{} : Context{Lines(before)[6], Lines(before)[7]};
}

void SlotSearch::CountLines(int cell, int times) {
  Context context = ContextOfLines(cell);
  for (const std::uint8_t line : Lines(cell)) {
    lines_.Count(context, line, times);
    context = context.Then(line);
  }
}

void SlotSearch::CountSides(int cell, int times) {
  if (Left(cell) == kNone) return;
  for (std::size_t line = 0; line < 8; ++line) {
    sides_.Count({0, Lines(cell - 1)[line]}, Lines(cell)[line], times);
  }
}

void SlotSearch::CountRows(int cell, int times) {
  const auto at = static_cast<std::size_t>(cell);
  screens_.Count(ContextInRow(screen_, cell), screen_[at], times);
  colours_.Count(ContextInRow(colour_, cell), colour_[at], times);
}

// All that changes when `cell` does.
void SlotSearch::CountAround(int cell, int times) {
  CountLines(cell, times);
  if (Behind(cell) != kNone) CountLines(Behind(cell), times);
  CountSides(cell, times);
  if (Right(cell) != kNone) CountSides(Right(cell), times);
  for (int next = cell; next < std::min(cell + 3, kCount); ++next) CountRows(next, times);
}

void SlotSearch::CountAll() {
  lines_ = sides_ = screens_ = colours_ = ByteStatistics();
  for (int cell = 0; cell < kCount; ++cell) {
    CountLines(cell, 1);
    CountSides(cell, 1);
    CountRows(cell, 1);
  }
}

float SlotSearch::LineBits(int cell) const {
  float bits = 0;
  Context context = ContextOfLines(cell);
  const auto add = [&](std::uint8_t line) {
    bits += lines_.Bits(context, line);
    context = context.Then(line);
  };
  for (const std::uint8_t line : Lines(cell)) add(line);
  if (Behind(cell) != kNone) {
    for (const std::size_t line : {0U, 1U}) add(Lines(Behind(cell))[line]);
  }
  return bits;
}

float SlotSearch::SideBits(int cell) const {
  float bits = 0;
  const auto add = [&](int left, int right) {
    for (std::size_t line = 0; line < 8; ++line) bits += sides_.Bits({0, Lines(left)[line]}, Lines(right)[line]);
  };
  if (Left(cell) != kNone) add(cell - 1, cell);
  if (Right(cell) != kNone) add(cell, cell + 1);
  return bits;
}

float SlotSearch::RowBits(const ByteStatistics& statistics, const Row& row, int cell) const {
  float bits = 0;
  for (int next = cell; next < std::min(cell + 3, kCount); ++next) {
    bits += statistics.Bits(ContextInRow(row, next), row[static_cast<std::size_t>(next)]);
  }
  return bits;
}

std::vector<std::uint8_t> SlotSearch::ColoursAround(int cell, std::size_t slot) const {
  std::vector<std::uint8_t> colours;
  for (const int other : {cell - 1, cell + 1, cell - kWide, cell + kWide}) {
    if (other >= 0 && other < kCount) colours.push_back(ColourIn(other, slot));
  }
  return colours;
}

// The colours for the free slots of `order` that take the fewest bits, which are added.
void SlotSearch::BestFill(int cell, const SlotOrder& order, Choice& choice, float& bits) {
  const auto at = static_cast<std::size_t>(cell);
  std::array<std::vector<std::uint8_t>, kSlots> possible;
  for (std::size_t slot = 0; slot < kSlots; ++slot) {
    possible[slot] = order.slots[slot] ? std::vector{*order.slots[slot]} : ColoursAround(cell, slot);
  }
  const auto keep_best = [&](std::uint8_t& place, const ByteStatistics& statistics, const Row& row, std::uint8_t value,
                             std::uint8_t& best, float& least) {
    place = value;
    const float taken = RowBits(statistics, row, cell);
    if (taken >= least) return;
    least = taken;
    best = value;
  };
  float screen_bits = std::numeric_limits<float>::max(), colour_bits = screen_bits;
  for (const std::uint8_t high : possible[0]) {
    for (const std::uint8_t low : possible[1]) {
      keep_best(screen_[at], screens_, screen_, ScreenByte(high, low), choice.screen, screen_bits);
    }
  }
  for (const std::uint8_t colour : possible[2]) {
    keep_best(colour_[at], colours_, colour_, colour, choice.colour, colour_bits);
  }
  bits += screen_bits + colour_bits;
}

// Tries all orders; what stands in the cell meanwhile is of no use afterwards.
SlotSearch::Choice SlotSearch::BestChoice(int cell) {
  const auto at = static_cast<std::size_t>(cell);
  Choice best{};
  float least = std::numeric_limits<float>::max();
  const Choice now{chosen_[at], screen_[at], colour_[at]};
  for (std::size_t i = 0; i < orders_[at].size(); ++i) {
    chosen_[at] = i;
    Choice choice{i, 0, 0};
    float bits = LineBits(cell) + kSideWeight * SideBits(cell);
    BestFill(cell, orders_[at][i], choice, bits);
    if (bits >= least) continue;
    least = bits;
    best = choice;
  }
  chosen_[at] = now.order;
  screen_[at] = now.screen;
  colour_[at] = now.colour;
  return best;
}

bool SlotSearch::Improve(int cell) {
  const auto at = static_cast<std::size_t>(cell);
  const Choice before{chosen_[at], screen_[at], colour_[at]};
  CountAround(cell, -1);
  const Choice best = BestChoice(cell);
  chosen_[at] = best.order;
  screen_[at] = best.screen;
  colour_[at] = best.colour;
  CountAround(cell, 1);
  return !(best == before);
}

PictureImage SlotSearch::Run(SlotStart start) {
  Begin(start);
  CountAll();
  bool changes = true;
  for (int pass = 0; changes && pass < kMostPasses; ++pass) {
    changes = false;
    for (int cell = 0; cell < kCount; ++cell) changes |= Improve(cell);
  }
  PictureImage found = picture_;
  for (int cell = 0; cell < kCount; ++cell) {
    const auto at = static_cast<std::size_t>(cell);
    std::copy(Lines(cell).begin(), Lines(cell).end(), found.Bitmap.begin() + cell * 8 + 1);
    found.ScreenMemory[at + 1] = screen_[at];
    found.ColourMemory[at + 1] = colour_[at];
  }
  return found;
}

}  // namespace kelvo::optimise
