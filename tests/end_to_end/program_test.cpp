// The program on a screen of its own with a window manager, and the hands of a user: its keys and mouse paint, and
// unsaved work outlives every way in which it can end without asking.
#include "support/program.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <thread>

#include "support/pictures.h"
#include "support/run_tool.h"

namespace kelvo::end_to_end {
namespace {

// Runs a shell command to its end; true when it succeeded.
bool RunCommand(const std::string& command) {
  return support::RunTool("sh", {"-c", command}).exit_code == 0;
}

void Wait(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// A test's constructor paints `picture`; the program has it open.
class ProgramTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!RunCommand("command -v Xvfb && command -v openbox && command -v xdotool")) {
      GTEST_SKIP() << "this needs Xvfb, openbox and xdotool";
    }
    setenv("XDG_CONFIG_HOME", folder.Path().c_str(), 1);
    setenv("DISPLAY", display.c_str(), 1);
    setenv("QT_QPA_PLATFORM", "xcb", 1);
    create_directory(folder / "bin");
    copy(KELVO_PROGRAM, program_file);  // the folder of the program is its program folder
    files::Sign(picture);
    support::WriteFile(file, files::Encode(picture));
    server.emplace("Xvfb", std::vector<std::string>{display, "-screen", "0", "1024x768x24", "-nolisten", "tcp"});
    const std::filesystem::path socket = "/tmp/.X11-unix/X" + display.substr(1);
    for (int round = 0; round < 100 && !exists(socket); ++round) Wait(50);
    window_manager.emplace("openbox", std::vector<std::string>{});
    Wait(500);
    Start();
  }

  void Start() {
    program.emplace(program_file.string(), std::vector<std::string>{file.string()});
    Hands("search --sync --onlyvisible --name '^Kelvo v'");
    Wait(500);
  }
  // Does a line of xdotool commands.
  static void Hands(const std::string& commands) { ASSERT_TRUE(RunCommand("xdotool " + commands)); }

  support::TempFolder folder;
  std::filesystem::path program_file = folder / "bin/kelvo", file = folder / "picture.kvp";
  std::string display = ":" + std::to_string(1000 + getpid() % 30000);
  model::PictureImage picture;
  std::optional<support::RunningTool> server, window_manager, program;
};

// On an empty picture it is the same wherever a hand begins; the zoom window lies at the frame's upper left.
TEST(Screen, IsNeededAndItsLackIsTold) {
  const support::TempFolder folder;
  support::WriteText(folder / "screens", R"({"screens": []})");
  const support::ToolRun run =
      support::RunTool(KELVO_PROGRAM, {"-platform", "offscreen:configfile=" + (folder / "screens").string()});
  EXPECT_EQ(run.exit_code, EXIT_FAILURE);
  EXPECT_NE(run.errors.find("kelvo: there is no screen to show a window on\n"), std::string::npos) << run.errors;
}

TEST_F(ProgramTest, HandsPaintUndoAndSave) {
  const auto drag = [](const std::string& from) {
    Hands("mousemove " + from + " mousedown 1 sleep 0.05 mousemove_relative 80 0 sleep 0.05 mouseup 1 sleep 0.1");
  };
  Hands("search --onlyvisible --name '^Kelvo v' windowmove --sync 0 0 sleep 0.3");
  Hands("key 6 sleep 0.1");
  drag("200 250");
  Hands("key f key 3 sleep 0.1 mousemove 240 350 click 1 sleep 0.3");
  Hands("key d key 5 sleep 0.1");
  drag("200 300");
  Hands("key ctrl+z sleep 0.2 key ctrl+s sleep 0.5");
  const auto saved = files::Decode(files::FormatOf(files::kOwnType), support::ReadFile(file), {});
  constexpr int kPixels = 32000 - 4;  // the last byte of a file is never read
  std::map<int, int> counts;
  for (int pixel = 0; pixel < kPixels; ++pixel) ++counts[support::ColourAt(saved, pixel % 160 + 1, pixel / 160 + 1)];
  EXPECT_EQ(counts, (std::map<int, int>{{2, kPixels - 11}, {5, 11}}));  // a stroke of 80 points at 4:1
}

constexpr std::size_t kBackgroundInFile = 2049;

class SuddenEnd : public ProgramTest {
 protected:
  SuddenEnd() {
    picture = support::RandomPicture(1);
    picture.BackgroundColour = {};
  }
  // Chooses the next background colour from the menu.
  void ChangePicture() {
    Hands("key alt+p sleep 0.2 key b sleep 0.2 " + downs + "key Return sleep 0.5");
    downs += "key Down sleep 0.05 ";
  }
  void EndBy(int signal) {
    program->Signal(signal);
    program->Wait();
  }
  static int BackgroundIn(const std::filesystem::path& kept) {
    const auto bytes = support::ReadFile(kept);
    return bytes.size() > kBackgroundInFile ? bytes[kBackgroundInFile] : -1;
  }

  std::filesystem::path copy_file = folder / "bin/BACKUP/recovery_1.kvp";
  std::string downs = "key Down sleep 0.05 ";
};

TEST_F(SuddenEnd, LeavesWorkThatIsOfferedAndSavedAtTheNextStart) {
  ChangePicture();
  EndBy(SIGKILL);
  EXPECT_EQ(BackgroundIn(copy_file), 1);

  Start();
  EndBy(SIGTERM);  // while the question is open: it is asked again
  EXPECT_EQ(BackgroundIn(copy_file), 1);

  Start();
  Hands("key alt+y sleep 0.5");
  EXPECT_EQ(BackgroundIn(copy_file), 1);  // it stays until the work is saved
  ChangePicture();
  ChangePicture();  // within the minute that no copy is written in
  EndBy(SIGTERM);
  EXPECT_EQ(BackgroundIn(copy_file), 3);

  Start();
  Hands("key alt+y sleep 0.5 key ctrl+s sleep 0.5");
  EXPECT_EQ(BackgroundIn(file), 3);
  EXPECT_FALSE(exists(copy_file));
}

TEST_F(SuddenEnd, ALostDisplayLeavesTheLatestWork) {
  ChangePicture();
  ChangePicture();
  server->Signal(SIGTERM);
  program->Wait();
  EXPECT_EQ(BackgroundIn(copy_file), 2);
}

}  // namespace
}  // namespace kelvo::end_to_end
