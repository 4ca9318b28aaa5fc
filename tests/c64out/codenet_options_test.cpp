// The Codenet window's form as a command line, and in the settings.
#include "c64out/codenet_options.h"

#include <gtest/gtest.h>

#include "c64out/codenet_arguments.h"
#include "support/recorders.h"

namespace kelvo::c64out {
namespace {

CodenetForm Form(FileType type, bool set_destination, ExecuteChoice execute) {
  CodenetForm form;
  form.file_type = type;
  form.set_destination = set_destination;
  form.execute = execute;
  form.host = "127.0.0.1";
  form.destination = "C000";
  form.execute_address = "cf00";
  return form;
}

struct Choice {
  FileType type;
  bool set_destination;
  ExecuteChoice execute;
  const char* options;
  FileMode mode;  // as the tool understands it
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
    const CodenetForm form = Form(choice.type, choice.set_destination, choice.execute);
    const ComposedOptions composed = ComposeOptions(form, true);
    EXPECT_EQ(composed.options, choice.options);
    EXPECT_FALSE(composed.incomplete);
    const CodenetArguments parsed = ParseCodenetArguments(CodenetArgumentList(form, "a b.prg"));
    EXPECT_EQ(parsed.mode, choice.mode);
    EXPECT_EQ(parsed.file, "a b.prg");
  }
}

// A control is there for what the command holds. An empty or short address is red exactly then, and sent all the same.
TEST(CodenetOptions, AreIncompleteAndOpenWhereTheyHaveASay) {
  for (const Choice& choice : kChoices) {
    SCOPED_TRACE(choice.options);
    const CodenetForm form = Form(choice.type, choice.set_destination, choice.execute);
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
  CodenetForm form = Form(FileType::kPrg, true, ExecuteChoice::kExecuteAddress);
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
    CodenetForm form = Form(choice.type, choice.set_destination, choice.execute);
    form.file = "a b.prg";
    form.port = "6000";
    SaveCodenetForm(settings, form);
    EXPECT_EQ(LoadCodenetForm(settings), form);
  }
  CodenetForm form = Form(FileType::kBinary, true, ExecuteChoice::kExecute);
  form.host = " 127.0.0.2 ";
  form.prg_name = " PIC ";
  SaveCodenetForm(settings, form);
  const std::map<std::string, std::string> expected{
      {"CodenetGUI/SendFile", ""},          {"CodenetGUI/FileType", "BIN"},
      {"CodenetGUI/SetDestAddress", "1"},   {"CodenetGUI/DestAddress", "C000"},
      {"CodenetGUI/SetExecute", "True"},    {"CodenetGUI/SetExecuteAddress", "False"},
      {"CodenetGUI/TransferOnly", "False"}, {"CodenetGUI/ExecuteAddress", "cf00"},
      {"CodenetGUI/C64IP", "127.0.0.2"},    {"CodenetGUI/Port", ""},
      {"CodenetGUI/PRGName", "PIC"},
  };
  EXPECT_EQ(settings.values, expected);
  settings.values["CodenetGUI/FileType"] = "?";
  settings.values["CodenetGUI/SetDestAddress"] = "x";
  settings.values["CodenetGUI/SetExecute"] = "perhaps";
  const CodenetForm loaded = LoadCodenetForm(settings);
  EXPECT_EQ(loaded.file_type, FileType::kPrg);
  EXPECT_FALSE(loaded.set_destination);
  EXPECT_EQ(loaded.execute, ExecuteChoice::kTransferOnly);
}

}  // namespace
}  // namespace kelvo::c64out
