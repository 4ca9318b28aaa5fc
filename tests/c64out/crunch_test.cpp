// Packing: whatever goes in comes out again, and damaged packed data does no harm.
#include "c64out/crunch.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>

#include "app/whole_file.h"
#include "support/pictures.h"
#include "support/run_tool.h"
#include "support/temp_folder.h"

namespace kelvo::c64out {
namespace {

using app::Bytes;

// Bytes of a few values in runs and repeats, as a fuzzer would find them.
Bytes Patchwork(std::size_t size, unsigned seed) {
  std::mt19937 random(seed);
  Bytes bytes;
  while (bytes.size() < size) {
    const std::size_t length = 1 + random() % 300, back = 1 + random() % 9000;
    const bool copy = back <= bytes.size() && random() % 2 == 0;
    const unsigned values = 1U << random() % 9;
    for (std::size_t i = 0; i < length && bytes.size() < size; ++i) {
      bytes.push_back(copy ? bytes[bytes.size() - back] : static_cast<std::uint8_t>(random() % values));
    }
  }
  return bytes;
}

Bytes RandomBytes(std::size_t size, unsigned seed, unsigned values) {
  std::mt19937 random(seed);
  Bytes bytes(size);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random() % values);
  return bytes;
}

// A picture's bytes with random colours, which are nibbles.
Bytes RandomPictureBytes(std::size_t size, std::size_t colours_at) {
  Bytes bytes = RandomBytes(size, 5, 256);
  for (std::size_t i = 0; i < 1000; ++i) bytes[colours_at + i] &= 0x0F;
  return bytes;
}

TEST(Crunch, GivesBackWhateverWentIn) {
  struct Case {
    std::string what;
    Bytes bytes;
  };
  const Case cases[] = {{"empty", {}},
                        {"one byte", {0x5A}},
                        {"two alike", {7, 7}},
                        {"a run of the longest copy", Bytes(256, 3)},
                        {"a run of one more", Bytes(257, 3)},
                        {"random, as long as literals can be", RandomBytes(255, 1, 256)},
                        {"random", RandomBytes(3000, 2, 256)},
                        {"nibbles", RandomBytes(3000, 3, 16)},
                        {"patchwork", Patchwork(5000, 4)},
                        {"64 KB of one byte", Bytes(65536, 0xAA)},
                        {"64 KB", Patchwork(65536, 6)},
                        {"blank picture", Bytes(10001, 0)},
                        {"picture with high nibbles in its colours", RandomBytes(10001, 8, 256)},
                        {"random picture", RandomPictureBytes(10001, 9000)},
                        {"picture of few bytes", Patchwork(10001, 9)},
                        {"picture program", RandomPictureBytes(10050, 9002)},
                        {"one byte short of a picture", Bytes(10000, 1)},
                        {"one byte more than a picture", Bytes(10002, 1)},
                        {"smallest picture program", Bytes(10003, 1)}};
  for (const Case& c : cases) {
    for (const int level : {1, 4, 6}) {
      if (level > 1 && c.bytes.size() > (level == 6 ? 5000U : 20000U)) continue;  // takes long, tells little
      EXPECT_EQ(Decrunch(Crunch(c.bytes, level)), c.bytes) << c.what << ", level " << level;
    }
  }
  for (int level = kFirstLevel; level <= kLastLevel; ++level) {
    const Bytes bytes = Patchwork(2000, static_cast<unsigned>(level));
    EXPECT_EQ(Decrunch(Crunch(bytes, level)), bytes) << level;
  }
}

TEST(Crunch, RefusesOtherLevelsAndTooMuch) {
  EXPECT_THROW(Crunch({}, 0), std::runtime_error);
  EXPECT_THROW(Crunch({}, 10), std::runtime_error);
  EXPECT_THROW(Crunch(Bytes(kMostBytesToCrunch + 1), 1), std::runtime_error);
}

TEST(Crunch, HardlyGrowsWhatCannotBePacked) {
  EXPECT_LT(Crunch(RandomBytes(10000, 1, 256), 6).size(), 10100U);
}

TEST(Crunch, PacksBetterAtHigherLevels) {
  const Bytes bytes = Patchwork(10001, 12);
  EXPECT_LT(Crunch(bytes, 6).size(), Crunch(bytes, 1).size());
  EXPECT_LE(Crunch(bytes, 9).size(), Crunch(bytes, 6).size());
}

TEST(Decrunch, OnlyComplainsOfDamagedData) {
  const Bytes pictures[] = {Crunch(Patchwork(10001, 3), 1), Crunch(Patchwork(3000, 4), 1)};
  std::mt19937 random(1);
  int refused = 0;
  for (int round = 0; round < 4000; ++round) {
    Bytes packed = pictures[round % 2];
    if (round % 3 == 0) packed.resize(random() % packed.size());
    for (unsigned hits = 1 + random() % 4; hits > 0 && !packed.empty(); --hits) {
      packed[random() % std::min<std::size_t>(packed.size(), round % 5 == 0 ? 8 : packed.size())] =
          static_cast<std::uint8_t>(random());
    }
    try {
      EXPECT_LE(Decrunch(packed).size(), kMostBytesToCrunch);
    } catch (const std::runtime_error&) {
      ++refused;
    }
  }
  EXPECT_GT(refused, 2000);
  EXPECT_THROW(Decrunch({}), std::runtime_error);
  EXPECT_THROW(Decrunch(RandomBytes(5000, 3, 256)), std::runtime_error);
}

TEST(CrushTool, PacksUnpacksAndTellsWhatIsWrong) {
  const support::TempFolder folder;
  const std::string input = folder / "some input", packed = folder / "packed", output = folder / "output";
  const Bytes bytes = Patchwork(4000, 7);
  support::WriteFile(input, bytes);
  const auto crush = [](const std::vector<std::string>& arguments) { return support::RunTool(KELVO_CRUSH, arguments); };
  ASSERT_EQ(crush({"6", input, packed}).exit_code, 0);
  EXPECT_LT(support::ReadFile(packed).size(), bytes.size());
  ASSERT_EQ(crush({"-d", packed, output}).exit_code, 0);
  EXPECT_EQ(support::ReadFile(output), bytes);
  EXPECT_EQ(crush({"-d", input, output}).exit_code, 1);
  const support::ToolRun missing = crush({"6", folder / "none", output});
  EXPECT_EQ(missing.exit_code, 1);
  EXPECT_NE(missing.errors.find("none"), std::string::npos);
  EXPECT_EQ(support::ReadFile(output), bytes);
  const std::vector<std::string> wrong_usages[] = {
      {}, {"6"}, {"0", "a", "b"}, {"10", "a", "b"}, {"-x", "a", "b"}, {"6", "a", "b", "c"}};
  for (const auto& wrong : wrong_usages) EXPECT_EQ(crush(wrong).exit_code, 2);
}

}  // namespace
}  // namespace kelvo::c64out
