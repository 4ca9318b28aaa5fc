// The menus of choices that belong to animation: what follows the last frame, and what shines through.
#pragma once

#include <QMenu>
#include <QObject>

#include "ui/desks/animation_desk.h"
#include "ui/widgets/choice_menu.h"

namespace kelvo::ui {

class AnimationChoices : public QObject {
  Q_OBJECT

 public:
  struct Menus {
    QMenu *play, *onion_frames, *onion_strength;
  };

  // Fills the menus and checks what the settings say. Settings and `animation` outlive it.
  AnimationChoices(const Menus& menus, app::SettingsStore& settings, AnimationDesk& animation);
};

}  // namespace kelvo::ui
