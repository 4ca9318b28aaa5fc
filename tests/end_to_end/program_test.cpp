// The program on a screen of its own with a window manager, and the hands of a user: what it saves after a painting
// session is, byte for byte, what the core's own calls give for the same actions, and unsaved work outlives every way
// in which it can end without asking.
#include "support/program.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <optional>
#include <thread>

#include "editing/painting.h"
#include "editing/pens.h"
#include "model/palette.h"
#include "support/pictures.h"
#include "support/run_tool.h"

namespace kelvo::end_to_end {
namespace {

using editing::Button;
using editing::ToolId;
using model::PixelPoint;

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
  std::optional<support::RunningTool> server, window_manager, program;
};

constexpr int kMoreThanATick = 350;  // milliseconds
constexpr std::ptrdiff_t kScreenWidth = 1024;

class NoEvents final : public app::ProcessEvents {
 public:
  void Process() override {}
};

// Does everything twice: with the hands on the program, and by calls to the core.
class Session : public ProgramTest {
 protected:
  // The first cell is a yellow block: so the zoom window's place is found on the screen.
  Session() { support::SetCell(picture, 1, {255, 255, 255, 255, 255, 255, 255, 255}, 7, 0, 0); }

  // Nothing else is as wide in yellow: a cell without its grid line is 31 pixels.
  void FindZoomWindow() {
    const std::uint32_t yellow = model::SurfaceColour(support::Colour(7));
    app::Bytes block;
    for (int pixel = 0; pixel < 31; ++pixel) {
      for (const int shift : {16, 8, 0}) block.push_back(static_cast<std::uint8_t>(yellow >> shift));
    }
    app::Bytes screen;
    auto found = screen.end();
    for (int round = 0; round < 40 && found == screen.end(); ++round) {
      Wait(250);
      Screenshot("rgb:" + (folder / "screen").string());
      screen = support::ReadFile(folder / "screen");
      found = std::search(screen.begin(), screen.end(), block.begin(), block.end());
    }
    ASSERT_NE(found, screen.end()) << "the zoom window is not to be seen";
    const auto pixel = (found - screen.begin()) / 3;
    left = static_cast<int>(pixel % kScreenWidth) - 1;  // the grid line
    top = static_cast<int>(pixel / kScreenWidth) - 1;
  }

  std::string At(PixelPoint at) const {
    return "mousemove " + std::to_string(left + (at.x - 1) * 8 + 4) + " " + std::to_string(top + (at.y - 1) * 4 + 2) +
           " sleep 0.05 ";
  }

  void Click(PixelPoint at, Button button = Button::kLeft) {
    Hands(At(at) + "click " + (button == Button::kLeft ? "1" : "3") + " sleep 0.05");
    painting.Press({at, button});
    painting.Release();
  }
  void Drag(PixelPoint from, PixelPoint to, Button button = Button::kLeft) {
    const std::string number = button == Button::kLeft ? "1 " : "3 ";
    Hands(At(from) + "mousedown " + number + "sleep 0.05 " + At(to) + "mouseup " + number + "sleep 0.05");
    painting.Press({from, button});
    painting.Move(to, true);
    painting.Release();
  }
  void Tick() {
    Wait(kMoreThanATick);
    painting.Tick();
  }
  void Tool(char key, ToolId tool) {
    Hands(std::string("key ") + key + " sleep 0.1");
    painting.ChooseTool(tool);
  }
  void Pen(char key) {
    Hands(std::string("key ") + key + " sleep 0.1");
    painting.PenColours().left = *editing::PenForKey(key);
  }
  int left = 0, top = 0;
  support::Program core;
  NoEvents events;
  editing::Painting painting{core.document.picture,
                             {core.views, core.settings, core.messages, events, core.pointer, core.log}};
};

TEST_F(Session, SavesWhatTheCoreGives) {
  FindZoomWindow();
  ASSERT_TRUE(core.files.OpenPicture(file.string()));
  Pen('u');  // a light blue sky
  Tool('f', ToolId::kFill);
  Click({60, 20});
  Tool('d', ToolId::kDraw);
  Pen('6');
  Drag({1, 100}, {80, 100});
  for (int x = 4; x < 80; x += 6) Drag({x, 99}, {x + 2, 97});
  Tool('c', ToolId::kCircle);
  Pen('8');
  Click({60, 30});
  Click({66, 30});
  Tick();
  Tool('f', ToolId::kFill);
  Click({60, 30});
  Tool('l', ToolId::kLine);
  Pen('3');
  Click({20, 100});
  Tick();
  Click({20, 60});
  Tick();
  Tool('k', ToolId::kContinuousLine);
  Pen('w');
  for (const PixelPoint at : {PixelPoint{10, 60}, {20, 40}, {30, 60}, {10, 60}}) {
    Click(at);
    Tick();
  }
  Tool('f', ToolId::kFill);
  Pen('6');
  Click({40, 120});
  Tool('b', ToolId::kBlockFill);
  Pen('q');
  Drag({2, 130}, {30, 130}, Button::kRight);
  Tool('m', ToolId::kMouseCopy);
  Click({6, 130}, Button::kRight);
  Drag({50, 130}, {70, 130});
  Tool('d', ToolId::kDraw);
  Drag({40, 10}, {70, 40}, Button::kRight);
  Drag({5, 5}, {30, 5});
  Hands("key ctrl+z sleep 0.2");
  painting.Undo();

  const std::string shot = std::string(KELVO_SCREENSHOTS) + "/session.png";
  Screenshot(shot);
  Hands("key ctrl+s sleep 0.5");
  files::Sign(core.document.picture);
  EXPECT_TRUE(support::ReadFile(file) == files::Encode(core.document.picture)) << "bytes differ; see " << shot;
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
