// Typing at the command prompt, on the real main window.
#include <QClipboard>

#include "main_frame_fixture.h"

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
  line->setText(">LOAD PIC");
  for (int i = 0; i < 3; ++i) QTest::keyClick(line, Qt::Key_Left, Qt::ShiftModifier);
  Type("./");
  EXPECT_EQ(line->selectedText(), "PIC");
  QTest::keyClick(line, Qt::Key_Backspace);
  Type("b.");
  EXPECT_EQ(line->text(), ">LOAD B");
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
  EXPECT_EQ(line->cursorPosition(), 1);
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

}  // namespace
}  // namespace kelvo::ui
