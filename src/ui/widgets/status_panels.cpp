#include "ui/widgets/status_panels.h"

#include <QFontMetrics>

namespace kelvo::ui {
namespace {

struct PanelRow {
  const char* name;
  const char* first_text;
  const char* widest_text;
};

constexpr std::array<PanelRow, 5> kPanels{{
    {"pnlFile", "[unnamed]", "a rather long picture name.kvp"},
    {"pnlTool", "DRAW", "SET STARTING POINT"},
    {"pnlBlockFill", "BF=OFF", "BF=OFF"},
    {"pnlAnimation", "ANIM=OFF", "ANIM=OFF"},
    {"pnlPointer", "", "x=160 y=200 col=40 row=25"},
}};

}  // namespace

StatusPanels::StatusPanels(QStatusBar* bar) {
  for (std::size_t i = 0; i < kPanels.size(); ++i) {
    const PanelRow& row = kPanels[i];
    auto* label = new QLabel(row.first_text, bar);
    label->setObjectName(row.name);
    label->setTextFormat(Qt::PlainText);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    label->setFixedWidth(label->fontMetrics().horizontalAdvance(row.widest_text) + 12);
    bar->addPermanentWidget(label);
    panels_[i] = label;
  }
}

void StatusPanels::Show(StatusPanel panel, const QString& text) {
  QLabel* label = panels_[static_cast<std::size_t>(panel)];
  label->setText(label->fontMetrics().elidedText(text, Qt::ElideMiddle, label->width() - 8));
  label->setToolTip(text);
}

}  // namespace kelvo::ui
