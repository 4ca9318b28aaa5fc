// What leaves Kelvo by the Export dialog, the clipboard and a drag is the picture, in every format and size.
#include <QClipboard>
#include <QFileDialog>

#include "convert/conversion.h"
#include "convert/into_picture.h"
#include "files/picture_content.h"
#include "images/image_reading.h"
#include "main_frame_fixture.h"
#include "model/named_palettes.h"
#include "support/pictures.h"
#include "ui/desks/export_desk.h"

namespace kelvo::ui {
namespace {

class ExportTest : public MainFrameTest {
 protected:
  ExportTest() {
    Start();
    support::WriteFile(folder / "r.kvp", files::Encode(support::RandomPicture(5)));
    frame->Files().OpenPicture(folder / "r.kvp");
  }

  // Exports through both dialogs; what the first one says of the format stays in `told`.
  app::Bytes Export(int format, const std::string& name) {
    InNextDialog<ExportDialog>([this, format, name](ExportDialog& dialog) {
      dialog.findChild<QComboBox*>("cboFormat")->setCurrentIndex(format);
      told = dialog.findChild<QLabel*>("lblLacks")->text();
      InNextDialog<QFileDialog>([this, name](QFileDialog& save) {
        save.findChild<QLineEdit*>("fileNameEdit")->setText(ToQt(app::TextFromPath(folder / name)));
        QTest::keyClick(&save, Qt::Key_Return);
      });
      dialog.findChild<QAbstractButton*>("cmdStd")->click();
    });
    Action("mnuExport")->trigger();
    return support::ReadFile(folder / name);
  }

  QString told;
};

TEST_F(ExportTest, WritesEveryFormatOfTheDialogAndSaysWhatItLacks) {
  int index = 0;
  for (const files::ExportFormat& format : files::kExportFormats) {
    SCOPED_TRACE(format.ending);
    EXPECT_EQ(Export(index++, "e." + std::string(format.ending)),
              files::EncodeAs(files::FormatOf(format.type), Picture()));
    EXPECT_EQ(told, ToQt(format.lacks));
  }
  Export(index, "e.png");
  EXPECT_TRUE(told.startsWith("An image keeps what is seen"));
  EXPECT_EQ(QImage(ToQt(app::TextFromPath(folder / "e.png"))).size(), QSize(320, 200));
  EXPECT_FALSE(frame->Document().HasUnsavedWork());
}

// Each pixel of the image is the colour number of the picture's, at each size and scale, in each palette.
TEST_F(ExportTest, PngImagesHoldThePictureBitForBit) {
  using images::ImageSize;
  // A size in pixels, where the picture stands in it, and how wide its pixels are.
  for (const auto& [size, pixels, corner, wide] : {std::tuple{ImageSize::kPixels, QSize(160, 200), QPoint(0, 0), 1},
                                                   {ImageSize::kScreen, {320, 200}, {0, 0}, 2},
                                                   {ImageSize::kBorder, {384, 272}, {32, 35}, 2}}) {
    for (const int scale : {1, 3}) {
      for (const model::NamedPalette& palette : model::kNamedPalettes) {
        const files::Palette shown{std::string(palette.name), palette.colours};
        const app::Bytes png = images::PngOf(images::ImageOf(Picture(), shown, size, scale));
        const QImage read = QImage::fromData(png.data(), static_cast<int>(png.size()), "png");
        ASSERT_EQ(read.size(), pixels * scale);
        ASSERT_EQ(read.format(), QImage::Format_Indexed8);
        EXPECT_FALSE(read.hasAlphaChannel());
        EXPECT_EQ(read.colorCount(), 16);
        EXPECT_EQ(read.text(images::kPaletteKey), ToQt(palette.name));
        const auto colour = [&palette](int number) { return palette.colours.at(static_cast<std::size_t>(number)); };
        const int outside = corner.isNull() ? support::ColourAt(Picture(), 1, 1) : Picture().BackgroundColour.Number();
        EXPECT_EQ(read.pixel(0, 0), colour(outside));
        for (int y = 0; y < 200 * scale; ++y) {
          for (int x = 0; x < 160 * wide * scale; ++x) {
            const int expected = support::ColourAt(Picture(), x / scale / wide + 1, y / scale + 1);
            ASSERT_EQ(read.pixel(corner * scale + QPoint(x, y)), colour(expected)) << x << ' ' << y;
          }
        }
        // It comes back as it went, in whatever palette pictures are shown.
        app::NoProgress nobody;
        convert::Conversion conversion(images::RgbOf(read), {palette.colours});
        const convert::Converted again = conversion.Convert({}, nobody);
        EXPECT_TRUE(again.exact);
        const QImage image = images::ImageOf(convert::PictureOf(again.map), shown, size, scale);
        EXPECT_EQ(images::PngOf(image), png);
      }
    }
  }
}

TEST_F(ExportTest, TheClipboardTakesThePictureAndTextFieldsKeepTheirCtrlC) {
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->image().convertToFormat(QImage::Format_RGB32),
            frame->Exports().Image().convertToFormat(QImage::Format_RGB32));
  QLineEdit field(frame.get());
  field.setText("words");
  field.show();
  field.setFocus();
  field.selectAll();
  QTest::keyClick(&field, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "words");
}

}  // namespace
}  // namespace kelvo::ui
