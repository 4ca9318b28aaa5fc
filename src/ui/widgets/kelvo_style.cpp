#include "ui/widgets/kelvo_style.h"

#include <QApplication>
#include <QFontInfo>
#include <QPainter>
#include <QStyleOption>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <cstdlib>

#include "ui/widgets/child_window.h"
#include "ui/widgets/ink.h"
#include "ui/widgets/later_icon.h"

namespace kelvo::ui {
namespace {

constexpr double kCaptionFont = 0.9;  // of the application's
constexpr double kLeastPoints = 5;
constexpr int kReadable = 70;  // greys between ink and ground
constexpr int kFrame = 1, kGripFrame = 4;

QFont CaptionFont() {
  QFont font = QApplication::font();
  font.setPointSizeF(QFontInfo(font).pointSizeF() * kCaptionFont);
  return font;
}

// The font in which `text` fits into `width`.
QFont FontFor(const QString& text, int width) {
  QFont font = CaptionFont();
  const int wanted = QFontMetrics(font).horizontalAdvance(text);
  if (wanted > width && width > 0) font.setPointSizeF(std::max(kLeastPoints, font.pointSizeF() * width / wanted));
  return font;
}

QColor Mixed(const QColor& under, const QColor& over, double share) {
  const auto mix = [share](int below, int above) { return static_cast<int>(below + (above - below) * share); };
  return {mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue())};
}

void DrawCross(QPainter& painter, const QRectF& box) {
  painter.drawLine(box.topLeft(), box.bottomRight());
  painter.drawLine(box.topRight(), box.bottomLeft());
}

void DrawButton(QPainter& painter, const QRect& box, const QStyleOptionTitleBar& bar, QStyle::SubControl part) {
  painter.setRenderHint(QPainter::Antialiasing);
  if (bar.activeSubControls == part) painter.fillRect(box, bar.palette.mid());
  painter.setPen(QPen(bar.palette.windowText(), 1.5, Qt::SolidLine, Qt::RoundCap));
  const double side = box.height() * 0.4;
  QRectF sign(0, 0, side, side);
  sign.moveCenter(QRectF(box).center());
  part == QStyle::SC_TitleBarCloseButton ? DrawCross(painter, sign) : painter.drawRect(sign);
  painter.setRenderHint(QPainter::Antialiasing, false);
}

void DrawChosenTool(QPainter& painter, const QStyleOption& option) {
  const QColor mark = option.palette.color(QPalette::Highlight);
  painter.fillRect(option.rect, Mixed(option.palette.color(QPalette::Window), mark, 0.35));
  painter.setPen(QPen(mark, 2));
  painter.drawRect(option.rect.adjusted(1, 1, -1, -1));
  painter.fillRect(QRect(option.rect.left(), option.rect.bottom() - 3, option.rect.width(), 4), mark);
}

// What leads to the entries that a narrow menu bar or toolbar does not show, in the theme's own ink.
QIcon MoreIcon() {
  constexpr int kSide = 32;
  QPixmap pixmap(kSide, kSide);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QApplication::palette().color(QPalette::WindowText), 4, Qt::SolidLine, Qt::RoundCap));
  for (const int x : {6, 16}) {
    painter.drawPolyline(QPolygon({QPoint(x, 6), QPoint(x + 9, 16), QPoint(x, 26)}));
  }
  return pixmap;
}

}  // namespace

void KelvoStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  const QColor link = palette.color(QPalette::Link), ground = palette.color(QPalette::Window);
  if (std::abs(qGray(link.rgb()) - qGray(ground.rgb())) > kReadable) return;
  palette.setColor(QPalette::Link, Mixed(link, palette.color(QPalette::WindowText), 0.6));
}

int KelvoStyle::CaptionHeight() const {
  const QFont font = QApplication::font();
  if (caption_height_ == 0 || font != measured_) {
    measured_ = font;
    caption_height_ = QFontMetrics(CaptionFont()).height() + 4;
  }
  return caption_height_;
}

int KelvoStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  if (const auto* child = qobject_cast<const ChildWindow*>(widget)) {
    if (metric == PM_TitleBarHeight) return CaptionHeight();
    if (metric == PM_MdiSubWindowFrameWidth) return child->IsFixed() ? kFrame : kGripFrame;
  }
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int KelvoStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                          QStyleHintReturn* data) const {
  if (hint == SH_TitleBar_NoBorder && qobject_cast<const ChildWindow*>(widget) != nullptr) return 1;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

QRect KelvoStyle::CaptionPart(const QStyleOptionTitleBar& bar, SubControl part) const {
  const int side = bar.rect.height();
  const QRect close(bar.rect.right() + 1 - side, bar.rect.top(), side, side);
  const bool can_fill = bar.titleBarFlags.testFlag(Qt::WindowMaximizeButtonHint);
  const QRect fill = can_fill ? close.translated(-side, 0) : QRect();
  if (part == SC_TitleBarCloseButton) return close;
  if (part == SC_TitleBarMaxButton) return fill;
  const int right = (can_fill ? fill : close).left();
  if (part == SC_TitleBarLabel) return {bar.rect.left(), bar.rect.top(), right - bar.rect.left(), side};
  return {};
}

QRect KelvoStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                 const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
  if (control != CC_TitleBar || bar == nullptr || qobject_cast<const ChildWindow*>(widget) == nullptr) {
    return QProxyStyle::subControlRect(control, option, part, widget);
  }
  return visualRect(option->direction, option->rect, CaptionPart(*bar, part));
}

void KelvoStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                    const QWidget* widget) const {
  const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
  if (control != CC_TitleBar || bar == nullptr || qobject_cast<const ChildWindow*>(widget) == nullptr) {
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  }
  const QPalette palette = QApplication::palette();
  const QColor ground = palette.color(QPalette::Window);
  const bool is_active = bar->titleBarState & Qt::WindowActive;
  painter->fillRect(bar->rect, is_active ? Mixed(ground, palette.color(QPalette::Highlight), 0.35) : ground);
  const QString text = widget->windowTitle().trimmed();
  const QRect label = subControlRect(control, option, SC_TitleBarLabel, widget).adjusted(5, 0, -2, 0);
  painter->setFont(FontFor(text, label.width()));
  painter->setPen(is_active ? palette.color(QPalette::WindowText)
                            : Mixed(ground, palette.color(QPalette::WindowText), 0.75));
  painter->drawText(label, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
  QStyleOptionTitleBar own = *bar;
  own.palette = palette;
  for (const SubControl part : {SC_TitleBarCloseButton, SC_TitleBarMaxButton}) {
    const QRect box = subControlRect(control, option, part, widget);
    if (!box.isEmpty()) DrawButton(*painter, box, own, part);
  }
}

QIcon KelvoStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
  if (which == SP_ToolBarHorizontalExtensionButton) return MoreIcon();
  if (which < SP_TitleBarMinButton || which > SP_TitleBarNormalButton) {
    return QProxyStyle::standardIcon(which, option, widget);
  }
  // Each child window has them in a menu that few ever open. One lies in files: whatever reads an image file first
  // loads Qt's plugins for all of them.
  return QIcon(new LaterIcon([this, which] { return QProxyStyle::standardIcon(which, nullptr, nullptr); }));
}

void KelvoStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (element == PE_FrameWindow && qobject_cast<const ChildWindow*>(widget) != nullptr) {
    painter->fillRect(option->rect, QApplication::palette().color(QPalette::Window));
    painter->setPen(QApplication::palette().color(QPalette::Mid));
    return painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
  }
  const bool is_tool = element == PE_PanelButtonTool && widget != nullptr &&
                       qobject_cast<const QToolBar*>(widget->parentWidget()) != nullptr;
  if (is_tool && option->state.testFlag(State_On)) return DrawChosenTool(*painter, *option);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

}  // namespace kelvo::ui
