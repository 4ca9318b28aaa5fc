// The program on a screen of its own with a window manager, and the hands of a user.
#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <thread>

#include "files/picture_format.h"
#include "support/pictures.h"
#include "support/run_tool.h"
#include "support/temp_folder.h"

namespace kelvo::end_to_end {

// A program that is ended with the object.
class Background : public support::RunningTool {
 public:
  using RunningTool::RunningTool;
  ~Background() { Signal(SIGTERM); }
};

// Runs a shell command to its end; true when it succeeded.
inline bool RunCommand(const std::string& command) {
  return support::RunTool("sh", {"-c", command}).exit_code == 0;
}

inline void Wait(int milliseconds) {
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

// A test's constructor paints `picture`; the program has it open.
class ProgramTest : public testing::Test {
 protected:
  void SetUp() override {
    if (!RunCommand("command -v Xvfb && command -v openbox && command -v xdotool && command -v import")) {
      GTEST_SKIP() << "this needs Xvfb, openbox, xdotool and import";
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
  // Takes a picture of the screen; the file's prefix or ending decides its format.
  static void Screenshot(const std::string& shot) { RunCommand("import -depth 8 -window root '" + shot + "'"); }

  support::TempFolder folder;
  std::filesystem::path program_file = folder / "bin/kelvo", file = folder / "picture.kvp";
  std::string display = ":" + std::to_string(1000 + getpid() % 30000);
  model::PictureImage picture;
  std::optional<Background> server, window_manager, program;
};

}  // namespace kelvo::end_to_end
