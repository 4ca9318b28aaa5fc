#include "ui/windows/frm_history.h"

#include <QKeyEvent>
#include <QVBoxLayout>

namespace kelvo::ui {

frmHistory::frmHistory(history::History& steps, QWidget* parent)
    : QWidget(parent), steps_(steps), list_(steps, this), lstSteps_(new QListView(this)) {
  setObjectName("frmHistory");
  setWindowTitle("History");
  lstSteps_->setObjectName("lstSteps");
  lstSteps_->setAccessibleName("Steps");
  lstSteps_->setModel(&list_);
  lstSteps_->setIconSize(StepList::kPictureSize);
  lstSteps_->setUniformItemSizes(true);
  lstSteps_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  setFocusProxy(lstSteps_);
  const auto choose = [this](const QModelIndex& index) { emit StepChosen(index.row()); };
  connect(lstSteps_, &QListView::clicked, this, choose);
  connect(lstSteps_, &QListView::activated, this, choose);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(2, 2, 2, 2);
  column->addWidget(lstSteps_);
}

void frmHistory::Refresh() {
  list_.Refresh();
  ShowCurrent();
}

void frmHistory::StartAfresh() {
  list_.StartAfresh();
  ShowCurrent();
}

QSize frmHistory::sizeHint() const {
  return {330, 200};
}

// The list's own keys do nothing to the picture; Escape leaves the list.
void frmHistory::keyReleaseEvent(QKeyEvent* event) {
  event->setAccepted(event->key() != Qt::Key_Escape);
}

void frmHistory::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  ShowCurrent();
}

// While nobody sees it the list is not laid out: that takes the longer the more steps there are.
void frmHistory::ShowCurrent() {
  if (!isVisible()) return;
  const QModelIndex current = list_.index(steps_.Current());
  lstSteps_->setCurrentIndex(current);
  lstSteps_->scrollTo(current);
}

}  // namespace kelvo::ui
