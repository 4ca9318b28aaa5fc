// Painting with real mouse buttons and keys on the real main window, against what the core gives for the same actions.
#include <QCheckBox>

#include "editing/preferences.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"

namespace kelvo::ui {
namespace {

class PaintingWindowTest : public MainFrameTest {
 protected:
  PaintingWindowTest() { Start(); }

  // The middle of a picture pixel's box in the zoom window.
  QPoint At(int x, int y) const {
    const model::Rect box = frame->Zoom().Area().PixelRect(x, y);
    return {box.x + box.width / 2, box.y + box.height / 2};
  }
  void Press(int x, int y) { QTest::mousePress(Box("frmZoom"), Qt::LeftButton, {}, At(x, y)); }
  void Click(int x, int y, Qt::MouseButton button = Qt::LeftButton) {
    QTest::mouseClick(Box("frmZoom"), button, {}, At(x, y));
  }
  void MoveTo(int x, int y, Qt::MouseButtons held) { MoveMouse(Box("frmZoom"), At(x, y), held); }
  void Key(Qt::Key key) { QTest::keyClick(Box("frmZoom"), key); }
  bool IsToldSoon(const char* prompt) const {
    return QTest::qWaitFor([&] { return Panel("pnlTool") == prompt; });
  }
  const model::PictureImage& Picture() const { return frame->Document().picture; }
  int Colour(int x, int y) const { return support::ColourAt(Picture(), x, y); }
  QWidget* Swatch(int colour) const { return Find(("swatch_" + std::to_string(colour)).c_str()); }
};

TEST_F(PaintingWindowTest, ToolsPaintWithTheMouseAndAreUndone) {
  Key(Qt::Key_6);  // green
  Press(3, 3);
  MoveTo(40, 30, Qt::LeftButton);
  QTest::mouseRelease(Box("frmZoom"), Qt::LeftButton, {}, At(40, 30));
  EXPECT_EQ(Colour(3, 3), 5);
  EXPECT_EQ(Colour(40, 30), 5);
  EXPECT_EQ(Action("mnuUndo")->text(), "&Undo draw");
  MoveTo(60, 60, Qt::NoButton);
  EXPECT_EQ(Colour(60, 60), 0);

  Action("tool_line")->trigger();
  EXPECT_EQ(Panel("pnlTool"), "SET STARTING POINT");
  Click(1, 50);
  EXPECT_TRUE(IsToldSoon("SET ENDING POINT"));
  const QImage before = Box("frmZoom")->grab().toImage();
  MoveTo(11, 55, Qt::NoButton);  // a preview, which is never written
  EXPECT_NE(Box("frmZoom")->grab().toImage(), before);
  EXPECT_EQ(Colour(5, 52), 0);
  Click(11, 50);
  EXPECT_TRUE(IsToldSoon("SET STARTING POINT"));
  EXPECT_EQ(Colour(10, 50), 5);
  EXPECT_EQ(Colour(11, 50), 0);

  Key(Qt::Key_F);
  Key(Qt::Key_3);
  Click(60, 20);
  EXPECT_EQ(Colour(160, 200), 2);
  EXPECT_EQ(Action("mnuUndo")->text(), "&Undo fill");
  Action("mnuUndo")->trigger();
  EXPECT_EQ(Colour(160, 200), 0);
  EXPECT_FALSE(Action("mnuUndo")->isEnabled());
  Key(Qt::Key_Escape);
  EXPECT_EQ(Panel("pnlTool"), "DRAW");

  Press(10, 10);
  frame->Desk().LoseFocus();  // ends the stroke
  MoveTo(20, 10, Qt::LeftButton);
  EXPECT_EQ(Colour(15, 10), 0);
  EXPECT_TRUE(Action("mnuUndo")->isEnabled());
  Action("mnuNew")->trigger();
  EXPECT_FALSE(Action("mnuUndo")->isEnabled());
}

TEST_F(PaintingWindowTest, AFullCellIsRefusedWhereThePreferenceSaysSo) {
  for (int pen = 1; pen <= 3; ++pen) {
    Key(static_cast<Qt::Key>(Qt::Key_1 + pen));
    Click(pen, 1);
  }
  InNextDialog([](QDialog& dialog) {
    auto* replaces = dialog.findChild<QCheckBox*>("4thColReplaces");
    EXPECT_TRUE(replaces->isChecked());
    replaces->setChecked(false);
    FillIn(dialog, {});
  });
  Action("mnuPreferences")->trigger();
  EXPECT_EQ(settings.Read(editing::k4thColReplaces), "0");
  Key(Qt::Key_5);
  AnswerNext(QMessageBox::Ok);
  Press(5, 1);
  MoveTo(4, 1, Qt::LeftButton);
  EXPECT_EQ(box_text, "Not possible - all colors used");
  EXPECT_EQ(Colour(4, 1), 0);
  MoveTo(7, 1, Qt::LeftButton);  // the stroke outlives the box
  EXPECT_EQ(Colour(7, 1), 4);
}

TEST_F(PaintingWindowTest, PensAndBackgroundAreChosenInTheColoursWindow) {
  QTest::mouseClick(Swatch(7), Qt::LeftButton);
  QTest::mouseClick(Swatch(8), Qt::RightButton);
  Click(1, 1);
  Click(2, 1, Qt::RightButton);
  EXPECT_EQ(Colour(1, 1), 7);
  EXPECT_EQ(Colour(2, 1), 8);
  EXPECT_TRUE(Swatch(7)->accessibleName().startsWith("left pen"));
  EXPECT_TRUE(Swatch(7)->accessibleName().endsWith("07 Yellow"));
  QTest::mouseClick(Swatch(14), Qt::MiddleButton);
  EXPECT_EQ(Picture().BackgroundColour.Number(), 14);
  QTest::mouseClick(Swatch(6), Qt::LeftButton, Qt::ShiftModifier);
  EXPECT_EQ(Picture().BackgroundColour.Number(), 6);
  EXPECT_TRUE(Menu("mnuBG")->actions()[6]->isChecked());
  QTest::mouseClick(Find("cmdSwap"), Qt::LeftButton);
  Click(3, 1);
  EXPECT_EQ(Colour(3, 1), 8);
  Swatch(12)->setFocus();
  QTest::keyClick(Swatch(12), Qt::Key_Space);
  Click(1, 9);
  EXPECT_EQ(Colour(1, 9), 12);
  // A shortcut's key is no pen when its Ctrl is let go first.
  QTest::keyPress(Box("frmZoom"), Qt::Key_8, Qt::ControlModifier);
  QTest::keyRelease(Box("frmZoom"), Qt::Key_8, Qt::NoModifier);
  EXPECT_TRUE(Swatch(12)->accessibleName().startsWith("left pen"));
  Key(Qt::Key_8);
  EXPECT_TRUE(Swatch(7)->accessibleName().startsWith("left pen"));
}

}  // namespace
}  // namespace kelvo::ui
