#include "ui/widgets/paint_tool_bar.h"

#include <QToolButton>

#include "model/cell_view.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/icons.h"

namespace kelvo::ui {
namespace {

constexpr int kCopySide = 32, kCopyBox = 4;

// As a menu shows it: the tool's key is marked in its caption, where that has it, and stands behind it. A shortcut it
// is not, which would take the letter from the prompt's line.
QString MenuText(const editing::ToolRow& row) {
  QString text = ToQt(row.caption);
  const auto place = text.indexOf(QChar(row.key), 0, Qt::CaseInsensitive);
  text.insert(place < 0 ? 4 : place, '&');
  return text + '\t' + row.key;
}

}  // namespace

PaintToolBar::PaintToolBar(QWidget* parent)
    : QToolBar("Tools", parent),
      tools_(new QActionGroup(this)),
      copy_(kCopySide, kCopySide),
      picCopy_(new SurfaceView(copy_, kCopyBox, this)) {
  setObjectName("Toolbar1");
  setIconSize({24, 24});
  for (const editing::ToolRow& row : editing::ToolTable()) {
    QAction* action = addAction(IconNamed(ToQt(row.name)), MenuText(row));
    action->setIconText(ToQt(row.caption));
    action->setObjectName("tool_" + ToQt(row.name));
    action->setCheckable(true);
    action->setToolTip(QString("%1 (%2)").arg(ToQt(row.caption)).arg(QChar(row.key)));
    action->setStatusTip(action->toolTip());
    tools_->addAction(action);
    connect(action, &QAction::triggered, this, [this, id = row.id] { emit ToolChosen(id); });
  }
  addSeparator();
  picCopy_->setObjectName("picCopy");
  picCopy_->setFocusPolicy(Qt::NoFocus);
  picCopy_->setAccessibleName("Copied cell");
  picCopy_->setToolTip("The cell that Mouse copy puts down: right button takes, left button puts");
  addWidget(picCopy_);
  if (auto* more = findChild<QToolButton*>("qt_toolbar_ext_button")) more->setAccessibleName("More tools");
  ShowTool(editing::ToolId::kDraw);
}

void PaintToolBar::ShowTool(editing::ToolId tool) {
  tools_->actions().at(static_cast<int>(tool))->setChecked(true);
}

void PaintToolBar::ShowCopy(const model::DetachedCell& cell, model::C64Colour background) {
  model::DrawCharCopy(cell, background, copy_);
  picCopy_->Refresh();
}

}  // namespace kelvo::ui
