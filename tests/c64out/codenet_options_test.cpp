// The Codenet window's form as a command line, and in the settings.
#include "c64out/codenet_options.h"

#include <gtest/gtest.h>

#include "c64out/codenet_arguments.h"
#include "support/recorders.h"

namespace kelvo::c64out {
namespace {

struct Choice {
  FileType type;
  bool set_destination;
  ExecuteChoice execute;
  const char* options;
  FileMode mode;  // as the tool understands it

  CodenetForm Form() const { return {"a b.prg", type, set_destination, "C000", execute, "cf00", "127.0.0.1", "", ""}; }
};

constexpr Choice kChoices[] = {
    {FileType::kPrg, false, ExecuteChoice::kExecute, " -n 127.0.0.1 -x [FILE]", FileMode::kRunProgram},
    {FileType::kPrg, false, ExecuteChoice::kExecuteAddress, " -n 127.0.0.1 -w [FILE] -e $cf00", FileMode::kProgram},
    {FileType::kPrg, false, ExecuteChoice::kTransferOnly, " -n 127.0.0.1 -w [FILE]", FileMode::kProgram},
    {FileType::kPrg, true, ExecuteChoice::kExecute, " -n 127.0.0.1 -wa [FILE] $C000", FileMode::kProgramAt},
    {FileType::kPrg, true, ExecuteChoice::kExecuteAddress, " -n 127.0.0.1 -wa [FILE] $C000 -e $cf00",
     FileMode::kProgramAt},
    {FileType::kPrg, true, ExecuteChoice::kTransferOnly, " -n 127.0.0.1 -wa [FILE] $C000", FileMode::kProgramAt},
    {FileType::kBinary, false, ExecuteChoice::kExecuteAddress, " -n 127.0.0.1 -wb [FILE] $C000", FileMode::kBytesAt},
    {FileType::kBinary, true, ExecuteChoice::kExecute, " -n 127.0.0.1 -wb [FILE] $C000", FileMode::kBytesAt},
};

TEST(CodenetOptions, ComposesWhatTheToolUnderstands) {
  for (const Choice& choice : kChoices) {
    SCOPED_TRACE(choice.options);
    const CodenetForm form = choice.Form();
    const ComposedOptions composed = ComposeOptions(form, true);
    EXPECT_EQ(composed.options, choice.options);
    EXPECT_FALSE(composed.incomplete);
    const CodenetArguments parsed = ParseCodenetArguments(CodenetArgumentList(form, form.file));
    EXPECT_EQ(parsed.mode, choice.mode);
    EXPECT_EQ(parsed.file, "a b.prg");
  }
}

// A control is there for what the command holds. An empty or short address is red exactly then, and sent all the same.
TEST(CodenetOptions, AreIncompleteAndOpenWhereTheyHaveASay) {
  for (const Choice& choice : kChoices) {
    SCOPED_TRACE(choice.options);
    const CodenetForm form = choice.Form();
    const std::string options = choice.options;
    const bool prg = choice.type == FileType::kPrg, has_destination = options.find("$C000") != std::string::npos,
               has_execute_address = options.find("$cf00") != std::string::npos;
    EXPECT_EQ(EnabledControls(form),
              (CodenetControls{prg, has_destination, prg && !choice.set_destination, prg, prg, has_execute_address}));
    for (const char* address : {"", "C00", "C0000", "\xC3\xA9\xC3\xA9"}) {
      CodenetForm bad = form;
      bad.destination = address;
      EXPECT_EQ(ComposeOptions(bad, true).incomplete, has_destination);
      bad = form;
      bad.execute_address = address;
      EXPECT_EQ(ComposeOptions(bad, true).incomplete, has_execute_address);
    }
    EXPECT_TRUE(ComposeOptions(form, false).incomplete);
    CodenetForm nowhere = form;
    nowhere.host = "  ";
    EXPECT_TRUE(ComposeOptions(nowhere, true).incomplete);
  }
}

TEST(CodenetOptions, TrimThreeFieldsAndKeepTheRestAsTyped) {
  CodenetForm form = Choice{FileType::kPrg, true, ExecuteChoice::kExecuteAddress, "", {}}.Form();
  form.host = " 127.0.0.1 ";
  form.port = " 6000 ";
  form.destination = " C00 ";
  form.execute_address = "1; a";
  EXPECT_EQ(ComposeOptions(form, true).options, " -n 127.0.0.1 -p 6000 -wa [FILE] $C00 -e $1; a");
  EXPECT_EQ(CodenetArgumentList(form, "x").back(), "$1; a");
}

TEST(CodenetSettings, KeepTheFormInTheirOwnForms) {
  support::MapSettings settings;
  EXPECT_EQ(LoadCodenetForm(settings), CodenetForm());
  for (const Choice& choice : kChoices) {
    SaveCodenetForm(settings, choice.Form());
    EXPECT_EQ(LoadCodenetForm(settings), choice.Form());
  }
  CodenetForm form = kChoices[7].Form();
  form.host = " 127.0.0.2 ";
  form.port = "6000";
  form.prg_name = " PIC ";
  SaveCodenetForm(settings, form);
  const std::map<std::string, std::string> expected{
      {"CodenetGUI/SendFile", "a b.prg"},   {"CodenetGUI/FileType", "BIN"},
      {"CodenetGUI/SetDestAddress", "1"},   {"CodenetGUI/DestAddress", "C000"},
      {"CodenetGUI/SetExecute", "True"},    {"CodenetGUI/SetExecuteAddress", "False"},
      {"CodenetGUI/TransferOnly", "False"}, {"CodenetGUI/ExecuteAddress", "cf00"},
      {"CodenetGUI/C64IP", "127.0.0.2"},    {"CodenetGUI/Port", "6000"},
      {"CodenetGUI/PRGName", "PIC"},
  };
  EXPECT_EQ(settings.values, expected);
  settings.values["CodenetGUI/FileType"] = "?";
  settings.values["CodenetGUI/SetDestAddress"] = "x";
  settings.values["CodenetGUI/SetExecute"] = "perhaps";
  const CodenetForm loaded = LoadCodenetForm(settings), none;
  EXPECT_EQ(loaded.file_type, none.file_type);
  EXPECT_EQ(loaded.set_destination, none.set_destination);
  EXPECT_EQ(loaded.execute, none.execute);
}

}  // namespace
}  // namespace kelvo::c64out
