// The look of the workplace: thin captions on child windows, and a chosen tool that is seen at once.
#pragma once

#include <QFont>
#include <QProxyStyle>

class QStyleOptionTitleBar;

namespace kelvo::ui {

// Changes the platform's style there alone. All colours come from the palette, so that they read in every theme; a
// caption that is too long for its window is drawn smaller, never cut.
class KelvoStyle final : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::polish;
  // A theme that says nothing of links leaves them dark blue, also on a dark ground.
  void polish(QPalette& palette) override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* data) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;

 private:
  int CaptionHeight() const;
  QRect CaptionPart(const QStyleOptionTitleBar& bar, SubControl part) const;

  mutable QFont measured_;  // the application's font that caption_height_ is for: windows ask for it all the time
  mutable int caption_height_ = 0;
};

}  // namespace kelvo::ui
