#include "ui/key_page.h"

#include <QAction>
#include <QKeySequence>

#include "editing/pens.h"
#include "editing/tool_table.h"
#include "ui/desks/keyboard_hand.h"
#include "ui/desks/zoom_keys.h"
#include "ui/menu_table.h"
#include "ui/ports/qt_text.h"
#include "ui/widgets/swatch_button.h"
#include "ui/windows/frame_deeds.h"
#include "ui/windows/import_keys.h"

namespace kelvo::ui {
namespace {

QString Section(const QString& title, const QString& rows) {
  return "<h3>" + title + "</h3><table cellspacing='0' cellpadding='3'>" + rows + "</table>";
}

QString Row(const QString& key, const QString& what) {
  return "<tr><td width='150'><b>" + key.toHtmlEscaped() + "</b></td><td>" + what.toHtmlEscaped() + "</td></tr>";
}

// The keys that hold now: a preference may give an entry others than its row does. A row's letter is no shortcut.
QString KeysOf(const MenuEntry& entry, const QWidget& frame) {
  const auto* action = frame.findChild<QAction*>(entry.name);
  const QString shortcuts = QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText);
  return shortcuts.isEmpty() && IsLetter(entry.key) ? entry.key : shortcuts;
}

QString MenuRows(const QWidget& frame) {
  QString rows;
  for (const MenuEntry& entry : MenuEntries()) {
    if (entry.text == nullptr) continue;
    const QString keys = KeysOf(entry, frame);
    if (!keys.isEmpty()) rows += Row(keys, QString(entry.text).remove('&').remove("...") + ": " + entry.tip);
  }
  return rows;
}

QString ToolRows() {
  QString rows;
  for (const editing::ToolRow& tool : editing::ToolTable()) rows += Row(QChar(tool.key), ToQt(tool.caption));
  return rows + Row("Escape", "Take an unfinished shape back; else the keyboard's cursor goes, else Draw is chosen");
}

QString PenRows() {
  QString rows;
  for (int number = 0; number < model::C64Colour::kCount; ++number) {
    const model::C64Colour colour = *model::C64Colour::FromNumber(number);
    rows += Row(QChar(editing::KeyForPen(colour)), "Left pen: " + PlainColourName(colour));
  }
  return rows;
}

QString ScrollRows() {
  QString rows;
  for (const ZoomKey& row : kZoomKeys) {
    rows += Row(QKeySequence(row.key).toString(QKeySequence::NativeText), row.what);
  }
  return rows;
}

QString KeyboardRows() {
  QString rows;
  for (const KeyboardHand::KeyRow& row : KeyboardHand::Keys()) rows += Row(row.keys, row.what);
  return rows;
}

QString ImportRows() {
  QString rows;
  for (const ImportKey& row : kImportKeys) rows += Row(row.keys, row.what);
  return rows;
}

QString FrameRows() {
  QString rows;
  for (const FrameDeedRow& row : kFrameDeeds) {
    rows +=
        Row(QKeySequence(row.key).toString(QKeySequence::NativeText), QString(row.text).remove('&') + ": " + row.tip);
  }
  return rows;
}

}  // namespace

QString KeyPage(const QWidget& frame) {
  return Section("Menus", MenuRows(frame)) + Section("Tools", ToolRows()) + Section("Pens", PenRows()) +
         Section("Looking", ScrollRows()) + Section("Painting by keyboard, in the zoom window", KeyboardRows()) +
         Section("Importing an image", ImportRows()) + Section("In the frame strip", FrameRows());
}

}  // namespace kelvo::ui
