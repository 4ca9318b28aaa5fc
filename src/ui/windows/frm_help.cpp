#include "ui/windows/frm_help.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QKeyEvent>

namespace kelvo::ui {
namespace {

constexpr QSize kFirstSize(760, 640);
constexpr int kPictureWidth = 680;

// The sign between a menu and its entry is not in every font.
QString InSignsOf(const QFont& font, const QString& html) {
  constexpr QChar kInto(0x25B8);
  return QFontMetrics(font).inFont(kInto) ? html : QString(html).replace(kInto, "&gt;");
}

}  // namespace

frmHelp::frmHelp(const QString& name, const QString& title, QWidget* parent) : QTextBrowser(parent) {
  setWindowFlag(Qt::Window);
  setAttribute(Qt::WA_DeleteOnClose);
  setObjectName(name);
  setWindowTitle(title);
  setAccessibleName(title);
  setOpenExternalLinks(true);
  document()->setDefaultStyleSheet("th, td { padding-right: 12px; }");  // columns stand apart
  resize(kFirstSize);
}

void frmHelp::ShowGuide() {
  const QFileInfo guide(QDir(QCoreApplication::applicationDirPath()), KELVO_SHARE_FROM_PROGRAM "/guide/guide.html");
  if (!guide.exists()) return setPlainText("The guide is missing: " + guide.absoluteFilePath());
  setSource(QUrl::fromLocalFile(guide.absoluteFilePath()), QTextDocument::HtmlResource);
}

QVariant frmHelp::loadResource(int type, const QUrl& name) {
  if (type == QTextDocument::HtmlResource) {
    return InSignsOf(font(), QTextBrowser::loadResource(type, name).toByteArray());
  }
  if (type != QTextDocument::ImageResource) return QTextBrowser::loadResource(type, name);
  const QImage image(source().resolved(name).toLocalFile());
  return image.width() > kPictureWidth ? image.scaledToWidth(kPictureWidth, Qt::SmoothTransformation) : image;
}

void frmHelp::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    close();
    return;
  }
  QTextBrowser::keyPressEvent(event);
}

}  // namespace kelvo::ui
