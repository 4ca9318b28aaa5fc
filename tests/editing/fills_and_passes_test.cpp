// What goes over the whole picture: fills against a slow, literal one, and the passes.
#include <gtest/gtest.h>

#include <set>

#include "editing/cell_slots.h"
#include "editing/flood_fill.h"
#include "editing/set_data.h"
#include "optimise/background_colour.h"
#include "support/mazes.h"
#include "support/pictures.h"
#include "support/program.h"

namespace kelvo::editing {
namespace {

using model::PictureImage;
using support::Colour;

class CountingEvents final : public app::ProcessEvents {
 public:
  void Process() override { ++count; }
  int count = 0;
};

// The rules word by word: a queue that is searched, a slot that is looked for at every pixel.
class LiteralFill {
 public:
  LiteralFill(PictureImage& picture, bool replace) : picture_(picture), before_(picture), replace_(replace) {}

  void Fill(int x, int y, model::C64Colour colour) {
    colour_ = colour;
    target_ = model::GetPixelData(before_, x, y).colour;
    queue_.push_back({});
    Write(x, y);
    for (const Entry& first : {Entry{x + 1, y, 'H'}, {x - 1, y, 'V'}, {x, y - 1, 'U'}, {x, y + 1, 'N'}}) Visit(first);
    while (head_ + 1 < queue_.size()) {
      const Entry entry = queue_[++head_];
      Visit(entry);
    }
  }

  std::vector<std::pair<int, int>> written;  // each pixel when it was written first
  std::size_t Taken() const { return head_; }

 private:
  struct Entry {
    int x = 0, y = 0;
    char letter = ' ';
  };

  bool IsTarget(int x, int y) const {
    return model::IsInPicture(x, y) && model::GetPixelData(before_, x, y).colour == target_;
  }

  void Write(int x, int y) {
    const model::PixelPlace place = model::LookUpPixel(x, y);
    auto pair = GetColorBinForChar(before_, colour_, place.cell, place.base);
    const bool on_background = model::GetPixelData(before_, x, y).colour == before_.BackgroundColour;
    if (!pair && on_background && replace_) pair = GetLeastUsedCol(before_, place.base);
    if (!pair) return;
    SetData(picture_, place.byte, place.position, *pair, place.cell, colour_);
    if (known_.insert({x, y}).second) written.push_back({x, y});
  }

  void Visit(const Entry& at) {
    if (!IsTarget(at.x, at.y)) return;
    Write(at.x, at.y);
    if (at.letter != 'V') Store({at.x + 1, at.y, 'H'});
    if (at.letter != 'H') Store({at.x - 1, at.y, 'V'});
    if (at.letter != 'N') Store({at.x, at.y - 1, 'U'});
    if (at.letter != 'U') Store({at.x, at.y + 1, 'N'});
  }

  void Store(const Entry& next) {
    if (!IsTarget(next.x, next.y)) return;
    const std::size_t count = queue_.size() - 1, first = count > 1000 ? count - 1000 : 0;
    const Entry* begin = queue_.data();
    const auto is_next = [&](const Entry& other) { return other.x == next.x && other.y == next.y; };
    if (std::any_of(begin + first, begin + count + 1, is_next)) return;
    if (count == 128000) throw FillQueueFull("");
    queue_.push_back(next);
  }

  PictureImage& picture_;
  const PictureImage before_;
  bool replace_;
  model::C64Colour colour_, target_;
  std::vector<Entry> queue_;
  std::set<std::pair<int, int>> known_;
  std::size_t head_ = 0;
};

class FloodFillTest : public testing::Test {
 protected:
  // Whether a fill came to its end before its queue was full.
  template <typename Work>
  static bool Ends(Work&& work) {
    try {
      work();
      return true;
    } catch (const FillQueueFull&) {
      return false;
    }
  }

  void CompareWithLiteral(const PictureImage& before, int x, int y, int colour, bool replace) {
    picture = before;
    views.pixels.clear();
    events.count = 0;
    PictureImage expected = before;
    LiteralFill literal(expected, replace);
    const auto full_cell = replace ? FullCellInFill::kReplaceLeastUsed : FullCellInFill::kKeep;
    EXPECT_EQ(Ends([&] { fill.Fill(x, y, Colour(colour), full_cell); }),
              Ends([&] { literal.Fill(x, y, Colour(colour)); }));
    EXPECT_EQ(picture, expected);
    EXPECT_EQ(events.count, static_cast<int>(literal.Taken()) / 8);
    EXPECT_EQ(views.pixels, literal.written);  // the same pixels in the same order
  }

  PictureImage picture;
  support::RecordingViews views;
  CountingEvents events;
  FloodFill fill{picture, views, events};  // the same for all, as in the program
};

TEST_F(FloodFillTest, EqualsTheLiteralRulesInContentAndOrder) {
  std::mt19937 random(99);
  for (unsigned seed = 0; seed < 12; ++seed) {
    const PictureImage before = support::BlotchyPicture(seed);
    for (const bool replace : {false, true}) {
      SCOPED_TRACE(testing::Message() << "seed " << seed << ", replace " << replace);
      CompareWithLiteral(before, static_cast<int>(random() % 160) + 1, static_cast<int>(random() % 200) + 1,
                         static_cast<int>(random() % 8), replace);
    }
  }
  CompareWithLiteral(support::PictureWithCell(42, {0xFF, 0xF3, 0xFF}, 7, 2, 3, 0), 7, 10, 2, false);  // one pixel
  CompareWithLiteral(support::PictureWithCell(42, support::kAllSlots, 1, 2, 3, 0), 6, 9, 5, true);    // not background
  CompareWithLiteral({}, 80, 100, 5, false);
  CompareWithLiteral({}, 1, 200, 0, true);
  CompareWithLiteral(support::Maze(), 1, 1, 5, false);
  CompareWithLiteral(support::Tree(), 80, 100, 5, false);    // fills the queue
  CompareWithLiteral(support::Tree(84), 80, 100, 5, false);  // a window of 999 or 1001 entries takes other ways
}

TEST(OptimizeBackground, KeepsTheLookAndLeavesNoOtherPairForTheBackground) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    PictureImage picture = support::RandomPicture(seed);
    const PictureImage before = picture;
    app::NoProgress none;
    std::vector<int> cells;
    const optimise::ShowCell show = [&](int cell) { cells.push_back(cell); };
    const optimise::Optimized done = optimise::OptimizeBackgroundColor(picture, none, show);
    int changed = 0;
    std::set<int> changed_cells;
    for (int y = 1; y <= 200; ++y) {
      for (int x = 1; x <= 160; ++x) {
        const model::PixelData pixel = model::GetPixelData(picture, x, y);
        const model::PixelData was = model::GetPixelData(before, x, y);
        ASSERT_EQ(pixel.colour, was.colour);
        ASSERT_EQ(pixel.pair == model::BitPair::k00, pixel.colour == picture.BackgroundColour);
        if (pixel.pair == was.pair) continue;
        ++changed;
        changed_cells.insert(pixel.place.cell);
      }
    }
    EXPECT_EQ(done.pixels, changed);
    EXPECT_EQ(done.cells, static_cast<int>(changed_cells.size()));
    PictureImage expected = before;
    expected.Bitmap = picture.Bitmap;
    EXPECT_EQ(picture, expected);
    optimise::OptimizeBackgroundColor(picture, none, show);
    EXPECT_EQ(picture, expected);
    EXPECT_EQ(cells.size(), 2000U);
    EXPECT_EQ(cells.back(), 1000);
  }
}

}  // namespace
}  // namespace kelvo::editing
