// Switching animation mode on and off, on real folders.
#include "anim/anim_mode.h"

#include <gtest/gtest.h>

#include "command/process_command.h"
#include "support/program.h"

namespace kelvo::anim {
namespace {

namespace fs = std::filesystem;
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
  AnimMode mode{{settings, messages, document, files}, shows};
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
  SetProperties(Text("gone/"), "anim");
  const Lines told = Toggle();
  ASSERT_EQ(told.size(), 3U);  // between the two: that the picture was not saved
  EXPECT_EQ(told.front(), question);
  EXPECT_EQ(told.back(), "Animation folder can not be found");

  SetProperties(Text("gone"), "anim");
  EXPECT_EQ(Toggle(), (Lines{question, "Animation folder can not be found"}));
  EXPECT_TRUE(fs::exists(folder / "goneanim0001.kvp"));

  fs::create_directory(folder / "x0001.kvp");  // in the place of the first frame, which cannot be saved then
  SetProperties(Text(""), "x");
  EXPECT_EQ(Toggle().size(), 2U);
  EXPECT_FALSE(shows.check_mark);
}

TEST_F(AnimModeTest, TheCommandSetsTheFlagAloneOrSwitchesTheModeWithIt) {
  const command::AnimationSwitch animation{[this] {
                                             mode.ToggleAnimMode();
                                             return mode.IsAnimModeChecked();
                                           },
                                           [this](bool on) { mode.SetAnimFlag(on); }};
  const auto reply = [&](const char* line) {
    command::ProcessCommand(line, {folders, document, files, prompt, animation});
    return prompt.lines.back();
  };
  EXPECT_EQ(reply("ANIM "), "ANIM OFF");  // there is no folder yet
  SetProperties(Text(""), "anim");
  messages.yes = true;
  EXPECT_EQ(reply("ANIM ON"), "ANIM ON");
  EXPECT_EQ(shows.status, "ANIM=ON");
  EXPECT_FALSE(shows.check_mark || shows.window);
  EXPECT_EQ(reply("ANIM"), "ANIM ON");
  EXPECT_TRUE(shows.check_mark && shows.window);

  mode.FrameWindowUnloaded();
  EXPECT_EQ(shows.status, "ANIM=OFF");
  EXPECT_FALSE(shows.check_mark);
  EXPECT_EQ(reply("ANIM"), "ANIM ON");
  EXPECT_EQ(reply("ANIM off"), "ANIM off");
  EXPECT_EQ(shows.status, "ANIM=OFF");
  EXPECT_TRUE(shows.check_mark);
  EXPECT_EQ(reply("ANIM"), "ANIM OFF");
}

}  // namespace
}  // namespace kelvo::anim
