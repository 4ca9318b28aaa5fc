// Tools in an artist's hands: presses, drags, ticks, keys, undo.
#include "editing/painting.h"

#include <gtest/gtest.h>

#include <functional>

#include "editing/pen_keys.h"
#include "editing/preferences.h"
#include "support/mazes.h"
#include "support/pictures.h"
#include "support/recorders.h"
#include "support/temp_folder.h"

namespace kelvo::editing {
namespace {

using model::PictureImage;
using model::PixelPoint;
using support::Colour;
using support::ColourAt;

enum Tools { kDraw = 1, kFill, kLine, kContinuousLine, kCircle, kMouseCopy, kBlockFill };

// A message box that lets events through while it is open.
class NestedMessages final : public app::Messages {
 public:
  void Inform(std::string_view text) override {
    texts.emplace_back(text);
    if (while_open) while_open();
  }
  void Warn(std::string_view) override {}
  void Tell(std::string_view) override {}
  bool Ask(std::string_view) override { return false; }
  app::UnsavedAnswer AskUnsaved(std::string_view) override { return app::UnsavedAnswer::kCancel; }
  support::Lines texts;
  std::function<void()> while_open;
};

class CountingPointer final : public app::WaitPointer {
 public:
  void Show() override { ++shown; }
  void Hide() override { ++hidden; }
  int shown = 0, hidden = 0;
};

class NestedEvents final : public app::ProcessEvents {
 public:
  void Process() override {
    if (while_processing) while_processing();
  }
  std::function<void()> while_processing;
};

class PaintingTest : public testing::Test {
 protected:
  PaintingTest() { painting.PenColours() = {Colour(5), Colour(2)}; }

  void Press(PixelPoint at, Button button = Button::kLeft) { painting.Press({at, button}); }
  void Click(PixelPoint at, Button button = Button::kLeft) {
    Press(at, button);
    painting.Release();
  }
  void Drag(PixelPoint from, PixelPoint to, Button button = Button::kLeft) {
    Press(from, button);
    painting.Move(to, true);
    painting.Release();
  }
  int CountOf(int colour) const {
    int count = 0;
    for (int y = 1; y <= 200; ++y) {
      for (int x = 1; x <= 160; ++x) count += ColourAt(picture, x, y) == colour;
    }
    return count;
  }

  PictureImage picture;
  support::RecordingViews views;
  support::MapSettings settings;
  NestedMessages messages;
  NestedEvents events;
  CountingPointer pointer;
  support::TempFolder folder;
  support::FixedClock clock;
  app::ErrorLog log{folder / "log.txt", clock};
  Painting painting{picture, {views, settings, messages, events, pointer, log}};
};

TEST_F(PaintingTest, AFastStrokeHasNoHolesAndIsOneUndoStep) {
  Drag({1, 1}, {160, 200});
  EXPECT_EQ(CountOf(5), 200);
  EXPECT_EQ(views.cells.size(), 200U);
  Drag({160, 1}, {160, 50}, Button::kRight);
  EXPECT_EQ(CountOf(2), 50);
  EXPECT_EQ(painting.UndoData().Caption(), "Undo draw");
  painting.Undo();
  EXPECT_EQ(CountOf(2), 0);
  EXPECT_EQ(CountOf(5), 200);
  EXPECT_FALSE(painting.UndoData().CanUndo());
  EXPECT_EQ(painting.UndoData().Caption(), "Undo");
  painting.Undo();
  EXPECT_EQ(CountOf(5), 200);
}

TEST_F(PaintingTest, AStrokeEndsWithItsButton) {
  Press({10, 10});
  Press({50, 50}, Button::kRight);  // while the left one is held
  EXPECT_EQ(ColourAt(picture, 50, 50), 0);
  painting.Move({12, 10}, true);
  painting.Move({20, 10}, false);  // the release was lost
  painting.Move({30, 10}, true);
  EXPECT_EQ(CountOf(5), 3);
  painting.Move({200, -5}, true);
  Press({158, 5});
  painting.Move({170, 5}, true);  // out of the picture and back
  painting.Move({158, 8}, true);
  EXPECT_EQ(ColourAt(picture, 160, 5), 5);
  EXPECT_EQ(ColourAt(picture, 159, 8), 5);
  Press({20, 100});  // the same button again: its release was lost
  EXPECT_EQ(CountOf(5), 10);
  painting.ChooseTool(kBlockFill);
  painting.Move({30, 100}, true);
  EXPECT_EQ(CountOf(5), 10);
}

TEST_F(PaintingTest, PreferencesDecideWhatAFullCellDoes) {
  struct Case {
    const app::Setting& preference;
    int tool;
    const char* stored;
    int at_press, beside;  // the colours after it
  };
  for (const Case& c : {Case{k4thColReplaces, kDraw, "", 5, 1},
                        {k4thColReplaces, kDraw, "1", 5, 1},
                        {k4thColReplaces, kDraw, "0", 2, 1},
                        {kReplaceLeastUsedColWhenFilling, kFill, "", 0, 1},
                        {kReplaceLeastUsedColWhenFilling, kFill, "0", 0, 1},
                        {kReplaceLeastUsedColWhenFilling, kFill, "1", 5, 5}}) {
    SCOPED_TRACE(testing::Message() << c.tool << " with " << c.stored);
    settings.values.clear();
    if (*c.stored != 0) settings.Write(c.preference, c.stored);
    support::SetCell(picture, 1, support::kAllSlots, 1, 2, 3);
    const int x = c.tool == kDraw ? 3 : 1;
    painting.ChooseTool(c.tool);
    Click({x, 8});
    EXPECT_EQ(ColourAt(picture, x, 8), c.at_press);
    EXPECT_EQ(ColourAt(picture, 4, 8), c.beside);
  }
}

TEST_F(PaintingTest, AStillPointerIsToldOnce) {
  settings.Write(k4thColReplaces, "0");
  support::SetCell(picture, 1, support::kAllSlots, 1, 2, 3);
  Press({5, 1});
  for (int i = 0; i < 3; ++i) painting.Move({1, 1}, true);
  painting.Move({2, 1}, true);
  EXPECT_EQ(messages.texts.size(), 2U);
  Press({1, 1});  // its release was lost, and the new press is refused: no stroke is left
  painting.Move({9, 1}, true);
  EXPECT_EQ(CountOf(5), 1);
}

TEST_F(PaintingTest, ARefusalIsToldOncePerEventAndNothingPlotsMeanwhile) {
  settings.Write(k4thColReplaces, "0");
  support::SetCell(picture, 1, support::kAllSlots, 1, 2, 3);
  const PictureImage before = picture;
  messages.while_open = [this] {
    painting.Move({50, 50}, true);
    Press({60, 60});
    painting.Tick();
    painting.Release();
  };
  Press({1, 1});
  painting.Move({40, 40}, true);  // the press was refused: no stroke
  EXPECT_EQ(picture, before);
  EXPECT_EQ(messages.texts, support::Lines{"Not possible - all colors used"});
  Press({5, 1});
  painting.Move({1, 1}, true);
  EXPECT_EQ(messages.texts.size(), 2U);
  painting.Move({20, 1}, true);  // the button was released while the box was open
  EXPECT_EQ(CountOf(5), 1);
}

TEST_F(PaintingTest, LinesAreDrawnAtTheNextTickAndChainInOneStep) {
  painting.ChooseTool(kLine);
  EXPECT_EQ(painting.Prompt(), "SET STARTING POINT");
  Click({10, 10}, Button::kRight);
  EXPECT_EQ(painting.Prompt(), "SET STARTING POINT");
  painting.Tick();
  EXPECT_EQ(painting.Prompt(), "SET ENDING POINT");
  EXPECT_EQ(painting.Preview({13, 10}), DrawLine({10, 10}, {13, 10}));
  painting.Move({90, 90}, true);
  Click({13, 10});
  Click({90, 10});  // before the tick: both points are set
  EXPECT_EQ(CountOf(5), 0);
  painting.Tick();
  EXPECT_EQ(CountOf(5), 3);  // with the left pen, whatever the button
  EXPECT_EQ(painting.Prompt(), "SET STARTING POINT");
  EXPECT_EQ(painting.UndoData().Caption(), "Undo line");

  painting.ChooseTool(kContinuousLine);
  for (const PixelPoint at : {PixelPoint{20, 20}, {30, 20}, {30, 30}}) {
    Click(at);
    painting.Tick();
    painting.Tick();
  }
  EXPECT_EQ(painting.Prompt(), "SET ENDING POINT");
  EXPECT_EQ(CountOf(5), 23);
  painting.Undo();
  EXPECT_EQ(CountOf(5), 3);
}

TEST_F(PaintingTest, CirclesAskForCentreThenRadius) {
  painting.ChooseTool(kCircle);
  EXPECT_EQ(painting.Prompt(), "SET CENTER POINT");
  Click({80, 100});
  EXPECT_EQ(painting.Prompt(), "SET RADIUS POINT");
  const Points preview = painting.Preview({80, 110});
  Click({80, 110});
  Click({1, 1});
  painting.Tick();
  EXPECT_EQ(painting.Prompt(), "SET CENTER POINT");
  EXPECT_EQ(painting.UndoData().Caption(), "Undo circle");
  for (const PixelPoint& point : preview) EXPECT_EQ(ColourAt(picture, point.x, point.y), 5);
  EXPECT_EQ(ColourAt(picture, 80, 110), 5);
}

TEST_F(PaintingTest, AShapeThroughFullCellsTellsItOnceAndPlotsTheRest) {
  settings.Write(k4thColReplaces, "0");
  for (const int cell : {2, 4}) support::SetCell(picture, cell, support::kAllSlots, 1, 2, 3);
  painting.ChooseTool(kLine);
  Click({1, 1});
  Click({21, 1});
  painting.Tick();
  EXPECT_EQ(messages.texts.size(), 1U);
  EXPECT_EQ(CountOf(5), 12);
}

TEST_F(PaintingTest, EscapeTakesBackAnUnfinishedShape) {
  for (const int tool : {kLine, kContinuousLine, kCircle}) {
    painting.ChooseTool(tool);
    Click({10, 10});
    painting.Escape();
    EXPECT_EQ(painting.ToolIndex(), kDraw);
    painting.ChooseTool(tool);
    Click({20, 10});
    painting.Tick();
    EXPECT_EQ(CountOf(5), 0);
  }
  painting.ChooseTool(kLine);
  Click({10, 10});
  Click({20, 10});
  painting.ChooseTool(kFill);  // both points were set: the line is drawn
  EXPECT_EQ(CountOf(5), 10);
}

TEST_F(PaintingTest, CellsAreCopiedAndPastedAlongADrag) {
  support::SetCell(picture, 1, support::kAllSlots, 1, 2, 3);
  const PictureImage before = picture;
  painting.ChooseTool(kMouseCopy);
  Click({2, 2}, Button::kRight);
  EXPECT_FALSE(painting.UndoData().CanUndo());
  Drag({41, 1}, {52, 1});
  PictureImage expected = before;
  for (const int cell : {11, 12, 13}) support::SetCell(expected, cell, support::kAllSlots, 1, 2, 3);
  EXPECT_EQ(picture, expected);
  EXPECT_EQ(views.cells, (std::vector{1, 11, 12, 13}));
  EXPECT_EQ(painting.UndoData().Caption(), "Undo copy");
  painting.Undo();
  EXPECT_EQ(picture, before);
}

TEST_F(PaintingTest, BlockFillTakesTheLeftPenWithEitherButton) {
  painting.ChooseTool(kBlockFill);
  support::SetCell(picture, 41, support::kAllSlots, 1, 2, 3);
  Drag({1, 1}, {1, 9}, Button::kRight);
  PictureImage expected;
  for (const int cell : {1, 41}) support::SetCell(expected, cell, {255, 255, 255, 255, 255, 255, 255, 255}, 5, 0, 0);
  EXPECT_EQ(picture, expected);
  EXPECT_EQ(painting.UndoData().Caption(), "Undo block fill");
  painting.PenColours() = {};
  Drag({1, 9}, {-9, 9});  // the same cell in another stroke, and out of the picture
  expected.ColourMemory[41] = 1;
  EXPECT_EQ(picture, expected);
}

TEST_F(PaintingTest, FillsTakeThePenOfTheButtonAndShowTheirEnd) {
  painting.ChooseTool(kFill);
  for (int colour = 15; colour > 8; --colour) {
    painting.PenColours() = {Colour(3), Colour(colour)};
    Click({80, 100}, Button::kRight);
    EXPECT_EQ(CountOf(colour), 32000);
  }
  EXPECT_EQ(pointer.shown, 7);
  EXPECT_EQ(pointer.hidden, 7);
  EXPECT_EQ(views.pictures, 7);
  EXPECT_FALSE(std::filesystem::exists(folder / "log.txt"));
}

TEST_F(PaintingTest, AFillThatOutgrowsItsQueueIsLoggedAndCanBeUndone) {
  picture = support::Tree();
  const PictureImage before = picture;
  painting.ChooseTool(kFill);
  Click({80, 100});
  EXPECT_GT(CountOf(5), 8000);
  EXPECT_EQ(views.pictures, 1);
  const app::Bytes log_bytes = support::ReadFile(folder / "log.txt");
  EXPECT_NE(std::string(log_bytes.begin(), log_bytes.end()).find("MDIFormMenu_FloodFill"), std::string::npos);
  painting.Undo();
  EXPECT_EQ(picture, before);
}

TEST_F(PaintingTest, NothingElseStartsInsideAFill) {
  painting.ChooseTool(kFill);
  bool was_busy = false;
  events.while_processing = [&] {
    was_busy = painting.IsBusy();
    Press({1, 1}, Button::kRight);
    painting.Undo();
    painting.ChooseTool(kDraw);
    painting.Escape();
    painting.Tick();
  };
  Click({80, 100});
  EXPECT_TRUE(was_busy);
  EXPECT_EQ(painting.ToolIndex(), kFill);
  EXPECT_EQ(CountOf(5), 32000);
  EXPECT_EQ(painting.UndoData().Caption(), "Undo fill");
  painting.Move({20, 20}, true);  // a fill begins no stroke
  EXPECT_EQ(CountOf(5), 32000);
}

TEST_F(PaintingTest, UndoRestoresEveryByteButTheBackground) {
  std::mt19937 random(4);
  const auto at = [&] {
    return PixelPoint{static_cast<int>(random() % 160) + 1, static_cast<int>(random() % 200) + 1};
  };
  picture = support::RandomPicture(8);
  int changes = 0;
  for (int round = 0; round < 140; ++round) {
    const int tool = round % 7 + 1;
    painting.ChooseTool(tool);
    painting.PenColours().left = Colour(static_cast<int>(random() % 16));
    if (tool == kMouseCopy) Click(at(), Button::kRight);
    const PictureImage before = picture;
    Drag(at(), at());
    if (tool == kLine || tool == kContinuousLine || tool == kCircle) Click(at());
    painting.Tick();
    changes += picture != before;
    PictureImage expected = before;
    picture.BackgroundColour = expected.BackgroundColour = Colour(round % 16);
    views.pictures = 0;
    painting.Undo();
    EXPECT_EQ(picture, expected) << "tool " << tool;
    EXPECT_EQ(views.pictures, 1);
  }
  EXPECT_GT(changes, 100);
}

TEST_F(PaintingTest, UndoTakesAnUnfinishedShapeWithItAndAnotherPictureTakesAll) {
  for (const bool another : {false, true}) {
    painting.ChooseTool(kContinuousLine);
    Click({10, 10});
    another ? painting.Forget() : painting.Undo();
    EXPECT_FALSE(painting.UndoData().CanUndo());
    Click({20, 10});
    painting.Tick();
    EXPECT_EQ(CountOf(5), 0);
  }
  painting.ChooseTool(kDraw);
  Press({1, 1});
  painting.Undo();  // in mid-stroke: passed over
  EXPECT_EQ(CountOf(5), 1);
  painting.Forget();
  painting.Move({9, 1}, true);
  EXPECT_EQ(CountOf(5), 1);
}

TEST(Pens, BeginWhiteOnBlackAndSwap) {
  Pens pens;
  pens.Swap();
  EXPECT_EQ(pens.Of(Button::kLeft), Colour(0));
  EXPECT_EQ(pens.Of(Button::kRight), Colour(1));
}

TEST(PenKeys, CoverAllColours) {
  int colour = 0;
  for (const char key : std::string("12345678QWERTYUI")) EXPECT_EQ(PenForKey(key), Colour(colour++)) << key;
  EXPECT_EQ(PenForKey('i'), Colour(15));
  for (const char key : std::string("09ZA \x1b")) EXPECT_EQ(PenForKey(key), std::nullopt) << key;
}

}  // namespace
}  // namespace kelvo::editing
