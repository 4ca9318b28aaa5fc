#include "ui/windows/release_dialog.h"

#include <QHeaderView>
#include <QTableView>
#include <QVBoxLayout>
#include <utility>

#include "files/load_picture.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/dialog_buttons.h"
#include "ui/windows/background_work.h"

namespace kelvo::ui {
namespace {

constexpr QSize kDialogSize(560, 480);

QLabel* MakeLabel(const char* name, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(name);
  label->setWordWrap(true);
  return label;
}

QTableView* MakeTable(ReleaseTable* model, QWidget* parent) {
  auto* view = new QTableView(parent);
  view->setObjectName("tblChanges");
  view->setModel(model);
  view->setSelectionMode(QAbstractItemView::NoSelection);
  view->verticalHeader()->hide();
  view->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  view->verticalHeader()->setDefaultSectionSize(view->fontMetrics().height() + 4);
  view->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  return view;
}

// "16 frames, of which 12 fit, with 24306 of 40128 bytes. The slowest allows 6 frames a second."
QString Summary(const c64out::Release& release) {
  const auto frames = static_cast<int>(release.fields.size());
  const int fit = c64out::FramesThatFit(release), rate = c64out::FastestRate(release);
  const QString fitting = fit == frames ? QString("all fit") : QString("the first %1 fit").arg(fit);
  return QString("Frames: %1, %2. Bytes: %3 of %4. %5")
      .arg(frames)
      .arg(fitting)
      .arg(c64out::BytesOf(release))
      .arg(c64anim::Animation::kRoom)
      .arg(rate == 0 ? QString("The slowest frame takes more than a second.")
                     : QString("The slowest frame allows %1 frames a second.").arg(rate));
}

}  // namespace

ReleaseDialog::ReleaseDialog(anim::AnimationFrames animation, app::SettingsStore& settings, QWidget* parent)
    : QDialog(parent),
      animation_(std::move(animation)),
      settings_(settings),
      lblFrames_(MakeLabel("lblFrames", this)),
      lblNotes_(MakeLabel("lblNotes", this)),
      lblAdvice_(MakeLabel("lblAdvice", this)),
      table_(new ReleaseTable(this)),
      chkBackground_(new QCheckBox("Change the &background at that frame", this)) {
  setObjectName("frmRelease");
  setWindowTitle("Animation for the C64");
  auto* form = new QFormLayout;
  playback_ = new PlaybackChoice(settings, form, this);
  chkBackground_->setObjectName("chkBackground");
  auto* buttons = MakeDialogButtons("&Create", this);
  cmdBuild_ = buttons->button(QDialogButtonBox::Ok);
  auto* column = new QVBoxLayout(this);
  column->addLayout(form);
  column->addWidget(lblFrames_);
  column->addWidget(MakeTable(table_, this));
  column->addWidget(lblNotes_);
  column->addWidget(chkBackground_);
  column->addWidget(lblAdvice_);
  column->addWidget(buttons);
  resize(kDialogSize);
  connect(playback_, &PlaybackChoice::Changed, this, &ReleaseDialog::MakeAnew);
  connect(chkBackground_, &QCheckBox::toggled, this, [this](bool on) {
    release_->wishes.changes_background = on;
    ShowRelease();
  });
}

std::optional<c64out::Release> ReleaseDialog::Ask() {
  if (!MakeRelease()) return std::nullopt;
  chkBackground_->setVisible(c64out::HasOtherBackgrounds(*release_));
  ShowRelease();
  const bool wanted = exec() == QDialog::Accepted;
  if (failure_) std::rethrow_exception(failure_);
  if (!wanted) return std::nullopt;
  playback_->Keep(settings_);
  return std::move(release_);
}

// False when the user stopped it.
bool ReleaseDialog::MakeRelease() {
  const c64out::ReleaseWishes wishes{.rate = playback_->Rate(),
                                     .playing = playback_->Playing(),
                                     .changes_background = chkBackground_->isChecked(),
                                     .reading = files::ReadingBy(settings_)};
  return DoWatched(isVisible() ? this : parentWidget(), "Reading the frames",
                   [&](app::Progress& progress) { release_ = c64out::MakeRelease(animation_, wishes, progress); });
}

void ReleaseDialog::MakeAnew() {
  try {
    MakeRelease() ? ShowRelease() : reject();
  } catch (const std::exception&) {
    failure_ = std::current_exception();
    reject();
  }
}

void ReleaseDialog::ShowRelease() {
  const std::string refusal = c64out::Refusal(*release_), advice = c64out::Advice(*release_);
  QStringList notes;
  for (const std::string& note : c64out::Notes(*release_)) notes << ToQt(note);
  lblFrames_->setText(Summary(*release_));
  table_->Show(c64out::RowsOf(*release_));
  lblNotes_->setText(notes.join('\n'));
  lblNotes_->setHidden(notes.isEmpty());
  lblAdvice_->setText(ToQt(refusal + (refusal.empty() || advice.empty() ? "" : " ") + advice));
  lblAdvice_->setHidden(lblAdvice_->text().isEmpty());
  cmdBuild_->setEnabled(refusal.empty());
}

}  // namespace kelvo::ui
