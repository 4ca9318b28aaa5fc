// A painting session with a real mouse and keyboard on a real display: what the program saves is, byte for byte, what
// the core's own calls give for the same actions.
#include <algorithm>

#include "editing/painting.h"
#include "editing/pen_keys.h"
#include "model/palette.h"
#include "program_test.h"
#include "support/painted.h"
#include "support/program.h"

namespace kelvo::end_to_end {
namespace {

using editing::Button;
using model::PixelPoint;

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
  void Tool(char key, int index) {
    Hands(std::string("key ") + key + " sleep 0.1");
    painting.ChooseTool(index);
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
  Hands("key ctrl+z sleep 0.2");
  painting.Undo();

  const std::string shot = std::string(KELVO_SCREENSHOTS) + "/session.png";
  Screenshot(shot);
  Hands("key ctrl+s sleep 0.5");
  files::Sign(core.document.picture);
  EXPECT_TRUE(support::ReadFile(file) == files::Encode(core.document.picture)) << "bytes differ; see " << shot;
}

}  // namespace
}  // namespace kelvo::end_to_end
