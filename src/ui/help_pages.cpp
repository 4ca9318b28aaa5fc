#include "ui/help_pages.h"

#include "ui/key_page.h"
#include "ui/windows/frm_help.h"

namespace kelvo::ui {
namespace {

frmHelp* Open(QWidget& frame, const QString& name, const QString& title) {
  auto* page = frame.findChild<frmHelp*>(name);
  if (page == nullptr) page = new frmHelp(name, title, &frame);
  page->show();
  page->raise();
  page->activateWindow();
  return page;
}

}  // namespace

void ShowKeys(QWidget& frame) {
  Open(frame, "frmKeys", "Keys")->setHtml(KeyPage(frame));
}

void ShowGuide(QWidget& frame) {
  Open(frame, "frmGuide", "Guide")->ShowGuide();
}

}  // namespace kelvo::ui
