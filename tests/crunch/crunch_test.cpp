// Packing: whatever goes in comes out again.
#include "crunch/crunch.h"

#include <gtest/gtest.h>

#include <random>
#include <stdexcept>
#include <string>

#include "app/bytes.h"
#include "support/files.h"
#include "support/run_tool.h"

namespace kelvo::crunch {
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

Bytes RandomBytes(std::size_t size, unsigned seed) {
  std::mt19937 random(seed);
  Bytes bytes(size);
  for (std::uint8_t& byte : bytes) byte = static_cast<std::uint8_t>(random());
  return bytes;
}

TEST(Crunch, GivesBackWhateverWentIn) {
  Bytes nibbles = RandomBytes(10050, 5);
  for (std::uint8_t& byte : nibbles) byte &= 0x0F;  // as colours are
  const Bytes cases[] = {
      {},
      {0x5A},
      Bytes(256, 3),        // a run of the longest copy
      Bytes(257, 3),        // a run of one more
      RandomBytes(255, 1),  // as long as literals can be
      Patchwork(5000, 4),
      Patchwork(65536, 6),
      RandomBytes(10001, 8),  // a picture with high nibbles in its colours
      Patchwork(10050, 2),    // a picture program with high nibbles
      nibbles,                // one without
      Bytes(10001, 16),       // a picture whose colours have the lowest bit of a high nibble
  };
  for (const Bytes& bytes : cases) {
    for (const int level : {1, 4, 6}) {
      if (level > 1 && bytes.size() > (level == 6 ? 5000U : 20000U)) continue;  // takes long, tells little
      EXPECT_EQ(Decrunch(Crunch(bytes, level)), bytes) << bytes.size() << " bytes, level " << level;
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

TEST(Crunch, PacksBetterAtHigherLevelsAndHardlyGrowsWhatCannotBePacked) {
  const Bytes bytes = Patchwork(10001, 12);
  EXPECT_LT(Crunch(bytes, 6).size(), Crunch(bytes, 1).size());
  EXPECT_LE(Crunch(bytes, 9).size(), Crunch(bytes, 6).size());
  EXPECT_LT(Crunch(RandomBytes(10000, 1), 6).size(), 10100U);
}

// What damage of other kinds does is for the fuzz target to find.
TEST(Decrunch, RefusesWhatIsCutOff) {
  const Bytes packed = Crunch(Patchwork(10001, 3), 1);
  for (std::size_t size = 0; size < packed.size(); ++size) {
    EXPECT_THROW(Decrunch(Bytes(packed.begin(), packed.begin() + static_cast<std::ptrdiff_t>(size))),
                 std::runtime_error)
        << size;
  }
  EXPECT_THROW(Decrunch(RandomBytes(5000, 3)), std::runtime_error);
}

TEST(CrushTool, PacksUnpacksAndTellsWhatIsWrong) {
  const support::TempFolder folder;
  const std::string input = (folder / "some input").string(), packed = (folder / "packed").string(),
                    output = (folder / "output").string();
  const Bytes bytes = Patchwork(4000, 7);
  support::WriteFile(input, bytes);
  const auto crush = [](const std::vector<std::string>& arguments) { return support::RunTool(KELVO_CRUSH, arguments); };
  ASSERT_EQ(crush({"6", input, packed}).exit_code, 0);
  EXPECT_LT(support::ReadFile(packed).size(), bytes.size());
  ASSERT_EQ(crush({"-d", packed, output}).exit_code, 0);
  EXPECT_EQ(support::ReadFile(output), bytes);
  EXPECT_EQ(crush({"-d", input, output}).exit_code, 1);
  const support::ToolRun missing = crush({"6", (folder / "none").string(), output});
  EXPECT_EQ(missing.exit_code, 1);
  EXPECT_NE(missing.errors.find("none"), std::string::npos);
  EXPECT_EQ(support::ReadFile(output), bytes);
  const std::vector<std::string> wrong_usages[] = {
      {}, {"6"}, {"0", "a", "b"}, {"10", "a", "b"}, {"-x", "a", "b"}, {"6", "a", "b", "c"}};
  for (const auto& wrong : wrong_usages) EXPECT_EQ(crush(wrong).exit_code, 2);
}

}  // namespace
}  // namespace kelvo::crunch
