// What the program finds around it: settings full of nonsense, none at all, other programs in its folder, and child
// processes that behave and misbehave.
#include <QCoreApplication>
#include <QLockFile>
#include <QScreen>
#include <QSettings>

#include "app/other_folder.h"
#include "main_frame_fixture.h"
#include "support/pictures.h"
#include "ui/desks/recovery_desk.h"
#include "ui/ports/program_slot.h"
#include "ui/ports/qt_settings.h"

namespace kelvo::ui {
namespace {

// Answers every question with the same.
class StubbornSettings final : public app::SettingsStore {
 public:
  explicit StubbornSettings(std::string answer) : answer_(std::move(answer)) {}
  std::string Read(const app::Setting&) const override { return answer_; }
  void Write(const app::Setting&, std::string_view) override {}

 private:
  std::string answer_;
};

TEST_F(MainFrameTest, StartsWithAnyNonsenseInAllSettings) {
  QTimer closes_boxes;  // the message about the VICE path, and the dialogs
  QObject::connect(&closes_boxes, &QTimer::timeout, [] {
    if (QWidget* box = QApplication::activeModalWidget()) box->close();
  });
  closes_boxes.start(0);
  const auto config = folder / "config/Kelvo";
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ToQt(app::TextFromPath(folder / "config")));
  QCoreApplication::setOrganizationName("Kelvo");
  QCoreApplication::setApplicationName("Kelvo");
  create_directories(config);
  for (const std::string& nonsense : std::vector<std::string>{
           "-1", "2147483647,2147483647,2147483647,2147483647,1", "2147483647,2147483647,1",
           "-2147483648,-2147483648,2147483647,2147483647,2147483647", "0,0,32767,32767,0", "-2147483648,5,7",
           "AAAA/wAAAAD9////", "\xFF\xFE\x80", std::string(100000, '9'), "@Rect(1", "@Variant(\\0\\0\\0\\x7f)"}) {
    SCOPED_TRACE(nonsense.substr(0, 60));
    support::WriteText(config / "Kelvo.ini", "[Settings]\nMagnification=" + nonsense);
    EXPECT_EQ(app::ReadNumber(QtSettings(), kMagnification, 4, 8), 4);
    QtSettings().Write(kMagnification, "8");
    EXPECT_EQ(QtSettings().Read(kMagnification), "8");
    StubbornSettings stubborn(nonsense);
    StartWith(stubborn);
    EXPECT_TRUE(frame->isVisible());
    EXPECT_TRUE(frame->screen()->virtualGeometry().intersects(frame->geometry()));
    EXPECT_LE(frame->width(), 2000);
    EXPECT_EQ(frame->Zoom().GridColor().Number(), 9);
    EXPECT_EQ(frame->Zoom().Area().Magnification(), 4);
    for (const char* dialog : {"mnuPreferences", "mnuViceSettings", "mnuCodenetSettings"}) Action(dialog)->trigger();
    frame.reset();
  }
  QCoreApplication::setOrganizationName({});
  QCoreApplication::setApplicationName({});
}

TEST(ProgramSlot, IsANumberOfItsOwnWhileTheProgramRuns) {
  const support::TempFolder folder;
  const auto locks = folder / "locks";
  create_directory(locks);
  {
    const ProgramSlot first(locks);
    std::optional<ProgramSlot> second(std::in_place, locks);
    const ProgramSlot third(locks);
    EXPECT_EQ(std::tuple(first.Number(), second->Number(), third.Number()), std::tuple(1, 2, 3));
    EXPECT_EQ(first.TryLock(2), nullptr);
    EXPECT_NE(first.TryLock(4), nullptr);
    second.reset();
    EXPECT_NE(first.TryLock(2), nullptr);
  }
  support::WriteText(locks / "running_1.lock", "2147483646\nkelvo\n\n\n\n");  // of a dead program
  EXPECT_EQ(ProgramSlot(locks).Number(), 1);
  support::WriteText(locks / "running_1.lock", "nonsense");
  EXPECT_GE(ProgramSlot(locks).Number(), 1);
  EXPECT_EQ(ProgramSlot(folder / "gone").Number(), std::nullopt);
}

class RecoveryDeskTest : public testing::Test, protected support::Program {
 protected:
  void SetUp() override { document.picture = support::RandomPicture(3); }
  void TearDown() override {
    desk.reset();
    remove_all(other);
  }

  void LeaveBehind(const std::filesystem::path& place, int number) {
    files::RecoveryCopy copy(document);
    copy.AddPlace(files::RecoveryFiles(place, number));
    copy.KeepNow();
  }
  void MakeDesk() {
    desk.reset();
    slot.emplace(folders.System());
    desk.emplace(surroundings, *slot);
    QObject::connect(&*desk, &RecoveryDesk::Word, [this](const QString& word) { words << word; });
  }
  bool HasWork() const { return document.picture.BackgroundColour == support::RandomPicture(3).BackgroundColour; }
  void SpoilBackup() {
    remove_all(folders.Backup());
    support::WriteText(folders.Backup(), "a file where the folder should be");
  }

  std::filesystem::path other = app::OtherFolderFor(folders.Root());
  std::optional<ProgramSlot> slot;
  std::optional<RecoveryDesk> desk;
  QStringList words;
};

TEST_F(RecoveryDeskTest, WorkThatCannotBeKeptAgainIsTakenUpAndStillKept) {
  LeaveBehind(folders.Backup(), 2);
  document = {};
  create_directory(files::RecoveryFiles(folders.Backup(), 1).name);  // no file can be written there
  ASSERT_TRUE(app::MakeOtherFolder(other));
  remove(other);
  support::WriteText(other, "a file where the second place should be");
  messages.yes = true;
  MakeDesk();
  EXPECT_TRUE(desk->Offer());
  EXPECT_TRUE(HasWork());
  EXPECT_TRUE(files::RecoveryFiles(folders.Backup(), 2).Read());
}

TEST_F(RecoveryDeskTest, ASecondPlaceTakesTheCopyAndGivesItBack) {
  MakeDesk();
  SpoilBackup();
  desk->Tick();
  desk->KeepNow();
  EXPECT_EQ(words, QStringList{"BACKUP failed: work is kept in another place"});
  document = {};
  messages.yes = true;
  MakeDesk();
  EXPECT_TRUE(desk->Offer());
  EXPECT_TRUE(HasWork());
  document.kept = document.picture;
  desk->Tick();
  desk.reset();
  EXPECT_TRUE(is_empty(other));
}

TEST_F(RecoveryDeskTest, WhatIsLeftInTheSecondPlaceIsNotWrittenOver) {
  ASSERT_TRUE(app::MakeOtherFolder(other));
  LeaveBehind(other, 1);
  MakeDesk();
  SpoilBackup();
  document.picture = support::RandomPicture(4);
  desk->Tick();
  EXPECT_EQ(files::RecoveryFiles(other, 1).Read()->picture.BackgroundColour,
            support::RandomPicture(3).BackgroundColour);
  EXPECT_TRUE(files::RecoveryFiles(other, 2).Read());
}

TEST_F(RecoveryDeskTest, WithoutANumberNothingOfOthersIsTouched) {
  LeaveBehind(folders.Backup(), 1);  // of a program that may be running
  remove_all(folders.System());
  messages.yes = true;
  MakeDesk();
  EXPECT_FALSE(desk->Offer());
  desk->KeepNow();
  document.kept = document.picture;
  desk->Tick();
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_TRUE(files::RecoveryFiles(folders.Backup(), 1).Read());
}

}  // namespace
}  // namespace kelvo::ui
