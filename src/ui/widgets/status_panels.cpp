#include "ui/widgets/status_panels.h"

#include <QFontMetrics>
#include <QHBoxLayout>
#include <algorithm>

#include "ui/ports/qt_text.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/panel_flow.h"
#include "ui/widgets/unsaved_mark.h"

namespace kelvo::ui {
namespace {

constexpr int kSizeGrip = 24;  // and what else is not for panels
constexpr int kWordMilliseconds = 15000, kWarningMilliseconds = 30000;

struct PanelRow {
  const char* name;
  const char* first_text;
  const char* widest_text;
};

constexpr PanelRow kWords{"pnlWord", "", "Draw every pixel that shows the background color with the background"};

constexpr std::array<PanelRow, 7> kPanels{{
    {"pnlBuilding", "Building... (Escape stops)", "Building... (Escape stops)"},
    {"pnlFile", "[unnamed]", "a picture name.kvp"},
    {"pnlTool", "DRAW", "SET STARTING POINT"},
    {"pnlBlockFill", "BF=OFF", "BF=OFF"},
    {"pnlAnimation", "ANIM=OFF", "ANIM=OFF"},
    {"pnlPointer", "", "x=160 y=200 col=40 row=25"},
    {"pnlZoom", "4:1", "Zoom 8:1"},
}};

ElidedLabel* MakePanel(const PanelRow& row, QWidget* parent) {
  auto* label = new ElidedLabel(row.widest_text, parent);
  label->setObjectName(row.name);
  label->Show(row.first_text);
  return label;
}

// The file's name with the mark in front of it, as one panel.
QWidget* WithMark(UnsavedMark* mark, ElidedLabel* label, QWidget* parent) {
  auto* box = new QWidget(parent);
  auto* row = new QHBoxLayout(box);
  row->setContentsMargins(4, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(mark);
  row->addWidget(label, 1);
  return box;
}

}  // namespace

StatusPanels::StatusPanels(QStatusBar* bar)
    : QWidget(bar), words_(MakePanel(kWords, this)), unsaved_(new UnsavedMark(this)) {
  auto* flow = new PanelFlow(this);
  flow->addWidget(words_);
  for (std::size_t i = 0; i < kPanels.size(); ++i) {
    panels_[i] = MakePanel(kPanels[i], this);
    const bool is_file = i == static_cast<std::size_t>(StatusPanel::kFile);
    flow->addWidget(is_file ? WithMark(unsaved_, panels_[i], this) : panels_[i]);
  }
  SetBuilding(false);
  bar->addPermanentWidget(this, 1);
  word_ends_.setSingleShot(true);
  connect(&word_ends_, &QTimer::timeout, this, [this] { ShowWord({}, false, 0); });
  connect(bar, &QStatusBar::messageChanged, this, [this](const QString& hint) {
    hint_ = hint;
    ShowHintOrWord();
  });
}

void StatusPanels::FitInto(int width) {
  const int rows = layout()->heightForWidth(width - kSizeGrip);
  const int most = std::max(window()->height() * 2 / 5, layout()->minimumSize().height());
  setFixedHeight(std::min(rows, most));  // in a window too low for more the last panels go
}

void StatusPanels::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitInto(width() + kSizeGrip);
}

void StatusPanels::Tell(std::string_view text) {
  ShowWord(text, false, kWordMilliseconds);
}

void StatusPanels::Warn(std::string_view text) {
  ShowWord(text, true, kWarningMilliseconds);
}

void StatusPanels::ShowWord(std::string_view text, bool is_warning, int milliseconds) {
  word_ = ToQt(text);
  is_warning_ = is_warning;
  word_ends_.stop();
  if (milliseconds > 0) word_ends_.start(milliseconds);
  ShowHintOrWord();
}

void StatusPanels::ShowHintOrWord() {
  const bool warns = is_warning_ && hint_.isEmpty();
  words_->setAutoFillBackground(warns);
  words_->setBackgroundRole(warns ? QPalette::ToolTipBase : QPalette::Window);
  words_->setForegroundRole(warns ? QPalette::ToolTipText : QPalette::WindowText);
  words_->Show(hint_.isEmpty() ? word_ : hint_);
}

void StatusPanels::Show(StatusPanel panel, const QString& text) {
  panels_[static_cast<std::size_t>(panel)]->Show(text);
}

void StatusPanels::SetBuilding(bool is_building) {
  panels_[static_cast<std::size_t>(StatusPanel::kBuilding)]->setVisible(is_building);
}

void StatusPanels::ShowUnsaved(bool is_unsaved) {
  unsaved_->Show(is_unsaved);
}

}  // namespace kelvo::ui
