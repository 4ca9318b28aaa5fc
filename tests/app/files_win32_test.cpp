// What Windows does to files in its own way.
#include <gtest/gtest.h>
#include <windows.h>

#include "app/path_text.h"
#include "app/whole_file.h"
#include "support/files.h"

namespace kelvo::app {
namespace {

namespace fs = std::filesystem;

// What a save says that fails, if it does; the old file has to be there then, and nothing besides.
std::string Complaint(const support::TempFolder& folder, const fs::path& file) {
  try {
    WriteWholeFile(file, Bytes{2});
    return {};
  } catch (const FileError& error) {
    EXPECT_EQ(support::ReadFile(folder / "picture"), Bytes{1});
    EXPECT_EQ(support::NamesIn(folder.Path()).size(), 1U);
    return error.what();
  }
}

TEST(WholeFile, ThatCannotBeReplacedIsToldAndKept) {
  const support::TempFolder folder;
  const fs::path picture = folder / "picture";
  support::WriteFile(picture, {1});
  for (const char* device : {"NUL", "nul.kvp", "COM1", "con.kvp"}) EXPECT_NE(Complaint(folder, folder / device), "");
  SetFileAttributesW(picture.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_NE(Complaint(folder, picture), "");
  SetFileAttributesW(picture.c_str(), FILE_ATTRIBUTE_HIDDEN);
  HANDLE other = CreateFileW(picture.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  const std::error_code in_use(ERROR_SHARING_VIOLATION, std::system_category());
  EXPECT_NE(Complaint(folder, picture).find(in_use.message()), std::string::npos);
  CloseHandle(other);
  EXPECT_EQ(Complaint(folder, picture), "");
  EXPECT_EQ(support::ReadFile(picture), Bytes{2});
  EXPECT_NE(GetFileAttributesW(picture.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
}

TEST(WholeFile, TakesNamesOfAnyLanguageInAnyCase) {
  const support::TempFolder folder;
  const fs::path file = folder / PathFromText("Bl\u00fcte \u4f60\u597d \U0001F3A8.kvp");
  WriteWholeFile(file, Bytes{1});
  WriteWholeFile(folder / PathFromText("BL\u00dcTE \u4f60\u597d \U0001F3A8.KVP"), Bytes{2});
  EXPECT_EQ(ReadWholeFile(file, 10), Bytes{2});
  EXPECT_EQ(support::NamesIn(folder.Path()).size(), 1U);
}

TEST(PathText, HasThePlatformsSeparatorsAndTakesAnyBytes) {
  EXPECT_EQ(TextFromPath(PathFromText("C:/a b/\u0142.kvp")), "C:\\a b\\\u0142.kvp");
  EXPECT_EQ(TextFromPath(PathFromText("//server/share/x")), "\\\\server\\share\\x");
  EXPECT_EQ(TextFromPath(PathFromText("a\xFF")), "a\uFFFD");
  EXPECT_EQ(TextFromPath(fs::path(std::wstring(1, wchar_t{0xD800}))), "\uFFFD");
}

}  // namespace
}  // namespace kelvo::app
