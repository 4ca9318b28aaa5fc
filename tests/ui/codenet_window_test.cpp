// The Codenet window with the real loader, against a C64 on this machine.
#include "main_frame_fixture.h"
#include "support/codenet_server.h"
#include "ui/windows/frm_codenet_gui.h"

namespace kelvo::ui {
namespace {

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
  EXPECT_EQ(Text(6)->text(), begin + " -w [FILE] -e $c000");
  EXPECT_FALSE(IsRed());
  Control("cmdSend")->click();
  EXPECT_EQ(server.Machine().jumps, std::vector{0xC000});

  Control("opbStd_1")->click();
  EXPECT_FALSE(Control("opbExec_0")->isEnabled());
  EXPECT_FALSE(Text(3)->isEnabled());
  Text(0)->setText("4000");
  EXPECT_EQ(Text(6)->text(), begin + " -wb [FILE] $4000");
  Control("cmdSend")->click();
  EXPECT_EQ(server.Machine().memory[0x4001], 0xC0);

  Control("cmdSave")->click();
  EXPECT_EQ(settings.values["CodenetGUI/FileType"], "BIN");
  EXPECT_EQ(settings.values["CodenetGUI/DestAddress"], "4000");
  EXPECT_EQ(settings.values.count("CodenetSettings/C64IP"), 0U);
}

TEST_F(CodenetWindowTest, SaysWhatIsWrongAndCanSendAgain) {
  Text(2)->setText(File("good.prg", {1, 8, 1}));
  const std::string art = app::TextFromPath(folder.Path());
  const std::tuple<int, std::string, const char*> cases[] = {
      {2, "/gone", "codenet: /gone: there is no such file"},
      {2, "", "codenet: no file is chosen"},
      {2, art, ": this is a folder"},
      {4, "text", "is no port"},
      {5, "127.0.0.1; touch x", "is no host"},
      {5, "-x", "-n: the C64's address must follow"},
  };
  for (const auto& [field, wrong, said] : cases) {
    SCOPED_TRACE(wrong);
    const QString right = Text(field)->text();
    Text(field)->setText(ToQt(wrong));
    EXPECT_EQ(IsRed(), field == 2);
    Control("cmdSend")->click();
    EXPECT_TRUE(Outcome().contains(said)) << FromQt(Outcome());
    EXPECT_EQ(PromptLines().at(PromptLines().size() - 2), "--> " + Outcome());
    Text(field)->setText(right);
  }
  EXPECT_EQ(server.Machine().packets, 0);
  Control("cmdSend")->click();
  EXPECT_EQ(Outcome(), "Transfer complete.");
  const QString here = QDir::currentPath();
  QDir::setCurrent(ToQt(art));
  File("-n", {1, 8, 1});
  Text(2)->setText("-n");
  Control("cmdSend")->click();
  EXPECT_EQ(Outcome(), "Transfer complete.");
  QDir::setCurrent(here);
}

TEST_F(CodenetWindowTest, IsFilledInByKeyboard) {
  QLineEdit* host = Text(5);
  host->setText("999.0.0.1");
  host->setCursorPosition(0);
  for (int key = 0; key < 3; ++key) QTest::keyClick(host, Qt::Key_Delete);
  QTest::keyClicks(host, "127 ");
  EXPECT_EQ(host->text(), "127 .0.0.1");
  host->setCursorPosition(0);
  QTest::keyClicks(host, " ");
  EXPECT_EQ(host->text(), "127 .0.0.1");
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
