// Tools in an artist's hands: presses, drags, ticks, keys, undo.
#include "editing/painting.h"

#include <gtest/gtest.h>

#include <functional>

#include "editing/pens.h"
#include "editing/preferences.h"
#include "support/mazes.h"
#include "support/pictures.h"
#include "support/program.h"

namespace kelvo::editing {
namespace {

using model::PictureImage;
using model::PixelPoint;
using support::Colour;
using support::ColourAt;

using enum ToolId;

// What an action may stop at, so that events come in between; and the wait pointer, "<" when it is shown, ">" when not.
class Surroundings final : public support::RecordingMessages, public app::ProcessEvents, public app::WaitPointer {
 public:
  void Inform(std::string_view text) override {
    shown.emplace_back(text);
    Process();
  }
  void Process() override {
    if (meanwhile) meanwhile();
  }
  void Show() override { waits += '<'; }
  void Hide() override { waits += '>'; }
  std::string waits;
  std::function<void()> meanwhile;
};

class PaintingTest : public testing::Test, protected support::Program {
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
  // All that a user may do while an action is at work.
  void Meddle() {
    EXPECT_TRUE(painting.IsBusy());
    painting.Move({50, 50}, true);
    Press({60, 60}, Button::kRight);
    painting.Undo();
    painting.ChooseTool(kBlockFill);
    painting.Escape();
    painting.Tick();
    painting.Release();
  }
  int CountOf(int colour) const {
    int count = 0;
    for (int y = 1; y <= 200; ++y) {
      for (int x = 1; x <= 160; ++x) count += ColourAt(picture, x, y) == colour;
    }
    return count;
  }

  PictureImage& picture = document.picture;
  Surroundings around;
  Painting painting{picture, {views, settings, around, status, around, around, log}};
};

TEST_F(PaintingTest, AFastStrokeHasNoHolesAndIsOneUndoStep) {
  Drag({1, 1}, {160, 200});
  EXPECT_EQ(CountOf(5), 200);
  EXPECT_EQ(views.cells.size(), 200U);
  Drag({160, 1}, {160, 50}, Button::kRight);
  EXPECT_EQ(CountOf(2), 50);
  for (int press = 0; press < 2; ++press) {  // the second one finds nothing
    painting.Undo();
    EXPECT_EQ(CountOf(2), 0);
    EXPECT_EQ(CountOf(5), 200);
    EXPECT_EQ(painting.UndoData().Caption(), "Undo");
  }
}

TEST_F(PaintingTest, AStrokeEndsWithItsButton) {
  Press({10, 10});
  Press({50, 50}, Button::kRight);  // while the left one is held
  EXPECT_EQ(ColourAt(picture, 50, 50), 0);
  painting.Move({12, 10}, true);
  painting.Move({20, 10}, false);  // the release was lost
  painting.Move({30, 10}, true);
  EXPECT_EQ(CountOf(5), 3);
  Press({158, 5});
  painting.Move({170, 5}, true);  // out of the picture and back
  painting.Move({158, 8}, true);
  EXPECT_EQ(ColourAt(picture, 160, 5), 5);
  EXPECT_EQ(ColourAt(picture, 159, 8), 5);
  Press({20, 100});  // the same button again: its release was lost
  painting.Undo();   // in mid-stroke: passed over
  EXPECT_EQ(CountOf(5), 10);
  painting.ChooseTool(kBlockFill);
  painting.Move({30, 100}, true);
  EXPECT_EQ(CountOf(5), 10);
}

TEST_F(PaintingTest, PreferencesDecideWhatAFullCellDoes) {
  // The tool, its preference as it is stored, and the colours after it of what is clicked and of the pixel beside.
  for (const auto& [tool, stored, x, clicked, beside] :
       {std::tuple{kDraw, "", 3, 5, 1}, {kDraw, "0", 3, 2, 1}, {kFill, "", 1, 0, 1}, {kFill, "1", 1, 5, 5}}) {
    settings.values.clear();
    if (*stored != 0) settings.Write(tool == kDraw ? k4thColReplaces : kReplaceLeastUsedColWhenFilling, stored);
    support::SetCell(picture, 1, support::kAllSlots, 1, 2, 3);
    painting.ChooseTool(tool);
    Click({x, 8});
    EXPECT_EQ(ColourAt(picture, x, 8), clicked) << static_cast<int>(tool) << " with " << stored;
    EXPECT_EQ(ColourAt(picture, 4, 8), beside) << static_cast<int>(tool) << " with " << stored;
  }
}

TEST_F(PaintingTest, ARefusalIsToldOncePerEventAndEndsNoMoreThanItMust) {
  settings.Write(k4thColReplaces, "0");
  for (const int cell : {1, 4}) support::SetCell(picture, cell, support::kAllSlots, 1, 2, 3);
  const PictureImage before = picture;
  around.meanwhile = [this] { Meddle(); };
  Press({1, 1});
  painting.Move({40, 40}, true);  // the press was refused: no stroke
  EXPECT_EQ(picture, before);
  EXPECT_EQ(around.shown, support::Lines{"Not possible - all colors used"});
  Press({5, 1});
  painting.Move({1, 1}, true);
  painting.Move({20, 1}, true);  // the button was released while the box was open
  EXPECT_EQ(around.shown.size(), 2U);
  EXPECT_EQ(CountOf(5), 1);

  around.meanwhile = nullptr;
  Press({5, 1});
  for (int i = 0; i < 3; ++i) painting.Move({1, 1}, true);  // a still pointer is told once
  painting.Move({2, 1}, true);
  EXPECT_EQ(around.shown.size(), 4U);
  Press({1, 1});  // its release was lost, and the new press is refused: no stroke is left
  painting.Move({9, 1}, true);
  EXPECT_EQ(CountOf(5), 1);

  painting.ChooseTool(kLine);
  Click({1, 1});
  Click({21, 1});
  painting.Tick();
  EXPECT_EQ(around.shown.size(), 6U);  // once for both full cells
  EXPECT_EQ(CountOf(5), 12);
}

TEST_F(PaintingTest, ARefusalIsToldWhereTheUserChose) {
  settings.Write(k4thColReplaces, "0");
  support::SetCell(picture, 41, support::kAllSlots, 1, 2, 3);
  Click({1, 9});
  around.ticks = true;  // in the second box
  Click({1, 9});
  EXPECT_EQ(around.shown.size(), 2U);
  EXPECT_EQ(settings.Read(kTellRefusalsInStatusBar), "1");
  Click({1, 9});
  EXPECT_EQ(around.shown.size(), 2U);
  EXPECT_EQ(status.words, support::Lines{"Not possible - all colors used"});
  settings.Write(k4thColReplaces, "1");
  Click({1, 9});
  EXPECT_EQ(views.full_cells, "41- 41- 41- 41+ ");
}

TEST_F(PaintingTest, ShapesAreDrawnWithTheLeftPenAtTheTickAfterTheirLastPoint) {
  painting.ChooseTool(kLine);
  Click({10, 10}, Button::kRight);
  EXPECT_EQ(painting.Prompt(), "SET STARTING POINT");
  painting.Tick();
  EXPECT_EQ(painting.Preview({13, 10}), DrawLine({10, 10}, {13, 10}));
  painting.Move({90, 90}, true);
  Click({13, 10});
  Click({90, 10});  // before the tick: both points are set
  EXPECT_EQ(CountOf(5), 0);
  painting.Tick();
  EXPECT_EQ(CountOf(5), 3);

  painting.ChooseTool(kContinuousLine);
  for (const PixelPoint at : {PixelPoint{20, 20}, {30, 20}, {30, 30}}) {
    Click(at);
    painting.Tick();
    painting.Tick();
  }
  EXPECT_EQ(painting.Prompt(), "SET ENDING POINT");
  EXPECT_EQ(CountOf(5), 23);
  painting.Undo();  // all its lines are one step
  EXPECT_EQ(CountOf(5), 3);

  painting.ChooseTool(kCircle);
  Click({80, 100});
  const Points preview = painting.Preview({80, 110});
  Click({80, 110});
  Click({1, 1});
  painting.Tick();
  EXPECT_EQ(painting.Prompt(), "SET CENTER POINT");
  for (const PixelPoint& point : preview) EXPECT_EQ(ColourAt(picture, point.x, point.y), 5);
  EXPECT_EQ(ColourAt(picture, 80, 110), 5);
}

TEST_F(PaintingTest, AnUnfinishedShapeGoesWithEscapeUndoAndThePicture) {
  for (const auto way : {&Painting::Escape, &Painting::Undo, &Painting::Forget}) {
    for (const ToolId tool : {kLine, kContinuousLine, kCircle}) {
      painting.ChooseTool(tool);
      Click({10, 10});
      Click({14, 10});
      (painting.*way)();
      EXPECT_EQ(painting.ChosenTool(), tool);
      EXPECT_FALSE(painting.UndoData().CanUndo());
      Click({20, 10});
      EXPECT_FALSE(painting.Tick());
    }
  }
  EXPECT_EQ(CountOf(5), 0);
  painting.ChooseTool(kLine);
  Click({10, 10});
  Click({20, 10});
  painting.ChooseTool(kDraw);  // both points were set: the line is drawn
  EXPECT_EQ(CountOf(5), 10);
  painting.ChooseTool(kCircle);
  painting.Escape();  // there is no shape
  EXPECT_EQ(painting.ChosenTool(), kDraw);
  Press({1, 1});
  painting.Forget();
  painting.Move({9, 1}, true);
  EXPECT_EQ(CountOf(5), 11);
}

TEST_F(PaintingTest, AShapeOfWhichNothingIsDrawnGivesTheStepBeforeItBack) {
  for (const ToolId tool : {kLine, kContinuousLine, kCircle}) {
    for (const bool by_escape : {true, false}) {
      painting.ChooseTool(kDraw);
      Click({1, 1});
      painting.ChooseTool(tool);
      Click({10, 10});
      painting.Tick();
      by_escape ? painting.Escape() : painting.ChooseTool(kFill);
      EXPECT_EQ(painting.UndoData().Caption(), "Undo draw");
      painting.Undo();
      EXPECT_EQ(CountOf(5), 0);
    }
  }
  painting.ChooseTool(kContinuousLine);
  Click({10, 10});
  Click({20, 10});
  EXPECT_TRUE(painting.Tick());
  painting.Escape();  // the segment that is drawn stays
  EXPECT_EQ(painting.UndoData().Caption(), "Undo line");
}

TEST_F(PaintingTest, CellsAreCopiedPastedAndFilledAlongADrag) {
  support::SetCell(picture, 1, support::kAllSlots, 1, 2, 3);
  PictureImage expected = picture;
  painting.ChooseTool(kMouseCopy);
  Click({2, 2}, Button::kRight);
  EXPECT_FALSE(painting.UndoData().CanUndo());
  Drag({41, 1}, {52, 1});
  for (const int cell : {11, 12, 13}) support::SetCell(expected, cell, support::kAllSlots, 1, 2, 3);
  EXPECT_EQ(picture, expected);
  EXPECT_EQ(views.cells, (std::vector{1, 11, 11, 12, 13}));  // its press and its move

  constexpr std::array<std::uint8_t, 8> kBlock{255, 255, 255, 255, 255, 255, 255, 255};
  painting.ChooseTool(kBlockFill);
  Drag({41, 1}, {41, 9}, Button::kRight);  // with the left pen, whatever the button
  for (const int cell : {11, 51}) support::SetCell(expected, cell, kBlock, 5, 0, 0);
  EXPECT_EQ(picture, expected);
  Press({41, 10});
  painting.PenColours().left = Colour(1);
  painting.Move({41, 9}, true);   // on in the same cell, with another pen
  painting.Move({41, -9}, true);  // and out of the picture
  for (const int cell : {11, 51}) expected.ColourMemory[static_cast<std::size_t>(cell)] = 1;
  EXPECT_EQ(picture, expected);
}

TEST_F(PaintingTest, FillsTakeThePenOfTheButtonAndLetNothingElseStart) {
  painting.ChooseTool(kFill);
  around.meanwhile = [this] { Meddle(); };
  Click({80, 100}, Button::kRight);
  EXPECT_EQ(CountOf(2), 32000);
  Click({80, 100});
  EXPECT_EQ(CountOf(5), 32000);
  EXPECT_EQ(painting.ChosenTool(), kFill);
  painting.Move({20, 20}, true);  // a fill begins no stroke
  EXPECT_EQ(CountOf(5), 32000);
  EXPECT_FALSE(exists(folders.ErrorLogFile()));

  const PictureImage before = picture = support::Tree();  // more than the queue holds: logged, and can be undone
  Click({80, 100});
  EXPECT_GT(CountOf(5), 8000);
  EXPECT_EQ(around.waits, "<><><>");
  EXPECT_EQ(views.pictures, 3);
  EXPECT_NE(support::ReadText(folders.ErrorLogFile()).find("MDIFormMenu_FloodFill"), std::string::npos);
  painting.Undo();
  EXPECT_EQ(picture, before);
}

// That it brings back every byte of any picture is what the fuzz target holds.
TEST_F(PaintingTest, UndoIsNamedAfterTheToolAndLeavesTheBackground) {
  picture = support::RandomPicture(8);
  int tool = 0;
  for (const std::string caption : {"draw", "fill", "line", "line", "circle", "copy", "block fill"}) {
    painting.ChooseTool(static_cast<ToolId>(tool));
    Click({20, 30}, Button::kRight);  // takes a cell, or sets a first point
    PictureImage expected = picture;
    Drag({60, 90}, {80, 120});
    painting.Tick();
    picture.BackgroundColour = expected.BackgroundColour = Colour(tool++);
    views.pictures = 0;
    EXPECT_EQ(painting.UndoData().Caption(), "Undo " + caption);
    painting.Undo();
    EXPECT_EQ(picture, expected) << caption;
    EXPECT_EQ(views.pictures, 1);
  }
}

TEST(Pens, BeginWhiteAndBlackAndHaveAKeyForEachColour) {
  EXPECT_EQ(Pens().Of(Button::kLeft), Colour(1));
  EXPECT_EQ(Pens().Of(Button::kRight), Colour(0));
  int colour = 0;
  for (const char key : std::string("12345678QWERTYUi")) EXPECT_EQ(PenForKey(key), Colour(colour++)) << key;
  for (const char key : std::string("09ZA \x1b")) EXPECT_EQ(PenForKey(key), std::nullopt) << key;
}

}  // namespace
}  // namespace kelvo::editing
