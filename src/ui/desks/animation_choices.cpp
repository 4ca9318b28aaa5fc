#include "ui/desks/animation_choices.h"

#include "anim/anim_settings.h"

namespace kelvo::ui {

AnimationChoices::AnimationChoices(const Menus& menus, app::SettingsStore& settings, AnimationDesk& animation) {
  auto* play = new ChoiceMenu(menus.play, {"&Once", "&Round and round", "&To and fro"});
  auto* frames = new ChoiceMenu(menus.onion_frames, {"The frame &before", "The frame &after", "B&oth"});
  auto* strength = new ChoiceMenu(menus.onion_strength, {"&25 %", "&50 %", "&75 %"});
  const auto show_playing = [play, &settings] { play->Check(static_cast<int>(anim::ReadPlaying(settings))); };
  show_playing();
  connect(menus.play, &QMenu::aboutToShow, this, show_playing);  // dialogs change it, too
  frames->Check(static_cast<int>(anim::ReadOnionFrames(settings)));
  strength->Check(anim::ReadOnionStrength(settings) - model::OnionSkin::kFaintest);
  connect(play, &ChoiceMenu::Chosen, this, [&settings, &animation](int index) {
    anim::KeepPlaying(settings, static_cast<anim::Playing>(index));
    animation.PlayingChanged();
  });
  connect(frames, &ChoiceMenu::Chosen, this, [&settings, &animation](int index) {
    anim::KeepOnionFrames(settings, static_cast<anim::OnionFrames>(index));
    animation.ShowOnionSkin();
  });
  connect(strength, &ChoiceMenu::Chosen, this, [&settings, &animation](int index) {
    anim::KeepOnionStrength(settings, index + model::OnionSkin::kFaintest);
    animation.ShowOnionSkin();
  });
}

}  // namespace kelvo::ui
