// Typing at the command prompt, on the real main window.
#include <QLineEdit>
#include <QListView>

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
  void Enter() { QTest::keyClick(line, Qt::Key_Return); }
  QStringList History() const {
    QStringList lines;
    const auto* model = Find<QListView>("lstHistory")->model();
    for (int row = 0; row < model->rowCount(); ++row) lines << model->index(row, 0).data().toString();
    return lines;
  }
  bool PictureHasFocus() const {
    return Find("frmZoom") == frame->focusWidget() || Find("frmZoom")->isAncestorOf(frame->focusWidget());
  }
  QLineEdit* line;
};

TEST_F(PromptTest, TypingKeepsTheRulesOfTheLine) {
  Type("load pic.\\=");
  EXPECT_EQ(line->text(), ">LOAD PIC");
  QTest::keyClick(line, Qt::Key_Home);
  EXPECT_EQ(line->cursorPosition(), 1);
  QTest::keyClick(line, Qt::Key_Delete);
  EXPECT_EQ(line->text(), ">OAD PIC");
  Type("x");
  EXPECT_EQ(line->text(), ">XOAD PIC");
  EXPECT_EQ(line->cursorPosition(), 2);
  line->selectAll();
  Type("a");
  EXPECT_EQ(line->text(), ">");
  EXPECT_EQ(line->cursorPosition(), 1);
  line->setText(">new. and" + QString(10000, 'z'));  // as a paste does
  EXPECT_TRUE(line->text().startsWith(">NEW ANDZZZ"));
}

TEST_F(PromptTest, LinesAreAnsweredAndTheHistoryStays) {
  EXPECT_EQ(History().size(), 6);
  EXPECT_EQ(History().first(), ">Fill 5800 5c00 0f");
  Type("  ver  ");
  Enter();
  EXPECT_EQ(line->text(), ">");
  EXPECT_EQ(History().mid(6), QStringList{"v1.2"});
  Action("mnuRepeatCommand")->trigger();
  EXPECT_EQ(History().mid(6), (QStringList{"v1.2", "v1.2"}));
  EXPECT_EQ(Find<QListView>("lstHistory")->currentIndex().row(), 7);
  Action("mnuView_3")->trigger();
  Action("mnuView_3")->trigger();
  EXPECT_EQ(History().size(), 8);
}

TEST_F(PromptTest, AnEmptyLineAndEscapeGiveTheFocusBack) {
  Type("   ");
  Enter();
  EXPECT_EQ(History().size(), 6);
  EXPECT_TRUE(PictureHasFocus());
  line->setFocus();
  QTest::keyClick(line, Qt::Key_Escape);
  EXPECT_TRUE(PictureHasFocus());
}

TEST_F(PromptTest, TypingNeverPaintsNorChangesPensNorScrolls) {
  const auto left = frame->Desk().Painting().StrokeButton();
  Type("q1f");
  QTest::keyClick(line, Qt::Key_Right);
  QTest::keyClick(line, Qt::Key_PageDown);
  EXPECT_EQ(frame->Desk().Painting().ToolIndex(), 1);
  EXPECT_EQ(frame->Zoom().Area().ZoomOriginY(), 0);
  EXPECT_TRUE(Find("swatch_1")->accessibleName().startsWith("left pen"));
  EXPECT_EQ(left, std::nullopt);
}

TEST_F(PromptTest, CommandsReachFilesAndTheStatusBar) {
  support::WriteFile(folders.Gfx() / "pic.prg", support::CountingBytes(10050));
  Type("load pic");
  Enter();
  EXPECT_EQ(Panel("pnlFile"), "pic");
  Type("anim on");
  Enter();
  EXPECT_EQ(Panel("pnlAnimation"), "ANIM=ON");
  EXPECT_FALSE(Action("mnuAnimMode")->isChecked());
  Type("load gone");
  Enter();
  EXPECT_EQ(History().mid(6), (QStringList{"LOAD pic", "ANIM ON", "LOAD GONE [err 902]"}));
}

}  // namespace
}  // namespace kelvo::ui
