// "Optimize for packing", over sample and random pictures: they look the same and pack better.
#include "optimise/packing.h"

#include <gtest/gtest.h>

#include "crunch/crunch.h"
#include "files/picture_format.h"
#include "optimise/slot_search.h"
#include "support/files.h"
#include "support/pictures.h"

namespace kelvo::optimise {
namespace {

using model::PictureImage;

void ExpectLooksTheSame(const PictureImage& one, const PictureImage& other) {
  for (int y = 1; y <= 200; ++y) {
    for (int x = 1; x <= 160; ++x) ASSERT_EQ(support::ColourAt(one, x, y), support::ColourAt(other, x, y)) << x << y;
  }
}

// As a program for the C64 holds it.
std::size_t PackedSize(const PictureImage& picture) {
  app::Bytes bytes(picture.Bitmap.begin() + 1, picture.Bitmap.begin() + 8001);
  bytes.insert(bytes.end(), picture.ScreenMemory.begin() + 1, picture.ScreenMemory.begin() + 1001);
  for (std::size_t cell = 1; cell <= 1000; ++cell) bytes.push_back(picture.ColourMemory[cell] & 0x0F);
  bytes.push_back(picture.BackgroundColour.Byte());
  return crunch::Crunch(bytes, 4).size();
}

TEST(SlotOrders, AreAllWaysToDrawACell) {
  for (const auto& [c10, c01, background, count] :
       {std::tuple{2, 3, 0, 6}, {1, 3, 0, 6}, {1, 1, 0, 3}, {0, 2, 0, 6}, {1, 2, 1, 3}, {1, 1, 1, 1}}) {
    const PictureImage before = support::PictureWithCell(1000, support::kAllSlots, 1, c10, c01, background);
    const auto orders = SlotOrdersOf(before, 1000);
    EXPECT_EQ(orders.size(), static_cast<std::size_t>(count));
    for (const SlotOrder& order : orders) {
      const auto colour = [&](std::size_t slot) { return order.slots.at(slot).value_or(9); };
      PictureImage drawn = before;
      support::SetCell(drawn, 1000, order.lines, colour(2), colour(1), colour(0));
      ExpectLooksTheSame(drawn, before);
    }
  }
}

TEST(OptimizeForPacking, KeepsTheLookAndPacksAsWellAsAnySearch) {
  const app::Bytes sample = support::ReadFile(KELVO_SHARE "/GFX/kelvo.kvp");
  const auto painted = files::Decode(files::FormatOf(files::kOwnType), sample, {});
  app::NoProgress nobody_watches;
  // A picture, and the share of its size that it may have afterwards.
  for (const auto& [before, most] :
       {std::pair{support::RandomPicture(1), 1.0}, {support::BlotchyPicture(2), 0.81}, {painted, 0.8}}) {
    PictureImage after = before;
    OptimizeForPacking(after, nobody_watches);
    ExpectLooksTheSame(after, before);
    const std::size_t size = PackedSize(after);
    EXPECT_LT(static_cast<double>(size), most * static_cast<double>(PackedSize(before)));
    for (const SlotStart start : kSlotStarts) EXPECT_LE(size, PackedSize(SlotSearch(before).Run(start)));
  }
}

}  // namespace
}  // namespace kelvo::optimise
