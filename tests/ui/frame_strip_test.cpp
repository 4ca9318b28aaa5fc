// The frame strip on the real main window: going to frames and changing their order, by mouse and by keys.
#include <QMimeData>

#include "anim/anim_settings.h"
#include "files/picture_format.h"
#include "main_frame_fixture.h"
#include "model/palette.h"
#include "ui/windows/frame_list.h"

namespace kelvo::ui {
namespace {

class FrameStripTest : public MainFrameTest {
 protected:
  FrameStripTest() {
    create_directories(frames);
    settings.Write(anim::kFolder, app::TextFromPath(frames) + "/");
    for (int colour = 0; colour < model::C64Colour::kCount; ++colour) {
      colours << model::SurfaceColour(*model::C64Colour::FromNumber(colour));
    }
    Start();
  }
  std::filesystem::path File(int number) const {
    return anim::FrameNames(anim::ReadAnimProperties(settings)).Path(number);
  }
  // A frame of one colour, 0..15.
  void WriteFrame(int number, int colour) const {
    model::PictureImage picture{.BackgroundColour = *model::C64Colour::FromNumber(colour)};
    files::Sign(picture);
    support::WriteFile(File(number), files::Encode(picture));
  }
  void Open() {
    Action("mnuFrames")->trigger();
    QApplication::processEvents();
    strip = Find<QListView>("lstFrames");
  }
  // Each frame's number and its colour as the strip shows it, the current one in brackets.
  std::string Shown() const {
    QString shown;
    for (int row = 0; row < strip->model()->rowCount(); ++row) {
      const QModelIndex item = strip->model()->index(row, 0);
      const QImage picture = item.data(Qt::DecorationRole).value<QPixmap>().toImage();
      const qsizetype colour = picture.isNull() ? -1 : colours.indexOf(picture.pixel(9, 9));
      shown += QString(item.data(kIsCurrent).toBool() ? "[%1:%2] " : "%1:%2 ").arg(item.data().toString()).arg(colour);
    }
    return FromQt(shown);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(strip, key, modifiers); }

  std::filesystem::path frames = folder / "frames";
  QList<QRgb> colours;
  QListView* strip = nullptr;
};

TEST_F(FrameStripTest, FramesAreVisitedAndPutInOrderByKeys) {
  for (const int number : {1, 2, 3, 5}) WriteFrame(number, number);
  support::WriteText(File(6), "no picture");
  frame->Files().OpenPicture(File(2));
  Open();
  EXPECT_EQ(Shown(), "1:1 [2:2] 3:3 5:5 6:-1 ");
  EXPECT_TRUE(strip->model()->index(3, 0).data(kFollowsGap).toBool());
  strip->setFocus();
  Press(Qt::Key_Right);
  Press(Qt::Key_Return);
  EXPECT_EQ(frame->Document().file.CurrentFilePath, File(3));
  Menu("mnuBG")->actions()[9]->trigger();  // unsaved
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Shown(), "1:1 [2:3] 3:2 5:5 6:-1 ");
  EXPECT_EQ(Panel("pnlWord"), "FRAME 3 IS FRAME 2 NOW");
  EXPECT_EQ(frame->Document().file.CurrentFilePath, File(2));
  EXPECT_TRUE(frame->Document().HasUnsavedWork());
  Press(Qt::Key_Insert);
  EXPECT_EQ(Shown(), "1:1 2:9 [3:9] 4:2 5:5 6:-1 ");
  Action("mnuStepBack")->trigger();  // to the steps of the frame that was moved, whose file it still is
  EXPECT_EQ(frame->Document().file.CurrentFilePath, File(2));
  Press(Qt::Key_Home);
  Press(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Shown(), "1:1 [2:1] 3:9 4:9 5:2 6:5 7:-1 ");
  Press(Qt::Key_Delete);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Shown(), "1:1 [2:9] 3:2 4:5 5:-1 ");
  Press(Qt::Key_Escape);
  EXPECT_TRUE(PictureHasFocus());
  EXPECT_EQ(frame->Desk().Painting().ChosenTool(), editing::ToolId::kDraw);
}

TEST_F(FrameStripTest, ADroppedFrameTakesThePlaceAndOtherProgramsAreNoticed) {
  for (int number = 1; number <= 4; ++number) WriteFrame(number, number);
  Open();
  EXPECT_FALSE(Find("lblNoFrames")->isVisible());
  const QRect above = Find("frmZoom_frame")->geometry();
  EXPECT_FALSE(above.intersects(Find("frmFrames_frame")->geometry()));
  Action("mnuZoomLarge")->trigger();
  EXPECT_FALSE(Find("frmZoom_frame")->geometry().intersects(Find("frmFrames_frame")->geometry()));
  Action("mnuZoomLarge")->trigger();
  EXPECT_EQ(Find("frmZoom_frame")->geometry(), above);
  Find("frmFrames_frame")->close();
  EXPECT_GT(Find("frmZoom_frame")->height(), above.height());
  Open();
  EXPECT_EQ(Find("frmZoom_frame")->geometry(), above);
  const auto drop = [this](int row, int before) {
    const std::unique_ptr<QMimeData> data(strip->model()->mimeData({strip->model()->index(row, 0)}));
    strip->model()->dropMimeData(data.get(), Qt::MoveAction, before, 0, {});
    QApplication::processEvents();
    return Shown();
  };
  EXPECT_EQ(drop(0, 2), "1:2 2:1 3:3 4:4 ");
  EXPECT_EQ(drop(3, 0), "1:4 2:2 3:1 4:3 ");
  EXPECT_EQ(drop(0, -1), "1:2 2:1 3:3 4:4 ");
  EXPECT_EQ(drop(1, 2), "1:2 2:1 3:3 4:4 ");
  WriteFrame(3, 12);
  WriteFrame(7, 7);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Shown() == "1:2 2:1 3:12 4:4 7:7 "; })) << Shown();
  remove_all(frames);
  EXPECT_TRUE(QTest::qWaitFor([this] { return Find("lblNoFrames")->isVisible(); }));
}

}  // namespace
}  // namespace kelvo::ui
