// Surfaces come out pixel for pixel at every scale of the display.
#include "ui/surface_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QProcess>

#include "ui/qt_file_dialogs.h"

namespace kelvo::ui {
namespace {

// How wide each one-unit column of a striped surface is painted, in device pixels.
std::vector<int> ColumnWidths(int unit) {
  model::Surface surface(80, 8);
  for (int x = 0; x < 80; ++x) surface.Fill({x, 0, 1, 8}, x / unit % 2 == 0 ? 0xFFFFFFFF : 0xFF0000FF);
  SurfaceView view(surface, unit, nullptr);
  view.show();
  const QImage image = view.grab().toImage();
  std::vector<int> widths;
  for (int x = 0; x < image.width() && image.pixel(x, 1) != qRgb(0, 0, 0); ++x) {
    if (x == 0 || image.pixel(x, 1) != image.pixel(x - 1, 1)) widths.push_back(0);
    ++widths.back();
  }
  return widths;
}

TEST(SurfaceView, EveryColumnOfOneWidthIsPaintedInOneWidth) {
  for (const int unit : {1, 4}) {
    const std::vector<int> widths = ColumnWidths(unit);
    ASSERT_FALSE(widths.empty());
    EXPECT_EQ(widths, std::vector<int>(static_cast<std::size_t>(80 / unit), widths.front())) << "unit " << unit;
  }
}

TEST(SurfaceView, AlsoAtOddScales) {
  if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) GTEST_SKIP() << "this is a run at another scale";
  for (const char* scale : {"1.25", "1.5", "2"}) {
    QProcess other;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_SCALE_FACTOR", scale);
    other.setProcessEnvironment(environment);
    other.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=SurfaceView.Every*"});
    ASSERT_TRUE(other.waitForFinished());
    EXPECT_EQ(other.exitCode(), 0) << scale << "\n" << other.readAllStandardOutput().toStdString();
  }
}

TEST(FileDialogs, FiltersTakeQtsForm) {
  EXPECT_EQ(ToQtFilter("A (*.a;*.b)|*.a;*.b|C (*.c)|*.c"), "A (*.a *.b);;C (*.c)");
}

}  // namespace
}  // namespace kelvo::ui
