#include "ui/windows/frm_command.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "command/input_line.h"
#include "ui/ports/qt_text.h"

namespace kelvo::ui {

frmCommand::frmCommand(PromptLines& lines, QWidget* parent)
    : QWidget(parent), lstHistory_(new QListView(this)), txtCommand_(new PromptLine(this)) {
  setObjectName("frmCommand");
  setWindowTitle("Command prompt");
  const QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  lstHistory_->setObjectName("lstHistory");
  lstHistory_->setAccessibleName("Replies");
  lstHistory_->setFont(font);
  lstHistory_->setMinimumHeight(1);
  lstHistory_->setModel(&lines);
  lstHistory_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  lstHistory_->setUniformItemSizes(true);
  lstHistory_->setFocusProxy(txtCommand_);
  connect(&lines, &PromptLines::Added, lstHistory_, [this](const QModelIndex& last) {
    lstHistory_->setCurrentIndex(last);
    lstHistory_->scrollTo(last);
  });
  txtCommand_->setObjectName("txtCommand");
  txtCommand_->setAccessibleName("Command");
  txtCommand_->setFont(font);
  setFocusProxy(txtCommand_);
  connect(txtCommand_, &PromptLine::EnterReleased, this, &frmCommand::Submit);
  connect(txtCommand_, &PromptLine::EscapeReleased, this, &frmCommand::FocusGivenBack);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(2, 2, 2, 2);
  column->setSpacing(2);
  column->addWidget(lstHistory_);
  column->addWidget(txtCommand_);
}

QSize frmCommand::sizeHint() const {
  return {330, 130};
}

// Three replies above the line.
QSize frmCommand::minimumSizeHint() const {
  const QFontMetrics metrics(txtCommand_->font());
  return {metrics.averageCharWidth() * 24, 3 * metrics.lineSpacing() + txtCommand_->sizeHint().height() + 8};
}

void frmCommand::keyReleaseEvent(QKeyEvent* event) {
  event->accept();
  if (event->key() == Qt::Key_Escape) emit FocusGivenBack();
}

void frmCommand::Submit() {
  const auto line = command::SubmittedLine(FromQt(txtCommand_->text()));
  txtCommand_->Reset();
  if (line) {
    emit CommandSubmitted(ToQt(*line));
    txtCommand_->Reset();
    return;
  }
  QCoreApplication::processEvents();
  emit FocusGivenBack();
}

}  // namespace kelvo::ui
