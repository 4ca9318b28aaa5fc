#include "ui/windows/frm_frames.h"

#include <QAction>
#include <QKeyEvent>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/windows/frame_look.h"

namespace kelvo::ui {
namespace {

constexpr int kMargin = 2, kFirstFrames = 6, kLeastFrames = 2;

}  // namespace

frmFrames::frmFrames(const app::SettingsStore& settings, QWidget* parent)
    : QWidget(parent),
      list_(settings, this),
      lstFrames_(new QListView(this)),
      hint_(new QLabel("No frames here: <i>Animation &gt; Animation properties</i> says where they are.", lstFrames_)) {
  setObjectName("frmFrames");
  setWindowTitle("Frames");
  lstFrames_->setObjectName("lstFrames");
  lstFrames_->setAccessibleName("Frames");
  lstFrames_->setModel(&list_);
  lstFrames_->setItemDelegate(new FrameLook(lstFrames_));
  lstFrames_->setFlow(QListView::LeftToRight);
  lstFrames_->setWrapping(false);
  lstFrames_->setUniformItemSizes(true);
  lstFrames_->setHorizontalScrollMode(QListView::ScrollPerPixel);
  lstFrames_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  lstFrames_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  lstFrames_->setEditTriggers(QListView::NoEditTriggers);
  lstFrames_->setDragDropMode(QListView::InternalMove);
  lstFrames_->setContextMenuPolicy(Qt::ActionsContextMenu);
  setFocusProxy(lstFrames_);
  hint_->setObjectName("lblNoFrames");
  hint_->setAlignment(Qt::AlignCenter);
  hint_->setWordWrap(true);
  (new QVBoxLayout(lstFrames_->viewport()))->addWidget(hint_);
  const auto go = [this] { Ask(FrameDeed::kGo); };
  connect(lstFrames_, &QListView::clicked, this, go);
  connect(lstFrames_, &QListView::activated, this, go);  // by the Enter of the number pad
  connect(&list_, &FrameList::FrameDropped, this, &frmFrames::MoveAsked, Qt::QueuedConnection);
  AddActions();
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  column->addWidget(lstFrames_);
}

void frmFrames::AddActions() {
  for (const FrameDeedRow& row : kFrameDeeds) {
    auto* action = new QAction(row.text, this);
    action->setObjectName(row.name);
    action->setShortcut(QKeySequence(row.key));
    action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    action->setToolTip(row.tip);
    action->setStatusTip(row.tip);
    lstFrames_->addAction(action);
    connect(action, &QAction::triggered, this, [this, deed = row.deed] { Ask(deed); });
  }
}

int frmFrames::Selected() const {
  const QModelIndex index = lstFrames_->currentIndex();
  return index.isValid() ? list_.NumberAt(index.row()) : 0;
}

void frmFrames::Ask(FrameDeed deed) {
  if (deed == FrameDeed::kEarlier) return AskMove(-1);
  if (deed == FrameDeed::kLater) return AskMove(1);
  if (Selected() != 0 || deed == FrameDeed::kInsert) emit Asked(deed, Selected());
}

void frmFrames::AskMove(int distance) {
  const int to = lstFrames_->currentIndex().row() + distance;
  if (Selected() != 0 && to >= 0 && to < list_.rowCount()) emit MoveAsked(Selected(), list_.NumberAt(to));
}

void frmFrames::Show(const anim::FrameRow& row, std::optional<int> current) {
  const int selected = Selected(), scrolled = lstFrames_->horizontalScrollBar()->value();
  list_.Show(row, current);
  hint_->setVisible(list_.rowCount() == 0);
  if (current && current != current_) {
    Select(*current);
  } else if (!lstFrames_->currentIndex().isValid()) {
    Select(selected);
    lstFrames_->horizontalScrollBar()->setValue(scrolled);
  }
  current_ = current;
}

void frmFrames::Select(int number) {
  lstFrames_->setCurrentIndex(list_.index(list_.RowOf(number)));
}

QSize frmFrames::SizeFor(int frames) const {
  QStyleOptionViewItem option;
  option.initFrom(lstFrames_);
  const QSize item = lstFrames_->itemDelegate()->sizeHint(option, {});
  const int edges = 2 * (kMargin + lstFrames_->frameWidth());
  return {frames * item.width() + edges,
          item.height() + lstFrames_->horizontalScrollBar()->sizeHint().height() + edges};
}

QSize frmFrames::sizeHint() const {
  return SizeFor(kFirstFrames);
}

QSize frmFrames::minimumSizeHint() const {
  return SizeFor(kLeastFrames);
}

// The list's own keys do nothing to the picture; Escape leaves the list.
void frmFrames::keyReleaseEvent(QKeyEvent* event) {
  event->setAccepted(event->key() != Qt::Key_Escape);
}

void frmFrames::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  emit Opened();
}

void frmFrames::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  emit Closed();
}

}  // namespace kelvo::ui
