#include "optimise/packing.h"

#include <algorithm>
#include <future>
#include <iterator>
#include <vector>

#include "crunch/crunch.h"
#include "optimise/slot_search.h"

namespace kelvo::optimise {
namespace {

constexpr int kQuickLevel = 4;

struct Found {
  model::PictureImage picture;
  std::size_t size;  // packed
};

// What is shown of a picture, packed: bitmap, screen, colours, background.
std::size_t PackedSize(const model::PictureImage& picture) {
  std::vector<std::uint8_t> bytes;
  const auto append = [&bytes](const auto& memory, int count) {
    bytes.insert(bytes.end(), memory.begin() + 1, memory.begin() + 1 + count);
  };
  append(picture.Bitmap, model::PictureImage::kBitmapBytes);
  append(picture.ScreenMemory, model::PictureImage::kCells);
  std::transform(picture.ColourMemory.begin() + 1, picture.ColourMemory.begin() + 1 + model::PictureImage::kCells,
                 std::back_inserter(bytes), [](std::uint8_t byte) { return static_cast<std::uint8_t>(byte & 0x0F); });
  bytes.push_back(picture.BackgroundColour.Byte());
  return crunch::Crunch(bytes, kQuickLevel).size();
}

}  // namespace

void OptimizeForPacking(model::PictureImage& picture, app::Progress& progress) {
  const app::ProgressScope scope(progress, kPackingSteps);
  std::vector<std::future<Found>> searches;
  for (const SlotStart start : kSlotStarts) {
    searches.push_back(std::async(std::launch::async, [original = picture, start] {
      const model::PictureImage found = SlotSearch(original).Run(start);
      return Found{found, PackedSize(found)};
    }));
  }
  std::size_t least = PackedSize(picture);
  int step = 0;
  progress.Advance(++step);
  for (auto& search : searches) {
    const Found found = search.get();
    if (found.size < least) picture = found.picture;
    least = std::min(least, found.size);
    progress.Advance(++step);
  }
}

}  // namespace kelvo::optimise
