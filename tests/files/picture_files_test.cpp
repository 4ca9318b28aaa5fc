// Opening, saving, reloading and closing pictures, on real files.
#include "files/picture_files.h"

#include <gtest/gtest.h>

#include "files/load_picture.h"
#include "support/platform.h"
#include "support/program.h"

namespace kelvo::files {
namespace {

namespace fs = std::filesystem;
using support::Lines;

class PictureFilesTest : public testing::Test, protected support::Program {
 protected:
  std::string WriteKoala(const std::string& name) const { return support::WriteKoala(folder / name); }
};

TEST_F(PictureFilesTest, OpeningByDialogTakesTheChosenTypeAndTellsEveryone) {
  const std::string path = WriteKoala("Castle.PRG");
  dialogs.open = ChosenFile{path, kKoaType};
  EXPECT_TRUE(files.Open());
  EXPECT_EQ(dialogs.folders, Lines{app::TextFromPath(folders.Gfx())});
  EXPECT_EQ(settings.values["Settings/FilePath"], app::TextFromPath(folder.Path()));
  EXPECT_EQ(document.file.CurrentFilePath, path);
  EXPECT_EQ(display.title, "Kelvo v1.2 by the Kelvo developers [Castle]");
  EXPECT_EQ(prompt.lines, Lines{"LOAD Castle"});
  EXPECT_EQ(views.pictures, 1);
  EXPECT_EQ(files.RecentPaths(), std::vector<fs::path>{path});
  EXPECT_EQ(support::ReadFile(folders.Snapshot()), support::ReadFile(folder / "Castle.PRG"));
  EXPECT_FALSE(document.HasUnsavedWork());
}

TEST_F(PictureFilesTest, AFileOfAnotherFormatThanTheFilterIsReadAsWhatItIs) {
  using Row = std::tuple<FormatType, const char*, std::size_t, FormatType>;
  for (const auto& [filter, name, size, as] :
       {Row{kOwnType, "a.koa", 10003, kKoaType}, Row{kOwnType, "a.prg", 10003, kKoaType},
        Row{kKlaType, "a.kvp", 10057, kOwnType}, Row{kKoaType, "a.vid", 10050, kVidcom64Type},
        Row{kVidcom64Type, "a.kvp", 10050, kVidcom64Type}}) {
    SCOPED_TRACE(name);
    const app::Bytes bytes = support::CountingBytes(size);
    support::WriteFile(folder / name, bytes);
    dialogs.open = ChosenFile{folder / name, filter};
    const auto expected = Decode(FormatOf(as), bytes, document.picture.BackgroundColour);
    EXPECT_TRUE(files.Open());
    EXPECT_EQ(document.picture, expected);
  }
  EXPECT_EQ(dialogs.filters, (std::vector<FormatType>{1, 1, 1, 4, 3}));  // the one before is remembered
  support::WriteFile(folder / "short.koa", support::CountingBytes(9000));
  dialogs.open = ChosenFile{folder / "short.koa", kOwnType};
  EXPECT_FALSE(files.Open());
  EXPECT_EQ(messages.shown, Lines{"Felaktig filstorlek."});
  EXPECT_EQ(messages.more, "A file of this type has 10050 or 10057 bytes, this one has 9000.");
}

TEST_F(PictureFilesTest, AFailedLoadChangesNothing) {
  files.OpenPicture(WriteKoala("good.koa"));
  const Document before = document;
  fs::create_directory(folder / "folder.kvp");
  for (const auto& [name, size] : {std::pair{"short.koa", 10002U}, {"odd.prg", 77U}, {"huge.kvp", 0U}}) {
    support::WriteFile(folder / name, app::Bytes(size));
  }
  fs::resize_file(folder / "huge.kvp", std::uintmax_t{4} << 30);
  for (const char* name : {"missing.kvp", "folder.kvp", "short.koa", "odd.prg", "huge.kvp"}) {
    SCOPED_TRACE(name);
    const std::string_view told_by_size = "short.koa huge.kvp";  // in a message alone, without the failed line
    prompt.lines.clear();
    messages.shown.clear();
    EXPECT_FALSE(files.OpenPicture(Text(name)));
    EXPECT_EQ(document.picture, before.picture);
    EXPECT_EQ(document.file.CurrentFilePath, before.file.CurrentFilePath);
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(prompt.lines, told_by_size.find(name) != std::string_view::npos
                                ? Lines{}
                                : Lines{"LOAD " + NameOfPath(name) + " [err 902]"});
  }
  messages.shown.clear();
  files.OpenPicture(Text("missing.kvp"), OnFailure::kPromptOnly);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(files.RecentPaths().size(), 1U);
  EXPECT_TRUE(support::ReadText(folders.ErrorLogFile()).starts_with("260203 09:07:05 MDIFormMenu_LoadPicture: "));
}

TEST_F(PictureFilesTest, ReadsExactlyOnRequestAndSaysWhereThatMatters) {
  const std::string koala = WriteKoala("pic.koa");
  const app::Bytes bytes = support::CountingBytes(10003);
  for (const auto& [exactly, last, background, word] :
       {std::tuple{"0", 255, 0, "with File > Read files exactly"},
        {"1", int{bytes[8001]}, bytes[10002] & 15, "without File > Read files exactly"}}) {
    SCOPED_TRACE(exactly);
    status.words.clear();
    settings.Write(kReadFilesExactly, exactly);
    ASSERT_TRUE(files.OpenPicture(koala));
    EXPECT_EQ(document.picture.Bitmap[8000], last);
    EXPECT_EQ(document.picture.BackgroundColour.Number(), background);
    ASSERT_EQ(status.words.size(), 1U);
    EXPECT_TRUE(status.words.back().ends_with(word)) << status.words.back();
  }
  document.picture.Bitmap[5] ^= 1;
  ASSERT_TRUE(files.Save());
  const app::Bytes saved = support::ReadFile(folder / "pic.kvp");
  ASSERT_TRUE(files.Reload());
  EXPECT_EQ(Encode(document.picture), saved);
  EXPECT_TRUE(status.words.back().ends_with("exactly")) << status.words.back();

  support::WriteFile(folder / "pic.gg", EncodeAs(FormatOf(kArtStudioType), document.picture));
  settings.Write(kReadFilesExactly, "0");
  for (const auto& [name, filter] : {std::pair{"pic.gg", kOwnType}, {"pic.koa", kByContentType}}) {
    files.New();
    dialogs.open = ChosenFile{folder / name, filter};
    EXPECT_TRUE(files.Open());
    EXPECT_EQ(document.picture.Bitmap[8000], bytes[8001]) << name;
  }
  support::WriteText(folder / "pic.gg", "no picture");
  EXPECT_FALSE(files.OpenPicture(folder / "pic.gg"));
  EXPECT_TRUE(messages.shown.back().ends_with("it unpacks to less than a picture."));
}

TEST_F(PictureFilesTest, SavingElsewhereMayBeRefusedAndThenNothingChanges) {
  files.OpenPicture(WriteKoala("pic.koa"));
  support::WriteFile(folder / "pic.kvp", {1, 2, 3});
  EXPECT_FALSE(files.Save());  // it would replace another picture, and the answer is no
  EXPECT_EQ(support::ReadFile(folder / "pic.kvp"), (app::Bytes{1, 2, 3}));

  document.picture.Bitmap[5] ^= 1;
  const Document before = document;
  for (const std::string& path :
       {Text("gone/pic.kvp"), std::string("abc"), app::TextFromPath(folders.Gfx()) + ".kvp/x.kvp"}) {
    messages.shown.clear();
    EXPECT_FALSE(files.SaveTo(path)) << path;
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(document.picture, before.picture);
    EXPECT_EQ(document.file.CurrentFilePath, before.file.CurrentFilePath);
    EXPECT_TRUE(document.HasUnsavedWork());
  }
}

TEST_F(PictureFilesTest, AFrameThatOnlyCaseTellsFromAnotherIsNotReplacedUnasked) {
  if (support::kIsWindows) GTEST_SKIP() << "case tells no files apart";
  support::WriteFile(folder / "walk0001.KVP", app::Bytes(10050));
  support::WriteFile(folder / "walk0001.kvp", app::Bytes(10050, 5));
  files.OpenPicture(Text("walk0001.KVP"));
  document.picture.Bitmap[9] = 1;
  EXPECT_FALSE(files.SaveChanges());
  EXPECT_EQ(messages.shown, Lines{Text("walk0001.kvp") + " exists already. Replace it?"});
  EXPECT_EQ(support::ReadFile(folder / "walk0001.kvp"), app::Bytes(10050, 5));
}

TEST_F(PictureFilesTest, ClosingAsksAboutUnsavedWorkAndSavesItByDialog) {
  EXPECT_TRUE(files.MayClose());
  document.picture.Bitmap[9] = 1;
  EXPECT_FALSE(files.MayClose());
  messages.unsaved = app::UnsavedAnswer::kSave;
  EXPECT_FALSE(files.MayClose());  // the save dialog was cancelled
  EXPECT_EQ(dialogs.proposals, Lines{app::TextFromPath(folders.Gfx() / "unnamed.kvp")});
  dialogs.save = Text("kept.kvp");
  EXPECT_TRUE(files.MayClose());
  EXPECT_TRUE(fs::exists(folder / "kept.kvp"));
  EXPECT_EQ(document.file.CurrentFileName, "kept.kvp");
  EXPECT_EQ(settings.values["Settings/FilePath"], app::TextFromPath(folder.Path()));
  EXPECT_TRUE(support::NamesIn(folders.Backup()).empty());
}

TEST(SavedName, ReplacesTheLastFourCharacters) {
  for (const char* path : {"pic.kvp", "pic.txt", "picture", "pic.KVP"}) EXPECT_EQ(SavedName(path), "pic.kvp");
  EXPECT_EQ(SavedName(app::PathFromText("b\u00e4\u00f6\u00fc\u00df")), "b.kvp");  // characters, not bytes
  EXPECT_THROW(SavedName("abc"), std::runtime_error);
  if (support::kIsWindows) return;
  EXPECT_EQ(SavedName("b\x84\x94\x81.koa"), "b\x84\x94\x81.kvp");  // a name in another encoding stays
  EXPECT_EQ(SavedName("b\x84\x94\x81\x84\x94"), "b\x84.kvp");
}

TEST(RecentFiles, KeepTheFiveLastInOrder) {
  support::MapSettings settings;
  RecentFiles recent(settings);
  settings.values["Recent/Recent2"] = "old";  // a gap before it closes
  for (const char* path : {"a", "b", "c", "d", "b", "e"}) recent.Add(path);
  EXPECT_EQ(recent.Paths(), (std::vector<fs::path>{"e", "d", "c", "b", "a"}));
  EXPECT_EQ(settings.values["Recent/Recent5"], "a");
}

}  // namespace
}  // namespace kelvo::files
