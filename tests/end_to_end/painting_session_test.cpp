// A painting session with a real mouse and keyboard on a real display: what the program saves is, byte for byte, what
// the core's own calls give for the same actions.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>
#include <optional>

#include "editing/painting.h"
#include "editing/pen_keys.h"
#include "end_to_end/desktop.h"
#include "files/picture_format.h"
#include "model/palette.h"
#include "support/painted.h"
#include "support/pictures.h"
#include "support/recorders.h"
#include "support/temp_folder.h"

namespace kelvo::end_to_end {
namespace {

using editing::Button;
using files::Encode;
using files::Sign;
using model::PixelPoint;

constexpr int kMoreThanATick = 350;  // milliseconds

class NoEvents final : public app::ProcessEvents {
 public:
  void Process() override {}
};

// The screen as a PPM file.
class Screen {
 public:
  explicit Screen(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string magic;
    int most = 0;
    stream >> magic >> width_ >> height_ >> most;
    stream.get();
    pixels_.assign(std::istreambuf_iterator<char>(stream), {});
  }

  // The top left corner of the first square of one colour with sides of `side`.
  std::optional<std::pair<int, int>> FindSquare(std::uint32_t colour, int side) const {
    for (int y = 0; y + side <= height_; ++y) {
      for (int x = 0; x + side <= width_; ++x) {
        if (IsSquare(x, y, colour, side)) return std::pair(x, y);
      }
    }
    return std::nullopt;
  }

 private:
  bool IsSquare(int left, int top, std::uint32_t colour, int side) const {
    for (int y = top; y < top + side; ++y) {
      for (int x = left; x < left + side; ++x) {
        if (At(x, y) != colour) return false;
      }
    }
    return true;
  }
  std::uint32_t At(int x, int y) const {
    const auto* pixel = reinterpret_cast<const std::uint8_t*>(pixels_.data()) + (y * width_ + x) * 3;
    return 0xFF000000U | std::uint32_t{pixel[0]} << 16 | std::uint32_t{pixel[1]} << 8 | pixel[2];
  }

  int width_ = 0, height_ = 0;
  std::string pixels_;
};

// Does everything twice: with the hands on the program, and by calls to the core.
class Session : public testing::Test {
 protected:
  void SetUp() override {
    if (!RunCommand("command -v Xvfb && command -v xdotool && command -v openbox && command -v import")) {
      GTEST_SKIP() << "this needs Xvfb, openbox, xdotool and import";
    }
    setenv("XDG_CONFIG_HOME", folder.Path().c_str(), 1);
    setenv("XDG_DATA_HOME", folder.Path().c_str(), 1);
    desktop.emplace();
    // The first cell is a yellow block: so the zoom window's place is found on the screen.
    support::SetCell(picture, 1, {255, 255, 255, 255, 255, 255, 255, 255}, 7, 0, 0);
    Sign(picture);
    support::WriteFile(file, Encode(picture));
    picture = files::Decode(files::FormatOf(files::kOwnType), support::ReadFile(file), {});
    program.emplace(std::vector<std::string>{KELVO_PROGRAM, file.string()});
    FindZoomWindow();
  }

  void FindZoomWindow() {
    const std::string shot = (folder / "screen.ppm").string();
    std::optional<std::pair<int, int>> block;
    for (int round = 0; round < 40 && !block; ++round) {
      Wait(250);
      desktop->Screenshot(shot);
      block = Screen(shot).FindSquare(model::SurfaceColour(support::Colour(7)), 31);
    }
    ASSERT_TRUE(block) << "the zoom window is not to be seen";
    left = block->first - 1;  // the grid line
    top = block->second - 1;
  }

  // Does a line of xdotool commands.
  void Hands(const std::string& commands) { EXPECT_TRUE(RunCommand("xdotool " + commands)); }
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
  void Tool(char key, int index) {
    Hands(std::string("key ") + key + " sleep 0.1");
    painting.ChooseTool(index);
  }
  void Pen(char key) {
    Hands(std::string("key ") + key + " sleep 0.1");
    painting.PenColours().left = *editing::PenForKey(key);
  }
  void Undo() {
    Hands("key ctrl+z sleep 0.2");
    painting.Undo();
  }

  support::TempFolder folder;
  std::filesystem::path file = folder / "session.kvp";
  std::optional<Desktop> desktop;
  std::optional<Process> program;
  int left = 0, top = 0;

  model::PictureImage picture;
  support::RecordingViews views;
  support::MapSettings settings;
  support::RecordingMessages messages;
  NoEvents events;
  support::NoWaitPointer pointer;
  support::FixedClock clock;
  app::ErrorLog log{"", clock};
  editing::Painting painting{picture, {views, settings, messages, events, pointer, log}};
};

TEST_F(Session, SavesWhatTheCoreGives) {
  Pen('u');  // a light blue sky
  Tool('f', 2);
  Click({60, 20});
  Tool('d', 1);
  Pen('6');
  Drag({1, 100}, {80, 100});
  for (int x = 4; x < 80; x += 6) Drag({x, 99}, {x + 2, 97});
  Tool('c', 5);
  Pen('8');
  Click({60, 30});
  Click({66, 30});
  Tick();
  Tool('f', 2);
  Click({60, 30});
  Tool('l', 3);
  Pen('3');
  Click({20, 100});
  Tick();
  Click({20, 60});
  Tick();
  Tool('k', 4);
  Pen('w');
  for (const PixelPoint at : {PixelPoint{10, 60}, {20, 40}, {30, 60}, {10, 60}}) {
    Click(at);
    Tick();
  }
  Tool('f', 2);
  Pen('6');
  Click({40, 120});
  Tool('b', 7);
  Pen('q');
  Drag({2, 130}, {30, 130}, Button::kRight);
  Tool('m', 6);
  Click({6, 130}, Button::kRight);
  Drag({50, 130}, {70, 130});
  Tool('d', 1);
  Drag({40, 10}, {70, 40}, Button::kRight);
  Drag({5, 5}, {30, 5});
  Undo();

  const std::string shot = std::string(KELVO_SCREENSHOTS) + "/session.png";
  desktop->Screenshot(shot);
  Hands("key ctrl+s sleep 0.5");
  Sign(picture);
  const app::Bytes expected = Encode(picture), saved = support::ReadFile(file);
  ASSERT_EQ(saved.size(), expected.size());
  int different = 0;
  for (std::size_t i = 0; i < saved.size(); ++i) different += saved[i] != expected[i];
  EXPECT_EQ(different, 0) << "bytes differ; see " << shot;
  EXPECT_TRUE(program->IsRunning());
}

}  // namespace
}  // namespace kelvo::end_to_end
