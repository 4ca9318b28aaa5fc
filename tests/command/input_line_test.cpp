// Typing at the prompt.
#include "command/input_line.h"

#include <gtest/gtest.h>

namespace kelvo::command {
namespace {

TEST(InputLine, TakesOnlyTheCharactersOfTheLanguage) {
  const std::u32string_view typed = U"load pic.prg,8\r\n\\=[`{@/:Z09\t\x1B\xE5\U0001F600\b";
  std::string entered;
  for (const char32_t c : typed) {
    if (const auto key = FilterKey(c)) entered += *key;
  }
  EXPECT_EQ(entered, "LOAD PICPRG,8@Z09\b");
}

TEST(InputLine, ProtectsThePrompt) {
  for (const std::string_view lost : {"", "A", "LOAD PIC", " >VER"}) EXPECT_EQ(KeepPrompt(lost), ">") << lost;
  for (const std::string_view kept : {">", ">VER", "> >"}) EXPECT_EQ(KeepPrompt(kept), kept);
  EXPECT_EQ(KeepCaret(0), 1);
  EXPECT_EQ(KeepCaret(7), 7);
}

TEST(InputLine, SendsTheTrimmedCommandOrNothing) {
  for (const std::string_view none : {">", "  >  ", "> \r \n ", ""})
    EXPECT_EQ(SubmittedLine(none), std::nullopt) << none;
  for (const std::string_view text : {">VER", " >VER\r\n", "> V\rE\nR \r\n "})
    EXPECT_EQ(SubmittedLine(text), "VER") << text;
  EXPECT_EQ(SubmittedLine(">MD A  B"), "MD A  B");
  EXPECT_EQ(SubmittedLine(">>"), ">");
}

}  // namespace
}  // namespace kelvo::command
