// Writes a blank D64: the image of a freshly formatted 1541 disk of 35 tracks.
//
// Track 18 sector 0 holds the block availability map (BAM): for each track the number of free sectors and a bit for
// each of them, then name and id; sector 1 is the first, empty block of the directory.
#include <algorithm>
#include <array>
#include <exception>
#include <iostream>
#include <string_view>
#include <vector>

#include "app/whole_file.h"

namespace {

constexpr int kTracks = 35, kDirectoryTrack = 18, kBlock = 256;
constexpr std::uint8_t kPadding = 0xA0;
constexpr std::string_view kName = "KELVO", kId = "KV", kDosType = "2A";

int Sectors(int track) {
  return track <= 17 ? 21 : track <= 24 ? 19 : track <= 30 ? 18 : 17;
}

// The four bytes of a track in the BAM; a set bit is a free sector.
std::array<std::uint8_t, 4> MapOf(int track) {
  const unsigned used = track == kDirectoryTrack ? 0b11U : 0U;
  const unsigned free = ((1U << Sectors(track)) - 1) & ~used;
  const auto byte = [&](int index) { return static_cast<std::uint8_t>(free >> (8 * index)); };
  return {static_cast<std::uint8_t>(Sectors(track) - (used != 0 ? 2 : 0)), byte(0), byte(1), byte(2)};
}

std::vector<std::uint8_t> BlankDisk() {
  std::vector<std::uint8_t> disk;
  std::size_t bam = 0;
  for (int track = 1; track <= kTracks; ++track) {
    if (track == kDirectoryTrack) bam = disk.size();
    disk.resize(disk.size() + static_cast<std::size_t>(Sectors(track)) * kBlock);
  }
  auto at = disk.begin() + static_cast<std::ptrdiff_t>(bam);
  const auto put = [&at](const auto& bytes) { at = std::copy(bytes.begin(), bytes.end(), at); };
  put(std::array<std::uint8_t, 4>{kDirectoryTrack, 1, 'A', 0});
  for (int track = 1; track <= kTracks; ++track) put(MapOf(track));
  std::fill_n(at, 27, kPadding);
  std::copy(kName.begin(), kName.end(), at);
  std::copy(kId.begin(), kId.end(), at + 18);
  std::copy(kDosType.begin(), kDosType.end(), at + 21);
  disk[bam + kBlock + 1] = 0xFF;  // the directory's only block, with nothing in it
  return disk;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "Usage: make-blank-disk FILE\n";
    return 2;
  }
  try {
    kelvo::app::WriteWholeFile(argv[1], BlankDisk());
    return 0;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
