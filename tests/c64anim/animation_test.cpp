// Animations on a C64: what the beam of a PAL machine draws while the player runs, field by field, is every frame for
// its time and nothing else. And their bytes: how few, and what does not fit.
#include "c64anim/animation.h"

#include <gtest/gtest.h>

#include "animations.h"
#include "c64/beam.h"
#include "c64anim/placing.h"
#include "c64out/fill_template.h"
#include "optimise/slot_order.h"
#include "support/animation_decoder.h"
#include "support/files.h"
#include "support/pictures.h"
#include "support/run_tool.h"

namespace kelvo::c64anim {
namespace {

using model::PictureImage;
using Frames = std::vector<PictureImage>;

// `picture` with `cells` new cells from `first` (0..999) on, every `step`-th.
PictureImage Changed(PictureImage picture, int first, int cells, int step = 1) {
  std::mt19937 random(static_cast<unsigned>(first * 1000 + cells));
  const auto colour = [&] { return static_cast<int>(random() % 16); };
  for (int i = 0; i < cells; ++i) {
    std::array<std::uint8_t, 8> lines{};
    for (std::uint8_t& line : lines) line = static_cast<std::uint8_t>(random());
    support::SetCell(picture, (first + i * step) % 1000 + 1, lines, colour(), colour(), colour());
  }
  return picture;
}

// Sixteen frames: 50 cells stand side by side and walk on, then 50 all over the picture. So 97 to 100 change each time.
Frames NoisyWalk() {
  const PictureImage ground = support::RandomPicture(8);
  Frames frames;
  for (int i = 0; i < 8; ++i) frames.push_back(Changed(ground, 420 + i * 50, 50));
  for (int i = 8; i < 16; ++i) frames.push_back(Changed(ground, i - 7, 50, 20));
  return frames;
}

bool Shows(const c64::Screen& screen, const PictureImage& frame) {
  for (int y = 0; y < 200; ++y) {
    for (int x = 0; x < 320; x += 2) {
      const int wanted = support::ColourAt(frame, x / 2 + 1, y + 1);
      if (screen.At(x, y) != wanted || screen.At(x + 1, y) != wanted) return false;
    }
  }
  return true;
}

// A frame on the screen: for so many fields, of which the first may be torn.
struct Turn {
  const PictureImage* frame;
  int fields;
  int torn_fields = 0;
};

class AnimationProgram : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!support::IsInstalled("64tass")) GTEST_SKIP() << "64tass is not installed";
  }

  app::Bytes Program(const Bytes& memory) const {
    const std::filesystem::path data = folder_ / "animation.bin", source = folder_ / "animplay.tmp";
    support::WriteFile(data, memory);
    c64out::FillTemplate(KELVO_ASSETS "/system/animplay.src", source, {"[animation]", data.string(), {}});
    const std::string prg = (folder_ / "animation.prg").string();
    const support::ToolRun run =
        support::RunTool("64tass", {"-a", "-q", "-C", "-B", "--cbm-prg", "-Wno-portable", "-o", prg, source.string()});
    EXPECT_EQ(run.exit_code, 0) << run.errors;
    return support::ReadFile(prg);
  }

  // Runs the program until it shows the first of `shown`, then expects them all.
  void ExpectPlays(const Bytes& memory, const std::vector<Turn>& shown) const {
    c64::Machine machine;
    machine.LetItChangeWhatIsShown();
    machine.LeaveUnclean();
    machine.PressRestoreEvery(1'234'567);
    machine.Load(Program(memory));
    c64::Beam beam(machine);
    machine.Start();
    c64::Screen screen = beam.NextField();
    for (int waited = 0; waited < 100 && !Shows(screen, *shown.front().frame); ++waited) screen = beam.NextField();
    for (std::size_t i = 0; i < shown.size(); ++i) {
      for (int field = 1; field <= shown[i].fields; ++field, screen = beam.NextField()) {
        if (field < shown[i].torn_fields) continue;
        ASSERT_TRUE(Shows(screen, *shown[i].frame)) << "turn " << i << " field " << field;
        ASSERT_EQ(screen.border, shown[i].frame->BackgroundColour.Number());
      }
    }
  }

  support::TempFolder folder_;
};

// Which frames are seen, for so many rounds.
std::vector<Turn> Seen(const Frames& frames, const std::vector<int>& fields, const AnimationPlan& plan, Playing playing,
                       int rounds) {
  std::vector<Turn> round, seen;
  for (std::size_t i = 0; i < frames.size(); ++i) round.push_back({&frames[i], fields[i]});
  for (const ChangeCost& cost : plan.changes) {
    round[static_cast<std::size_t>(cost.to_frame) - 1].torn_fields = cost.pace.torn_fields;
  }
  if (playing == Playing::kToAndFro) {
    for (std::size_t i = frames.size() - 2; i > 0; --i) {
      round.push_back({&frames[i], fields[i], plan.changes[i].pace.torn_fields});
    }
    round.front().torn_fields = plan.changes.front().pace.torn_fields;
  }
  for (int i = 0; i < rounds; ++i) seen.insert(seen.end(), round.begin(), round.end());
  if (playing == Playing::kOnce) std::fill(seen.begin() + std::ssize(frames), seen.end(), round.back());
  return seen;
}

AnimationPlan PlanOf(const Frames& frames, const std::vector<int>& fields, Playing playing) {
  Animation animation;
  for (std::size_t i = 0; i < frames.size(); ++i) animation.Add(frames[i], fields[i]);
  return animation.Plan(playing);
}

TEST_F(AnimationProgram, ShowsSixteenFramesOfAHundredCellsAt25ASecond) {
  const Frames frames = NoisyWalk();
  const std::vector<int> fields(frames.size(), 2);
  for (const Playing playing : {Playing::kOnce, Playing::kRound, Playing::kToAndFro}) {
    SCOPED_TRACE(static_cast<int>(playing));
    const AnimationPlan plan = PlanOf(frames, fields, playing);
    EXPECT_EQ(plan.changes.size(), playing == Playing::kRound ? 16U : 15U);
    for (const ChangeCost& cost : plan.changes) {
      EXPECT_TRUE(cost.cells >= 97 && cost.pace.fields <= 2 && !cost.pace.is_overtaken) << cost.to_frame;
    }
    ExpectPlays(plan.memory, Seen(frames, fields, plan, playing, 3));
  }
}

// What artists make: at 25 a second, all over the screen at 1.5, 200 frames at 12; and another background every time,
// with one frame that stays for long.
TEST_F(AnimationProgram, PlaysDrawnAnimationsAtTheirTimes) {
  Frames flashing = samples::DrawWalk();
  for (std::size_t i = 0; i < flashing.size(); ++i) flashing[i].BackgroundColour = support::Colour(static_cast<int>(i));
  const struct {
    Frames frames;
    std::vector<int> turns;  // in fields, over and over
    Playing playing;
    int most_fields;
  } all[] = {{samples::DrawWalk(), {2}, Playing::kRound, 2},
             {samples::DrawDissolve(), {33, 34}, Playing::kToAndFro, 33},
             {samples::DrawSnow(), {4, 4, 4, 4, 4, 5}, Playing::kRound, 4},
             {flashing, {12, 300}, Playing::kRound, 12}};
  for (const auto& [frames, turns, playing, most_fields] : all) {
    SCOPED_TRACE(frames.size());
    std::vector<int> fields;
    for (std::size_t i = 0; i < frames.size(); ++i) fields.push_back(turns[i % turns.size()]);
    const AnimationPlan plan = PlanOf(frames, fields, playing);
    ASSERT_TRUE(plan.Fits());
    for (const ChangeCost& cost : plan.changes) EXPECT_LE(cost.pace.fields, most_fields) << cost.to_frame;
    ExpectPlays(plan.memory, Seen(frames, fields, plan, playing, 2));
  }
}

// How changes to `cells` cells from `first` on, every `step`-th, are told to go.
Pace Told(const PictureImage& from, int first, int cells, int step) {
  const FrameBytes changed = FrameBytesOf(Changed(from, first, cells, step));
  const Race race = AsTheyAre(SpansBetween(FrameBytesOf(from), changed)).race;
  return {FewestFields(race, 0), race.is_overtaken, race.is_overtaken ? FewestFields(race, 0) : 0};
}

// The fewest fields that a change is told to need are enough, and what is told to be whole is never torn, up to the
// most cells of which this is told.
TEST_F(AnimationProgram, KeepsTheTimesThatWereTold) {
  Frames frames{support::RandomPicture(3)};
  std::vector<Turn> told{{nullptr, 1}};
  const auto add = [&](int first, int cells, int step) {
    const Pace pace = Told(frames.back(), first, cells, step);
    told.push_back({nullptr, pace.fields, pace.torn_fields});
    frames.push_back(Changed(frames.back(), first, cells, step));
  };
  // Side by side, in one row, at the beginning and the end, all over the picture, in columns; the most cells there are.
  for (const auto& [first, step, most] : {std::tuple{0, 1, 1000},
                                          {440, 1, 1000},
                                          {900, 1, 100},
                                          {0, 3, 333},
                                          {2, 7, 142},
                                          {400, 9, 66},
                                          {1, 9, 111},
                                          {0, 13, 76}}) {
    for (const int fields : {1, 2}) {
      int cells = most;
      for (Pace pace = Told(frames.back(), first, cells, step); pace.is_overtaken || pace.fields > fields;
           pace = Told(frames.back(), first, cells, step)) {
        --cells;
      }
      EXPECT_GT(cells, 40) << first << ' ' << step;
      add(first, cells, step);
    }
  }
  add(0, 1000, 1);
  Animation animation;
  for (std::size_t i = 0; i < frames.size(); ++i) {
    told[i].frame = &frames[i];
    animation.Add(frames[i], told[i].fields);
  }
  const AnimationPlan plan = animation.Plan(Playing::kOnce);
  ASSERT_TRUE(plan.Fits());
  EXPECT_GT(told.back().torn_fields, 1);
  ExpectPlays(plan.memory, told);
}

// What is seen, and for how long; the last stays.
using Looks = std::vector<std::pair<std::vector<int>, int>>;

void Add(const std::vector<int>& look, int fields, Looks& looks) {
  if (looks.empty() || looks.back().first != look) looks.emplace_back(look, 0);
  looks.back().second += fields;
}

std::vector<int> LookOf(const PictureImage& frame) {
  std::vector<int> look;
  look.reserve(32000);
  for (int y = 1; y <= 200; ++y) {
    for (int x = 1; x <= 160; ++x) look.push_back(support::ColourAt(frame, x, y));
  }
  return look;
}

std::vector<int> LookOf(const FrameBytes& frame) {
  std::vector<int> look;
  look.reserve(32000);
  for (std::size_t y = 0; y < 200; ++y) {
    for (std::size_t x = 0; x < 160; ++x) {
      const CellBytes& cell = frame.cells[y / 8 * 40 + x / 4];
      const std::array<int, 4> colours{frame.background, cell.screen >> 4, cell.screen & 15, cell.colour & 15};
      look.push_back(colours.at(static_cast<std::size_t>(cell.lines.at(y % 8) >> (6 - x % 4 * 2) & 3)));
    }
  }
  return look;
}

// Frames of any kind, to the last byte of the memory: their bytes tell them again, in their order and for their times.
TEST(Animation, ReadsBackAsItWasAdded) {
  int read = 0;
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto upto = [&random](int most) { return static_cast<int>(random() % static_cast<unsigned>(most)); };
    PictureImage frame = seed % 3 == 0 ? samples::DrawSnow().front() : support::RandomPicture(seed);
    Animation animation;
    std::vector<PictureImage> frames;
    Looks added, decoded;
    const int most_cells = seed % 4 == 0 ? 200 : 40;
    for (int i = 0; i < 30; ++i) {
      const int fields = std::array{1, 2, 3, 5, 127, 128, 254, 255}.at(random() % 8);
      animation.Add(frame, fields);
      frames.push_back(frame);
      Add(LookOf(frame), fields, added);
      const PictureImage known = frames[static_cast<std::size_t>(upto(i + 1))];
      frame = upto(4) == 0 ? known : Changed(frame, upto(1000), 1 + upto(most_cells), 1 + upto(40));
      if (upto(8) == 0) frame.BackgroundColour = support::Colour(upto(16));
    }
    const AnimationPlan plan = animation.Plan(Playing::kOnce);
    if (!plan.Fits()) continue;
    for (const auto& turn : support::DecodedAnimation(plan.memory, 1000)) Add(LookOf(turn.frame), turn.fields, decoded);
    decoded.back().second = 0;
    added.back().second = 0;
    ASSERT_TRUE(decoded == added);
    ++read;
  }
  EXPECT_GT(read, 6);  // noise need not fit
}

TEST(Animation, TakesNothingForWhatLooksTheSame) {
  const PictureImage frame = support::RandomPicture(4), other = Changed(frame, 30, 9);
  PictureImage same = frame;
  for (int cell = 1; cell <= 1000; ++cell) {
    const optimise::SlotOrder order = optimise::SlotOrdersOf(frame, cell).back();
    const auto colour = [&](std::size_t slot) { return order.slots.at(slot).value_or(7); };
    support::SetCell(same, cell, order.lines, colour(2), colour(1), colour(0));
  }
  Animation animation;
  for (const PictureImage& one : {frame, same, other, same, other}) animation.Add(one, 1);
  const AnimationPlan plan = animation.Plan(Playing::kRound);
  const std::vector<std::pair<int, int>> cells_and_bytes{{0, 1}, {9, 102}, {9, 0}, {9, 0}, {9, 0}};
  for (std::size_t i = 0; i < plan.changes.size(); ++i) {
    EXPECT_EQ(std::pair(plan.changes[i].cells, plan.changes[i].bytes), cells_and_bytes.at(i)) << i;
  }
}

TEST(Animation, CopiesNothingThatWasTakenBack) {
  const Bytes part = support::CountingBytes(200);
  Packing packing;
  packing.Know(kBehindBitmap, part);
  EXPECT_LT(packing.Packed(part).size(), 10U);
  packing.Forget(kBehindBitmap, 200);
  EXPECT_EQ(packing.Packed(part), Packing().Packed(part));
}

// Nothing is lost between the rooms of the memory: noise fills all of it but for the end of a part in each.
TEST(Animation, TellsWhatDoesNotFit) {
  PictureImage frame = support::RandomPicture(6);
  Animation animation;
  EXPECT_THROW(animation.Plan(Playing::kOnce), std::runtime_error);
  EXPECT_THROW(animation.Add(frame, 0), std::runtime_error);
  for (const int cells : {0, 1000, 1000, 1000, 600, 1}) {
    animation.Add(frame = Changed(frame, animation.Frames(), cells), 50);
  }
  const AnimationPlan plan = animation.Plan(Playing::kOnce);
  EXPECT_FALSE(plan.Fits());
  std::vector<int> missing;
  for (const ChangeCost& cost : plan.changes) {
    if (!cost.fits) missing.push_back(cost.to_frame);
  }
  EXPECT_EQ(missing, std::vector{5});
}

}  // namespace
}  // namespace kelvo::c64anim
