#include "ui/ports/qt_messages.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QCursor>
#include <QGuiApplication>
#include <QMessageBox>

#include "ui/ports/qt_text.h"

namespace kelvo::ui {
namespace {

// A box may come up in the middle of long work: it gets an ordinary pointer, and the hourglass comes back behind it.
class OrdinaryPointer {
 public:
  OrdinaryPointer() { QGuiApplication::setOverrideCursor(Qt::ArrowCursor); }
  ~OrdinaryPointer() { QGuiApplication::restoreOverrideCursor(); }
  OrdinaryPointer(const OrdinaryPointer&) = delete;
  OrdinaryPointer& operator=(const OrdinaryPointer&) = delete;
};

// `add` puts into the box what it holds besides its text and buttons.
template <typename Add>
int ShowWith(QWidget* parent, QMessageBox::Icon icon, std::string_view text, QMessageBox::StandardButtons buttons,
             Add&& add) {
  const OrdinaryPointer pointer;
  QMessageBox box(icon, QGuiApplication::applicationDisplayName(), ToQt(text), buttons, parent);
  box.setTextFormat(Qt::PlainText);
  add(box);
  if (QAbstractButton* discard = box.button(QMessageBox::Discard)) discard->setText("&Discard");
  return box.exec();
}

int Show(QWidget* parent, QMessageBox::Icon icon, std::string_view text, QMessageBox::StandardButtons buttons) {
  return ShowWith(parent, icon, text, buttons, [](QMessageBox&) {});
}

}  // namespace

void QtMessages::Inform(std::string_view text) {
  Show(parent_, QMessageBox::Information, text, QMessageBox::Ok);
}

void QtMessages::InformWithMore(std::string_view text, std::string_view more) {
  ShowWith(parent_, QMessageBox::Information, text, QMessageBox::Ok,
           [&](QMessageBox& box) { box.setInformativeText(ToQt(more)); });
}

bool QtMessages::InformWithChoice(std::string_view text, std::string_view choice) {
  bool ticked = false;
  ShowWith(parent_, QMessageBox::Information, text, QMessageBox::Ok, [&](QMessageBox& box) {
    auto* choice_box = new QCheckBox(ToQt(choice), &box);
    choice_box->setObjectName("chkChoice");
    box.setCheckBox(choice_box);
    QObject::connect(choice_box, &QCheckBox::toggled, &box, [&ticked](bool on) { ticked = on; });
  });
  return ticked;
}

void QtMessages::Warn(std::string_view text) {
  Show(parent_, QMessageBox::Warning, text, QMessageBox::Ok);
}

void QtMessages::Tell(std::string_view text) {
  Show(parent_, QMessageBox::NoIcon, text, QMessageBox::Ok);
}

bool QtMessages::Ask(std::string_view text) {
  return Show(parent_, QMessageBox::Information, text, QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

app::UnsavedAnswer QtMessages::AskUnsaved(std::string_view text) {
  const int answer =
      Show(parent_, QMessageBox::Warning, text, QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
  if (answer == QMessageBox::Save) return app::UnsavedAnswer::kSave;
  return answer == QMessageBox::Discard ? app::UnsavedAnswer::kDiscard : app::UnsavedAnswer::kCancel;
}

}  // namespace kelvo::ui
