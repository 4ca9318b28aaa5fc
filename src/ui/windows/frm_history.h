// The history: every step with a small picture; a click goes there.
#pragma once

#include <QListView>
#include <QWidget>

#include "ui/windows/step_list.h"

namespace kelvo::ui {

class frmHistory : public QWidget {
  Q_OBJECT

 public:
  // `steps` outlives the window.
  frmHistory(history::History& steps, QWidget* parent);

  void Refresh();
  // Steps are others than before, or look otherwise.
  void StartAfresh();

  QSize sizeHint() const override;

 signals:
  void StepChosen(int step);

 protected:
  void keyReleaseEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void ShowCurrent();

  history::History& steps_;
  StepList list_;
  QListView* lstSteps_;
};

}  // namespace kelvo::ui
