#include "ui/desks/command_desk.h"

#include "command/process_command.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

void CommandDesk::Process(const QString& line) {
  last_ = line;
  const command::AnimationSwitch animation{[this] {
                                             animation_.Mode().ToggleAnimMode();
                                             return animation_.Mode().IsAnimModeChecked();
                                           },
                                           [this](bool on) { animation_.Mode().SetAnimFlag(on); }};
  const command::ImageImport images{
      [this] { imports_.Import(); },
      [this](const std::filesystem::path& image) { return imports_.ImportAsProposed(image); }};
  command::ProcessCommand(FromQt(line), with_, animation, images);
}

}  // namespace kelvo::ui
