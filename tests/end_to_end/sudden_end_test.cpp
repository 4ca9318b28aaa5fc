// Unsaved work outlives every way in which the program can end without asking.
#include <gtest/gtest.h>

#include <csignal>
#include <functional>
#include <optional>

#include "end_to_end/desktop.h"
#include "files/picture_format.h"
#include "support/pictures.h"
#include "support/temp_folder.h"

namespace kelvo::end_to_end {
namespace {

constexpr std::size_t kBackgroundInFile = 2049;

class SuddenEnd : public testing::Test {
 protected:
  void SetUp() override {
    if (!RunCommand("command -v Xvfb && command -v xdotool && command -v openbox")) {
      GTEST_SKIP() << "this needs Xvfb, openbox and xdotool";
    }
    setenv("XDG_CONFIG_HOME", folder.Path().c_str(), 1);
    create_directory(folder / "bin");
    copy(KELVO_PROGRAM, program_file);  // the folder of the program is its program folder
    model::PictureImage picture = support::RandomPicture(1);
    picture.BackgroundColour = {};
    files::Sign(picture);
    support::WriteFile(file, files::Encode(picture));
    desktop.emplace();
    Start();
  }

  void Start() {
    program.emplace(std::vector<std::string>{program_file.string(), file.string()});
    ASSERT_TRUE(RunCommand("xdotool search --sync --onlyvisible --name '^Kelvo v'"));
    Wait(500);
  }
  // Chooses the next background colour from the menu.
  void ChangePicture() {
    EXPECT_TRUE(RunCommand("xdotool key alt+p sleep 0.2 key b sleep 0.2 " + downs + "key Return sleep 0.5"));
    downs += "key Down sleep 0.05 ";
  }
  bool IsEnded() {
    for (int round = 0; round < 100 && program->IsRunning(); ++round) Wait(50);
    return !program->IsRunning();
  }
  int BackgroundIn(const std::filesystem::path& kept) const {
    const auto bytes = support::ReadFile(kept);
    return bytes.size() > kBackgroundInFile ? bytes[kBackgroundInFile] : -1;
  }

  support::TempFolder folder;
  std::filesystem::path program_file = folder / "bin/kelvo", file = folder / "picture.kvp";
  std::filesystem::path copy_file = folder / "bin/BACKUP/recovery_1.kvp";
  std::optional<Desktop> desktop;
  std::optional<Process> program;
  std::string downs = "key Down sleep 0.05 ";
};

TEST_F(SuddenEnd, LeavesWorkThatIsOfferedAndSavedAtTheNextStart) {
  ChangePicture();
  program->Kill(SIGKILL);
  ASSERT_TRUE(IsEnded());
  EXPECT_EQ(BackgroundIn(copy_file), 1);

  Start();
  EXPECT_TRUE(RunCommand("xdotool key alt+y sleep 0.5"));
  ChangePicture();  // within the minute that no copy is written in
  program->Kill(SIGTERM);
  ASSERT_TRUE(IsEnded());
  EXPECT_EQ(BackgroundIn(copy_file), 2);

  Start();
  EXPECT_TRUE(RunCommand("xdotool key alt+y sleep 0.5 key ctrl+s sleep 0.5"));
  EXPECT_EQ(BackgroundIn(file), 2);
  EXPECT_FALSE(exists(copy_file));
}

TEST_F(SuddenEnd, ALostDisplayLeavesTheLatestWork) {
  ChangePicture();
  ChangePicture();
  desktop.reset();
  ASSERT_TRUE(IsEnded());
  EXPECT_EQ(BackgroundIn(copy_file), 2);
}

}  // namespace
}  // namespace kelvo::end_to_end
