// Images come in by the dialog, a drop, the clipboard and the prompt, as what the core makes of them; what is no image
// is told, and whatever happens on the way changes nothing.
#include <QBuffer>
#include <QClipboard>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QImageReader>
#include <QMimeData>
#include <QSlider>

#include "convert/into_picture.h"
#include "files/picture_content.h"
#include "images/image_reading.h"
#include "images/picture_png.h"
#include "main_frame_fixture.h"
#include "model/named_palettes.h"
#include "support/pictures.h"
#include "ui/desks/history_desk.h"
#include "ui/desks/import_desk.h"
#include "ui/windows/import_dialog.h"

namespace kelvo::ui {
namespace {

constexpr int kEndOfWork = 20000;  // milliseconds

// All hues in all lightnesses, with a shadow: nothing that a C64 shows as it is.
QImage Photo(QSize size = {300, 240}, QImage::Format format = QImage::Format_RGB32) {
  QImage photo(size, format);
  for (int y = 0; y < size.height(); ++y) {
    for (int x = 0; x < size.width(); ++x) {
      photo.setPixelColor(x, y, QColor::fromHsv(359 * x / size.width(), 90, 60 + 195 * y / size.height()));
    }
  }
  return photo;
}

QByteArray BytesOf(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format);
  return bytes;
}

// A PNG that says of itself that it is `side` pixels wide and high.
QByteArray PngOfSide(quint32 side) {
  QByteArray png = BytesOf(Photo({4, 4}), "png");
  QByteArray header("IHDR");
  for (int number = 0; number < 2; ++number) {
    for (int shift = 24; shift >= 0; shift -= 8) header.append(static_cast<char>(side >> shift));
  }
  header.append("\x08\x02\x00\x00\x00", 5);
  quint32 sum = ~0U;
  for (const char byte : header) {
    sum ^= static_cast<uchar>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = sum & 1U ? sum >> 1 ^ 0xEDB88320U : sum >> 1;
  }
  sum = ~sum;
  for (int shift = 24; shift >= 0; shift -= 8) header.append(static_cast<char>(sum >> shift));
  return png.replace(12, header.size(), header);
}

class ImportTest : public MainFrameTest {
 protected:
  ImportTest() {
    watch.start(3 * kEndOfWork);  // a dialog stays for as long as its work takes, also with sanitizers
    Start();
    support::WriteFile(folder / "before.kvp", files::Encode(support::BlotchyPicture(3)));
    frame->Files().OpenPicture(folder / "before.kvp");
    before = Picture();
    steps = frame->History().Steps().Count();
  }

  std::filesystem::path Write(const std::string& name, const QByteArray& bytes) {
    support::WriteFile(folder / name, app::Bytes(bytes.begin(), bytes.end()));
    return folder / name;
  }
  static void WaitForResult(ImportDialog& dialog) {
    auto* result = dialog.findChild<QLabel*>("lblResult");
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return !result->text().isEmpty() && !(result->text() + result->toolTip()).endsWith("..."); },
        kEndOfWork));
  }
  // Imports `file` with what `work` does in the dialog, once there is a result.
  template <typename Work>
  void Import(const std::filesystem::path& file, Work work) {
    InNextDialog<ImportDialog>([work](ImportDialog& dialog) {
      WaitForResult(dialog);
      work(dialog);
    });
    frame->Imports().ImportFile(file);
  }
  static void Accept(ImportDialog& dialog) { dialog.findChild<QAbstractButton*>("cmdStd")->click(); }
  static convert::Wishes ProposedWishes(const convert::Conversion& conversion) {
    convert::Wishes wishes;
    wishes.grain = conversion.ProposedDither().grain;
    return wishes;
  }
  static model::PictureImage Converted(convert::Conversion& conversion, const convert::Wishes& wishes) {
    app::NoProgress nobody_watches;
    return convert::PictureOf(conversion.Convert(wishes, nobody_watches).map);
  }
  void ExpectNothingChanged() {
    frame->History().Settle();
    EXPECT_TRUE(Picture() == before);
    EXPECT_EQ(Panel("pnlFile"), "before.kvp");
    EXPECT_EQ(frame->History().Steps().Count(), steps);
  }

  model::PictureImage before;
  int steps = 0;
};

// Every control counts, and is there again the next time, but for the frame; Reset puts all back.
TEST_F(ImportTest, TheDialogMakesWhatItsControlsSay) {
  const auto file = Write("photo.png", BytesOf(Photo(), "png"));
  InNextDialog<QFileDialog>([&](QFileDialog& open) {
    open.findChild<QLineEdit*>("fileNameEdit")->setText(ToQt(app::TextFromPath(file)));
    InNextDialog<ImportDialog>([](ImportDialog& dialog) {
      WaitForResult(dialog);
      QTest::keyClick(dialog.findChild<QComboBox*>("cboFit"), Qt::Key_Down);
      QTest::keyClick(dialog.findChild<QComboBox*>("cboBackground"), Qt::Key_End);
      QTest::keyClick(dialog.findChild<QComboBox*>("cboBackdrop"), Qt::Key_Down);
      QTest::keyClick(dialog.findChild<QSlider*>("brightnessSlider"), Qt::Key_PageUp);
      auto* contrast = dialog.findChild<QDoubleSpinBox*>("contrast");
      contrast->selectAll();
      QTest::keyClicks(contrast, "-20");
      QTest::keyClick(dialog.findChild<QSlider*>("grainSlider"), Qt::Key_Home);
      auto* source = dialog.findChild<QWidget*>("picSource");
      QTest::keyClick(source, Qt::Key_Left, Qt::ControlModifier);
      Accept(dialog);  // before there is a result
    });
    QTest::keyClick(&open, Qt::Key_Return);
  });
  Key(Qt::Key_I, Qt::ControlModifier);

  convert::Conversion conversion(images::RgbOf(Photo()), model::NamedColours());
  convert::Wishes wishes;
  wishes.preparation = {.fit = convert::Fit::kContain,
                        .crop = convert::Area{0, 0, 294, 240},
                        .brightness = 10,
                        .contrast = -20,
                        .backdrop = model::kSurfaceColours[1]};
  wishes.background = model::C64Colour::FromByte(15);
  wishes.grain = 0.45F;
  EXPECT_TRUE(Picture() == Converted(conversion, wishes));
  EXPECT_TRUE(frame->windowTitle().endsWith(" [photo.kvp]"));
  EXPECT_TRUE(frame->Document().HasUnsavedWork());
  EXPECT_FALSE(frame->HasFile());
  EXPECT_EQ(frame->History().Steps().Count(), steps + 1);
  EXPECT_EQ(frame->History().Steps().CaptionOf(steps), "Import photo.png");
  EXPECT_EQ(PromptLines().last(), "IMPORT photo.png");

  wishes.preparation.crop.reset();
  Import(file, &Accept);
  EXPECT_TRUE(Picture() == Converted(conversion, wishes));
  Import(file, [](ImportDialog& dialog) {
    auto* source = dialog.findChild<QWidget*>("picSource");
    const auto* whole = dialog.findChild<QAbstractButton*>("cmdWhole");
    EXPECT_FALSE(whole->isEnabled());
    QTest::mousePress(source, Qt::LeftButton, {}, source->rect().center() - QPoint(40, 30));
    MoveMouse(source, source->rect().center(), Qt::LeftButton);
    QTest::mouseRelease(source, Qt::LeftButton, {}, source->rect().center());
    EXPECT_TRUE(whole->isEnabled());
    dialog.findChild<QAbstractButton*>("cmdReset")->click();
    EXPECT_FALSE(whole->isEnabled());
    Accept(dialog);
  });
  EXPECT_TRUE(Picture() == Converted(conversion, ProposedWishes(conversion)));
}

TEST_F(ImportTest, APartTakesThePicturesBackgroundAndLeavesOtherCellsAlone) {
  Import(Write("logo.png", BytesOf(Photo({64, 64}), "png")), [](ImportDialog& dialog) {
    dialog.findChild<QComboBox*>("cboPlace")->setCurrentIndex(1);
    for (const auto& [name, value] : {std::pair("column", 38), {"row", 3}, {"cellsWide", 12}, {"cellsHigh", 2}}) {
      dialog.findChild<QSpinBox*>(name)->setValue(value);
    }
    Accept(dialog);
  });
  EXPECT_EQ(Picture().BackgroundColour, before.BackgroundColour);
  for (int y = 1; y <= 200; ++y) {
    for (int x = 1; x <= 160; ++x) {
      const bool is_part = x > 148 && y > 16 && y <= 32;  // columns 38 to 40, rows 3 and 4
      if (!is_part) {
        ASSERT_EQ(support::ColourAt(Picture(), x, y), support::ColourAt(before, x, y)) << x << ' ' << y;
      }
    }
  }
  EXPECT_FALSE(Picture() == before);
  EXPECT_EQ(frame->History().Steps().Count(), steps + 1);
  EXPECT_EQ(Panel("pnlFile"), "before.kvp");
  EXPECT_EQ(Action("mnuUndo")->text(), "&Undo import logo.png");
  Action("mnuUndo")->trigger();
  EXPECT_TRUE(Picture() == before);
}

// A drop, the clipboard and the prompt, each with a picture that comes back as it was.
TEST_F(ImportTest, EveryWayInBringsAnExportedPictureBack) {
  const model::PictureImage sample = support::BlotchyPicture(8);
  const QImage image =
      images::ImageOf(sample, {"Pepto", model::kNamedPalettes[1].colours}, images::ImageSize::kBorder, 2);
  const auto expect_sample = [&] {
    for (int y = 1; y <= 200; ++y) {
      for (int x = 1; x <= 160; ++x) ASSERT_EQ(support::ColourAt(Picture(), x, y), support::ColourAt(sample, x, y));
    }
    frame->Files().OpenPicture(folder / "before.kvp");
  };
  const auto accept_next = [] {
    InNextDialog<ImportDialog>([](ImportDialog& dialog) {
      WaitForResult(dialog);
      Accept(dialog);
    });
  };
  QMimeData dropped;
  dropped.setUrls({QUrl::fromLocalFile(ToQt(app::TextFromPath(Write("p.BMP", BytesOf(image, "bmp")))))});
  QDragEnterEvent enter({9, 9}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(frame.get(), &enter);
  QDropEvent drop({9, 9}, Qt::CopyAction, &dropped, Qt::LeftButton, {});
  QApplication::sendEvent(frame.get(), &drop);
  accept_next();
  QApplication::processEvents();
  expect_sample();

  QGuiApplication::clipboard()->setImage(image);
  Action("mnuPasteImage")->trigger();
  accept_next();
  QApplication::processEvents();
  EXPECT_TRUE(frame->windowTitle().endsWith(" [pasted.kvp]"));
  expect_sample();
  QGuiApplication::clipboard()->setText("no image");
  Action("mnuPasteImage")->trigger();
  EXPECT_TRUE((Panel("pnlWord") + Find("pnlWord")->toolTip()).endsWith("There is no image on the clipboard"));

  const QByteArray png = BytesOf(image, "png");
  support::WriteFile(folders.Gfx() / "Pic.png", app::Bytes(png.begin(), png.end()));
  frame->ProcessCommand("IMPORT PIC");
  EXPECT_EQ(PromptLines().last(), "IMPORT Pic.png");
  expect_sample();
  support::WriteText(folders.Gfx() / "BAD.PNG", "no image");
  frame->ProcessCommand("IMPORT BAD");
  EXPECT_EQ(PromptLines().last(), "IMPORT BAD [err 902]");
}

TEST_F(ImportTest, WhatIsNoImageIsToldAndChangesNothing) {
  QTimer told;
  QObject::connect(&told, &QTimer::timeout, [this] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    box_text = box->text();
    box->accept();
  });
  told.start(5);
  const QByteArray png = BytesOf(Photo(), "png");
  struct Case {
    const char* name;
    QByteArray bytes;
    const char* told;
  };
  for (const Case& bad : {Case{"empty.png", "", "no image can be read"},
                          {"words.jpg", "no image", "no image can be read"},
                          {"half.png", png.left(png.size() / 2), "no image can be read"},
                          {"huge.png", PngOfSide(30000), "30000 x 30000 pixels"},
                          {"bomb.png", PngOfSide(10000), "no image can be read"},
                          {"gone.png", {}, "gone.png"}}) {
    SCOPED_TRACE(bad.name);
    const auto file = bad.bytes.isNull() ? folder / bad.name : Write(bad.name, bad.bytes);
    box_text.clear();
    frame->Imports().ImportFile(file);
    EXPECT_TRUE(box_text.startsWith(QString(bad.name) + " cannot be imported.")) << FromQt(box_text);
    EXPECT_TRUE(box_text.contains(bad.told)) << FromQt(box_text);
    ExpectNothingChanged();
  }
}

TEST_F(ImportTest, OddImagesComeInAndCancelIsHeardAtEveryMoment) {
  const QImage nothing_seen = [] {
    QImage image(30, 20, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    return image;
  }();
  const QByteArray animation = QByteArray::fromHex(
      "47494638396101000100800000000000FFFFFF"
      "21F904040A0000002C0000000001000100000202440100"
      "21F904040A0000002C0000000001000100000202440100"
      "3B");
  QList<QByteArray> odd{BytesOf(Photo({1, 1}), "png"), BytesOf(Photo({300, 240}, QImage::Format_RGBA64), "png"),
                        BytesOf(nothing_seen, "png"), BytesOf(Photo({5000, 3}), "jpg")};
  if (QImageReader::supportedImageFormats().contains("gif")) odd << animation;  // not on Windows
  for (const QByteArray& bytes : odd) {
    Import(Write("odd", bytes), &Accept);
    EXPECT_TRUE(frame->windowTitle().endsWith(" [odd.kvp]"));
    frame->Files().OpenPicture(folder / "before.kvp");
  }
  steps = frame->History().Steps().Count();
  const auto file = Write("large.png", BytesOf(Photo({2000, 1500}), "png"));
  for (int milliseconds = 0; milliseconds < 600; milliseconds = milliseconds * 3 / 2 + 1) {
    InNextDialog<ImportDialog>(
        [milliseconds](ImportDialog& dialog) { QTimer::singleShot(milliseconds, &dialog, &QDialog::reject); });
    frame->Imports().ImportFile(file);
    ExpectNothingChanged();
  }
}

}  // namespace
}  // namespace kelvo::ui
