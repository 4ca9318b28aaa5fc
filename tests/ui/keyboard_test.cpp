// Painting by keyboard: the same actions by keys and by mouse give the same file, byte for byte.
#include <QSet>
#include <QToolBar>

#include "editing/preferences.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"
#include "ui/widgets/swatch_button.h"

namespace kelvo::ui {
namespace {

using model::PixelPoint;

struct Step {
  Qt::Key arrow;
  Qt::KeyboardModifiers shift;
};

// A press with a tool, the way that is gone with the button held, and the release.
struct Stroke {
  editing::ToolId tool;
  int left_pen, right_pen;
  PixelPoint at;
  Qt::MouseButton button;
  std::vector<Step> way;
};

Qt::KeyboardModifiers ShiftIf(bool held) {
  return held ? Qt::ShiftModifier : Qt::NoModifier;
}

// Four in a row with each tool, so that shapes get all of their points.
std::vector<Stroke> SomeStrokes(int count) {
  constexpr std::array kArrows{Qt::Key_Left, Qt::Key_Right, Qt::Key_Up, Qt::Key_Down};
  std::mt19937 random(2611);
  const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
  std::vector<Stroke> strokes;
  for (int number = 0; number < count; ++number) {
    Stroke stroke{
        static_cast<editing::ToolId>(number / 4 % 7),     below(16), below(16), {below(160) + 1, below(200) + 1},
        below(3) == 0 ? Qt::RightButton : Qt::LeftButton, {}};
    for (int steps = below(12); steps > 0; --steps) {
      stroke.way.push_back({kArrows.at(static_cast<std::size_t>(below(4))), ShiftIf(below(4) == 0)});
    }
    strokes.push_back(std::move(stroke));
  }
  return strokes;
}

PixelPoint After(PixelPoint at, const Step& step) {
  const bool by_cell = step.shift != Qt::NoModifier;
  const int dx = by_cell ? 4 : 1, dy = by_cell ? 8 : 1;
  if (step.arrow == Qt::Key_Left) at.x -= dx;
  if (step.arrow == Qt::Key_Right) at.x += dx;
  if (step.arrow == Qt::Key_Up) at.y -= dy;
  if (step.arrow == Qt::Key_Down) at.y += dy;
  return {std::clamp(at.x, 1, 160), std::clamp(at.y, 1, 200)};
}

class KeyboardTest : public MainFrameTest {
 protected:
  KeyboardTest() { Begin(); }

  // A new program on a picture with full, half full and empty cells.
  void Begin() {
    frame.reset();
    Start();
    frame->findChild<QTimer*>("Timer1")->stop();  // the ticks are the test's own
    Open(support::BlotchyPicture(8));
  }
  void Open(const model::PictureImage& picture) {
    support::WriteFile(folder / "p.kvp", files::Encode(picture));
    frame->Files().OpenPicture(folder / "p.kvp");
  }
  frmZoom* Zoom() const { return Find<frmZoom>("frmZoom"); }
  void Type(int letter) { Key(static_cast<Qt::Key>(letter)); }

  void ByMouse(const Stroke& stroke) {
    QTest::mouseClick(Swatch(stroke.left_pen), Qt::LeftButton);
    QTest::mouseClick(Swatch(stroke.right_pen), Qt::RightButton);
    const auto tools = frame->findChild<QToolBar*>("Toolbar1")->actions();
    tools.at(static_cast<int>(stroke.tool))->trigger();
    Zoom()->CentreOn((stroke.at.x + 3) / 4, (stroke.at.y + 7) / 8);
    QTest::mousePress(Box("frmZoom"), stroke.button, {}, At(stroke.at.x, stroke.at.y));
    PixelPoint at = stroke.at;
    for (const Step& step : stroke.way) {
      at = After(at, step);
      MoveMouse(Box("frmZoom"), At(at.x, at.y), stroke.button);
    }
    QTest::mouseRelease(Box("frmZoom"), stroke.button, {}, At(at.x, at.y));
    frame->Desk().Tick();
  }

  void ByKeys(const Stroke& stroke) {
    constexpr std::string_view kPens = "12345678QWERTYUI", kTools = "DFLKCMB";
    Type(kPens.at(static_cast<std::size_t>(stroke.right_pen)));
    Key(Qt::Key_X);
    Type(kPens.at(static_cast<std::size_t>(stroke.left_pen)));
    Type(kTools.at(static_cast<std::size_t>(stroke.tool)));
    WalkTo(stroke.at);
    QTest::keyPress(Box("frmZoom"), Qt::Key_Space, ShiftIf(stroke.button == Qt::RightButton));
    for (const Step& step : stroke.way) {
      Key(step.arrow, step.shift);
      cursor = After(cursor, step);
    }
    QTest::keyRelease(Box("frmZoom"), Qt::Key_Space);
    frame->Desk().Tick();
  }
  void WalkTo(PixelPoint to) {
    const auto walk = [this](int from, int goal, Qt::Key less, Qt::Key more, int cell) {
      const int distance = std::abs(goal - from);
      for (int step = 0; step < distance / cell; ++step) Key(goal < from ? less : more, Qt::ShiftModifier);
      for (int step = 0; step < distance % cell; ++step) Key(goal < from ? less : more);
    };
    walk(cursor.x, to.x, Qt::Key_Left, Qt::Key_Right, 4);
    walk(cursor.y, to.y, Qt::Key_Up, Qt::Key_Down, 8);
    cursor = to;
  }
  // Enter, and to the top left corner.
  void ShowCursorInCorner() {
    Key(Qt::Key_Return);
    for (int step = 0; step < 40; ++step) Key(Qt::Key_Left, Qt::ShiftModifier);
    for (int step = 0; step < 25; ++step) Key(Qt::Key_Up, Qt::ShiftModifier);
    cursor = {1, 1};
  }
  app::Bytes Saved() {
    QTest::keyClick(frame.get(), Qt::Key_S, Qt::ControlModifier);
    return support::ReadFile(folder / "p.kvp");
  }

  PixelPoint cursor;
};

// Where full cells take a colour over, and where they refuse it.
TEST_F(KeyboardTest, PaintsTheSameFileAsTheMouse) {
  settings.Write(editing::kTellRefusalsInStatusBar, "1");
  const auto strokes = SomeStrokes(280);
  for (const char* replaces : {"1", "0"}) {
    settings.Write(editing::k4thColReplaces, replaces);
    Begin();
    const app::Bytes before = support::ReadFile(folder / "p.kvp");
    for (const Stroke& stroke : strokes) ByMouse(stroke);
    const app::Bytes by_mouse = Saved();
    Begin();
    ShowCursorInCorner();
    for (const Stroke& stroke : strokes) ByKeys(stroke);
    EXPECT_TRUE(Saved() == by_mouse) << replaces;
    EXPECT_FALSE(by_mouse == before) << replaces;
  }
}

TEST_F(KeyboardTest, TheCursorIsSeenAndToldAndTheViewFollowsIt) {
  QTest::mouseClick(Zoom()->parentWidget(), Qt::LeftButton, {}, {60, 8});  // its title, which then has the keyboard
  QTest::keyClick(frame->focusWidget(), Qt::Key_Return);
  EXPECT_NE(Box("frmZoom")->accessibleName(), "Zoom picture");
  Key(Qt::Key_Return);
  ShowCursorInCorner();
  const QImage in_corner = Box("frmZoom")->grab().toImage();
  QSet<QString> told;
  for (int step = 0; step < 39; ++step) {
    Key(Qt::Key_Right, Qt::ShiftModifier);
    Key(Qt::Key_Down, Qt::ShiftModifier);
    told.insert(Box("frmZoom")->accessibleName());
  }
  EXPECT_EQ(told.size(), 39);
  const QString colour = PlainColourName(model::GetPixelData(Picture(), 157, 200).colour);
  EXPECT_EQ(Box("frmZoom")->accessibleName(), "Zoom picture, x=157 y=200 " + colour);
  Key(Qt::Key_P, Qt::ShiftModifier);
  EXPECT_EQ(PlainColourName(frame->Desk().Painting().PenColours().right), colour);
  EXPECT_NE(frame->Desk().Painting().PenColours().left, frame->Desk().Painting().PenColours().right);
  EXPECT_EQ(ZoomOrigin(), QPoint(160, 56));
  EXPECT_NE(Box("frmZoom")->grab().toImage(), in_corner);
  Key(Qt::Key_Return);
  EXPECT_EQ(Box("frmZoom")->accessibleName(), "Zoom picture");
  const model::PictureImage before = Picture();
  Key(Qt::Key_Space);
  Key(Qt::Key_Up);
  EXPECT_EQ(ZoomOrigin(), QPoint(160, 48));
  EXPECT_EQ(Picture(), before);
}

TEST_F(KeyboardTest, EscapeTakesAShapeBackThenTheCursorThenTheTool) {
  Key(Qt::Key_Enter);
  Type(Qt::Key_L);
  Key(Qt::Key_Space);
  frame->Desk().Tick();
  for (const auto& [prompt, arrows_move_it] :
       {std::pair{"SET ENDING POINT", true}, {"SET STARTING POINT", true}, {"SET STARTING POINT", false}}) {
    EXPECT_EQ(Panel("pnlTool"), prompt);
    EXPECT_EQ(Box("frmZoom")->accessibleName() != "Zoom picture", arrows_move_it);
    Key(Qt::Key_Escape);
  }
  EXPECT_EQ(Panel("pnlTool"), "DRAW");
}

TEST_F(KeyboardTest, ARepeatingSpaceIsOnePressAndABoxDoesNotHoldIt) {
  model::PictureImage picture;
  support::SetCell(picture, 2, support::kAllSlots, 1, 2, 3);
  Open(picture);
  settings.Write(editing::k4thColReplaces, "0");
  ShowCursorInCorner();
  Type(Qt::Key_6);
  QTest::keyPress(Box("frmZoom"), Qt::Key_Space);
  Key(Qt::Key_Right);
  QKeyEvent again(QEvent::KeyPress, Qt::Key_Space, {}, " ", true);
  QApplication::sendEvent(Box("frmZoom"), &again);
  InNextDialog<QMessageBox>([](QMessageBox& box) {
    QTest::keyRelease(&box, Qt::Key_Space);  // held until now
    QTest::keyClick(&box, Qt::Key_Return);
  });
  for (int step = 0; step < 10; ++step) Key(Qt::Key_Right);  // into the full cell: the stroke ends with its box
  EXPECT_EQ(support::ColourAt(Picture(), 4, 1), 5);
  EXPECT_EQ(support::ColourAt(Picture(), 9, 1), 0);
  frame->Desk().Undo();  // all of it was one stroke
  EXPECT_EQ(support::ColourAt(Picture(), 1, 1), 0);
}

}  // namespace
}  // namespace kelvo::ui
