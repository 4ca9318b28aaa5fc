// An icon that costs nothing until it is shown.
#pragma once

#include <QIcon>
#include <QIconEngine>
#include <functional>
#include <utility>

namespace kelvo::ui {

// Is the icon that `make` gives, which is called once, when somebody first looks at it. For QIcon(new LaterIcon(make)).
class LaterIcon final : public QIconEngine {
 public:
  explicit LaterIcon(std::function<QIcon()> make) : make_(std::move(make)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State state) override;
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
  QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) override;
  QIconEngine* clone() const override { return new LaterIcon(*this); }

 private:
  const QIcon& Icon();

  std::function<QIcon()> make_;
  QIcon icon_;
};

}  // namespace kelvo::ui
