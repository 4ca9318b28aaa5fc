// Animation mode switched on and off; the frames: their names, going from one to another, and the preview.
#include <gtest/gtest.h>

#include <array>
#include <utility>

#include "anim/anim_mode.h"
#include "anim/frame_navigation.h"
#include "anim/frame_player.h"
#include "command/process_command.h"
#include "files/picture_format.h"
#include "support/platform.h"
#include "support/program.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;
using std::chrono::milliseconds;
using support::Lines;

class RecordingAnimDisplay final : public AnimDisplay {
 public:
  void ShowCheckMark(bool on) override { check_mark = on; }
  void ShowStatus(std::string_view text) override { status = text; }
  void ShowFrameWindow() override { window = true; }
  void UnloadFrameWindow() override { window = false; }
  bool check_mark = false, window = false;
  std::string status = "ANIM=OFF";
};

class AnimModeTest : public testing::Test, protected support::Program {
 protected:
  void SetProperties(const std::string& animation_folder, const std::string& prefix) {
    settings.Write(kFolder, animation_folder);
    settings.Write(kAnimPrefix, prefix);
  }
  // What a toggle to "on" asks and tells.
  Lines Toggle() {
    messages.shown.clear();
    mode.ToggleAnimMode();
    EXPECT_EQ(mode.IsAnimModeChecked(), shows.check_mark);
    EXPECT_EQ(shows.window, shows.check_mark);
    EXPECT_EQ(shows.status, shows.check_mark ? "ANIM=ON" : "ANIM=OFF");
    return messages.shown;
  }

  RecordingAnimDisplay shows;
  AnimMode mode{surroundings, shows};
  const std::string question =
      "Initial animation frame could not be found\r\nDo you want to create anim0001.kvp based on your loaded kvp?";
};

TEST_F(AnimModeTest, AsksInOrderUntilTheFirstFrameIsThere) {
  EXPECT_EQ(Toggle(), Lines{"Animation folder must be specified"});
  SetProperties(Text(""), "");
  EXPECT_EQ(Toggle(), Lines{"Animation prefix must be specified"});
  SetProperties(Text(""), "anim");
  EXPECT_EQ(Toggle(), Lines{question});
  EXPECT_FALSE(shows.check_mark || fs::exists(folder / "anim0001.kvp"));

  messages.yes = true;
  EXPECT_EQ(Toggle(), Lines{question});
  EXPECT_TRUE(shows.check_mark);
  EXPECT_EQ(document.file.CurrentFilePath, Text("anim0001.kvp"));
  EXPECT_EQ(fs::file_size(folder / "anim0001.kvp"), 10050U);
  EXPECT_EQ(Toggle(), Lines{});
  EXPECT_FALSE(shows.check_mark);

  fs::rename(folder / "anim0001.kvp", folder / "ANIM0001.KVP");
  EXPECT_EQ(Toggle(), Lines{});
  EXPECT_TRUE(shows.check_mark);
}

TEST_F(AnimModeTest, LooksAtTheFolderOnlyAfterTheFirstFrame) {
  messages.yes = true;
  fs::create_directory(folder / "x0001.kvp");  // in the place of the first frame, which cannot be saved then
  const std::string no_folder = "Animation folder can not be found", not_saved = Text("x0001.kvp");
  // What is told last, and how much in all: the question, that the picture was not saved, that there is no folder.
  for (const auto& [place, prefix, last, count] :
       {std::tuple{"gone/", "anim", no_folder, 3U}, {"gone", "anim", no_folder, 2U}, {"", "x", not_saved, 2U}}) {
    SetProperties(Text(place), prefix);
    const Lines told = Toggle();
    EXPECT_EQ(told.size(), count);
    EXPECT_NE(told.back().find(last), std::string::npos) << told.back();
    EXPECT_FALSE(shows.check_mark);
  }
  EXPECT_TRUE(fs::exists(folder / "goneanim0001.kvp"));
}

TEST_F(AnimModeTest, TheCommandSetsTheFlagAloneOrSwitchesTheModeWithIt) {
  const auto toggle = [this] {
    mode.ToggleAnimMode();
    return mode.IsAnimModeChecked();
  };
  const command::AnimationSwitch animation{toggle, [this](bool on) { mode.SetAnimFlag(on); }};
  SetProperties(Text(""), "anim");
  for (const auto& [line, reply, flag, is_on] :
       {std::tuple{"ANIM ", "ANIM OFF", "ANIM=OFF", false},  // the answer is no
        {"ANIM ON", "ANIM ON", "ANIM=ON", false},
        {"ANIM", "ANIM ON", "ANIM=ON", true},
        {"ANIM off", "ANIM off", "ANIM=OFF", true},
        {"ANIM", "ANIM OFF", "ANIM=OFF", false},
        {"ANIM", "ANIM ON", "ANIM=ON", true}}) {
    command::ProcessCommand(line, surroundings, animation, {});
    EXPECT_EQ(prompt.lines.back(), reply);
    EXPECT_EQ(shows.status, flag);
    EXPECT_EQ(std::pair(shows.check_mark, shows.window), std::pair(is_on, is_on)) << line;
    messages.yes = true;
  }
  mode.FrameWindowUnloaded();
  EXPECT_EQ(shows.status, "ANIM=OFF");
  EXPECT_FALSE(shows.check_mark);
}

// A frame's file; its seed stands in every byte of its bitmap.
void WriteFrame(const fs::path& file, int seed) {
  model::PictureImage picture;
  picture.Bitmap.fill(static_cast<std::uint8_t>(seed));
  support::WriteFile(file, files::Encode(picture));
}

class FramesTest : public testing::Test, protected support::Program {
 protected:
  FramesTest() {
    fs::create_directory(folder / "a");
    settings.Write(kFolder, Text("a/"));
    settings.Write(kAnimPrefix, "Anim");
  }
  fs::path File(int number) const { return FrameNames({Text("a/"), "Anim"}).Path(number); }
  void WriteFrames(std::initializer_list<int> numbers) {
    for (const int number : numbers) WriteFrame(File(number), number);
  }
  std::string Press(const std::string& button) {
    if (button == "First") return frames.First();
    if (button == "Previous") return frames.Previous();
    return button == "Next" ? frames.Next() : button == "Back" ? frames.Back() : frames.GoTo(button);
  }
  int Seed() const { return document.picture.Bitmap[1]; }
  void Draw(std::uint8_t seed) { document.picture.Bitmap[1] = seed; }
  static int SeedIn(const fs::path& file) { return support::ReadFile(file).at(2050); }

  FrameNavigation frames{surroundings};
};

TEST(FrameNames, RunFolderPrefixAndNumberTogether) {
  const FrameNames names({"/some/ANIM", "anim"});
  EXPECT_EQ(names.Path(9999), "/some/ANIManim9999.kvp");
  EXPECT_EQ(names.Folder(), fs::path("/some/"));
  EXPECT_EQ(FrameNames({"", "anim"}).Folder(), fs::path("."));
  EXPECT_EQ(names.NumberOf("animANIM0042.KVP"), 42);
  EXPECT_EQ(names.NumberOfPath("/some/ANIManim0042.kvp"), 42);
  EXPECT_EQ(names.NumberOfPath("/other/ANIManim0042.kvp"), std::nullopt);
  for (const char* other :
       {"ANIManim0000.kvp", "ANIManim042.kvp", "ANIManim-042.kvp", "ANIManim0042.koa", "anim0042.kvp", ""}) {
    EXPECT_EQ(names.NumberOf(other), std::nullopt) << other;
  }
}

TEST_F(FramesTest, TheFourButtonsAndTheNumberField) {
  WriteFrames({1, 2, 3, 5});
  // Pressed one after another: First, Previous, Next, Back, or a typed number; the frame shown then, and the word.
  const std::tuple<std::string, int, const char*> presses[] = {
      {"Back", 0, "NO FRAME WAS SHOWN BEFORE"},
      {"Previous", 0, "NO FRAME BEFORE THIS ONE"},
      {"Next", 1, ""},
      {" 0003 ", 3, ""},
      {"Next", 5, "FRAME 4 SKIPPED"},
      {"Previous", 3, "FRAME 4 SKIPPED"},
      {"First", 1, ""},
      {"Back", 3, ""},
      {"Back", 1, ""},
      {"4", 1, "FRAME 4 IS MISSING"},
      {"0", 1, "TYPE A NUMBER FROM 1 TO 9999"},
      {"10000", 1, "TYPE A NUMBER FROM 1 TO 9999"},
      {"1x", 1, "TYPE A NUMBER FROM 1 TO 9999"},
      {std::string(10000, '9'), 1, "TYPE A NUMBER FROM 1 TO 9999"},
  };
  for (const auto& [button, shown, word] : presses) {
    EXPECT_EQ(Press(button), word) << button;
    EXPECT_EQ(frames.CurrentFrame().value_or(0), shown) << button;
    EXPECT_EQ(Seed(), shown) << button;
  }
  EXPECT_EQ(frames.Row().Count(), 4);
  EXPECT_TRUE(messages.shown.empty());

  (void)frames.GoTo("5");
  document.picture.Bitmap[1] = 77;
  EXPECT_EQ(frames.Next(), "");  // behind the last frame; the answer is no
  EXPECT_EQ(messages.shown, Lines{"There is no frame after this one\r\nDo you want to create Anim0006.kvp "
                                  "based on the picture in memory?"});
  EXPECT_TRUE(document.HasUnsavedWork());
  messages.yes = true;
  EXPECT_EQ(frames.Next(), "");
  EXPECT_EQ(frames.CurrentFrame(), 6);
  EXPECT_EQ(frames.Row().Count(), 5);
  EXPECT_EQ(SeedIn(File(5)), 77);
  EXPECT_EQ(SeedIn(File(6)), 77);
  WriteFrames({9999});
  (void)frames.GoTo("9999");
  EXPECT_EQ(frames.Next(), "FRAME 9999 IS THE LAST ONE");
  fs::remove_all(folder / "a");
  EXPECT_EQ(frames.First(), "THERE ARE NO FRAMES");
}

TEST_F(FramesTest, AChangedFrameIsSavedWhenItIsLeftAndOnlyThen) {
  WriteFrames({1, 2});
  (void)frames.First();
  const auto untouched = fs::last_write_time(File(1));
  (void)frames.Next();
  EXPECT_EQ(fs::last_write_time(File(1)), untouched);
  document.picture.Bitmap[1] = 77;
  (void)frames.Previous();
  EXPECT_EQ(SeedIn(File(2)), 77);
  EXPECT_EQ(Seed(), 1);

  fs::create_directory(folder / "elsewhere");
  files.SaveTo(Text("elsewhere/pic.kvp"));
  document.picture.Bitmap[1] = 78;  // no frame: kept as a rescue copy, not saved over the file
  (void)frames.GoTo("2");
  EXPECT_EQ(SeedIn(folder / "elsewhere/pic.kvp"), 1);
  EXPECT_TRUE(fs::exists(folders.Backup() / "pic.kvp_2602030907_unsaved.kvp"));

  document.picture.Bitmap[1] = 79;
  fs::remove(File(2));
  fs::create_directory(File(2));  // nothing can be saved in its place: the frame is not left
  messages.yes = true;
  EXPECT_EQ(frames.Previous(), "FRAME 2 IS NOT SAVED");
  fs::remove(File(1));
  EXPECT_EQ(frames.Next(), "FRAME 2 IS NOT SAVED");
  EXPECT_EQ(Seed(), 79);
  EXPECT_TRUE(document.HasUnsavedWork());
  EXPECT_FALSE(fs::exists(File(3)));
}

TEST_F(FramesTest, FilesThatAreNoPicturesAreSkipped) {
  WriteFrames({1, 4});
  support::WriteFile(File(2), support::CountingBytes(10049));
  support::WriteFile(File(3), {});
  fs::create_directory(File(6));
  (void)frames.First();
  EXPECT_EQ(frames.Next(), "FRAMES 2 TO 3 SKIPPED");
  EXPECT_EQ(frames.Row().Count(), 4);
  ASSERT_TRUE(frames.PictureBefore());
  EXPECT_EQ(frames.PictureBefore()->Bitmap[1], 1);
  support::WriteFile(File(5), {});
  (void)frames.Next();  // offers a frame behind it: what cannot be read is not written over
  EXPECT_NE(messages.shown.at(0).find("Anim0006.kvp"), std::string::npos);
  EXPECT_EQ(frames.GoTo("2"), "FRAME 2 IS NOT LOADED");
  EXPECT_EQ(Seed(), 4);
}

TEST_F(FramesTest, OneFileCountsWhereSeveralDifferInCase) {
  if (support::kIsWindows) GTEST_SKIP() << "case tells no files apart";
  WriteFrames({1, 3});
  for (const std::string number : {"1", "2", "3", "4"}) {
    for (const std::string start : {"a/ANIM000", "a/anim000"}) WriteFrame(folder / (start + number + ".kvp"), 50);
  }
  WriteFrames({2});
  for (const int seed : {1, 2, 3, 50}) {
    (void)frames.Next();
    EXPECT_EQ(Seed(), seed);
  }
  document.picture.Bitmap[1] = 77;  // saved under the own ending, which then counts
  (void)frames.Previous();
  (void)frames.Next();
  EXPECT_EQ(Seed(), 77);
}

TEST_F(FramesTest, ThePreviewKeepsItsPaceWhateverTheViewDoes) {
  WriteFrames({1, 2, 3, 4, 5});
  support::WriteFile(File(4), {});
  frames.Refresh();
  std::mt19937 random(3);
  // In turn, and from the first one on again: the second and the last stay for longer.
  for (const auto& [playing, seeds] : {std::pair{Playing::kRound, std::vector<int>{1, 2, 2, 2, 3, 5, 5}},
                                       {Playing::kToAndFro, {1, 2, 2, 2, 3, 5, 5, 3, 2, 2, 2}},
                                       {Playing::kOnce, {1, 2, 2, 2, 3, 5, 5}}}) {
    const auto seed_at = [&seeds = seeds](std::int64_t turn) {
      return seeds[static_cast<std::size_t>(turn) % seeds.size()];
    };
    const auto begins = [&, &seeds = seeds](std::int64_t turn) {
      return turn % std::ssize(seeds) == 0 || seed_at(turn) != seed_at(turn - 1);
    };
    for (const int rate : {1, 7, 24, 25}) {
      FramePlayer player(FramesToPlay(frames.Row(), FrameTimes("2 3\n5 2\n")), rate, files::Reading::kDocumented,
                         playing);
      std::int64_t shown = -1;
      for (milliseconds now{0}; now < milliseconds(20000); now += milliseconds(random() % 90)) {
        const std::int64_t turn = now.count() * rate / 1000;
        const bool is_over = playing == Playing::kOnce && turn >= std::ssize(seeds);
        ASSERT_EQ(player.IsOver(now), is_over);
        if (is_over) break;
        std::int64_t first = turn, next = turn + 1;
        while (!begins(first)) --first;
        while (!begins(next)) ++next;
        const auto* picture = player.Due(now);
        ASSERT_EQ(picture ? picture->Bitmap[1] : 0, std::exchange(shown, first) == first ? 0 : seed_at(turn));
        if (random() % 2 == 0) player.ReadAhead();
        const milliseconds then = now + player.UntilNext(now);
        ASSERT_EQ(then.count() * rate / 1000, next);
        ASSERT_EQ((then.count() - 1) * rate / 1000, next - 1);
      }
    }
  }
  FramePlayer alone({{File(1)}}, 25, files::Reading::kDocumented, Playing::kToAndFro);
  for (const int turn : {0, 1, 2}) ASSERT_EQ(alone.Due(milliseconds(turn * 40))->Bitmap[1], 1);
  FramePlayer player(FramesToPlay(frames.Row(), {}), 25);
  fs::remove_all(folder / "a");
  EXPECT_EQ(player.Due(milliseconds(0)), nullptr);
  EXPECT_EQ(FramePlayer({}, 25).Due(milliseconds(0)), nullptr);
}

}  // namespace
}  // namespace kelvo::anim
