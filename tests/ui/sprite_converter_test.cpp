// The sprite converter, with real captures.
#include <QClipboard>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "main_frame_fixture.h"
#include "ui/windows/frm_bmp2sprite_main.h"

namespace kelvo::ui {
namespace {

class SpriteConverterTest : public MainFrameTest {
 protected:
  SpriteConverterTest() {
    Start();
    frame->Files().OpenPicture(WriteKoala("p.koa"));
    Action("mnuBMP2Sprite")->trigger();
  }
  void CaptureAt(int x, int y) {
    QTest::mouseClick(Find("picSource"), Qt::LeftButton, {}, {(x - 1) * 4 + 1, (y - 1) * 2});
  }
  QString Generated() {
    QTest::mouseClick(Find("cmdGenerate"), Qt::LeftButton);
    return Find<QPlainTextEdit>("txtOutput")->toPlainText();
  }
};

TEST_F(SpriteConverterTest, CapturesByMouseAndKeysAndGenerates) {
  CaptureAt(80, 100);
  const QString one = Generated();
  EXPECT_EQ(one.count(".byte"), 22);
  EXPECT_TRUE(one.contains("%"));
  QTest::keyClick(Find("picSource"), Qt::Key_Right);
  QTest::keyClick(Find("picSource"), Qt::Key_Space);
  const QString moved = Generated();
  EXPECT_NE(moved, one);
  CaptureAt(81, 100);
  EXPECT_EQ(Generated(), moved);
  Action("mnu2x2")->trigger();
  Find<QRadioButton>("opbOutput_1")->click();
  CaptureAt(80, 100);
  EXPECT_EQ(Generated().count(".byte"), 32);
  QTest::mouseClick(Find("cmdCopy"), Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text().count("\r\n"), 32);
}

TEST_F(SpriteConverterTest, ErasingSparesTheEditorAndWrongFilesAreRefused) {
  const model::PictureImage before = frame->Document().picture;
  EXPECT_EQ(Find<QLabel>("lblStatus")->text(), "Align to grid = OFF, Erase on capture = OFF");
  Action("mnuAlign")->trigger();
  Action("mnuErase")->trigger();
  EXPECT_EQ(Find<QLabel>("lblStatus")->text(), "Align to grid = ON, Erase on capture = ON");
  CaptureAt(20, 30);
  const QString first = Generated();
  CaptureAt(20, 30);  // nothing but background is left there
  EXPECT_NE(Generated(), first);
  EXPECT_EQ(Find<QComboBox>("cboCol1")->currentText(), "[none]");
  AnswerNext(QMessageBox::Ok);
  qobject_cast<frmBMP2SpriteMain*>(Find("frmBMP2SpriteMain"))->OpenSource(ToQt(app::TextFromPath(folder / "p.koa")));
  EXPECT_EQ(box_text, "Felaktig filstorlek. Bitmap/PRG-fil ska vara 10050 eller 10241 bytes");
  EXPECT_EQ(frame->Document().picture, before);
}

}  // namespace
}  // namespace kelvo::ui
