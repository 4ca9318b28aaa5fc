// The form of the Codenet window: the command line that it stands for, and how it is kept.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/settings_store.h"
#include "c64out/output_settings.h"

namespace kelvo::c64out {

enum class FileType { kPrg, kBinary };
enum class ExecuteChoice { kExecute, kExecuteAddress, kTransferOnly };

// The values of the window's controls. Texts are as they were typed; addresses have no "$".
struct CodenetForm {
  std::string file;
  FileType file_type = FileType::kPrg;
  bool set_destination = false;
  std::string destination;
  ExecuteChoice execute = ExecuteChoice::kTransferOnly;
  std::string execute_address;
  std::string host{kDefaultC64Address};
  std::string port;      // empty: the tool's own
  std::string prg_name;  // for the picture's preview on the C64; no part of the command line

  friend bool operator==(const CodenetForm&, const CodenetForm&) = default;
};

// `form` with those fields trimmed that the window trims in place: port, destination and host.
CodenetForm WithTrimmedFields(CodenetForm form);

inline constexpr std::string_view kFilePlace = "[FILE]";

// The tool's arguments, one text each whatever it contains, to start it without a shell in between. `file` is the path,
// or what stands for it.
std::vector<std::string> CodenetArgumentList(const CodenetForm& form, std::string_view file = kFilePlace);

struct ComposedOptions {
  std::string options;  // each argument with a blank in front, kFilePlace for the file
  bool incomplete;      // a needed field is empty, an address has not exactly four characters, or the file is missing
};

ComposedOptions ComposeOptions(const CodenetForm& form, bool file_exists);

// Which controls have a say in the options at present; the others are switched off.
struct CodenetControls {
  bool set_destination, destination;
  bool execute, execute_at_address, transfer_only;  // the three choices
  bool execute_address;                             // the field

  friend bool operator==(const CodenetControls&, const CodenetControls&) = default;
};

CodenetControls EnabledControls(const CodenetForm& form);

// The section "CodenetGUI" of the settings. Stored nonsense counts as the default.
CodenetForm LoadCodenetForm(const app::SettingsStore& settings);
void SaveCodenetForm(app::SettingsStore& settings, const CodenetForm& form);

}  // namespace kelvo::c64out
