#include "ui/windows/frm_anim.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QRegularExpressionValidator>
#include <QVBoxLayout>

#include "anim/anim_settings.h"

namespace kelvo::ui {
namespace {

struct ButtonRow {
  anim::FrameMove move;
  const char* caption;
  const char* tip;
};

// "Previous" stands twice: the second one leads back to the frame that was shown before.
constexpr std::array<ButtonRow, 4> kButtons{{
    {anim::FrameMove::kPrevious, "Previous", "One frame back in the row: the number before this one"},
    {anim::FrameMove::kNext, "Next", "The frame after this one; behind the last it offers to make one"},
    {anim::FrameMove::kBack, "Previous", "Back to the frame that you saw before this one, whatever its number"},
    {anim::FrameMove::kFirst, "First", "The first frame"},
}};

QWidget* Row(QWidget* parent, std::initializer_list<QWidget*> widgets) {
  auto* box = new QWidget(parent);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  for (QWidget* widget : widgets) row->addWidget(widget);
  row->addStretch();
  return box;
}

}  // namespace

frmAnim::frmAnim(QWidget* parent)
    : QWidget(parent, Qt::Tool),
      txtFrame_(new QLineEdit(this)),
      count_(new QLabel(this)),
      cmdPlay_(new QPushButton(this)),
      rate_(new QSpinBox(this)),
      onion_skin_(new QCheckBox("&Onion skin", this)) {
  setObjectName("frmAnim");
  setWindowTitle(" Animation");
  auto* column = new QVBoxLayout(this);
  column->addWidget(MakeButtons());
  column->addWidget(MakeNumber());
  column->addWidget(MakePlayer());
  column->setSizeConstraint(QLayout::SetFixedSize);
  onion_skin_->setObjectName("chkOnionSkin");
  onion_skin_->setToolTip("The previous frame shines through in the zoom window");
  connect(onion_skin_, &QCheckBox::toggled, this, &frmAnim::OnionSkinChanged);
}

QWidget* frmAnim::MakeButtons() {
  auto* box = new QWidget(this);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(0, 0, 0, 0);
  for (std::size_t i = 0; i < kButtons.size(); ++i) {
    auto* button = new QPushButton(kButtons[i].caption, box);
    button->setObjectName(QString("cmdStd_%1").arg(i));
    button->setToolTip(kButtons[i].tip);
    button->setAccessibleDescription(kButtons[i].tip);
    button->setAutoDefault(false);
    row->addWidget(button);
    connect(button, &QPushButton::clicked, this, [this, move = kButtons[i].move] { emit MoveAsked(move); });
  }
  return box;
}

QWidget* frmAnim::MakeNumber() {
  auto* label = new QLabel("&Current frame", this);
  label->setBuddy(txtFrame_);
  txtFrame_->setObjectName("txtFrame");
  txtFrame_->setAccessibleName("Current frame");
  txtFrame_->setValidator(new QRegularExpressionValidator(QRegularExpression("[0-9]{0,4}"), txtFrame_));
  txtFrame_->setFixedWidth(fontMetrics().horizontalAdvance("00000000"));
  count_->setObjectName("lblCount");
  connect(txtFrame_, &QLineEdit::returnPressed, this, [this] { emit NumberTyped(txtFrame_->text()); });
  return Row(this, {label, txtFrame_, count_});
}

QWidget* frmAnim::MakePlayer() {
  cmdPlay_->setObjectName("cmdPlay");
  cmdPlay_->setAutoDefault(false);
  ShowPlaying(false);
  rate_->setObjectName("spnRate");
  rate_->setAccessibleName("Frames a second");
  rate_->setRange(anim::kSlowestRate, anim::kFastestRate);
  rate_->setSuffix(" a second");
  connect(cmdPlay_, &QPushButton::clicked, this, &frmAnim::PlayAsked);
  connect(rate_, &QSpinBox::valueChanged, this, &frmAnim::PlayRateChanged);
  auto* window = new QPushButton("In a &window", this);
  window->setObjectName("cmdPlayWindow");
  window->setAutoDefault(false);
  window->setToolTip("Play the frames in a window that can be made as large as you like");
  connect(window, &QPushButton::clicked, this, &frmAnim::PlayWindowAsked);
  return Row(this, {cmdPlay_, window, rate_, onion_skin_});
}

void frmAnim::ShowFrame(const QString& current, int count) {
  txtFrame_->setText(current);
  count_->setText(count == 1 ? QString("of 1 frame") : QString("of %1 frames").arg(count));
}

void frmAnim::ShowPlaying(bool playing) {
  cmdPlay_->setText(playing ? "&Stop" : "&Play");
}

// The arrows lead from button to button, and a number field takes every key but letters.
bool frmAnim::Uses(int key) const {
  if (key == Qt::Key_Escape || (key >= Qt::Key_A && key <= Qt::Key_Z)) return false;
  return txtFrame_->hasFocus() || rate_->hasFocus() || (key >= Qt::Key_Left && key <= Qt::Key_Down);
}

void frmAnim::keyReleaseEvent(QKeyEvent* event) {
  if (!Uses(event->key())) emit KeyReleased(event);
}

void frmAnim::closeEvent(QCloseEvent* event) {
  emit Closed(geometry().topLeft());
  event->accept();
}

}  // namespace kelvo::ui
