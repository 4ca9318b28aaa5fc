// Windows with work of their own, on the real main window: the command prompt; the sprite converter, with real
// captures; the Codenet window with the real loader, against a C64 on this machine.
#include <QClipboard>
#include <QComboBox>
#include <QPlainTextEdit>
#include <QRadioButton>

#include "main_frame_fixture.h"
#include "support/codenet_server.h"
#include "ui/windows/frm_bmp2sprite_main.h"
#include "ui/windows/frm_codenet_gui.h"

namespace kelvo::ui {
namespace {

class PromptTest : public MainFrameTest {
 protected:
  PromptTest() {
    Start();
    Action("mnuView_3")->trigger();
    line = Find<QLineEdit>("txtCommand");
    line->setFocus();
  }
  void Type(const QString& text) { QTest::keyClicks(line, text); }
  void Submit(const QString& text) {
    Type(text);
    QTest::keyClick(line, Qt::Key_Return);
  }
  QStringList Replies() const { return PromptLines().mid(6); }  // behind the history that is there at start
  QLineEdit* line;
};

TEST_F(PromptTest, TypingKeepsTheRulesOfTheLine) {
  Type("load pic.prg,8\\=[`{@/:Z09");
  EXPECT_EQ(line->text(), ">LOAD PICPRG,8@Z09");
  QTest::keyClick(line, Qt::Key_Home);
  EXPECT_EQ(line->cursorPosition(), 1);
  QTest::keyClick(line, Qt::Key_Delete);
  Type("x");
  EXPECT_EQ(line->text(), ">XOAD PICPRG,8@Z09");
  EXPECT_EQ(line->cursorPosition(), 2);
  line->setText(">LOAD B");
  QTest::keyClick(line, Qt::Key_Home, Qt::ShiftModifier);
  for (const auto& [pasted, text, selected] : {std::tuple{"..", ">LOAD B", "LOAD B"}, {"ver.", ">VER", ""}}) {
    QGuiApplication::clipboard()->setText(pasted);
    line->paste();
    EXPECT_EQ(line->text(), text);
    EXPECT_EQ(line->selectedText(), selected);
  }
  line->selectAll();
  Type("a");
  EXPECT_EQ(line->text(), ">");
  line->setText(">new. \u00e5and\U0001F600" + QString(10000, 'z'));  // as a paste does
  EXPECT_TRUE(line->text().startsWith(">NEW ANDZZZ"));
}

TEST_F(PromptTest, LinesAreAnsweredAndReachTheProgram) {
  EXPECT_EQ(PromptLines().first(), ">Fill 5800 5c00 0f");
  Submit("  ver  ");
  EXPECT_EQ(line->text(), ">");
  Action("mnuRepeatCommand")->trigger();
  support::WriteFile(folders.Gfx() / "pic.prg", support::CountingBytes(10050));
  Submit("load pic");
  EXPECT_EQ(Panel("pnlFile"), "pic");
  Submit("anim on");
  EXPECT_EQ(Panel("pnlAnimation"), "ANIM=ON");
  EXPECT_FALSE(Action("mnuAnimMode")->isChecked());
  Submit("load gone");
  Action("mnuView_3")->trigger();  // the history outlives its window's absence
  Action("mnuView_3")->trigger();
  EXPECT_EQ(Replies(), (QStringList{"v1.2", "v1.2", "LOAD pic", "ANIM ON", "LOAD GONE [err 902]"}));
  EXPECT_EQ(Find<QListView>("lstHistory")->currentIndex().row(), 10);
}

TEST_F(PromptTest, TypingNeverPaintsAndTheFocusIsGivenBack) {
  Type("q1f");
  QTest::keyClick(line, Qt::Key_Right);
  QTest::keyClick(line, Qt::Key_PageDown);
  EXPECT_EQ(frame->Desk().Painting().ChosenTool(), editing::ToolId::kDraw);
  EXPECT_EQ(ZoomOrigin(), QPoint(0, 0));
  EXPECT_TRUE(Find("swatch_1")->accessibleName().startsWith("left pen"));
  QTest::keyClick(line, Qt::Key_Escape);
  EXPECT_TRUE(PictureHasFocus());
  line->setFocus();
  line->setText(">   ");
  Submit("");
  EXPECT_EQ(Replies(), QStringList());
  EXPECT_TRUE(PictureHasFocus());
}

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
  (void)Generated();
  QTest::mouseClick(Find("cmdCopy"), Qt::LeftButton);
  EXPECT_EQ(QGuiApplication::clipboard()->text().count("\r\n"), 32);
}

TEST_F(SpriteConverterTest, ErasingSparesTheEditorAndWrongFilesAreRefused) {
  const model::PictureImage before = frame->Document().picture;
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

class CodenetWindowTest : public MainFrameTest {
 protected:
  CodenetWindowTest() {
    folders.Create();
    folders.Seed(KELVO_SHARE);
    settings.values["CodenetGUI/C64IP"] = "127.0.0.1";
    settings.values["CodenetGUI/Port"] = FromQt(port);
    Start();
    Action("mnuCodenetGUI")->trigger();
    window = Find("frmCodenetGUI");
  }
  QLineEdit* Text(int number) const { return window->findChild<QLineEdit*>(QString("txtStd_%1").arg(number)); }
  QAbstractButton* Control(const char* name) const { return window->findChild<QAbstractButton*>(name); }
  QString Outcome() const { return window->findChild<QLabel*>("lblOutcome")->text(); }
  bool IsRed() const { return Text(6)->palette().color(QPalette::Text) == QColor(255, 0, 0); }
  QString File(const char* name, const app::Bytes& bytes) {
    support::WriteFile(folder / name, bytes);
    return ToQt(app::TextFromPath(folder / name));
  }

  support::CodenetServer server;
  QString port = QString::number(server.Port());
  QWidget* window = nullptr;
};

TEST_F(CodenetWindowTest, SendsWhatItsPreviewSays) {
  EXPECT_TRUE(IsRed());  // no file yet
  Text(2)->setText(File("a b.prg", {0x00, 0xC0, 1, 2, 3}));
  const QString begin = "codenet.exe  -n 127.0.0.1 -p " + port;
  EXPECT_EQ(Text(6)->text(), begin + " -w [FILE]");
  EXPECT_FALSE(IsRed());
  QTest::mouseClick(Control("cmdSend"), Qt::LeftButton);
  EXPECT_EQ(Outcome(), "Transfer complete.");
  EXPECT_EQ(server.Machine().memory[0xC002], 3);

  Control("opbExec_1")->click();
  EXPECT_TRUE(IsRed());
  Text(3)->setText("c000");
  Control("cmdSend")->click();
  EXPECT_EQ(server.Machine().jumps, std::vector{0xC000});

  Control("opbStd_1")->click();
  EXPECT_FALSE(Control("opbExec_0")->isEnabled() || Text(3)->isEnabled());
  Text(0)->setText("4000");
  EXPECT_EQ(Text(6)->text(), begin + " -wb [FILE] $4000");
  Control("cmdSend")->click();
  EXPECT_EQ(server.Machine().memory[0x4001], 0xC0);

  Control("cmdSave")->click();
  EXPECT_EQ(settings.values["CodenetGUI/DestAddress"], "4000");
  EXPECT_EQ(settings.values.count("CodenetSettings/C64IP"), 0U);
}

TEST_F(CodenetWindowTest, SaysWhatIsWrongAndCanSendAgain) {
  const QString good = File("good.prg", {1, 8, 1});
  for (const auto& [file, said] : {std::pair<QString, QString>{"/gone", "codenet: /gone: there is no such file"},
                                   {"", "codenet: no file is chosen"},
                                   {good, "Transfer complete."}}) {
    EXPECT_EQ(server.Machine().packets, 0);
    Text(2)->setText(file);
    EXPECT_EQ(IsRed(), file != good);
    Control("cmdSend")->click();
    EXPECT_TRUE(Outcome().contains(said)) << FromQt(Outcome());
    EXPECT_TRUE(file == good || PromptLines().contains("--> " + Outcome()));
  }
}

TEST_F(CodenetWindowTest, IsFilledInByKeyboard) {
  QLineEdit* host = Text(5);
  host->setText(".0.0.1");
  host->setCursorPosition(0);
  QTest::keyClicks(host, "127 ");
  EXPECT_EQ(host->text(), "127 .0.0.1");
  host->setCursorPosition(0);
  QTest::keyClicks(host, " ");
  EXPECT_LE(host->cursorPosition(), 1);  // it stays where the user types
  Text(2)->setText(File("a.prg", {0, 0xC0, 1}));
  Control("cmdExit")->setFocus();
  QTest::keyClick(Control("cmdExit"), Qt::Key_Return);  // presses this button, not the default one
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(server.Machine().packets, 0);
}

TEST_F(CodenetWindowTest, ATransferCanBeStopped) {
  const support::CodenetServer deaf({.vanishes_after = 1});
  Text(4)->setText(QString::number(deaf.Port()));
  Text(2)->setText(File("long.prg", support::CountingBytes(2000)));
  QTimer::singleShot(300, window, [this] {
    EXPECT_FALSE(Control("cmdSend")->isEnabled());
    EXPECT_FALSE(Action("mnuShowPreviewOnC64")->isEnabled());
    EXPECT_TRUE(QTest::qWaitFor([this] { return Outcome() == "Sending... 128 of 1998 bytes"; }));
    QTest::keyClick(window, Qt::Key_Escape);
  });
  Control("cmdSend")->click();
  EXPECT_EQ(Outcome(), "Transfer stopped.");
  EXPECT_TRUE(window->isVisible());
}

}  // namespace
}  // namespace kelvo::ui
