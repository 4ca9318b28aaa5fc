#include "ui/desks/animation_desk.h"

#include <QScopedValueRollback>
#include <utility>

#include "anim/anim_settings.h"
#include "files/load_picture.h"
#include "ui/ports/qt_text.h"
#include "ui/windows/frm_anim_properties.h"
#include "ui/windows/window_places.h"

namespace kelvo::ui {

AnimationDesk::AnimationDesk(const files::PictureSurroundings& with, QMainWindow& frame, WindowDesk& windows,
                             frmBMPView& full_view, frmZoom& zoom)
    : with_(with),
      frame_(frame),
      windows_(windows),
      full_view_(full_view),
      zoom_(zoom),
      mode_(with, *this),
      navigation_(with) {
  turn_.setSingleShot(true);
  turn_.setTimerType(Qt::PreciseTimer);
  connect(&turn_, &QTimer::timeout, this, &AnimationDesk::PlayTurn);
}

void AnimationDesk::ShowProperties() {
  frmAnimProperties(with_.settings, &frame_).exec();
  ShowFrame();
}

void AnimationDesk::ShowCheckMark(bool) {
  emit CheckMarkChanged();
}

void AnimationDesk::ShowStatus(std::string_view text) {
  emit StatusChanged(ToQt(text));
}

void AnimationDesk::ShowFrameWindow() {
  if (frame_window_ == nullptr) MakeFrameWindow();
  ShowFrame();
  frame_window_->show();
}

void AnimationDesk::MakeFrameWindow() {
  frame_window_ = new frmAnim(&frame_);
  windows_.Floating().Place(*frame_window_, ReadFrameWindowPlace(with_.settings));
  frame_window_->SetPlayRate(anim::ReadPlayRate(with_.settings));
  frame_window_->SetOnionSkin(anim::ReadOnionSkin(with_.settings));
  connect(frame_window_, &frmAnim::MoveAsked, this,
          [this](anim::FrameMove move) { Change([this, move] { return navigation_.Move(move); }); });
  connect(frame_window_, &frmAnim::NumberTyped, this,
          [this](const QString& number) { Move([&] { return navigation_.GoTo(FromQt(number)); }); });
  connect(frame_window_, &frmAnim::PlayAsked, this, &AnimationDesk::TogglePlay);
  connect(frame_window_, &frmAnim::PlayWindowAsked, this, &AnimationDesk::ShowPlayWindow);
  connect(frame_window_, &frmAnim::PlayRateChanged, this, [this](int rate) {
    anim::KeepPlayRate(with_.settings, rate);
    PlayingChanged();
  });
  connect(frame_window_, &frmAnim::OnionSkinChanged, this, [this](bool on) {
    anim::KeepOnionSkin(with_.settings, on);
    ShowOnionSkin();
  });
  connect(frame_window_, &frmAnim::KeyReleased, this, &AnimationDesk::KeyReleased);
  connect(frame_window_, &frmAnim::Closed, this, [this](QPoint at) {
    StopPlay();
    delete play_window_;
    frame_window_->disconnect(this);  // until it is deleted it may be closed again
    std::exchange(frame_window_, nullptr)->deleteLater();
    zoom_.SetOnionSkin({});
    KeepFrameWindowPlace(with_.settings, at);
    mode_.FrameWindowUnloaded();
  });
}

void AnimationDesk::UnloadFrameWindow() {
  if (frame_window_ != nullptr) frame_window_->close();
}

void AnimationDesk::Move(const std::function<std::string()>& move) {
  const QScopedValueRollback moving(is_moving_, true);
  const std::string word = move();
  if (!word.empty()) emit Word(ToQt(word));
  ShowFrame();
}

void AnimationDesk::GoTo(int number) {
  Change([this, number] { return navigation_.GoTo(std::to_string(number)); });
}

void AnimationDesk::Change(const std::function<std::string()>& change) {
  StopPlay();
  Move(change);
}

void AnimationDesk::FileChanged() {
  if (!is_moving_) ShowFrame();
}

void AnimationDesk::ShowFrame() {
  if (frame_window_ != nullptr || tints_changes_) navigation_.Refresh();
  if (frame_window_ != nullptr) {
    const auto current = navigation_.CurrentFrame();
    frame_window_->ShowFrame(current ? QString::number(*current) : QString(), navigation_.Row().Count());
    ShowOnionSkin();
  }
  ShowChangedCells();
  emit FrameShown();
}

void AnimationDesk::ShowOnionSkin() {
  if (frame_window_ == nullptr) return;
  const anim::OnionFrames frames = anim::ReadOnionFrames(with_.settings);
  model::OnionSkin skin{{}, anim::ReadOnionStrength(with_.settings)};
  const auto add = [&skin](const std::optional<model::PictureImage>& picture) {
    if (picture) skin.pictures.push_back(*picture);
  };
  if (anim::ReadOnionSkin(with_.settings)) {
    if (frames != anim::OnionFrames::kAfter) add(navigation_.PictureBefore());
    if (frames != anim::OnionFrames::kBefore) add(navigation_.PictureAfter());
  }
  zoom_.SetOnionSkin(std::move(skin));
}

void AnimationDesk::ToggleChangedCells() {
  tints_changes_ = !tints_changes_;
  ShowFrame();
  if (!tints_changes_) zoom_.ShowChangesFrom(std::nullopt);
}

// A picture that is no frame has none before it.
void AnimationDesk::ShowChangedCells() {
  if (tints_changes_) {
    zoom_.ShowChangesFrom(navigation_.CurrentFrame() ? navigation_.PictureBefore() : std::nullopt);
  }
}

void AnimationDesk::PlayingChanged() {
  if (frame_window_ != nullptr) frame_window_->SetPlayRate(anim::ReadPlayRate(with_.settings));
  if (player_) StartPlay();
}

// The frames play in it as well, from now on; it stays when they stop.
void AnimationDesk::ShowPlayWindow() {
  if (play_window_ == nullptr) play_window_ = new frmPlayer(&frame_);
  play_window_->show();
  play_window_->raise();
  if (!player_) StartPlay();
}

void AnimationDesk::ShowTurn(const model::PictureImage& picture) {
  full_view_.ShowPreview(&picture);
  if (play_window_ != nullptr) play_window_->ShowPicture(picture);
}

void AnimationDesk::TogglePlay() {
  player_ ? StopPlay() : StartPlay();
}

// From the first frame on, also while frames are playing already.
void AnimationDesk::StartPlay() {
  navigation_.Refresh();
  player_.emplace(anim::FramesToPlay(navigation_.Row(), Times()), frame_window_->PlayRate(),
                  files::ReadingBy(with_.settings), anim::ReadPlaying(with_.settings));
  if (player_->IsEmpty()) {
    StopPlay();
    emit Word(anim::kNoFrames);
    return;
  }
  frame_window_->ShowPlaying(true);
  playing_since_.start();
  PlayTurn();
}

// A list that is wrong is named; then each frame has one turn.
anim::FrameTimes AnimationDesk::Times() {
  try {
    return anim::ReadFrameTimes(navigation_.Names());
  } catch (const std::runtime_error& error) {
    emit Word(ToQt(error.what()));
    return {};
  }
}

void AnimationDesk::StopPlay() {
  if (!player_) return;
  turn_.stop();
  player_.reset();
  frame_window_->ShowPlaying(false);
  full_view_.ShowPreview(nullptr);
}

void AnimationDesk::PlayTurn() {
  const auto now = [this] { return anim::FramePlayer::Milliseconds(playing_since_.elapsed()); };
  if (player_->IsOver(now())) return StopPlay();
  if (const model::PictureImage* picture = player_->Due(now())) ShowTurn(*picture);
  player_->ReadAhead();
  turn_.start(player_->UntilNext(now()));
}

}  // namespace kelvo::ui
